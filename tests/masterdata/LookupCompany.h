#pragma once

#include "LookupRows.h"
#include "Oturum.h"

#include <QTemporaryDir>

namespace kuyum {

/// A session on a small company that has rows for every list.
struct LookupCompany
{
    LookupCompany();

    QTemporaryDir folder;
    Oturum oturum;

    /// All shown texts of a list, a row as "a|b|c".
    QStringList rows(const QString &list, const QString &filter = {});
};

/// The texts of all rows that are left, with the columns that are not shown.
QStringList remainingRows(LookupRows &rows);

} // namespace kuyum
