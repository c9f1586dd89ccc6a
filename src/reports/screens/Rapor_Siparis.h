#pragma once

#include "OrderReport.h"
#include "RaporContext.h"
#include "ReportFilters.h"

#include <array>
#include <memory>
#include <QDialog>

class QComboBox;
class QLabel;
class QPushButton;
namespace Ui {
class Rapor_Siparis;
}

namespace kuyum {

class DateBox;
class ExcelKutusu;
class RaporGrid;

/// The order reports of a range of dates: stones, molds and models, a tab each.
class Rapor_Siparis : public QDialog
{
    Q_OBJECT

public:
    explicit Rapor_Siparis(const RaporContext &context, QWidget *parent = nullptr);
    ~Rapor_Siparis() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// What a tab consists of.
    struct Sekme
    {
        DateBox *bas = nullptr;
        DateBox *bit = nullptr;
        QPushButton *run = nullptr;
        RaporGrid *grid = nullptr;
        ExcelKutusu *excel = nullptr;
        QPushButton *cmdYazdir = nullptr;
        QLabel *durum = nullptr;
        std::unique_ptr<OrderReport> report{}; ///< the one that the grid shows; null for none
    };

    void gatherTabs();
    void connectTab(int place);
    void connectChart();
    void connectFilters();
    void fillFilters();
    void setUpSize();
    void fitLowScreen();
    void enterTab(int place);
    void enterPressed();

    void runReport(Sekme &sekme);
    bool readPeriod(const Sekme &sekme, ReportPeriod &period);
    std::unique_ptr<OrderReport> makeReport(const Sekme &sekme, const ReportPeriod &period) const;
    ModelReportRequest modelRequest(const ReportPeriod &period) const;
    void showReport(Sekme &sekme, std::unique_ptr<OrderReport> report);
    void showLines(const Sekme &sekme, qsizetype row, qsizetype column);
    void print(const Sekme &sekme);
    void saveChart();
    void printChart();

    RaporContext m_context;
    std::unique_ptr<Ui::Rapor_Siparis> m_ui;
    std::array<Sekme, 3> m_sekmeler;
    bool m_lowScreen = false; ///< filters and chart take turns with the rows
};

} // namespace kuyum
