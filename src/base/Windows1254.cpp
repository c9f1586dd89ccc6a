#include "Windows1254.h"

#include <array>
#include <QStringDecoder>

namespace kuyum {

namespace {

/// The codes 0x80 to 0x9f; 0 where the code page has none.
constexpr std::array<char16_t, 32> middleCodes = {
    0x20ac, 0,      0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0,      0,      0,      0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0,      0,      0x0178};

} // namespace

char16_t windows1254Character(quint8 code)
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
    return code;
}

std::optional<quint8> windows1254Code(QChar character)
{
    for (int code = 0; code < 256; ++code) {
        if (windows1254Character(quint8(code)) == character.unicode())
            return quint8(code);
    }
    return std::nullopt;
}

TextCode textCodeOf(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    // A letter cut in two at the end shows only when something follows it.
    const QString text = decoder(bytes + '\n');
    return text.isEmpty() || decoder.hasError() ? TextCode::Windows1254 : TextCode::Utf8;
}

QString decodedText(const QByteArray &bytes)
{
    if (textCodeOf(bytes) == TextCode::Utf8) {
        const QString text = QString::fromUtf8(bytes);
        return text.startsWith(QChar::ByteOrderMark) ? text.mid(1) : text;
    }
    QString text;
    text.reserve(bytes.size());
    for (const char byte : bytes)
        text += QChar(windows1254Character(quint8(byte)));
    return text;
}

std::optional<QByteArray> encodedText(const QString &text, TextCode code)
{
    if (code == TextCode::Utf8)
        return text.toUtf8();
    QByteArray bytes;
    for (const QChar character : text) {
        const std::optional<quint8> byte = windows1254Code(character);
        if (!byte)
            return std::nullopt;
        bytes += char(*byte);
    }
    return bytes;
}

} // namespace kuyum
