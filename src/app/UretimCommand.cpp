#include "CommandLine.h"
#include "CompanyPictures.h"
#include "Oturum.h"
#include "ReadableDatabase.h"
#include "SiparisStore.h"
#include "UretimListesi.h"
#include "UretimStore.h"

#include <QCommandLineParser>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

struct UretimIstegi
{
    QString database;
    QList<qint32> siparisler;
    UretimFiltre filtre;
    UretimYazdirma yazdirma = UretimYazdirma::Yazili;
    QString resimKlasoru;
    QString pdf;
};

QList<qint32> readOrders(const QString &word)
{
    QList<qint32> siparisler;
    for (const QString &number : word.split(u',')) {
        bool isNumber = false;
        const qint32 Sipnum = number.toInt(&isNumber);
        if (!isNumber)
            throw WrongUsage();
        if (!siparisler.contains(Sipnum))
            siparisler.append(Sipnum);
    }
    return siparisler;
}

UretimIstegi readRequest(const QStringList &arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption bas(u"bas"_s, {}, u"TARIH"_s);
    const QCommandLineOption bit(u"bit"_s, {}, u"TARIH"_s);
    const QCommandLineOption sipdur(u"sipdur"_s, {}, u"DURUM"_s);
    const QCommandLineOption uretdur(u"uretdur"_s, {}, u"DURUM"_s);
    const QCommandLineOption pictures(u"resimli"_s);
    const QCommandLineOption folder(u"resim"_s, {}, u"KLASOR"_s);
    const QCommandLineOption pdf(u"pdf"_s, {}, u"DOSYA"_s);
    parser.addOptions({bas, bit, sipdur, uretdur, pictures, folder, pdf});
    if (!parser.parse(QStringList{u"uretim"_s} + arguments))
        throw WrongUsage();
    const QStringList words = parser.positionalArguments();
    if (words.size() != 2 || parser.value(pdf).isEmpty())
        throw WrongUsage();
    UretimIstegi request;
    request.database = words[0];
    request.siparisler = readOrders(words[1]);
    request.filtre = {dateWord(parser.value(bas)), dateWord(parser.value(bit)), {}, {}};
    if (parser.isSet(sipdur))
        request.filtre.sipDur = parser.value(sipdur);
    if (parser.isSet(uretdur))
        request.filtre.uretDur = parser.value(uretdur);
    if (parser.isSet(pictures))
        request.yazdirma = UretimYazdirma::Resimli;
    request.resimKlasoru = parser.value(folder);
    request.pdf = parser.value(pdf);
    if (parser.isSet(folder) && !QFileInfo(request.resimKlasoru).isDir())
        throw std::runtime_error(
            (u"Resim klasörü bulunamadı: "_s + request.resimKlasoru).toStdString());
    return request;
}

/// The orders as the screen's list would give them, which leaves out those
/// whose customer is not defined.
QList<SecilenSiparis> findOrders(Oturum &oturum, const QList<qint32> &siparisler)
{
    const SiparisStore store(oturum);
    QList<SecilenSiparis> secim;
    for (const qint32 Sipnum : siparisler) {
        const std::optional<Siparis> siparis = store.baslikBul(Sipnum);
        if (!siparis)
            throw std::runtime_error(u"%1 nolu sipariş bulunamadı."_s.arg(Sipnum).toStdString());
        secim.append({Sipnum, siparis->Ayar});
    }
    return secim;
}

} // namespace

/// kuyum uretim DATABASE ORDER[,ORDER...]: a production sheet, as from the screen.
int uretimCommand(const QStringList &arguments)
{
    const UretimIstegi request = readRequest(arguments);
    ReadableDatabase source = openForReading(request.database);
    Oturum oturum;
    oturum.Veritabani = std::move(source.db);
    if (request.yazdirma == UretimYazdirma::Resimli) {
        oturum.ResimYolu = request.resimKlasoru.isEmpty() ? pictureFolderOf(request.database)
                                                          : request.resimKlasoru;
    }
    const UretimListesi liste =
        uretimListesi(oturum, findOrders(oturum, request.siparisler), request.filtre);
    const GizliSatirlar gizli =
        UretimStore(oturum).gizliSatirlar(request.siparisler, request.filtre);
    if (gizli.toplam() > 0) {
        printError(u"%1 satır listeye girmiyor: %2."_s.arg(QString::number(gizli.toplam()),
                                                           gizli.nedenler()));
    }
    const auto goOn = [](int, int) { return true; };
    writePdf(*uretimRaporu(oturum, liste, request.yazdirma, goOn), request.pdf);
    return 0;
}

} // namespace kuyum
