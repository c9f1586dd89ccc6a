#include "AllCodes.h"

#include <QStringList>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

// A character's value is its place in the list, and its pattern the one at the
// same place: the widths of bars and spaces in turn, beginning with a bar.

constexpr QStringView code39Characters =
    u"0,1,2,3,4,5,6,7,8,9,A,B,C,D,E,F,G,H,I,J,K,L,M,N,O,P,Q,R,S,T,U,V,W,X,Y,Z,-,., ,$,/,+,%,*";
constexpr QStringView code39Patterns =
    u"111221211,211211112,112211112,212211111,111221112,211221111,112221111,111211212,211211211,"
    "112211211,211112112,112112112,212112111,111122112,211122111,112122111,111112212,211112211,"
    "112112211,111122211,211111122,112111122,212111121,111121122,211121121,112121121,111111222,"
    "211111221,112111221,111121221,221111112,122111112,222111111,121121112,221121111,122121111,"
    "121111212,221111211,122111211,121212111,121211121,121112121,111212121,121121211";
constexpr QStringView code39Edge = u"121121211";

// Value 76 is written "I" on purpose: existing labels were made with this
// list, and it has no lower-case l.
constexpr QStringView code128Names =
    u" <>!<>\"<>#<>$<>%<>&<>'<>(<>)<>*<>+<>,<>-<>.<>/<>0<>1<>2<>3<>4<>5<>6<>7<>8<>9<>:<>;<><<>=<>>"
    "<>?<>@<>A<>B<>C<>D<>E<>F<>G<>H<>I<>J<>K<>L<>M<>N<>O<>P<>Q<>R<>S<>T<>U<>V<>W<>X<>Y<>Z<>[<>\\<>]"
    "<>^<>_<>`<>a<>b<>c<>d<>e<>f<>g<>h<>i<>j<>k<>I<>m<>n<>o<>p<>q<>r<>s<>t<>u<>v<>w<>x<>y<>z<>{<>|"
    "<>}<>~<>DEL<>FNC 3<>FNC 2<>SHIFT<>CODE C<>FNC 4<>CODE A<>FNC 1<>Start A<>Start B<>Start C"
    "<>Stop";
constexpr QStringView code128Patterns =
    u"212222,222122,222221,121223,121322,131222,122213,122312,132212,221213,221312,231212,112232,"
    "122132,122231,113222,123122,123221,223211,221132,221231,213212,223112,312131,311222,321122,"
    "321221,312212,322112,322211,212123,212321,232121,111323,131123,131321,112313,132113,132311,"
    "211313,231113,231311,112133,112331,132131,113123,113321,133121,313121,211331,231131,213113,"
    "213311,213131,311123,311321,331121,312113,312311,332111,314111,221411,431111,111224,111422,"
    "121124,121421,141122,141221,112214,112412,122114,122411,142112,142211,241211,221114,413111,"
    "241112,134111,111242,121142,121241,114212,124112,124211,411212,421112,421211,212141,214121,"
    "412121,111143,111341,131141,114113,114311,411113,411311,113141,114131,311141,411131,211412,"
    "211214,211232,2331112";
constexpr int code128StartB = 104;
constexpr int code128Stop = 106;

constexpr QStringView code2of5Characters = u"1,2,3,4,5,6,7,8,9,0";
constexpr QStringView code2of5Patterns =
    u"3-1-1-1-3,1-3-1-1-3,3-3-1-1-1,1-1-3-1-3,3-1-3-1-1,1-3-3-1-1,1-1-1-3-3,3-1-1-3-1,1-3-1-3-1,"
    "1-1-3-3-1";
constexpr QStringView code2of5Start = u"1111";
constexpr QStringView code2of5Stop = u"311";

constexpr QStringView codabarCharacters = u"1,2,3,4,5,6,7,8,9,0,-,$,:,/,.,+,A,B,C,D";
constexpr QStringView codabarPatterns =
    u"1111221,1112112,2211111,1121121,2111121,1211112,1211211,1221111,2112111,1111122,1112211,"
    "1122111,2111212,2121112,2121211,1121212,1122121,1212112,1112122,1112221";
constexpr QStringView codabarEdges = u"ABCD";

/// The characters of a symbology with their patterns.
class CodeTable
{
public:
    CodeTable(const QString &name, QStringView characters, QStringView separator,
              QStringView patterns)
        : m_name(name),
          m_characters(characters.toString().split(separator.toString())),
          m_patterns(patterns.toString().split(u','))
    {
    }

    int value(QChar character) const
    {
        const qsizetype place = m_characters.indexOf(QString(character));
        if (place < 0)
            refuse(character);
        return int(place);
    }
    QString pattern(int value) const { return m_patterns[value]; }
    QString pattern(QChar character) const { return pattern(value(character)); }

    [[noreturn]] void refuse(QChar character) const
    {
        throw std::runtime_error(u"\"%1\" karakteri %2 barkodunda yazılamaz."_s.arg(character)
                                     .arg(m_name)
                                     .toStdString());
    }

private:
    QString m_name;
    QStringList m_characters;
    QStringList m_patterns;
};

/// Widths of bars and spaces in turn as modules.
QString modulesOf(QStringView widths)
{
    QString modules;
    bool dark = true;
    for (const QChar width : widths) {
        modules += QString(width.digitValue(), dark ? u'X' : u'O');
        dark = !dark;
    }
    return modules;
}

constexpr QStringView gap = u"O"; ///< between characters that end with a bar

void encodeCode39(const QString &text, const TakeBarPart &take)
{
    static const CodeTable table(u"Code 39"_s, code39Characters, u",", code39Patterns);
    const QString edge = modulesOf(code39Edge);
    take({edge + gap.toString(), u"*"_s});
    for (const QChar character : text) {
        if (character == u'*')
            table.refuse(character); // within the text it would end the symbol
        take({modulesOf(table.pattern(character)) + gap.toString(), QString(character)});
    }
    take({edge, u"*"_s});
}

void encodeCode128(const QString &text, const TakeBarPart &take)
{
    static const CodeTable table(u"Code 128"_s, code128Names, u"<>", code128Patterns);
    constexpr int modulus = 103;
    int sum = code128StartB;
    take({modulesOf(table.pattern(code128StartB)), {}});
    for (qsizetype i = 0; i < text.size(); ++i) {
        const int value = table.value(text[i]);
        sum = (sum + int((i + 1) % modulus) * value) % modulus;
        take({modulesOf(table.pattern(value)), QString(text[i])});
    }
    take({modulesOf(table.pattern(sum)), {}});
    take({modulesOf(table.pattern(code128Stop)), {}});
}

/// Two digits at a time: the first in the bars, the second in the spaces.
void encode2of5(const QString &text, const TakeBarPart &take)
{
    static const CodeTable table(u"Interleaved 2/5"_s, code2of5Characters, u",", code2of5Patterns);
    const auto widths = [](QChar digit) { return table.pattern(digit).remove(u'-'); };
    const QString digits = text.size() % 2 == 0 ? text : u'0' + text;
    take({modulesOf(code2of5Start), {}});
    for (qsizetype i = 0; i < digits.size(); i += 2) {
        const QString bars = widths(digits[i]);
        const QString spaces = widths(digits[i + 1]);
        QString both;
        for (qsizetype element = 0; element < bars.size(); ++element)
            both += QString(bars[element]) + spaces[element];
        take({modulesOf(both), digits.mid(i, 2)});
    }
    take({modulesOf(code2of5Stop), {}});
}

void encodeCodabar(const QString &text, const TakeBarPart &take)
{
    static const CodeTable table(u"Codabar"_s, codabarCharacters, u",", codabarPatterns);
    const bool hasEdges = text.size() >= 2 && codabarEdges.contains(text.front()) &&
                          codabarEdges.contains(text.back());
    const QString whole = hasEdges ? text : u'A' + text + u'A';
    for (qsizetype i = 0; i < whole.size(); ++i) {
        const bool isLast = i == whole.size() - 1;
        if (i > 0 && !isLast && codabarEdges.contains(whole[i]))
            table.refuse(whole[i]); // within the text it would end the symbol
        const QString modules = modulesOf(table.pattern(whole[i]));
        take({isLast ? modules : modules + gap.toString(), QString(whole[i])});
    }
}

} // namespace

std::optional<Symbology> symbologyNamed(QStringView word)
{
    static constexpr std::pair<QStringView, Symbology> names[] = {
        {u"code39", Symbology::Code39},
        {u"code128", Symbology::Code128},
        {u"2of5", Symbology::Interleaved2of5},
        {u"codabar", Symbology::Codabar},
    };
    for (const auto &[name, symbology] : names) {
        if (word == name)
            return symbology;
    }
    return std::nullopt;
}

void encode(Symbology symbology, const QString &text, const TakeBarPart &take)
{
    if (text.isEmpty())
        throw std::runtime_error("Barkodu çizilecek bir metin girilmelidir.");
    const QString quietZone(10, u'O');
    take({quietZone, {}});
    switch (symbology) {
    case Symbology::Code39:
        encodeCode39(text, take);
        break;
    case Symbology::Code128:
        encodeCode128(text, take);
        break;
    case Symbology::Interleaved2of5:
        encode2of5(text, take);
        break;
    case Symbology::Codabar:
        encodeCodabar(text, take);
        break;
    }
    take({quietZone, {}});
}

} // namespace kuyum
