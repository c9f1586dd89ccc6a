#pragma once

#include "TableDef.h"

#include <memory>
#include <QDateTime>
#include <QString>
#include <QVariant>

namespace kuyum {

class Database;

/// The rows of a query or a table, read one after the other, lazily. Fields
/// are named without regard to case; in a join, a name that two tables share
/// is reached as "Table.Field", one that is unique also bare.
///
/// Rows of one table can be added, edited and removed: a `Select` from a
/// single table without grouping, or a whole table. Everything throws
/// DatabaseError.
///
///     Recordset orders = db.query(u"Select * From SiparisB Where Sipnum = 5"_s);
///     while (orders.next())
///         note = orders.text(u"Aciklama");
class Recordset
{
public:
    Recordset(Recordset &&) noexcept;
    Recordset &operator=(Recordset &&) noexcept;
    ~Recordset();

    /// Goes to the next row (at first to the first); false past the last.
    bool next();
    /// Goes to the row of a whole table whose key fields have these values.
    bool seek(const QVariantList &key);

    int fieldCount() const;
    QString fieldName(int index) const;
    /// The field's type; Text for a computed column that is not a number.
    FieldType fieldType(int index) const;
    /// Whether the field comes straight from a table (a computed one does not).
    bool isTableField(int index) const;
    bool hasField(QStringView name) const;

    /// The field's value; a date as QDateTime, a null as an invalid variant.
    QVariant value(QStringView name) const;
    QVariant value(int index) const;
    bool isNull(QStringView name) const;
    /// Nulls read as an empty text, 0, false and an invalid date.
    QString text(QStringView name) const;
    double number(QStringView name) const;
    qint64 integer(QStringView name) const;
    bool flag(QStringView name) const;
    QDate date(QStringView name) const;

    /// Begins a new row; set() its fields, then update().
    void addNew();
    /// Begins a change of the current row; set() its fields, then update().
    void edit();
    void set(QStringView name, const QVariant &value);
    /// Writes what addNew or edit began. The row stays current, so a counter's
    /// new number can be read.
    void update();
    void cancelUpdate();
    /// Removes the current row.
    void remove();

private:
    friend class Database;
    struct State;
    explicit Recordset(std::unique_ptr<State> state);

    std::unique_ptr<State> m_state;
};

} // namespace kuyum
