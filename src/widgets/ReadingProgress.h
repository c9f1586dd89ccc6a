#pragma once

#include "PictureFiles.h"
#include "PrintDocument.h"

#include <optional>

class QWidget;

namespace kuyum {

/// Makes a document with pictures; nothing when it was stopped.
using DocumentMaker = std::function<std::optional<PrintDocument>(const PictureProgress &progress)>;

/// Lets the document be made under a box that shows how far it is, when it
/// takes long, and with which the user can stop it.
std::optional<PrintDocument> makeWithProgress(QWidget *parent, const QString &title,
                                              const DocumentMaker &make);

} // namespace kuyum
