#pragma once

#include <functional>
#include <QList>
#include <QString>

namespace kuyum {

class Database;

struct FilledField
{
    QString name;
    qint64 filled = 0; ///< nulls that hold the neutral value now
    qint64 left = 0;   ///< nulls that stay, since an index forbids a second such row
};

struct FilledTable
{
    QString name;
    qint64 rows = 0;
    QList<FilledField> fields = {}; ///< those that had a null
};

/// How many nulls of all these tables hold the neutral value now.
qint64 filledNulls(const QList<FilledTable> &tables);

/// Gives every null of the table's rows the neutral value of its field's type;
/// nothing else is changed. Runs within the caller's transaction. rowsDone is
/// told now and then how many rows are behind; what it throws ends the work.
/// Throws DatabaseError.
FilledTable fillNulls(Database &db, const QString &table,
                      const std::function<void(qint64 rows)> &rowsDone);

} // namespace kuyum
