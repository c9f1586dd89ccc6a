#pragma once

#include "RaporContext.h"
#include "ReportTable.h"

#include <memory>
#include <QDialog>

namespace Ui {
class Rapor_Satirlar;
}

namespace kuyum {

/// The order lines behind a figure of a report, with their sum, which is the
/// figure.
class Rapor_Satirlar : public QDialog
{
    Q_OBJECT

public:
    /// The table is one of orderSharesTable(); its title tells the figure.
    Rapor_Satirlar(const RaporContext &context, const ReportTable &table,
                   QWidget *parent = nullptr);
    ~Rapor_Satirlar() override;

private:
    void setUpSize();

    std::unique_ptr<Ui::Rapor_Satirlar> m_ui;
};

/// Shows them modally.
void showOrderLines(const RaporContext &context, QWidget *parent, const ReportTable &table);

} // namespace kuyum
