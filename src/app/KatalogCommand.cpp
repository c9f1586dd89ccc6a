#include "CommandLine.h"
#include "CompanyPictures.h"
#include "KatalogBaski.h"
#include "KatalogStore.h"
#include "Oturum.h"
#include "ReadableDatabase.h"

#include <QCommandLineParser>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

/// kuyum katalog DATABASE NAME --bicim 3x5|4x6 --pdf FILE: a catalogue's pages,
/// as from the screen.
int katalogCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption pdf(u"pdf"_s, {}, u"DOSYA"_s);
    const QCommandLineOption form(u"bicim"_s, {}, u"BICIM"_s);
    const QCommandLineOption folder(u"resim"_s, {}, u"KLASOR"_s);
    parser.addOptions({pdf, form, folder});
    if (!parser.parse(QStringList{u"katalog"_s} + arguments))
        throw WrongUsage();
    const QStringList words = parser.positionalArguments();
    const bool small = parser.value(form) == "4x6"_L1;
    if (words.size() != 2 || parser.value(pdf).isEmpty() ||
        (!small && parser.value(form) != "3x5"_L1))
        throw WrongUsage();
    if (parser.isSet(folder))
        requirePictureFolder(parser.value(folder));

    ReadableDatabase source = openForReading(words[0]);
    Oturum oturum;
    oturum.Veritabani = std::move(source.db);
    const Katalog katalog = KatalogStore(oturum).KatalogBul(words[1]);
    if (katalog.satirlar.isEmpty()) {
        const QString text = katalog.isStored()
                                 ? u"%1 kataloğunun modelleri silinmiş; basılacak satırı yok."_s
                                 : u"%1 adlı katalog bulunamadı."_s;
        throw std::runtime_error(text.arg(words[1]).toStdString());
    }
    const QString pictures =
        parser.isSet(folder) ? parser.value(folder) : pictureFolderOf(words[0]);
    const auto goOn = [](int, int) { return true; };
    writePdf(*(small ? Katalog_46 : Katalog_35)(katalog, pictures, goOn), parser.value(pdf));
    return 0;
}

} // namespace kuyum
