#pragma once

#include "Database.h"
#include "Dialect.h"
#include "Recordset.h"
#include "SqliteEngine.h"

#include <map>
#include <QHash>
#include <QMap>
#include <QSqlQuery>

namespace kuyum {

/// What a Recordset holds: its running query, the current row and the change
/// that was begun on it.
struct Recordset::State
{
    struct Field
    {
        QString name; ///< "Table.Field" where two tables of a join share the name
        QString table;
        FieldType type;
        bool fromTable;
    };

    enum class Mode { Reading, Adding, Editing };

    State(Database &database, const TranslatedSql &sql);

    int indexOf(QStringView name) const;
    QVariant stored(int index) const;
    const TableDef &definition();
    void readRow();
    void keepRemainingRows();
    void insertRow();
    void updateRow();
    void restart(const QString &sql, const QVariantList &values);

    Database &db;
    const SqliteEngine &engine;
    QString editableTable;
    std::unique_ptr<TableDef> tableDefinition;
    QSqlQuery query;
    bool started = false;
    bool onRow = false;

    QList<Field> fields;
    QHash<QString, int> places; ///< by folded name; -1 for a name that is ambiguous
    /// By the name as it was asked for: rows are read with the same names over
    /// and over, and folding them each time took as long as reading.
    mutable std::map<QString, int, std::less<>> asked;

    // The current row: read from the query as asked, or one of the rows kept
    // before the table under the query was changed.
    bool detached = false;
    QVariantList row;
    QList<QVariantList> remaining;
    qsizetype remainingAt = 0;

    Mode mode = Mode::Reading;
    QMap<QString, QVariant> changes; ///< by the field's own name
    QSqlQuery insertStatement;
    QStringList insertFields;
};

} // namespace kuyum
