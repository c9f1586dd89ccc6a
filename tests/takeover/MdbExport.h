#pragma once

#include <QList>
#include <QString>
#include <QVariant>

namespace kuyum {

/// A legacy file as another program reads it.
QStringList mdbTables(const QString &file);

/// The field names, then the rows, as text.
QList<QStringList> mdbExport(const QString &file, const QString &table);

/// A value of ours as that program writes it; it does not tell an empty text
/// from none.
QString asExported(const QVariant &value);

} // namespace kuyum
