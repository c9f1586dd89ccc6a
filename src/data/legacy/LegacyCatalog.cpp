#include "LegacyCatalog.h"

#include "LegacyRows.h"

#include <cstring>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr quint32 catalogPage = 2;

// Kinds of objects in the list, as far as they matter here.
constexpr qint64 tableKind = 1;
constexpr qint64 linkedKinds[] = {4, 6};

enum Column { Id, Name, Kind, Properties, ColumnCount };
constexpr const char *columnNames[ColumnCount] = {"Id", "Name", "Type", "LvProp"};

[[noreturn]] void refuseList()
{
    refuseDamaged(u"Tablo listesi okunamıyor."_s);
}

void freeProperties(GPtrArray *list)
{
    if (list == nullptr)
        return;
    for (guint i = 0; i < list->len; ++i)
        mdb_free_props(static_cast<MdbProperties *>(g_ptr_array_index(list, i)));
    g_ptr_array_free(list, TRUE);
}

/// The list as rows, with its columns by name.
class CatalogRows
{
public:
    CatalogRows(MdbHandle *handle, qint64 fileSize)
        : m_budget(fileSize), m_rows(handle, mdbEntry(handle, "MSysObjects", catalogPage), m_budget)
    {
        for (int column = 0; column < ColumnCount; ++column)
            m_places[column] = placeOf(columnNames[column]);
    }
    bool next() { return m_rows.next(); }
    const RawValue &value(Column column) const { return m_rows.values[m_places[column]]; }

private:
    size_t placeOf(const char *name) const
    {
        for (unsigned place = 0; place < m_rows.table->num_cols; ++place) {
            if (std::strcmp(columnAt(m_rows.table.get(), place)->name, name) == 0)
                return place;
        }
        refuseList();
    }

    qint64 m_budget;
    LegacyRows::State m_rows;
    size_t m_places[ColumnCount] = {};
};

bool isDefinitionPage(MdbHandle *handle, quint32 page)
{
    return mdb_read_alt_pg(handle, page) != 0 && handle->alt_pg_buf[0] == MDB_PAGE_TABLE;
}

/// Whether the list calls something else what is a table by its page.
bool hidesTable(MdbHandle *handle, qint64 kind, quint32 id)
{
    // Other objects have numbers, not pages; a linked one has its table elsewhere.
    constexpr quint32 highestPage = 0xffffff;
    if (kind == linkedKinds[0] || kind == linkedKinds[1] || id == 0 || id > highestPage)
        return false;
    return isDefinitionPage(handle, id);
}

/// The legacy engine's own, and what is left of a table that was removed.
bool isSystemName(const QByteArray &name)
{
    return name.left(4).toLower() == "msys" || name.startsWith('~');
}

} // namespace

QList<LegacyCatalogEntry> readCatalog(MdbHandle *handle, qint64 fileSize)
{
    QList<LegacyCatalogEntry> result;
    CatalogRows rows(handle, fileSize);
    while (rows.next()) {
        const auto id = quint32(rows.value(Id).integer);
        const QByteArray name = QByteArray::fromStdString(rows.value(Name).bytes);
        if (rows.value(Kind).integer != tableKind) {
            if (hidesTable(handle, rows.value(Kind).integer, id))
                refuseList();
            continue;
        }
        for (const LegacyCatalogEntry &other : std::as_const(result)) {
            if (other.page == id || other.name == name)
                refuseList();
        }
        if (isSystemName(name))
            continue;
        if (!isLegacyName(QString::fromUtf8(name)))
            refuseList();
        LegacyCatalogEntry entry{name, id, {}};
        const RawValue &properties = rows.value(Properties);
        if (properties.kind == RawValue::Kind::Blob && properties.bytes.size() > 4) {
            std::string bytes = properties.bytes;
            entry.properties.reset(mdb_kkd_to_props(handle, bytes.data(), bytes.size()),
                                   freeProperties);
        }
        result.append(entry);
    }
    return result;
}

MdbCatalogEntry mdbEntry(MdbHandle *handle, const QByteArray &name, quint32 page,
                         GPtrArray *properties)
{
    MdbCatalogEntry entry = {};
    entry.mdb = handle;
    entry.object_type = MDB_TABLE;
    entry.table_pg = page;
    entry.props = properties;
    std::strncpy(entry.object_name, name.constData(), MDB_MAX_OBJ_NAME);
    return entry;
}

} // namespace kuyum
