#include "Rapor_Ymamul.h"

#include "DocumentViewer.h"
#include "Guarded.h"
#include "OrderReportPages.h"
#include "Oturum.h"
#include "Rapor_Satirlar.h"
#include "ReportPictures.h"
#include "SiparisAlanlari.h"
#include "ui_Rapor_Ymamul.h"
#include "WindowSize.h"

using namespace Qt::StringLiterals;

namespace kuyum {

Rapor_Ymamul::Rapor_Ymamul(const RaporContext &context, qint32 SecilenNo, QWidget *parent)
    : QDialog(parent), m_context(context), m_ui(std::make_unique<Ui::Rapor_Ymamul>())
{
    m_ui->setupUi(this);
    fitToScreen(*this, QSize(960, 640));
    m_ui->modelNotu->hide();
    guarded(m_context.messages, this, [&] { open(SecilenNo); });
    connectControls();
    m_ui->Rapor1->setFocus();
}

Rapor_Ymamul::~Rapor_Ymamul() = default;

void Rapor_Ymamul::tellUnsaved()
{
    m_ui->Baslik->tellUnsaved();
}

void Rapor_Ymamul::open(qint32 SecilenNo)
{
    m_siparis = siparisBasligi(m_context.oturum, SecilenNo);
    m_ui->Baslik->setOrder(m_siparis);
    for (QWidget *control :
         std::initializer_list<QWidget *>{m_ui->cmdYazdir, m_ui->Excel, m_ui->ExcelKalip})
        control->setEnabled(m_siparis.has_value());
    if (!m_siparis) {
        m_context.messages.say(this, bulunamadi(SecilenNo));
        return;
    }
    m_rapor = std::make_unique<SiparisYariMamul>(m_context.oturum, *m_siparis);
    m_ui->Rapor1->setTable(m_rapor->modeller());
    m_ui->Rapor->setTable(m_rapor->kaliplar());
    m_ui->modelNotu->setText(m_rapor->modelNotu());
    m_ui->modelNotu->setVisible(!m_ui->modelNotu->text().isEmpty());
}

void Rapor_Ymamul::connectControls()
{
    const auto drillDown = [this](RaporGrid *grid, auto lines) {
        connect(grid, &RaporGrid::figureActivated, this,
                [this, lines](qsizetype row, qsizetype column) {
                    guarded(m_context.messages, this, [&] {
                        showOrderLines(m_context, this, ((*m_rapor).*lines)(row, column));
                    });
                });
    };
    drillDown(m_ui->Rapor1, &SiparisYariMamul::modelSatirlari);
    drillDown(m_ui->Rapor, &SiparisYariMamul::kalipSatirlari);
    const auto exported = [this](ExcelKutusu *box, RaporGrid *grid) {
        box->setExport(m_context.excel, m_context.messages, [this, grid] {
            const ReportTable shown = grid->table();
            return ReportSheet{
                shown, sheetTitle(*m_siparis, shown), {}, reportPictures(m_context.oturum)};
        });
    };
    exported(m_ui->Excel, m_ui->Rapor1);
    exported(m_ui->ExcelKalip, m_ui->Rapor);
    m_ui->ExcelKalip->setTexts(u"Exce&l"_s, u"Sayıla&rla"_s);
    connect(m_ui->cmdYazdir, &QPushButton::clicked, this,
            [this] { guarded(m_context.messages, this, [this] { print(); }); });
    connect(m_ui->cmdSon, &QPushButton::clicked, this, &QDialog::reject);
}

void Rapor_Ymamul::print()
{
    m_context.viewer.show(this,
                          foundryPages(*m_siparis, m_ui->Rapor1->table(), m_ui->Rapor->table()));
}

} // namespace kuyum
