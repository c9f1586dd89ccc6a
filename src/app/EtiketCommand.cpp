#include "CommandLine.h"

#include "EtiketSablonu.h"
#include "EtiketStore.h"
#include "LabelOutput.h"
#include "Oturum.h"
#include "ReadableDatabase.h"
#include "TurkishText.h"

#include <algorithm>
#include <QCommandLineParser>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

[[noreturn]] void refuse(const QString &text)
{
    throw std::runtime_error(text.toStdString());
}

Etiket findLabel(const EtiketStore &store, const QString &model, const QString &type)
{
    const std::optional<qint32> TipID = store.urunTipi(type);
    if (!TipID)
        refuse(u"%1 ürün tipi bulunamadı."_s.arg(type));
    const std::optional<EtiketModeli> found = store.ModelBul(model, *TipID);
    if (!found)
        refuse(u"%1 modeli %2 ürün tipinde bulunamadı."_s.arg(model, type));
    return found->etiket;
}

BarkodTipi findTemplate(const EtiketStore &store, const QString &name)
{
    const QList<BarkodTipi> types = store.BarkodTipleri();
    const auto found = std::find_if(types.begin(), types.end(), [&](const BarkodTipi &tip) {
        return sameText(tip.BarkodTip_Ad, name);
    });
    if (found == types.end())
        refuse(u"%1 etiket tipi bulunamadı."_s.arg(name));
    return *found;
}

/// What the database does not tell: the company's name stands in the registry,
/// prices and the like nowhere.
QStringList givenPlaceholders()
{
    QStringList placeholders{u"%FRM%"_s};
    for (const SorulanAlan &asked : sorulanAlanlar())
        placeholders.append(asked.alan);
    return placeholders;
}

/// The values of --alan FRM=METIN, by placeholder.
QMap<QString, QString> readValues(const QStringList &words)
{
    QMap<QString, QString> values;
    for (const QString &word : words) {
        const QString placeholder = u'%' + word.section(u'=', 0, 0).toUpper() + u'%';
        if (!word.contains(u'=') || !givenPlaceholders().contains(placeholder))
            throw WrongUsage();
        values[placeholder] = word.section(u'=', 1);
    }
    return values;
}

/// A label on which a price is missing is worse than none.
PrintDocument templateLabel(const Etiket &etiket, const BarkodTipi &tip,
                            const QMap<QString, QString> &values)
{
    const QList<SorulanAlan> noPrice = missingPrices(tip, values);
    for (const QString &placeholder : givenPlaceholders()) {
        const bool given = values.contains(placeholder) &&
                           !std::ranges::any_of(noPrice, [&](const SorulanAlan &price) {
                               return price.alan == placeholder;
                           });
        if (uses(tip, placeholder) && !given) {
            refuse(
                u"%1 etiket tipi %2 alanını basar; değeri --alan %3=METIN ile verilmelidir."_s.arg(
                    tip.BarkodTip_Ad, placeholder, placeholder.chopped(1).sliced(1)));
        }
    }
    return sablonBelgesi(etiket, tip, {values.value(u"%FRM%"_s), {}, values, {}});
}

} // namespace

/// kuyum etiket DATABASE MODEL TYPE --pdf FILE | --png FILE --dpi N: a
/// product's label, as from the screen.
int etiketCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    addLabelOutput(parser);
    const QCommandLineOption ayar(u"ayar"_s, {}, u"METIN"_s);
    const QCommandLineOption aciklama(u"aciklama"_s, {}, u"METIN"_s);
    const QCommandLineOption tip(u"tip"_s, {}, u"ETIKETTIPI"_s);
    const QCommandLineOption alan(u"alan"_s, {}, u"ALAN=METIN"_s);
    parser.addOptions({ayar, aciklama, tip, alan});
    if (!parser.parse(QStringList{u"etiket"_s} + arguments))
        throw WrongUsage();
    const QStringList words = parser.positionalArguments();
    if (words.size() != 3 || (parser.isSet(alan) && !parser.isSet(tip)))
        throw WrongUsage();
    const QMap<QString, QString> values = readValues(parser.values(alan));
    const LabelOutput output = labelOutput(parser);

    ReadableDatabase source = openForReading(words[0]);
    Oturum oturum;
    oturum.Veritabani = std::move(source.db);
    const EtiketStore store(oturum);
    Etiket etiket = findLabel(store, words[1], words[2]);
    etiket.Ayar = parser.isSet(ayar) ? parser.value(ayar) : store.ayarlar().karat();
    etiket.Aciklama = parser.value(aciklama);
    output.write(parser.isSet(tip)
                     ? templateLabel(etiket, findTemplate(store, parser.value(tip)), values)
                     : etiketBelgesi(etiket));
    return 0;
}

} // namespace kuyum
