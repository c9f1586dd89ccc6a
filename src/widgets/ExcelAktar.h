#pragma once

#include "ReportSheet.h"

#include <functional>
#include <QString>

class QWidget;

namespace kuyum {

class Messages;
class SpreadsheetApplication;

/// Asks where a spreadsheet is to be saved, offering a file name; empty for
/// nowhere.
using SheetChooser = std::function<QString(QWidget *parent, const QString &suggestion)>;

/// Hands reports to the spreadsheet program. Where there is none, the user is
/// told, and may save the file.
class ExcelAktar
{
public:
    /// Both must outlive it.
    ExcelAktar(SpreadsheetApplication &application, Messages &messages);

    void setChooser(SheetChooser chooser) { m_choose = std::move(chooser); }

    /// Throws std::runtime_error with a Turkish text.
    void aktar(QWidget *parent, const ReportSheet &sheet) const;

private:
    bool write(QWidget *parent, const ReportSheet &sheet, const QString &path) const;
    void save(QWidget *parent, const ReportSheet &sheet) const;

    SpreadsheetApplication &m_application;
    Messages &m_messages;
    SheetChooser m_choose;
};

} // namespace kuyum
