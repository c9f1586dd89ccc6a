#include "Passwords.h"

#include <array>
#include <stdexcept>

namespace {

/// The codes 0x80 to 0x9f of Windows-1254; 0 where the code page has none.
constexpr std::array<char16_t, 32> middleCodes = {
    0x20ac, 0,      0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0,      0,      0,      0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0,      0,      0x0178};

char16_t characterOf(int code)
{
    switch (code) {
    case 0xd0:
        return u'Ğ';
    case 0xdd:
        return u'İ';
    case 0xde:
        return u'Ş';
    case 0xf0:
        return u'ğ';
    case 0xfd:
        return u'ı';
    case 0xfe:
        return u'ş';
    default:
        break;
    }
    if (code >= 0x80 && code <= 0x9f && middleCodes[code - 0x80] != 0)
        return middleCodes[code - 0x80];
    return char16_t(code);
}

int codeOf(QChar character)
{
    for (int code = 0; code < 256; ++code) {
        if (characterOf(code) == character.unicode())
            return code;
    }
    return '?';
}

QString moved(const QString &text, int direction)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype code = codeOf(text[i]) + direction * (i + 1);
        if (code < 0 || code > 255)
            throw std::out_of_range("a password character leaves the code page");
        result += QChar(characterOf(int(code)));
    }
    return result;
}

} // namespace

QString Sifrele(const QString &text)
{
    return moved(text, 1);
}

QString SifreCoz(const QString &scrambled)
{
    return moved(scrambled, -1);
}
