#pragma once

#include "LookupRequest.h"
#include "Printers.h"
#include "PrintPreview.h"

#include <QSettings>

class Messages;
struct Oturum;

/// What the program hands to its screens; made once, alive as long as they are.
struct ScreenServices
{
    ScreenServices(Oturum &oturum, Messages &messages);
    ScreenServices(const ScreenServices &) = delete;
    ScreenServices &operator=(const ScreenServices &) = delete;

    Oturum &oturum;
    Messages &messages;
    LookupOpener openList;
    QSettings settings;
    Printers printers;
    PreviewViewer viewer;
};
