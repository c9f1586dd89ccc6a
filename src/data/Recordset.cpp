#include "Recordset.h"

#include "Dates.h"
#include "FieldValues.h"
#include "Numbers.h"
#include "RecordsetState.h"
#include "TurkishText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

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
    if (s.mode != State::Mode::Reading)
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
    s.mode = State::Mode::Reading;
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
    s.mode = State::Mode::Adding;
}

void Recordset::edit()
{
    State &s = *m_state;
    s.definition();
    if (!s.onRow)
        throw DatabaseError(u"Geçerli kayıt yok."_s);
    s.keepRemainingRows();
    s.changes.clear();
    s.mode = State::Mode::Editing;
}

void Recordset::set(QStringView name, const QVariant &value)
{
    State &s = *m_state;
    if (s.mode == State::Mode::Reading)
        throw DatabaseError(u"Kayıt değiştirilmeye açılmamış."_s);
    const FieldDef *field = s.definition().field(name);
    if (field == nullptr)
        throw DatabaseError(u"Alan bulunamadı: "_s + name.toString());
    s.changes.insert(foldedText(field->name), storedValue(*field, value));
}

void Recordset::update()
{
    State &s = *m_state;
    if (s.mode == State::Mode::Adding)
        s.insertRow();
    else if (s.mode == State::Mode::Editing)
        s.updateRow();
    else
        throw DatabaseError(u"Kayıt değiştirilmeye açılmamış."_s);
    s.mode = State::Mode::Reading;
    s.changes.clear();
}

void Recordset::cancelUpdate()
{
    m_state->mode = State::Mode::Reading;
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

} // namespace kuyum
