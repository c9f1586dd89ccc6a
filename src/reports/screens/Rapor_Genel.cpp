#include "Rapor_Genel.h"

#include "Guarded.h"
#include "KontrolSekmesi.h"
#include "Oturum.h"
#include "ui_Rapor_Genel.h"
#include "UretimSekmesi.h"
#include "WindowSize.h"

#include <QScrollArea>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr int reportTab = 1;

/// A tab that scrolls where the screen is too small for it.
QScrollArea *scrollable(QWidget *tab)
{
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(tab);
    // The tab control's own ground shows through.
    area->viewport()->setAutoFillBackground(false);
    tab->setAutoFillBackground(false);
    return area;
}

} // namespace

Rapor_Genel::Rapor_Genel(const RaporContext &context, QWidget *parent)
    : QDialog(parent, Qt::Window),
      m_context(context),
      m_ui(std::make_unique<Ui::Rapor_Genel>()),
      m_kontrol(new KontrolSekmesi(context, this)),
      m_uretim(new UretimSekmesi(context, this))
{
    m_ui->setupUi(this);
    m_ui->GenelTab->addTab(scrollable(m_kontrol), u"SIPARIS KONTROL"_s);
    m_ui->GenelTab->addTab(scrollable(m_uretim), u"URETIM RAPORU"_s);
    fitToScreen(*this, QSize(1500, 950));
    if (context.oturum.RaporTuru == u"URETIM RAPORU")
        m_ui->GenelTab->setCurrentIndex(reportTab);
    connect(m_ui->GenelTab, &QTabWidget::currentChanged, this, &Rapor_Genel::showTab);
    // The tab control takes this key only from those that have no use for it.
    for (const auto key : {Qt::CTRL | Qt::Key_Tab, Qt::CTRL | Qt::SHIFT | Qt::Key_Tab}) {
        const auto *other = new QShortcut(key, this);
        connect(other, &QShortcut::activated, this,
                [this] { m_ui->GenelTab->setCurrentIndex(1 - m_ui->GenelTab->currentIndex()); });
    }
    connect(m_ui->cmdSon, &QPushButton::clicked, this, &Rapor_Genel::reject);
    showTab();
}

Rapor_Genel::~Rapor_Genel() = default;

/// What was saved on one tab is to be seen on the other.
void Rapor_Genel::showTab()
{
    if (m_ui->GenelTab->currentIndex() != reportTab) {
        m_kontrol->focusFirst();
        return;
    }
    m_uretim->refresh();
    m_uretim->focusFirst();
}

void Rapor_Genel::reject()
{
    guarded(m_context.messages, this, [this] {
        if (m_kontrol->mayLeave() && m_uretim->mayLeave())
            QDialog::reject();
    });
}

} // namespace kuyum
