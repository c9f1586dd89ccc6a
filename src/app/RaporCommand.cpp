#include "CommandLine.h"
#include "CompanyPictures.h"
#include "MaterialReport.h"
#include "ModelReport.h"
#include "Oturum.h"
#include "ReadableDatabase.h"
#include "ReportOutput.h"
#include "ReportPages.h"
#include "ReportPictures.h"
#include "SiparisRaporCommand.h"

#include <QCommandLineParser>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// The options that only the model report knows.
const QStringList modelOptions{u"bol"_s, u"firma"_s, u"ulke"_s, u"model"_s, u"tip"_s};

std::optional<qint32> readNumber(const QCommandLineParser &parser, const QString &option)
{
    if (!parser.isSet(option))
        return std::nullopt;
    bool isNumber = false;
    const qint32 number = parser.value(option).toInt(&isNumber);
    if (!isNumber)
        throw WrongUsage();
    return number;
}

ReportSplit readSplit(const QCommandLineParser &parser)
{
    const QString split = parser.value(u"bol"_s);
    if (!parser.isSet(u"bol"_s) || split == "ayar"_L1)
        return ReportSplit::Ayar;
    if (split != "tip"_L1)
        throw WrongUsage();
    return ReportSplit::UrunTipi;
}

ModelReportRequest modelRequest(const QCommandLineParser &parser, const ReportPeriod &period)
{
    return {.period = period,
            .split = readSplit(parser),
            .Firkod = readNumber(parser, u"firma"_s),
            .UlkeID = readNumber(parser, u"ulke"_s),
            .modelPrefix = parser.value(u"model"_s),
            .TipID = readNumber(parser, u"tip"_s)};
}

using ReportMaker = std::function<std::unique_ptr<OrderReport>(Oturum &)>;

/// Reads all words before the database is opened.
ReportMaker reportMaker(const QString &kind, const QCommandLineParser &parser)
{
    const ReportPeriod period{dateWord(parser.value(u"bas"_s)), dateWord(parser.value(u"bit"_s))};
    const ModelReportRequest request = modelRequest(parser, period);
    if (kind == "model"_L1)
        return [request](Oturum &oturum) { return std::make_unique<ModelReport>(oturum, request); };
    for (const QString &option : modelOptions) {
        if (parser.isSet(option))
            throw WrongUsage();
    }
    if (kind == "tas"_L1)
        return [period](Oturum &oturum) { return std::make_unique<StoneReport>(oturum, period); };
    if (kind == "kalip"_L1)
        return [period](Oturum &oturum) { return std::make_unique<MoldReport>(oturum, period); };
    throw WrongUsage();
}

} // namespace

/// kuyum rapor tas|kalip|model DATABASE --bas D.M.Y --bit D.M.Y ...: an order
/// report, as from the screen. The reports on one order have words of their own.
int raporCommand(const QStringList &arguments)
{
    if (isOrderReport(arguments.value(0)))
        return siparisRaporCommand(arguments);
    QCommandLineParser parser;
    parser.addOptions({{u"bas"_s, {}, u"TARIH"_s}, {u"bit"_s, {}, u"TARIH"_s}});
    for (const QString &option : modelOptions)
        parser.addOption({option, {}, u"DEGER"_s});
    addReportOutput(parser);
    if (!parser.parse(QStringList{u"rapor"_s} + arguments))
        throw WrongUsage();
    const QStringList words = parser.positionalArguments();
    if (words.size() != 2)
        throw WrongUsage();
    const ReportMaker makeReport = reportMaker(words[0], parser);
    const ReportOutput output = reportOutput(parser);

    ReadableDatabase source = openForReading(words[1]);
    Oturum oturum;
    oturum.Veritabani = std::move(source.db);
    oturum.ResimYolu = pictureFolderOf(words[1]);
    const std::unique_ptr<OrderReport> report = makeReport(oturum);
    const auto goOn = [](int, int) { return true; };
    if (report->read(goOn) == OrderReport::Outcome::NothingFound || !report->table().hasLines())
        throw std::runtime_error(u"Kayıt Bulunamadi"_s.toStdString());
    const ReportTable &table = report->table();
    output.write({{table, table.title, SheetForm::Sayilarla, reportPictures(oturum)}},
                 [&] { return reportPages(table.title, report->header(), {{table}}); });
    return 0;
}

} // namespace kuyum
