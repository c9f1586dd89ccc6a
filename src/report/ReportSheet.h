#pragma once

#include "ReportTable.h"

#include <functional>

namespace kuyum {

/// How a report's cells stand in a spreadsheet.
enum class SheetForm {
    Metin,     ///< each cell as a blank and its text, as on the screen
    Sayilarla, ///< figures and dates that can be reckoned with
};

/// The picture file of a model as a product type, whose short name is empty
/// where the report does not say; empty where there is none.
using PictureFinder = std::function<QString(const QString &model, const QString &KisaAD)>;
/// Told how many of how many are done; false stops the work.
using SheetProgress = std::function<bool(int done, int total)>;

struct ReportSheet
{
    ReportTable table;
    QString baslik; ///< for the first cell; may be empty
    SheetForm form = SheetForm::Metin;
    PictureFinder picture{};              ///< may be empty; only figures have pictures beside them
    QString ad = QStringLiteral("Rapor"); ///< the sheet's name in the file
};

/// Writes a report as a spreadsheet. The title stands in the first cell, the
/// heading in the row below it (in the first where there is no title), then
/// the rows; hidden columns are left out. Memory does not grow with the rows.
///
/// False, with nothing at the path, when it was stopped. Throws
/// std::runtime_error with a Turkish text; what was at the path stays then.
bool writeSheet(const ReportSheet &sheet, const QString &path, const SheetProgress &progress);
/// The same for several in one file, a sheet each.
bool writeSheets(const QList<ReportSheet> &sheets, const QString &path,
                 const SheetProgress &progress);

} // namespace kuyum
