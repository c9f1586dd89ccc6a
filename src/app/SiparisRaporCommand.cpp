#include "SiparisRaporCommand.h"

#include "CommandLine.h"
#include "CompanyPictures.h"
#include "OrderReportPages.h"
#include "Oturum.h"
#include "ReadableDatabase.h"
#include "ReportOutput.h"
#include "ReportPictures.h"
#include "SiparisTaslari.h"
#include "SiparisYariMamul.h"

#include <QCommandLineParser>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// What a report on one order is asked for with.
struct OrderReportRequest
{
    QString database;
    qint32 Sipnum = 0;
    QDate tarih = QDate::currentDate();
    QString doviz;
    ReportOutput output;
};

OrderReportRequest readRequest(const QStringList &arguments)
{
    QCommandLineParser parser;
    addReportOutput(parser);
    const QCommandLineOption tarih(u"tarih"_s, {}, u"TARIH"_s);
    const QCommandLineOption doviz(u"doviz"_s, {}, u"DOVIZ"_s);
    parser.addOptions({tarih, doviz});
    if (!parser.parse(QStringList{u"rapor"_s} + arguments))
        throw WrongUsage();
    const QStringList words = parser.positionalArguments();
    if (words.size() != 2)
        throw WrongUsage();
    bool isNumber = false;
    OrderReportRequest request;
    request.database = words[0];
    request.Sipnum = words[1].toInt(&isNumber);
    request.doviz = parser.value(doviz);
    if (parser.isSet(tarih))
        request.tarih = dateWord(parser.value(tarih));
    request.output = reportOutput(parser);
    if (!isNumber)
        throw WrongUsage();
    return request;
}

SiparisBasligi findOrder(Oturum &oturum, qint32 Sipnum)
{
    if (const std::optional<SiparisBasligi> siparis = siparisBasligi(oturum, Sipnum))
        return *siparis;
    throw std::runtime_error(bulunamadi(Sipnum).toStdString());
}

/// The currency asked for must be one that the screen offers; without one, the
/// first that it offers.
QString chosenCurrency(Oturum &oturum, const QString &wish)
{
    const QStringList offered = raporDovizleri(oturum);
    if (!wish.isEmpty() && !offered.contains(wish))
        throw std::runtime_error(
            u"%1 dövizi tanımlı değil; tanımlı olanlar: %2"_s.arg(wish, offered.join(u", "_s))
                .toStdString());
    return wish.isEmpty() ? offered.value(0, u"USD"_s) : wish;
}

void writeStones(Oturum &oturum, const OrderReportRequest &request)
{
    const SiparisBasligi siparis = findOrder(oturum, request.Sipnum);
    const SiparisTaslari taslar(oturum, siparis, chosenCurrency(oturum, request.doviz));
    if (!taslar.eksikKurlar().isEmpty())
        printError(eksikKurNotu(oturum.CalismaTarihi, taslar.eksikKurlar()));
    const ReportTable &table = taslar.table();
    request.output.write({{table, table.title, SheetForm::Sayilarla}},
                         [&] { return stonePages(siparis, table); });
}

void writeFoundry(Oturum &oturum, const OrderReportRequest &request)
{
    const SiparisBasligi siparis = findOrder(oturum, request.Sipnum);
    const SiparisYariMamul rapor(oturum, siparis);
    if (const QString note = rapor.modelNotu(); !note.isEmpty())
        printError(note);
    const ReportTable &modeller = rapor.modeller();
    const ReportTable &kaliplar = rapor.kaliplar();
    request.output.write(
        {{modeller, sheetTitle(siparis, modeller), SheetForm::Sayilarla, reportPictures(oturum),
          u"Modeller"_s},
         {kaliplar, sheetTitle(siparis, kaliplar), SheetForm::Sayilarla, {}, u"Kalıplar"_s}},
        [&] { return foundryPages(siparis, modeller, kaliplar); });
}

using OrderReportWriter = void (*)(Oturum &, const OrderReportRequest &);

/// Null for a word that names none.
OrderReportWriter orderReportOf(const QString &word)
{
    if (word == "siparis-tas"_L1)
        return writeStones;
    return word == "yarimamul"_L1 ? writeFoundry : nullptr;
}

} // namespace

bool isOrderReport(const QString &word)
{
    return orderReportOf(word) != nullptr;
}

int siparisRaporCommand(const QStringList &arguments)
{
    const OrderReportWriter write = orderReportOf(arguments.value(0));
    const OrderReportRequest request = readRequest(arguments.mid(1));
    ReadableDatabase source = openForReading(request.database);
    Oturum oturum;
    oturum.Veritabani = std::move(source.db);
    oturum.CalismaTarihi = request.tarih;
    if (!request.output.xlsx.isEmpty())
        oturum.ResimYolu = pictureFolderOf(request.database);
    write(oturum, request);
    return 0;
}

} // namespace kuyum
