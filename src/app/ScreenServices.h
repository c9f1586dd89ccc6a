#pragma once

#include "ExcelAktar.h"
#include "LabelPrinter.h"
#include "Printers.h"
#include "PrintPreview.h"
#include "RaporContext.h"
#include "SpreadsheetApplication.h"

#include <QSettings>

namespace kuyum {

/// What the program hands to its screens; made once, alive as long as they are.
struct ScreenServices
{
    ScreenServices(Oturum &oturum, Messages &messages);
    ScreenServices(const ScreenServices &) = delete;
    ScreenServices &operator=(const ScreenServices &) = delete;

    ScreenContext context() { return {oturum, messages, openList, viewer}; }
    RaporContext reportContext() { return {context(), excel}; }

    Oturum &oturum;
    Messages &messages;
    LookupOpener openList;
    QSettings settings;
    Printers printers;
    PreviewViewer viewer;
    InstalledLabelPrinter labelPrinter;
    InstalledSpreadsheet spreadsheet;
    ExcelAktar excel;
};

} // namespace kuyum
