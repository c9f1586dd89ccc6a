#pragma once

#include "LookupRequest.h"

class DocumentViewer;
class Messages;
struct Oturum;

/// What the order screen works with, handed in by the program.
struct OrderScreenContext
{
    Oturum &oturum;
    Messages &messages;
    LookupOpener openList;
    DocumentViewer &viewer;
};
