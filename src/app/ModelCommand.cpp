#include "CommandLine.h"

#include "EtiketStore.h"
#include "ModelFoyu.h"
#include "ModelStore.h"
#include "Oturum.h"
#include "ReadableDatabase.h"

#include <QCommandLineParser>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

[[noreturn]] void refuse(const QString &text)
{
    throw std::runtime_error(text.toStdString());
}

ModelTipi findType(Oturum &oturum, const QString &word)
{
    const std::optional<qint32> TipID = EtiketStore(oturum).urunTipi(word);
    for (const ModelTipi &type : ModelStore(oturum).UrunTipleri()) {
        if (TipID == type.TipID)
            return type;
    }
    refuse(u"%1 ürün tipi bulunamadı."_s.arg(word));
}

} // namespace

/// kuyum model DATABASE MODEL TYPE --pdf FILE: a model's sheet, as from the screen.
int modelCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption pdf(u"pdf"_s, {}, u"DOSYA"_s);
    const QCommandLineOption folder(u"resim"_s, {}, u"KLASOR"_s);
    parser.addOptions({pdf, folder});
    if (!parser.parse(QStringList{u"model"_s} + arguments))
        throw WrongUsage();
    const QStringList words = parser.positionalArguments();
    if (words.size() != 3 || parser.value(pdf).isEmpty())
        throw WrongUsage();

    ReadableDatabase source = openForReading(words[0]);
    Oturum oturum;
    oturum.Veritabani = std::move(source.db);
    const ModelTipi type = findType(oturum, words[2]);
    const std::optional<Model> model = ModelStore(oturum).ModelBul(words[1], type.TipID);
    if (!model)
        refuse(u"%1 modeli %2 ürün tipinde bulunamadı."_s.arg(words[1], type.UrunTipi));
    const ModelFoyu sheet = modelFoyu(*model, type, parser.value(folder));
    writePdf(sheet.document, parser.value(pdf));
    if (sheet.leftOut > 0)
        printError(u"Satır Sayısı Geçiyor... (%1 malzeme sığmadı)"_s.arg(sheet.leftOut));
    return 0;
}

} // namespace kuyum
