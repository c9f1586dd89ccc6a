#include "Rapor_Genel.h"

#include "Guarded.h"
#include "KontrolSekmesi.h"
#include "Oturum.h"
#include "ui_Rapor_Genel.h"
#include "UretimSekmesi.h"

#include <QScreen>

using namespace Qt::StringLiterals;

Rapor_Genel::Rapor_Genel(const ScreenContext &context, QWidget *parent)
    : QDialog(parent, Qt::Window),
      m_context(context),
      m_ui(std::make_unique<Ui::Rapor_Genel>()),
      m_kontrol(new KontrolSekmesi(context, this)),
      m_uretim(new UretimSekmesi(context, this))
{
    m_ui->setupUi(this);
    m_ui->GenelTab->addTab(m_kontrol, u"SIPARIS KONTROL"_s);
    m_ui->GenelTab->addTab(m_uretim, u"URETIM RAPORU"_s);
    constexpr QSize wanted(1500, 950);
    constexpr QSize windowFrame(10, 60);
    resize(wanted.boundedTo(screen()->availableSize() - windowFrame));
    if (context.oturum.RaporTuru == u"URETIM RAPORU")
        m_ui->GenelTab->setCurrentWidget(m_uretim);
    connect(m_ui->GenelTab, &QTabWidget::currentChanged, this, &Rapor_Genel::showTab);
    connect(m_ui->cmdSon, &QPushButton::clicked, this, &Rapor_Genel::reject);
    showTab();
}

Rapor_Genel::~Rapor_Genel() = default;

/// What was saved on one tab is to be seen on the other.
void Rapor_Genel::showTab()
{
    if (m_ui->GenelTab->currentWidget() == m_kontrol) {
        m_kontrol->focusFirst();
        return;
    }
    m_uretim->refresh();
    m_uretim->focusFirst();
}

void Rapor_Genel::reject()
{
    guarded(m_context.messages, this, [this] {
        if (m_kontrol->mayLeave())
            QDialog::reject();
    });
}
