#include "CommandLine.h"
#include "CompanyPictures.h"
#include "OrderSlip.h"
#include "Oturum.h"
#include "ReadableDatabase.h"
#include "SiparisStore.h"

#include <QCommandLineParser>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

struct FisIstegi
{
    QString database;
    qint32 Sipnum = 0;
    QString pdf;
    QString resimKlasoru;
    SlipChoice choice;
};

MusteriKimligi readIdentity(const QString &word)
{
    if (word == u"kisa")
        return MusteriKimligi::Kisa;
    if (word == u"ad")
        return MusteriKimligi::Ad;
    if (word == u"kod")
        return MusteriKimligi::Kod;
    throw WrongUsage();
}

int readCount(const QString &word)
{
    for (const int adet : {7, 12, 15}) {
        if (word == QString::number(adet))
            return adet;
    }
    throw WrongUsage();
}

FisIstegi readRequest(const QStringList &arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption pdf(u"pdf"_s, {}, u"DOSYA"_s);
    const QCommandLineOption identity(u"musteri"_s, {}, u"KIMLIK"_s, u"kisa"_s);
    const QCommandLineOption pictures(u"resimli"_s, {}, u"ADET"_s);
    const QCommandLineOption folder(u"resim"_s, {}, u"KLASOR"_s);
    parser.addOptions({pdf, identity, pictures, folder});
    if (!parser.parse(QStringList{u"fis"_s} + arguments))
        throw WrongUsage();
    const QStringList words = parser.positionalArguments();
    if (words.size() != 2 || parser.value(pdf).isEmpty())
        throw WrongUsage();
    bool isNumber = false;
    FisIstegi request;
    request.database = words[0];
    request.Sipnum = words[1].toInt(&isNumber);
    request.pdf = parser.value(pdf);
    request.resimKlasoru = parser.value(folder);
    request.choice.kimlik = readIdentity(parser.value(identity));
    request.choice.resimli = parser.isSet(pictures);
    if (request.choice.resimli)
        request.choice.adet = readCount(parser.value(pictures));
    if (!isNumber)
        throw WrongUsage();
    if (parser.isSet(folder))
        requirePictureFolder(request.resimKlasoru);
    return request;
}

Siparis findOrder(Oturum &oturum, qint32 Sipnum)
{
    const SiparisStore store(oturum);
    if (std::optional<Siparis> siparis = store.SiparisBul(Sipnum))
        return *siparis;
    const QString text =
        store.headerCustomer(Sipnum)
            ? u"%1 nolu siparişin müşterisi tanımlı değil; fişi yazılamadı."_s.arg(Sipnum)
            : u"%1 nolu sipariş bulunamadı."_s.arg(Sipnum);
    throw std::runtime_error(text.toStdString());
}

} // namespace

/// kuyum fis DATABASE ORDER --pdf FILE: an order's slip, as from the screen.
int fisCommand(const QStringList &arguments)
{
    const FisIstegi request = readRequest(arguments);
    ReadableDatabase source = openForReading(request.database);
    Oturum oturum;
    oturum.Veritabani = std::move(source.db);
    if (request.choice.resimli) {
        oturum.ResimYolu = request.resimKlasoru.isEmpty() ? pictureFolderOf(request.database)
                                                          : request.resimKlasoru;
    }
    const Siparis siparis = findOrder(oturum, request.Sipnum);
    const auto goOn = [](int, int) { return true; };
    writePdf(*orderSlip(oturum, siparis, request.choice, goOn), request.pdf);
    return 0;
}

} // namespace kuyum
