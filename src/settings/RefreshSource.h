#pragma once

#include "TableDef.h"

#include <functional>

namespace kuyum {

class Database;
class TakeOver;

/// The tables of the database that the refresh goes by: a .kuyum, or a legacy
/// .mdb, of which only what it has itself is told. The file is only read.
struct RefreshSource
{
    QString path;
    QList<TableDef> tables;
};

/// Reads the definitions. A legacy file is first taken over into a temporary
/// folder, which proves that it can be read; watch is called with that before
/// it runs. Throws DatabaseError: for a file that cannot be opened, with the
/// engine's number; without a number, in Turkish, for one that is no database,
/// a registry, written by a newer program, or the working database itself.
RefreshSource readRefreshSource(const QString &path, const Database &working,
                                const std::function<void(TakeOver &)> &watch = {});

} // namespace kuyum
