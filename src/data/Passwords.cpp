#include "Passwords.h"

#include "Windows1254.h"

#include <limits>
#include <stdexcept>

namespace kuyum {

namespace {

constexpr qsizetype highestCode = std::numeric_limits<qint16>::max();

/// A character's code, and the character of a code: the code page's own order
/// for what it holds, beyond it that of Unicode. The character whose place a
/// letter of the code page takes has that letter's; so no two share a code.
char16_t exchanged(char16_t value)
{
    if (value <= 0xff)
        return windows1254Character(quint8(value));
    const std::optional<quint8> code = windows1254Code(value);
    return code ? *code : value;
}

bool isCode(qsizetype code)
{
    return code >= 0 && code <= highestCode;
}

QString moved(const QString &text, int direction)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype code = exchanged(text[i].unicode()) + direction * (i + 1);
        if (!isCode(code))
            throw std::out_of_range("a password character's code leaves its range");
        result += QChar(exchanged(char16_t(code)));
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

std::optional<qsizetype> firstUnstorable(const QString &text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!isCode(exchanged(text[i].unicode()) + i + 1))
            return i;
    }
    return std::nullopt;
}

} // namespace kuyum
