#include "RecordsetState.h"

#include "TurkishText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

Recordset::State::State(Database &database, const TranslatedSql &sql)
    : db(database),
      engine(database.engine()),
      editableTable(sql.editableTable),
      query(engine.prepare(sql.text))
{
    QList<SqliteEngine::Column> columns = SqliteEngine::columns(query);
    if (!editableTable.isEmpty())
        columns.removeLast();
    QHash<QString, int> sharing;
    for (const SqliteEngine::Column &column : columns)
        ++sharing[foldedText(column.name)];
    for (const SqliteEngine::Column &column : columns) {
        const QString bare = foldedText(column.name);
        const bool shared = sharing[bare] > 1 && !column.table.isEmpty();
        const int place = int(fields.size());
        fields.append({shared ? column.table + u'.' + column.name : column.name, column.table,
                       FieldDef::fromDeclaration(column.name, column.declaration).type,
                       !column.declaration.isEmpty()});
        if (column.declaration.isEmpty())
            fields.last().type = FieldType::Text;
        places.insert(bare, sharing[bare] > 1 ? -1 : place);
        if (!column.table.isEmpty())
            places.insert(foldedText(column.table) + u'.' + bare, place);
    }
}

int Recordset::State::indexOf(QStringView name) const
{
    if (const auto known = asked.find(name); known != asked.end())
        return known->second;
    const auto place = places.constFind(foldedText(name));
    if (place == places.constEnd())
        throw DatabaseError(u"Alan bulunamadı: "_s + name.toString());
    if (*place < 0)
        throw DatabaseError(u"Alan adı birden fazla tabloda var: "_s + name.toString());
    asked.emplace(name.toString(), *place);
    return *place;
}

QVariant Recordset::State::stored(int index) const
{
    if (!onRow && mode != Mode::Adding)
        throw DatabaseError(u"Geçerli kayıt yok."_s);
    if (mode != Mode::Reading) {
        const auto change = changes.constFind(foldedText(fields[index].name));
        if (change != changes.constEnd())
            return *change;
        if (mode == Mode::Adding)
            return {};
    }
    return detached ? row[index] : query.value(index);
}

const TableDef &Recordset::State::definition()
{
    if (editableTable.isEmpty())
        throw DatabaseError(u"Bu kayıtlar değiştirilemez."_s);
    if (tableDefinition == nullptr)
        tableDefinition = std::make_unique<TableDef>(db.tableDef(editableTable));
    return *tableDefinition;
}

void Recordset::State::readRow()
{
    row.clear();
    for (int i = 0; i <= fields.size(); ++i)
        row.append(query.value(i));
}

/// Takes the rest of the rows into memory: changing a table while its rows are
/// still being read could show a changed row again, or miss one.
void Recordset::State::keepRemainingRows()
{
    if (detached)
        return;
    readRow();
    const QVariantList current = row;
    while (engine.next(query)) {
        readRow();
        remaining.append(row);
    }
    row = current;
    query.finish();
    detached = true;
}

void Recordset::State::insertRow()
{
    QStringList names;
    QVariantList values;
    const TableDef &table = definition();
    for (const FieldDef &field : table.fields) {
        const auto change = changes.constFind(foldedText(field.name));
        if (change != changes.constEnd()) {
            names.append(quotedName(field.name));
            values.append(*change);
        }
    }
    if (insertFields != names || names.isEmpty()) {
        const QString marks = QStringList(names.size(), u"?"_s).join(u',');
        insertStatement =
            engine.prepare(u"INSERT INTO %1 "_s.arg(quotedName(table.name)) +
                           (names.isEmpty() ? u"DEFAULT VALUES"_s
                                            : u"(%1) VALUES (%2)"_s.arg(names.join(u','), marks)));
        insertFields = names;
    }
    engine.run(insertStatement, values);
    const QVariant rowNumber = insertStatement.lastInsertId();
    insertStatement.finish();

    // The new row becomes the current one, without reading it back.
    row.clear();
    const FieldDef *counter = table.counter();
    for (const Field &field : std::as_const(fields)) {
        const bool isCounter = counter != nullptr && sameText(counter->name, field.name);
        const FieldDef *definition = table.field(field.name);
        row.append(isCounter ? rowNumber
                             : changes.value(foldedText(field.name), definition != nullptr
                                                                         ? definition->defaultValue
                                                                         : QVariant()));
    }
    row.append(rowNumber);
    detached = true;
    onRow = true;
}

void Recordset::State::updateRow()
{
    if (changes.isEmpty())
        return;
    QStringList settings;
    QVariantList values;
    const TableDef &table = definition();
    for (const FieldDef &field : table.fields) {
        const auto change = changes.constFind(foldedText(field.name));
        if (change != changes.constEnd()) {
            settings.append(quotedName(field.name) + u" = ?"_s);
            values.append(*change);
        }
    }
    values.append(row.last());
    engine.run(
        u"UPDATE %1 SET %2 WHERE _rowid_ = ?"_s.arg(quotedName(table.name), settings.join(u", "_s)),
        values);
    for (int i = 0; i < fields.size(); ++i)
        row[i] = changes.value(foldedText(fields[i].name), row[i]);
}

void Recordset::State::restart(const QString &sql, const QVariantList &values)
{
    query = engine.prepare(sql);
    engine.run(query, values);
    started = true;
    detached = false;
    remaining.clear();
    remainingAt = 0;
}

} // namespace kuyum
