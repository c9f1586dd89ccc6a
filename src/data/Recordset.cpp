#include "Recordset.h"

#include "Database.h"
#include "Dates.h"
#include "Dialect.h"
#include "FieldValues.h"
#include "Numbers.h"
#include "SqliteEngine.h"
#include "TurkishText.h"

#include <QHash>
#include <QSqlQuery>

using namespace Qt::StringLiterals;

namespace {

struct Field
{
    QString name; ///< "Table.Field" where two tables of a join share the name
    QString table;
    FieldType type;
    bool fromTable;
};

enum class Mode { Reading, Adding, Editing };

} // namespace

struct Recordset::State
{
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
    const auto place = places.constFind(foldedText(name));
    if (place == places.constEnd())
        throw DatabaseError(u"Alan bulunamadı: "_s + name.toString());
    if (*place < 0)
        throw DatabaseError(u"Alan adı birden fazla tabloda var: "_s + name.toString());
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

Recordset Database::query(const QString &sql)
{
    const TranslatedSql translated = translateSql(sql);
    if (!translated.isSelect)
        throw DatabaseError(u"Bu ifade kayıt döndürmez: "_s + sql);
    return Recordset(std::make_unique<Recordset::State>(*this, translated));
}

Recordset Database::table(const QString &name)
{
    return query(u"Select * From "_s + quotedName(name));
}

Recordset::Recordset(std::unique_ptr<State> state) : m_state(std::move(state)) {}
Recordset::Recordset(Recordset &&) noexcept = default;
Recordset &Recordset::operator=(Recordset &&) noexcept = default;
Recordset::~Recordset() = default;

bool Recordset::next()
{
    State &s = *m_state;
    if (s.mode != Mode::Reading)
        cancelUpdate();
    if (s.detached) {
        s.onRow = s.remainingAt < s.remaining.size();
        if (s.onRow)
            s.row = s.remaining[s.remainingAt++];
        return s.onRow;
    }
    if (!s.started) {
        s.engine.run(s.query);
        s.started = true;
    }
    s.onRow = s.engine.next(s.query);
    return s.onRow;
}

bool Recordset::seek(const QVariantList &key)
{
    State &s = *m_state;
    const TableDef &table = s.definition();
    const IndexDef *primary = nullptr;
    for (const IndexDef &index : table.indexes) {
        if (index.primary)
            primary = &index;
    }
    if (primary == nullptr || primary->fields.size() != key.size())
        throw DatabaseError(u"Tablonun böyle bir anahtarı yok: "_s + table.name);
    QStringList conditions;
    for (const QString &field : primary->fields)
        conditions.append(quotedName(field) + u" = ?"_s);
    s.mode = Mode::Reading;
    s.restart(u"SELECT *, _rowid_ FROM %1 WHERE %2"_s.arg(quotedName(table.name),
                                                          conditions.join(u" AND "_s)),
              key);
    s.onRow = s.engine.next(s.query);
    return s.onRow;
}

int Recordset::fieldCount() const
{
    return int(m_state->fields.size());
}

QString Recordset::fieldName(int index) const
{
    return m_state->fields[index].name;
}

FieldType Recordset::fieldType(int index) const
{
    return m_state->fields[index].type;
}

bool Recordset::isTableField(int index) const
{
    return m_state->fields[index].fromTable;
}

bool Recordset::hasField(QStringView name) const
{
    return m_state->places.value(foldedText(name), -1) >= 0;
}

QVariant Recordset::value(int index) const
{
    return readValue(m_state->fields[index].type, m_state->stored(index));
}

QVariant Recordset::value(QStringView name) const
{
    return value(m_state->indexOf(name));
}

bool Recordset::isNull(QStringView name) const
{
    return !value(name).isValid();
}

QString Recordset::text(QStringView name) const
{
    const QVariant field = value(name);
    if (field.typeId() == QMetaType::QDateTime)
        return formatDateTime(field.toDateTime());
    if (field.typeId() == QMetaType::Double)
        return plainNumber(field.toDouble());
    return field.toString();
}

double Recordset::number(QStringView name) const
{
    const QVariant field = value(name);
    return field.typeId() == QMetaType::QString ? leadingNumber(field.toString())
                                                : field.toDouble();
}

qint64 Recordset::integer(QStringView name) const
{
    const QVariant field = value(name);
    if (field.typeId() == QMetaType::LongLong || field.typeId() == QMetaType::Int)
        return field.toLongLong();
    return qint64(roundDecimal(number(name), 0));
}

bool Recordset::flag(QStringView name) const
{
    return number(name) != 0;
}

QDate Recordset::date(QStringView name) const
{
    return value(name).toDateTime().date();
}

void Recordset::addNew()
{
    State &s = *m_state;
    s.definition();
    if (s.onRow)
        s.keepRemainingRows();
    s.changes.clear();
    s.mode = Mode::Adding;
}

void Recordset::edit()
{
    State &s = *m_state;
    s.definition();
    if (!s.onRow)
        throw DatabaseError(u"Geçerli kayıt yok."_s);
    s.keepRemainingRows();
    s.changes.clear();
    s.mode = Mode::Editing;
}

void Recordset::set(QStringView name, const QVariant &value)
{
    State &s = *m_state;
    if (s.mode == Mode::Reading)
        throw DatabaseError(u"Kayıt değiştirilmeye açılmamış."_s);
    const FieldDef *field = s.definition().field(name);
    if (field == nullptr)
        throw DatabaseError(u"Alan bulunamadı: "_s + name.toString());
    s.changes.insert(foldedText(field->name), storedValue(*field, value));
}

void Recordset::update()
{
    State &s = *m_state;
    if (s.mode == Mode::Adding)
        s.insertRow();
    else if (s.mode == Mode::Editing)
        s.updateRow();
    else
        throw DatabaseError(u"Kayıt değiştirilmeye açılmamış."_s);
    s.mode = Mode::Reading;
    s.changes.clear();
}

void Recordset::cancelUpdate()
{
    m_state->mode = Mode::Reading;
    m_state->changes.clear();
}

void Recordset::remove()
{
    State &s = *m_state;
    const TableDef &table = s.definition();
    if (!s.onRow)
        throw DatabaseError(u"Geçerli kayıt yok."_s);
    s.keepRemainingRows();
    s.engine.run(u"DELETE FROM %1 WHERE _rowid_ = ?"_s.arg(quotedName(table.name)), {s.row.last()});
    s.onRow = false;
}
