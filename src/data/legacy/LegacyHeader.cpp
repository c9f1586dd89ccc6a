#include "LegacyHeader.h"

#include <QtEndian>
#include <vector>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

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

} // namespace

void checkHeader(MdbHandle *handle, qint64 fileSize)
{
    checkFirstPage(handle, fileSize);
    checkLength(handle, fileSize);
}

} // namespace kuyum
