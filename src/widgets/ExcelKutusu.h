#pragma once

#include "ReportSheet.h"

#include <functional>
#include <QWidget>

class QCheckBox;

namespace kuyum {

class ExcelAktar;
class Messages;

/// The box `Check_Excel` of the reports: ticking it asks and hands the report
/// to the spreadsheet program, then it stands unticked again. Beside it,
/// `Check_Sayilarla` says whether the figures go as numbers.
class ExcelKutusu : public QWidget
{
    Q_OBJECT

public:
    explicit ExcelKutusu(QWidget *parent = nullptr);

    /// Gives the report with its title as it stands; the form is set here.
    using Source = std::function<ReportSheet()>;
    /// Called once; both references must outlive the box.
    void setExport(const ExcelAktar &excel, Messages &messages, Source source);

    /// Other texts, for a second box on the same screen, with keys of their own.
    void setTexts(const QString &excel, const QString &figures);

private:
    void ticked();

    QCheckBox *m_excel;
    QCheckBox *m_figures;
    const ExcelAktar *m_aktar = nullptr;
    Messages *m_messages = nullptr;
    Source m_source;
};

} // namespace kuyum
