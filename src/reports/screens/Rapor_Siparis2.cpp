#include "Rapor_Siparis2.h"

#include "DocumentViewer.h"
#include "Guarded.h"
#include "OrderReportPages.h"
#include "Oturum.h"
#include "Rapor_Satirlar.h"
#include "SiparisAlanlari.h"
#include "ui_Rapor_Siparis2.h"
#include "WindowSize.h"

using namespace Qt::StringLiterals;

namespace kuyum {

Rapor_Siparis2::Rapor_Siparis2(const RaporContext &context, qint32 SecilenNo, QWidget *parent)
    : QDialog(parent), m_context(context), m_ui(std::make_unique<Ui::Rapor_Siparis2>())
{
    m_ui->setupUi(this);
    setUpLook();
    guarded(m_context.messages, this, [&] { open(SecilenNo); });
    connect(m_ui->Dovcinsi, &QComboBox::currentTextChanged, this,
            [this] { guarded(m_context.messages, this, [this] { DetayDoldur(); }); });
    connect(m_ui->Rapor, &RaporGrid::figureActivated, this,
            [this](qsizetype row, qsizetype column) {
                guarded(m_context.messages, this,
                        [&] { showOrderLines(m_context, this, m_taslar->satirlar(row, column)); });
            });
    connect(m_ui->cmdYazdir, &QPushButton::clicked, this,
            [this] { guarded(m_context.messages, this, [this] { print(); }); });
    connect(m_ui->cmdSon, &QPushButton::clicked, this, &QDialog::reject);
    m_ui->Excel->setExport(m_context.excel, m_context.messages, [this] {
        const ReportTable shown = m_ui->Rapor->table();
        return ReportSheet{shown, shown.title};
    });
    m_ui->Rapor->setFocus();
}

Rapor_Siparis2::~Rapor_Siparis2() = default;

void Rapor_Siparis2::tellUnsaved()
{
    m_ui->Baslik->tellUnsaved();
}

void Rapor_Siparis2::setUpLook()
{
    fitToScreen(*this, QSize(620, 560));
    makeNote(*m_ui->kurNotu);
}

void Rapor_Siparis2::open(qint32 SecilenNo)
{
    m_siparis = siparisBasligi(m_context.oturum, SecilenNo);
    m_ui->Baslik->setOrder(m_siparis);
    for (QWidget *control :
         std::initializer_list<QWidget *>{m_ui->Dovcinsi, m_ui->cmdYazdir, m_ui->Excel})
        control->setEnabled(m_siparis.has_value());
    if (!m_siparis) {
        m_context.messages.say(this, bulunamadi(SecilenNo));
        return;
    }
    m_ui->Dovcinsi->addItems(raporDovizleri(m_context.oturum));
    DetayDoldur();
}

void Rapor_Siparis2::DetayDoldur()
{
    // Without any currency to choose, the heading is still that of the usual one.
    const QString chosen = m_ui->Dovcinsi->currentText();
    m_taslar = std::make_unique<SiparisTaslari>(m_context.oturum, *m_siparis,
                                                chosen.isEmpty() ? u"USD"_s : chosen);
    m_ui->Rapor->setTable(m_taslar->table());
    showRates();
}

/// Figures for which a rate is missing are no figures to go by.
void Rapor_Siparis2::showRates()
{
    const QStringList &missing = m_taslar->eksikKurlar();
    m_ui->kurNotu->setVisible(!missing.isEmpty());
    m_ui->kurNotu->setText(eksikKurNotu(m_context.oturum.CalismaTarihi, missing));
}

void Rapor_Siparis2::print()
{
    m_context.viewer.show(this, stonePages(*m_siparis, m_ui->Rapor->table()));
}

} // namespace kuyum
