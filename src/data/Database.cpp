#include "Database.h"

#include "CompanyLock.h"
#include "Dialect.h"
#include "SqliteEngine.h"
#include "TurkishText.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

// An index is named after its table, because SQLite keeps all names in one
// place: "Firma.pk.PrimaryKey", "Firma.ix.FirAdi".
constexpr auto primaryMark = ".pk."_L1;
constexpr auto indexMark = ".ix."_L1;

/// Begins the names of tables that hold nothing of the company's.
constexpr auto bookkeepingMark = "kuyum_"_L1;

QString defaultLiteral(const QVariant &value)
{
    if (value.typeId() != QMetaType::QString)
        return value.toString();
    return u'\'' + value.toString().replace(u'\'', u"''"_s) + u'\'';
}

QVariant defaultFromLiteral(const QString &literal)
{
    if (literal.isEmpty() || literal.compare("NULL"_L1, Qt::CaseInsensitive) == 0)
        return {};
    if (literal.startsWith(u'\''))
        return literal.mid(1, literal.size() - 2).replace(u"''"_s, u"'"_s);
    bool whole = false;
    const qlonglong number = literal.toLongLong(&whole);
    return whole ? QVariant(number) : QVariant(literal.toDouble());
}

QString fieldSql(const FieldDef &field)
{
    QString sql = quotedName(field.name) + u' ' + field.declaration();
    if (field.type == FieldType::Text || field.type == FieldType::Memo)
        sql += u" COLLATE TURKCE"_s;
    if (field.defaultValue.isValid())
        sql += u" DEFAULT "_s + defaultLiteral(field.defaultValue);
    return sql;
}

} // namespace

Database::Database(const QString &path, std::unique_ptr<SqliteEngine> engine)
    : m_path(path), m_engine(std::move(engine))
{
}

Database::~Database() = default;

void Database::keep(std::unique_ptr<CompanyLock> lock)
{
    m_lock = std::move(lock);
}

std::unique_ptr<Database> Database::open(const QString &path, Access access)
{
    const auto mode =
        access == Access::ReadOnly ? SqliteEngine::Mode::ReadOnly : SqliteEngine::Mode::ReadWrite;
    return std::unique_ptr<Database>(
        new Database(path, std::make_unique<SqliteEngine>(path, mode)));
}

std::unique_ptr<Database> Database::create(const QString &path)
{
    if (QFileInfo::exists(path))
        throw DatabaseError(u"Dosya zaten var: "_s + path);
    return std::unique_ptr<Database>(
        new Database(path, std::make_unique<SqliteEngine>(path, SqliteEngine::Mode::Create)));
}

qint64 Database::execute(const QString &sql)
{
    const TranslatedSql translated = translateSql(sql);
    if (translated.isSelect)
        throw DatabaseError(u"Bu ifade kayıt döndürür: "_s + sql);
    return m_engine->run(translated.text).numRowsAffected();
}

QString Database::queryPlan(const QString &sql)
{
    QSqlQuery plan = m_engine->run(u"EXPLAIN QUERY PLAN "_s + translateSql(sql).text);
    QStringList steps;
    while (m_engine->next(plan))
        steps.append(plan.value(3).toString());
    return steps.join(u'\n');
}

QStringList Database::tableNames() const
{
    QSqlQuery names = m_engine->run(
        u"SELECT name FROM sqlite_master WHERE type = 'table' AND substr(name, 1, 7) <> 'sqlite_' "
        "ORDER BY rowid"_s);
    QStringList result;
    while (m_engine->next(names)) {
        const QString name = names.value(0).toString();
        if (!name.startsWith(bookkeepingMark))
            result.append(name);
    }
    return result;
}

bool Database::hasTable(const QString &name) const
{
    for (const QString &table : tableNames()) {
        if (sameText(table, name))
            return true;
    }
    return false;
}

TableDef Database::tableDef(const QString &name) const
{
    TableDef table;
    QSqlQuery own = m_engine->run(
        u"SELECT name, sql FROM sqlite_master WHERE type = 'table' AND name = ? COLLATE TURKCE"_s,
        {name});
    if (!m_engine->next(own))
        throw DatabaseError(u"Tablo bulunamadı: "_s + name);
    table.name = own.value(0).toString();
    const bool hasCounter =
        own.value(1).toString().contains("AUTOINCREMENT"_L1, Qt::CaseInsensitive);

    QString counterName;
    QSqlQuery fields = m_engine->run(
        u"SELECT name, type, dflt_value, pk FROM pragma_table_info(?)"_s, {table.name});
    while (m_engine->next(fields)) {
        FieldDef field =
            FieldDef::fromDeclaration(fields.value(0).toString(), fields.value(1).toString());
        if (hasCounter && fields.value(3).toInt() > 0) {
            field.type = FieldType::Long;
            field.counter = true;
            counterName = field.name;
        }
        field.defaultValue = defaultFromLiteral(fields.value(2).toString());
        table.fields.append(field);
    }

    bool hasPrimary = false;
    QSqlQuery indexes = m_engine->run(
        u"SELECT name, [unique] FROM pragma_index_list(?) ORDER BY seq DESC"_s, {table.name});
    while (m_engine->next(indexes)) {
        IndexDef index;
        const QString fullName = indexes.value(0).toString();
        index.primary = fullName.startsWith(table.name + primaryMark);
        index.name = fullName.mid(table.name.size() + indexMark.size());
        index.unique = indexes.value(1).toBool();
        hasPrimary = hasPrimary || index.primary;
        QSqlQuery indexFields =
            m_engine->run(u"SELECT name FROM pragma_index_info(?) ORDER BY seqno"_s, {fullName});
        while (m_engine->next(indexFields))
            index.fields.append(indexFields.value(0).toString());
        table.indexes.append(index);
    }
    if (!counterName.isEmpty() && !hasPrimary)
        table.indexes.prepend({u"PrimaryKey"_s, {counterName}, true, true});
    return table;
}

qint64 Database::rowCount(const QString &table) const
{
    QSqlQuery rows = m_engine->run(u"SELECT count(*) FROM "_s + quotedName(table));
    m_engine->next(rows);
    return rows.value(0).toLongLong();
}

void Database::createTable(const TableDef &table)
{
    QStringList fields;
    for (const FieldDef &field : table.fields)
        fields.append(fieldSql(field));
    m_engine->run(u"CREATE TABLE %1 (%2)"_s.arg(quotedName(table.name), fields.join(u", "_s)));
    for (const IndexDef &index : table.indexes)
        createIndex(table.name, index);
}

void Database::addField(const QString &table, const FieldDef &field)
{
    m_engine->run(u"ALTER TABLE %1 ADD COLUMN %2"_s.arg(quotedName(table), fieldSql(field)));
}

void Database::createIndex(const QString &table, const IndexDef &index)
{
    const TableDef definition = tableDef(table);
    const FieldDef *counter = definition.counter();
    const bool isCounterKey = counter != nullptr && index.fields.size() == 1 &&
                              sameText(index.fields.first(), counter->name);
    // The counter is the table's key by its own declaration.
    if (isCounterKey)
        return;
    QStringList fields;
    for (const QString &field : index.fields)
        fields.append(quotedName(field));
    const QString mark = index.primary ? primaryMark : indexMark;
    m_engine->run(u"CREATE %1INDEX %2 ON %3 (%4)"_s.arg(
        index.unique || index.primary ? u"UNIQUE "_s : QString(),
        quotedName(definition.name + mark + index.name), quotedName(definition.name),
        fields.join(u", "_s)));
}

void Database::dropIndexes(const QString &table)
{
    // Only what was made by a statement: the engine keeps those of its own. One
    // over a part of the rows or a computed value could not be made again.
    QSqlQuery made = m_engine->run(
        u"SELECT name FROM pragma_index_list(?) AS i WHERE origin = 'c' AND NOT partial AND NOT "
        "EXISTS (SELECT 1 FROM pragma_index_info(i.name) AS f WHERE f.name IS NULL)"_s,
        {tableDef(table).name});
    QStringList names;
    while (m_engine->next(made))
        names.append(made.value(0).toString());
    made.finish();
    for (const QString &name : std::as_const(names))
        m_engine->run(u"DROP INDEX "_s + quotedName(name));
}

void Database::raiseCounter(const QString &table, qint64 highest)
{
    const QString name = tableDef(table).name;
    m_engine->run(u"INSERT INTO sqlite_sequence (name, seq) SELECT ?, 0 WHERE NOT EXISTS "
                  "(SELECT 1 FROM sqlite_sequence WHERE name = ?)"_s,
                  {name, name});
    m_engine->run(u"UPDATE sqlite_sequence SET seq = max(seq, ?) WHERE name = ?"_s,
                  {highest, name});
}

int Database::schemaVersion() const
{
    QSqlQuery version = m_engine->run(u"PRAGMA user_version"_s);
    m_engine->next(version);
    return version.value(0).toInt();
}

void Database::setSchemaVersion(int version)
{
    m_engine->run(u"PRAGMA user_version = %1"_s.arg(version));
}

} // namespace kuyum
