#include "Rapor_Satirlar.h"

#include "Oturum.h"
#include "RaporGrid.h"
#include "ReportPictures.h"
#include "ui_Rapor_Satirlar.h"

#include <QScreen>

namespace kuyum {

Rapor_Satirlar::Rapor_Satirlar(const RaporContext &context, const ReportTable &table,
                               QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::Rapor_Satirlar>())
{
    m_ui->setupUi(this);
    m_ui->Baslik->setText(table.title);
    QFont bold = font();
    bold.setBold(true);
    m_ui->Baslik->setFont(bold);
    m_ui->Rapor->setTable(table);
    m_ui->Excel->setExport(context.excel, context.messages, [this, &oturum = context.oturum] {
        const ReportTable shown = m_ui->Rapor->table();
        return ReportSheet{shown, shown.title, {}, reportPictures(oturum)};
    });
    connect(m_ui->cmdSon, &QPushButton::clicked, this, &QDialog::reject);
    setUpSize();
    m_ui->Rapor->setFocus();
}

Rapor_Satirlar::~Rapor_Satirlar() = default;

/// As wide as the columns want, as far as the screen allows.
void Rapor_Satirlar::setUpSize()
{
    constexpr int wantedHeight = 460;
    const QMargins margins = layout()->contentsMargins();
    const int wantedWidth = m_ui->Rapor->fittingWidth() + margins.left() + margins.right();
    const QSize room = screen()->availableSize() - QSize(40, 60);
    resize(QSize(wantedWidth, wantedHeight).expandedTo(minimumSize()).boundedTo(room));
}

void showOrderLines(const RaporContext &context, QWidget *parent, const ReportTable &table)
{
    Rapor_Satirlar(context, table, parent).exec();
}

} // namespace kuyum
