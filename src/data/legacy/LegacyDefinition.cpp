#include "LegacyDefinition.h"

#include "LegacyValues.h"
#include "TurkishText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

struct LegacyType
{
    int code;
    FieldType type;
    int bytes; ///< of every value; 0 where lengths differ
};

constexpr LegacyType legacyTypes[] = {
    {MDB_BOOL, FieldType::Boolean, 0},   {MDB_BYTE, FieldType::Byte, 1},
    {MDB_INT, FieldType::Integer, 2},    {MDB_LONGINT, FieldType::Long, 4},
    {MDB_MONEY, FieldType::Currency, 8}, {MDB_FLOAT, FieldType::Single, 4},
    {MDB_DOUBLE, FieldType::Double, 8},  {MDB_DATETIME, FieldType::Date, 8},
    {MDB_BINARY, FieldType::Binary, 0},  {MDB_TEXT, FieldType::Text, 0},
    {MDB_OLE, FieldType::LongBinary, 0}, {MDB_MEMO, FieldType::Memo, 0},
    {MDB_REPID, FieldType::Guid, 16},    {MDB_NUMERIC, FieldType::Decimal, 17},
};

const LegacyType *legacyType(int code)
{
    for (const LegacyType &known : legacyTypes) {
        if (known.code == code)
            return &known;
    }
    return nullptr;
}

/// More than any legacy engine allows a table to have.
constexpr unsigned maxColumns = 255;
constexpr unsigned maxIndexes = 256;

constexpr int relationIndex = 2;

/// Whether two columns claim the same place in a row.
bool collide(const MdbColumn *a, const MdbColumn *b)
{
    if (a->col_num == b->col_num)
        return true;
    if (a->is_fixed != b->is_fixed)
        return false;
    if (a->is_fixed == 0)
        return a->var_col_num == b->var_col_num;
    // A Boolean takes no room: its value is the mark that tells nulls elsewhere.
    return a->fixed_offset < b->fixed_offset + b->col_size &&
           b->fixed_offset < a->fixed_offset + a->col_size;
}

void checkColumns(const MdbTableDef *table, const QString &tableName)
{
    for (unsigned i = 0; i < table->num_cols; ++i) {
        const MdbColumn *column = columnAt(table, i);
        const QString name = QString::fromUtf8(column->name);
        const LegacyType *known = legacyType(column->col_type);
        if (!isLegacyName(name))
            refuseDamaged(u"\"%1\" tablosunun tanımı okunamıyor."_s.arg(tableName));
        if (known == nullptr) {
            throw DatabaseError(u"\"%1\" tablosunun \"%2\" alanı bilinmeyen türde (%3)."_s.arg(
                tableName, name, QString::number(column->col_type)));
        }
        bool good = known->bytes == 0 || column->is_fixed == 0 || column->col_size == known->bytes;
        for (unsigned other = 0; other < i; ++other)
            good = good && !collide(column, columnAt(table, other));
        if (!good)
            refuseDamaged(u"\"%1\" tablosunun tanımı okunamıyor."_s.arg(tableName));
    }
}

FieldDef translateColumn(const MdbHandle *handle, const MdbColumn *column)
{
    FieldDef field;
    field.name = QString::fromUtf8(column->name);
    field.type = legacyType(column->col_type)->type;
    if (field.type == FieldType::Text)
        field.size = IS_JET3(handle) ? column->col_size : column->col_size / 2;
    if (field.type == FieldType::Binary)
        field.size = column->col_size;
    field.counter = column->is_long_auto != 0 && field.type == FieldType::Long;
    const char *expression = mdb_col_get_prop(column, "DefaultValue");
    if (expression != nullptr && !field.counter)
        field.defaultValue = defaultValueOf(field.type, QString::fromUtf8(expression));
    return field;
}

bool coversAs(const IndexDef &present, const IndexDef &wanted)
{
    return present.fields == wanted.fields && present.primary >= wanted.primary &&
           present.unique >= wanted.unique;
}

void addIndexOf(const MdbTableDef *table, const MdbIndex *source, QList<IndexDef> &indexes)
{
    // A relationship keeps its own entry over an index that is told already.
    if (source->index_type == relationIndex || source->num_keys == 0)
        return;
    IndexDef index;
    index.name = QString::fromUtf8(source->name);
    index.primary = source->index_type == 1;
    index.unique = index.primary || (source->flags & MDB_IDX_UNIQUE) != 0;
    for (unsigned key = 0; key < source->num_keys; ++key) {
        const int place = source->key_col_num[key] - 1;
        if (place < 0 || place >= int(table->num_cols))
            return;
        index.fields.append(QString::fromUtf8(columnAt(table, unsigned(place))->name));
    }
    for (const IndexDef &present : std::as_const(indexes)) {
        if (coversAs(present, index) || sameText(present.name, index.name))
            return;
    }
    indexes.append(index);
}

} // namespace

MdbTablePointer readDefinition(MdbCatalogEntry &entry)
{
    const QString name = QString::fromUtf8(entry.object_name);
    const auto refuse = [&name] {
        refuseDamaged(u"\"%1\" tablosunun tanımı okunamıyor."_s.arg(name));
    };
    MdbTablePointer table(mdb_read_table(&entry));
    if (table == nullptr || table->num_cols == 0 || table->num_cols > maxColumns ||
        table->num_idxs > maxIndexes || table->num_real_idxs > maxIndexes ||
        table->num_var_cols > maxColumns || table->num_rows > 0x7fffffff)
        refuse();
    if (mdb_read_columns(table.get()) == nullptr || table->columns->len != table->num_cols)
        refuse();
    checkColumns(table.get(), name);
    return table;
}

TableDef translateDefinition(MdbTableDef *table)
{
    TableDef result;
    result.name = QString::fromUtf8(table->name);
    for (unsigned i = 0; i < table->num_cols; ++i) {
        const FieldDef field = translateColumn(table->entry->mdb, columnAt(table, i));
        if (result.field(field.name) != nullptr)
            refuseDamaged(u"\"%1\" tablosunun tanımı okunamıyor."_s.arg(result.name));
        result.fields.append(field);
    }
    mdb_read_indices(table);
    for (guint i = 0; table->indices != nullptr && i < table->indices->len; ++i) {
        const auto *index = static_cast<MdbIndex *>(g_ptr_array_index(table->indices, i));
        addIndexOf(table, index, result.indexes);
    }
    return result;
}

} // namespace kuyum
