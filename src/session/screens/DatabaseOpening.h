#pragma once

#include "Database.h"

#include <memory>

class QWidget;

namespace kuyum {

class Messages;

/// openCompany or openRegistry.
using DatabaseOpener = std::unique_ptr<Database> (*)(const QString &path);

/// Opens what a path names. A legacy file is taken over first, behind a window
/// that shows how far it is and can stop it; a legacy file that was changed
/// since its take-over is mentioned. A file that is damaged is refused, as far
/// as that shows in a moment: the day's backup reads it wholly. Throws
/// DatabaseError.
std::unique_ptr<Database> openTakenOver(QWidget *parent, Messages &messages, const QString &path,
                                        DatabaseOpener open);

} // namespace kuyum
