#include "Passwords.h"

#include "Windows1254.h"

#include <stdexcept>

namespace {

QString moved(const QString &text, int direction)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype code = windows1254Code(text[i]).value_or('?') + direction * (i + 1);
        if (code < 0 || code > 255)
            throw std::out_of_range("a password character leaves the code page");
        result += QChar(windows1254Character(quint8(code)));
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
        const std::optional<quint8> code = windows1254Code(text[i]);
        if (!code || *code + i + 1 > 255)
            return i;
    }
    return std::nullopt;
}
