#include "CommandLine.h"

#include "EtiketSablonu.h"
#include "EtiketStore.h"
#include "LabelOutput.h"
#include "Numbers.h"
#include "Oturum.h"
#include "ReadableDatabase.h"
#include "TurkishText.h"

#include <algorithm>
#include <QCommandLineParser>
#include <stdexcept>

using namespace Qt::StringLiterals;

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
    parser.addOptions({ayar, aciklama, tip});
    if (!parser.parse(QStringList{u"etiket"_s} + arguments))
        throw WrongUsage();
    const QStringList words = parser.positionalArguments();
    if (words.size() != 3)
        throw WrongUsage();
    const LabelOutput output = labelOutput(parser);

    ReadableDatabase source = openForReading(words[0]);
    Oturum oturum;
    oturum.Veritabani = std::move(source.db);
    const EtiketStore store(oturum);
    Etiket etiket = findLabel(store, words[1], words[2]);
    etiket.Ayar =
        parser.isSet(ayar) ? parser.value(ayar) : formatNumber(store.ayarlar().sabitayar, u"#0");
    etiket.Aciklama = parser.value(aciklama);
    output.write(parser.isSet(tip)
                     ? sablonBelgesi(etiket, findTemplate(store, parser.value(tip)), {})
                     : etiketBelgesi(etiket));
    return 0;
}
