#include "LegacyLibrary.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kuyum {

void refuseDamaged(const QString &what)
{
    throw DatabaseError(u"Dosya hasarlı: "_s + what +
                        u" Access'te \"Veritabanını Sıkıştır ve Onar\" ile onarıp yeniden "
                        "deneyin."_s);
}

bool isLegacyName(const QString &name)
{
    constexpr qsizetype longest = 64;
    if (name.isEmpty() || name.size() > longest)
        return false;
    return std::none_of(name.begin(), name.end(), [](QChar c) {
        return c < u' ' || !c.isPrint() || QStringView(u".!`[]").contains(c);
    });
}

} // namespace kuyum
