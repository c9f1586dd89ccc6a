#include "LegacyFile.h"

#include "LegacyDefinition.h"
#include "LegacyRows.h"

#include <cstring>
#include <map>
#include <QFile>
#include <QtEndian>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 catalogPage = 2;

struct FreeProperties
{
    void operator()(GPtrArray *list) const
    {
        for (guint i = 0; i < list->len; ++i)
            mdb_free_props(static_cast<MdbProperties *>(g_ptr_array_index(list, i)));
        g_ptr_array_free(list, TRUE);
    }
};

MdbCatalogEntry catalogEntry(MdbHandle *handle, const QByteArray &name, quint32 page)
{
    MdbCatalogEntry entry = {};
    entry.mdb = handle;
    entry.object_type = MDB_TABLE;
    entry.table_pg = page;
    std::strncpy(entry.object_name, name.constData(), MDB_MAX_OBJ_NAME);
    return entry;
}

/// The database password, which hides behind the day the file was made on.
/// Must be asked right after opening, while the first page is unmasked.
bool hasPassword(const MdbHandle *handle)
{
    const unsigned char *page = handle->pg_buf;
    const bool jet3 = IS_JET3(handle);
    const int length = jet3 ? 20 : 40;
    uchar mask[4] = {};
    if (!jet3)
        qToLittleEndian<qint32>(qint32(qFromLittleEndian<double>(page + 0x72)), mask);
    for (int i = 0; i < length; ++i) {
        if (page[0x42 + i] != mask[i % 4])
            return true;
    }
    return false;
}

/// Refuses what is no legacy database, or one that is locked. The first page
/// must still be in the library's hands.
void checkFirstPage(const MdbHandle *handle, qint64 size)
{
    const QByteArrayView signature(reinterpret_cast<const char *>(handle->pg_buf) + 4, 15);
    if (signature == "Standard ACE DB") {
        throw DatabaseError(u"Dosya yeni Access biçiminde (.accdb), aktarılamaz. Access'te .mdb "
                            "olarak kaydedip yeniden deneyin."_s);
    }
    if (signature != "Standard Jet DB" || handle->f->jet_version > MDB_VER_JET4)
        throw DatabaseError(u"Dosya bir Access (.mdb) veri tabanı değil."_s);
    if (size % handle->fmt->pg_size != 0)
        refuseDamaged(u"Dosyanın sonu eksik."_s);
    if (handle->f->db_key != 0 || hasPassword(handle)) {
        throw DatabaseError(u"Dosya şifreli ya da parola korumalı, aktarılamaz. Access'te parolayı "
                            "ve şifrelemeyi kaldırıp yeniden deneyin."_s);
    }
}

/// The map of free pages tells of a page whether it is free, in one bit each;
/// a large file's map is spread over pages of its own.
bool mapCovers(const MdbHandle *handle, const std::vector<unsigned char> &map, qint64 page)
{
    if (map[0] == 0) {
        const qint64 first = qFromLittleEndian<quint32>(map.data() + 1);
        return page >= first && page < first + qint64(map.size() - 5) * 8;
    }
    const qint64 place = 1 + 4 * (page / (qint64(handle->fmt->pg_size - 4) * 8));
    return map[0] == 1 && place + 4 <= qint64(map.size()) &&
           qFromLittleEndian<quint32>(map.data() + place) != 0;
}

/// The library reads pages behind the end of the file as empty ones. Whether
/// there was more once, the file's own map of free pages tells: the page
/// behind the end must be free.
void checkLength(MdbHandle *handle, qint64 size)
{
    const qint64 pages = size / handle->fmt->pg_size;
    if (IS_JET3(handle))
        return;
    constexpr int mapPlace = 1 << 8; // the first row of page 1
    void *page = nullptr;
    int start = 0;
    size_t length = 0;
    if (mdb_find_pg_row(handle, mapPlace, &page, &start, &length) != 0 || length <= 5)
        refuseDamaged(u"Sayfa haritası okunamıyor."_s);
    const auto *bytes = static_cast<const unsigned char *>(page) + start;
    std::vector<unsigned char> map(bytes, bytes + length);
    if (mapCovers(handle, map, pages) &&
        mdb_map_find_next(handle, map.data(), unsigned(length), guint32(pages - 1)) != pages)
        refuseDamaged(u"Dosyanın sonu eksik."_s);
}

/// Sets up which code the texts are read in. Windows' Turkish one is what the
/// files of Jet 3 were written in, also where they claim Western European;
/// and Jet 4's is UTF-16, of which the library takes only the plain part.
void setTextCode(MdbHandle *handle)
{
#if MDBTOOLS_H_HAVE_ICONV_H
    const char *code = "UTF-16LE";
    if (IS_JET3(handle)) {
        const int page = handle->f->code_page;
        if (page != 0 && page != 1252 && page != 1254)
            return;
        code = "CP1254";
    }
    const iconv_t converter = iconv_open("UTF-8", code);
    if (converter == iconv_t(-1))
        return;
    if (handle->iconv_in != iconv_t(-1))
        iconv_close(handle->iconv_in);
    handle->iconv_in = converter;
#else
    Q_UNUSED(handle);
#endif
}

} // namespace

struct LegacyFile::State
{
    MdbPointer handle;
    qint64 longValueBudget = 0;
    qint64 size = 0;
    std::map<quint32, std::unique_ptr<GPtrArray, FreeProperties>> properties; ///< by table page
};

LegacyFile::LegacyFile(const QString &path) : m_state(std::make_unique<State>())
{
    m_state->handle.reset(mdb_open(QFile::encodeName(path).constData(), MDB_NOFLAGS));
    MdbHandle *handle = m_state->handle.get();
    if (handle == nullptr)
        throw DatabaseError(u"Dosya bir Access (.mdb) veri tabanı değil."_s);
    m_state->size = QFile(path).size();
    checkFirstPage(handle, m_state->size);
    checkLength(handle, m_state->size);
    setTextCode(handle);
}

LegacyFile::~LegacyFile() = default;

QList<LegacyTable> LegacyFile::tables()
{
    MdbHandle *handle = m_state->handle.get();
    m_state->longValueBudget = m_state->size;
    LegacyRows::State catalog(handle, catalogEntry(handle, "MSysObjects", catalogPage),
                              m_state->longValueBudget);
    enum Column { Id, Name, Type, Flags, Properties, ColumnCount };
    const char *const names[ColumnCount] = {"Id", "Name", "Type", "Flags", "LvProp"};
    size_t places[ColumnCount] = {};
    for (int i = 0; i < ColumnCount; ++i) {
        unsigned place = 0;
        while (place < catalog.table->num_cols &&
               std::strcmp(columnAt(catalog.table.get(), place)->name, names[i]) != 0)
            ++place;
        if (place == catalog.table->num_cols)
            refuseDamaged(u"Tablo listesi okunamıyor."_s);
        places[i] = place;
    }

    constexpr int tableType = 1;
    constexpr quint32 systemFlags = 0x80000002;
    QList<LegacyTable> result;
    QList<QByteArray> tableNames;
    while (catalog.next()) {
        const RawValue &name = catalog.values[places[Name]];
        const auto page = quint32(catalog.values[places[Id]].integer) & 0xffffff;
        const bool isUserTable =
            catalog.values[places[Type]].integer == tableType &&
            (quint32(catalog.values[places[Flags]].integer) & systemFlags) == 0 &&
            !name.bytes.startsWith('~'); // what is left of a table that was removed
        if (!isUserTable)
            continue;
        const RawValue &properties = catalog.values[places[Properties]];
        if (properties.kind == RawValue::Kind::Blob && properties.bytes.size() > 4) {
            QByteArray bytes = properties.bytes;
            m_state->properties[page].reset(
                mdb_kkd_to_props(handle, bytes.data(), size_t(bytes.size())));
        }
        result.append({{}, 0, page});
        tableNames.append(name.bytes);
    }
    for (qsizetype i = 0; i < result.size(); ++i) {
        MdbCatalogEntry entry = catalogEntry(handle, tableNames[i], result[i].page);
        entry.props = m_state->properties[result[i].page].get();
        const MdbTablePointer table = readDefinition(entry);
        result[i].definition = translateDefinition(table.get());
        result[i].declaredRows = table->num_rows;
    }
    return result;
}

LegacyRows LegacyFile::rows(const LegacyTable &table)
{
    MdbHandle *handle = m_state->handle.get();
    m_state->longValueBudget = m_state->size;
    return LegacyRows(std::make_unique<LegacyRows::State>(
        handle, catalogEntry(handle, table.definition.name.toUtf8(), table.page),
        m_state->longValueBudget));
}
