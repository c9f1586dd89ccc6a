#include "TurkishText.h"

#include <array>

namespace kuyum {

namespace {

/// Latin letters in Turkish alphabetical order; the letters between two blanks
/// are equal. Everything that is missing here comes after.
constexpr char16_t alphabet[] =
    u"aA áÁ àÀ âÂ äÄ ãÃ åÅ æÆ bB cC çÇ ćĆ čČ dD ðÐ eE éÉ èÈ êÊ ëË fF gG ğĞ "
    u"hH ı iI İ íÍ ìÌ îÎ ïÏ jJ kK lL łŁ mM nN ñÑ oO óÓ òÒ ôÔ õÕ øØ œŒ "
    u"öÖ pP qQ rR sS ß śŚ šŠ şŞ tT þÞ uU úÚ ùÙ ûÛ üÜ vV wW xX yY ýÝ ÿŸ "
    u"zZ źŹ žŽ żŻ";

constexpr char32_t tableSize = 0x250;
constexpr quint32 digitBase = 0x10000;
constexpr quint32 letterBase = 0x20000;
constexpr quint32 otherBase = 0x30000;

std::array<quint32, tableSize> makeWeights()
{
    std::array<quint32, tableSize> weights{};
    for (char32_t c = 0; c < tableSize; ++c) {
        if (c >= U'0' && c <= U'9')
            weights[c] = digitBase + c;
        else if (QChar::isLetter(c))
            weights[c] = otherBase + QChar::toCaseFolded(c);
        else
            weights[c] = c + 1;
    }
    quint32 place = letterBase;
    for (const char16_t *c = alphabet; *c != 0; ++c) {
        if (*c == u' ')
            ++place;
        else
            weights[*c] = place;
    }
    return weights;
}

quint32 weight(char32_t c)
{
    static const std::array<quint32, tableSize> weights = makeWeights();
    return c < tableSize ? weights[c] : otherBase + QChar::toCaseFolded(c);
}

/// Walks UTF-16; yields 0 at the end.
class Utf16Walker
{
public:
    explicit Utf16Walker(QStringView text)
    {
        while (text.endsWith(u' '))
            text.chop(1);
        m_text = text;
    }
    char32_t next()
    {
        if (m_at == m_text.size())
            return 0;
        const char16_t c = m_text[m_at++].unicode();
        if (QChar::isHighSurrogate(c) && m_at < m_text.size() && m_text[m_at].isLowSurrogate())
            return QChar::surrogateToUcs4(c, m_text[m_at++].unicode());
        return c;
    }

private:
    QStringView m_text;
    qsizetype m_at = 0;
};

/// Walks UTF-8; yields 0 at the end and takes broken bytes as they are.
class Utf8Walker
{
public:
    Utf8Walker(const char *text, int bytes) : m_at(text), m_end(text + bytes)
    {
        while (m_end > m_at && m_end[-1] == ' ')
            --m_end;
    }
    char32_t next()
    {
        if (m_at == m_end)
            return 0;
        const auto lead = static_cast<unsigned char>(*m_at++);
        if (lead < 0x80)
            return lead;
        const int following = lead >= 0xf0 ? 3 : lead >= 0xe0 ? 2 : lead >= 0xc0 ? 1 : 0;
        char32_t c = following == 0 ? lead : lead & (0x3f >> following);
        for (int i = 0; i < following && m_at != m_end; ++i)
            c = (c << 6) | (static_cast<unsigned char>(*m_at++) & 0x3f);
        return c;
    }

private:
    const char *m_at;
    const char *m_end;
};

template <typename Walker>
int compareWalked(Walker a, Walker b)
{
    for (;;) {
        const char32_t x = a.next();
        const char32_t y = b.next();
        if (x == y) {
            if (x == 0)
                return 0;
            continue;
        }
        const quint32 wx = x == 0 ? 0 : weight(x);
        const quint32 wy = y == 0 ? 0 : weight(y);
        if (wx != wy)
            return wx < wy ? -1 : 1;
    }
}

template <typename Change>
QString changed(QStringView text, Change change)
{
    QString result = text.toString();
    for (QChar &c : result)
        c = change(c);
    return result;
}

} // namespace

int compareText(QStringView a, QStringView b)
{
    return compareWalked(Utf16Walker(a), Utf16Walker(b));
}

int compareUtf8Text(const char *a, int aBytes, const char *b, int bBytes)
{
    // Sorting and seeking compare texts that begin alike: what is the same in
    // bytes need not be weighed.
    const int shorter = aBytes < bBytes ? aBytes : bBytes;
    int same = 0;
    while (same < shorter && a[same] == b[same])
        ++same;
    const auto isInsideLetter = [](const char *text, int at, int bytes) {
        return at < bytes && (static_cast<unsigned char>(text[at]) & 0xc0) == 0x80;
    };
    while (same > 0 && (isInsideLetter(a, same, aBytes) || isInsideLetter(b, same, bBytes)))
        --same;
    a += same;
    b += same;
    aBytes -= same;
    bBytes -= same;
    return compareWalked(Utf8Walker(a, aBytes), Utf8Walker(b, bBytes));
}

bool sameText(QStringView a, QStringView b)
{
    return compareText(a, b) == 0;
}

QString foldedText(QStringView text)
{
    while (text.endsWith(u' '))
        text.chop(1);
    return changed(text, [](QChar c) {
        if (c == u'İ' || c == u'ı')
            return c;
        return c == u'I' ? QChar(u'i') : c.toCaseFolded();
    });
}

QString turkishUpper(QStringView text)
{
    return changed(text, [](QChar c) {
        return c == u'i' ? QChar(u'İ') : c == u'ı' ? QChar(u'I') : c.toUpper();
    });
}

QString turkishLower(QStringView text)
{
    return changed(text, [](QChar c) {
        return c == u'I' ? QChar(u'ı') : c == u'İ' ? QChar(u'i') : c.toLower();
    });
}

QString searchKey(QStringView text)
{
    return changed(text, [](QChar c) {
        return c == u'I' || c == u'İ' || c == u'ı' ? QChar(u'i') : c.toCaseFolded();
    });
}

} // namespace kuyum
