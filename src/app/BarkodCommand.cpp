#include "CommandLine.h"

#include "AllCodes.h"
#include "LabelOutput.h"

#include <algorithm>
#include <QCommandLineParser>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr Twips module = 10_tw; ///< as on the labels
constexpr Twips barHeight = 600_tw;
constexpr Twips textHeight = 260_tw;
constexpr Twips margin = 100_tw;

PrintDocument symbolDocument(const QString &text, const QString &modules)
{
    // On coarse printers a module is wider than it is laid out.
    const Twips room = module * (2.0 * double(modules.size()));
    PrintDocument document(u"Barkod "_s + text, room + margin * 2,
                           barHeight + textHeight + margin * 2);
    document.bars({margin, margin}, {modules, module, barHeight, room});
    document.setFont({u"Courier New Tur"_s, 8});
    document.text({margin + module * 10, margin + barHeight + 40_tw}, text);
    return document;
}

[[noreturn]] void refuse(const QString &text)
{
    throw std::runtime_error(text.toStdString());
}

/// The 13 digits of an EAN-13. A symbol that says other ones than were asked
/// for would be stuck on goods before anybody reads it.
QString eanNumber(const QString &text)
{
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    constexpr qsizetype length = 13;
    if (text.isEmpty() || text.size() > length || !std::ranges::all_of(text, isDigit))
        refuse(u"EAN-13 en çok 13 rakamdan oluşur: %1"_s.arg(text));
    const QString number = ean13Digits(text);
    if (text.size() == length && text != number)
        refuse(u"%1 numarasının denetim rakamı yanlış: son rakam %2 olmalıdır."_s.arg(
            text, number.last(1)));
    return number;
}

} // namespace

/// kuyum barkod SYMBOLOGY TEXT --pdf FILE | --png FILE --dpi N: a bar code of
/// any text.
int barkodCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    addLabelOutput(parser);
    if (!parser.parse(QStringList{u"barkod"_s} + arguments))
        throw WrongUsage();
    const QStringList words = parser.positionalArguments();
    if (words.size() != 2)
        throw WrongUsage();
    const LabelOutput output = labelOutput(parser);
    QString caption = words[1];
    QString modules;
    const auto take = [&](const BarPart &part) { modules += part.modules; };
    if (const std::optional<Symbology> symbology = symbologyNamed(words[0]))
        encode(*symbology, words[1], take);
    else if (words[0] == "ean13"_L1)
        modules = ean13Modules(caption = eanNumber(words[1]));
    else
        throw WrongUsage();
    output.write(symbolDocument(caption, modules));
    return 0;
}

} // namespace kuyum
