#include "CommandLine.h"

#include "Oturum.h"
#include "ReadableDatabase.h"
#include "SiparisFisi.h"
#include "SiparisStore.h"
#include "ToplamGram.h"

#include <QCommandLineParser>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

struct FisIstegi
{
    QString database;
    qint32 Sipnum = 0;
    QString pdf;
    MusteriKimligi kimlik = MusteriKimligi::Kisa;
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
    if (parser.isSet(pictures) || parser.isSet(folder))
        throw std::runtime_error("Resimli fiş henüz hazır değil; --resimli ve --resim olmadan "
                                 "düz liste yazdırılabilir.");
    bool isNumber = false;
    FisIstegi request{words[0], words[1].toInt(&isNumber), parser.value(pdf),
                      readIdentity(parser.value(identity))};
    if (!isNumber)
        throw WrongUsage();
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
    const Siparis siparis = findOrder(oturum, request.Sipnum);
    writePdf(siparisFisi(siparis, request.kimlik, toplamGram(oturum, siparis)), request.pdf);
    return 0;
}
