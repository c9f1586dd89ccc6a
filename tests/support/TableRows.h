#pragma once

#include "Database.h"
#include "Dialect.h"
#include "Integrity.h"
#include "SqliteEngine.h"

#include <QMap>

namespace kuyum {

/// Every stored value of a table as "type:value", row by row in their order.
inline QList<QStringList> storedRows(const Database &db, const QString &table)
{
    const TableDef definition = db.tableDef(table);
    QStringList fields;
    for (const FieldDef &field : definition.fields) {
        fields.append(
            QStringLiteral("typeof(%1) || ':' || ifnull(%1, '')").arg(quotedName(field.name)));
    }
    QSqlQuery query = db.engine().run(QStringLiteral("SELECT %1 FROM %2 ORDER BY _rowid_")
                                          .arg(fields.join(u','), quotedName(table)));
    QList<QStringList> rows;
    while (db.engine().next(query)) {
        QStringList row;
        for (qsizetype i = 0; i < fields.size(); ++i)
            row.append(query.value(int(i)).toString());
        rows.append(row);
    }
    return rows;
}

/// The same of all tables.
inline QMap<QString, QList<QStringList>> storedTables(const Database &db)
{
    QMap<QString, QList<QStringList>> tables;
    for (const QString &name : db.tableNames())
        tables.insert(name, storedRows(db, name));
    return tables;
}

/// How all tables and indexes are defined.
inline QString definitions(const Database &db)
{
    QSqlQuery query = db.engine().run(QStringLiteral(
        "SELECT group_concat(sql, '\n') FROM (SELECT sql FROM sqlite_master ORDER BY name)"));
    db.engine().next(query);
    return query.value(0).toString();
}

/// All that a file holds: the rows of its tables, how many rows the bookkeeping
/// ones have, and the definitions. Throws when the file is damaged.
using FileState = QMap<QString, QList<QStringList>>;
inline FileState fileState(const Database &db)
{
    const QStringList faults = integrityFaults(db.engine());
    if (!faults.isEmpty())
        throw DatabaseError(faults.join(u'\n'));
    FileState state = storedTables(db);
    const QMap<QString, qint64> counts = rowCounts(db.engine());
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        state[count.key()].append({QString::number(count.value())});
    state[QStringLiteral("definitions")].append({definitions(db)});
    return state;
}

} // namespace kuyum
