#include "LegacyLibrary.h"

using namespace Qt::StringLiterals;

void refuseDamaged(const QString &what)
{
    throw DatabaseError(u"Dosya hasarlı: "_s + what +
                        u" Access'te \"Veritabanını Sıkıştır ve Onar\" ile onarıp yeniden "
                        "deneyin."_s);
}
