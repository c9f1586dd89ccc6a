#pragma once

#include "LookupRequest.h"

namespace kuyum {

class DocumentViewer;
class Messages;
struct Oturum;

/// What the screens of orders and master data work with, handed in by the program.
struct ScreenContext
{
    Oturum &oturum;
    Messages &messages;
    LookupOpener openList;
    DocumentViewer &viewer;
};

} // namespace kuyum
