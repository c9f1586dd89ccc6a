#include "Ean13.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr int digitCount = 12; ///< without the check digit

/// A digit in the left half with odd and with even parity, and in the right half.
struct DigitPatterns
{
    const char16_t *a;
    const char16_t *b;
    const char16_t *c;
};

constexpr DigitPatterns digits[] = {
    {u"OOOXXOX", u"OXOOXXX", u"XXXOOXO"}, {u"OOXXOOX", u"OXXOOXX", u"XXOOXXO"},
    {u"OOXOOXX", u"OOXXOXX", u"XXOXXOO"}, {u"OXXXXOX", u"OXOOOOX", u"XOOOOXO"},
    {u"OXOOOXX", u"OOXXXOX", u"XOXXXOO"}, {u"OXXOOOX", u"OXXXOOX", u"XOOXXXO"},
    {u"OXOXXXX", u"OOOOXOX", u"XOXOOOO"}, {u"OXXXOXX", u"OOXOOOX", u"XOOOXOO"},
    {u"OXXOXXX", u"OOOXOOX", u"XOOXOOO"}, {u"OOOXOXX", u"OOXOXXX", u"XXXOXOO"},
};

/// The first digit has no bars of its own: it is told by the parities of the
/// left half.
constexpr const char16_t *parities[] = {
    u"AAAAAA", u"AABABB", u"AABBAB", u"AABBBA", u"ABAABB",
    u"ABBAAB", u"ABBBAA", u"ABABAB", u"ABABBA", u"ABBABA",
};

constexpr const char16_t *quietZone = u"OOOOOOO";
constexpr const char16_t *edgeGuard = u"XOX";
constexpr const char16_t *centreGuard = u"OXOXO";

QString twelveDigits(const QString &code)
{
    return code.size() < digitCount ? code.rightJustified(digitCount, u'0') : code.left(digitCount);
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

int digitAt(const QString &number, int place)
{
    const QChar character = number[place];
    if (isDigit(character))
        return character.unicode() - u'0';
    if (place == 0)
        return 0;
    throw std::runtime_error(
        u"Barkod çizilemedi: \"%1\" içindeki \"%2\" rakam değil."_s.arg(number, character)
            .toStdString());
}

int checkDigit(const QString &number)
{
    int sum = 0;
    for (int place = 0; place < digitCount; ++place)
        sum += digitAt(number, place) * (place % 2 == 0 ? 1 : 3);
    return (10 - sum % 10) % 10;
}

} // namespace

void encodeEan13(const QString &code, const TakeBarPart &take)
{
    constexpr int leftHalf = 6;
    const QString number = twelveDigits(code);
    const auto part = [&](const char16_t *modules, const QString &caption) {
        take({QString::fromUtf16(modules), caption});
    };
    const auto guard = [&](const char16_t *modules) {
        take({QString::fromUtf16(modules), {}, true});
    };

    const char16_t *parity = parities[digitAt(number, 0)];
    part(quietZone, number.left(1));
    guard(edgeGuard);
    for (int place = 1; place <= leftHalf; ++place) {
        const DigitPatterns &digit = digits[digitAt(number, place)];
        part(parity[place - 1] == u'A' ? digit.a : digit.b, number.mid(place, 1));
    }
    guard(centreGuard);
    for (int place = leftHalf + 1; place < digitCount; ++place)
        part(digits[digitAt(number, place)].c, number.mid(place, 1));
    const int check = checkDigit(number);
    part(digits[check].c, QString::number(check));
    guard(edgeGuard);
}

QString ean13Digits(const QString &code)
{
    const QString number = twelveDigits(code);
    return number + QString::number(checkDigit(number));
}

QString ean13Modules(const QString &code)
{
    QString modules;
    encodeEan13(code, [&](const BarPart &part) { modules += part.modules; });
    return modules;
}

} // namespace kuyum
