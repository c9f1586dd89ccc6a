#include "LegacyLibrary.h"

using namespace Qt::StringLiterals;

void refuseDamaged(const QString &what)
{
    throw DatabaseError(u"Dosya hasarlı: "_s + what +
                        u" Access'te \"Veritabanını Sıkıştır ve Onar\" ile onarıp yeniden "
                        "deneyin."_s);
}

void appendText(MdbHandle *handle, const char *source, size_t size, QByteArray &target)
{
    // A byte can become three (one of Jet 3's code pages), and the library
    // writes a closing zero.
    const qsizetype before = target.size();
    const size_t room = 3 * size + 8;
    target.resize(before + qsizetype(room));
    const int length = mdb_unicode2ascii(handle, source, size, target.data() + before, room - 1);
    target.resize(before + qMax(0, length));
}
