#pragma once

#include <optional>
#include <QString>

class QWidget;

namespace kuyum {

class Messages;

/// The way back when a company's database is damaged or gone.

/// Tells what is wrong and asks whether the newest backup that passes its check
/// shall take the database's place; says so when there is none. The path of the
/// backup when the user wants it.
std::optional<QString> offerBackup(QWidget *parent, Messages &messages, const QString &database,
                                   const QString &trouble);

/// Restores the backup under a box that shows how far it is, and tells where
/// the replaced file was kept. The database must be closed. False when nothing
/// was restored; the user was told why.
bool restoreFromBackup(QWidget *parent, Messages &messages, const QString &database,
                       const QString &backup);

} // namespace kuyum
