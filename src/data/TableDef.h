#pragma once

#include <QList>
#include <QString>
#include <QVariant>

namespace kuyum {

/// What a field can hold: the types of the legacy engine. Date is a moment
/// with a time of day. LongBinary is an OLE object. A legacy file has no Time;
/// a database that another program made can.
enum class FieldType {
    Boolean,
    Byte,
    Integer, ///< 16 bits
    Long,    ///< 32 bits
    Currency,
    Single,
    Double,
    Date,
    Time, ///< of day, as text
    Text,
    Binary,
    LongBinary,
    Memo,
    Guid,
    Decimal
};

struct FieldDef
{
    QString name;
    FieldType type = FieldType::Text;
    int size = 0;         ///< characters of a Text, bytes of a Binary; 0: no limit
    bool counter = false; ///< numbered by the database; the table's key
    QVariant defaultValue = {};

    /// The declared type in the engine's table definition, such as "TEXT(50)".
    QString declaration() const;
    /// Reads a declaration back; one that is not ours counts by its affinity.
    static FieldDef fromDeclaration(const QString &name, const QString &declaration);
};

struct IndexDef
{
    QString name;
    QStringList fields;
    bool primary = false;
    bool unique = false;
};

struct TableDef
{
    QString name;
    QList<FieldDef> fields;
    QList<IndexDef> indexes = {};

    /// The field of that name, without regard to case; null when there is none.
    const FieldDef *field(QStringView name) const;
    const FieldDef *counter() const;
    /// How many characters a text of that field can have; 0 when there is no
    /// limit, or no such field.
    int textLimit(QStringView name) const;
};

} // namespace kuyum
