#include "CommandLine.h"

#include "ClosedPipes.h"
#include "Dates.h"

#include <cstdio>
#include <exception>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// Every word of the command line, one row each.
constexpr Command commands[] = {
    {u"aktar", u"kuyum aktar KAYNAK.mdb HEDEF.kuyum", aktarCommand},
    {u"fis",
     u"kuyum fis VERITABANI SIPARIS --pdf DOSYA [--resimli 7|12|15] [--musteri kisa|ad|kod] "
     "[--resim KLASOR]",
     fisCommand, true},
    {u"etiket",
     u"kuyum etiket VERITABANI MODEL URUNTIPI --pdf DOSYA [--dpi N] | --png DOSYA --dpi N "
     "[--ayar METIN] [--aciklama METIN] [--tip ETIKETTIPI [--alan FRM=METIN]...]",
     etiketCommand, true},
    {u"barkod",
     u"kuyum barkod ean13|code39|code128|2of5|codabar METIN --pdf DOSYA [--dpi N] | --png DOSYA "
     "--dpi N",
     barkodCommand, true},
    {u"model", u"kuyum model VERITABANI MODEL TIP --pdf DOSYA [--resim KLASOR]", modelCommand,
     true},
    {u"katalog", u"kuyum katalog VERITABANI KATALOG --bicim 3x5|4x6 --pdf DOSYA [--resim KLASOR]",
     katalogCommand, true},
    {u"rapor",
     u"kuyum rapor tas|kalip|model VERITABANI --bas G.A.Y --bit G.A.Y --csv|--xlsx|--pdf DOSYA\n"
     "              (model için: [--bol ayar|tip] [--firma N] [--ulke N] [--model ONEK] [--tip "
     "N])\n"
     "  kuyum rapor siparis-tas|yarimamul VERITABANI SIPARIS [--tarih G.A.Y] [--doviz USD] "
     "--csv|--xlsx|--pdf DOSYA",
     raporCommand, true},
    {u"uretim",
     u"kuyum uretim VERITABANI SIPARIS[,SIPARIS...] --bas G.A.Y --bit G.A.Y --pdf DOSYA "
     "[--resimli [--resim KLASOR]] [--sipdur DURUM] [--uretdur DURUM]",
     uretimCommand, true},
    {u"sorgu",
     u"kuyum sorgu VERITABANI \"SELECT ...\"\n"
     "    (CSV hamdır: = + - @ ile başlayan metin olduğu gibi yazılır; hesap tablosuna aktarırken "
     "metin olarak alın)",
     sorguCommand},
    {u"yedekle", u"kuyum yedekle VERITABANI", yedekleCommand},
    {u"geriyukle", u"kuyum geriyukle VERITABANI YEDEK [--ozetsiz]", geriyukleCommand},
    {u"denetle", u"kuyum denetle VERITABANI", denetleCommand},
    {u"demo", u"kuyum demo KLASOR [--olcek N]", demoCommand, true},
};

void printTo(FILE *stream, const QString &line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
}

/// A result that nobody got is none: on a full disk or through a pipe whose
/// reader has gone.
int refuseLostOutput(int exitCode)
{
    if (std::fflush(stdout) == 0 && outputStands())
        return exitCode;
    printError(u"Çıktı yazılamadı: disk dolu ya da çıktıyı okuyan program kapanmış."_s);
    return exitRefused;
}

} // namespace

QDate dateWord(const QString &word)
{
    const QDate date = parseDate(word);
    if (!date.isValid())
        throw WrongUsage();
    return date;
}

const Command *findCommand(const QString &word)
{
    for (const Command &command : commands) {
        if (word == QStringView(command.word))
            return &command;
    }
    return nullptr;
}

QString usageText()
{
    QString text = u"Kullanım:\n  kuyum [--sirket DOSYA]"_s;
    for (const Command &command : commands)
        text += u"\n  "_s + QString::fromUtf16(command.usage);
    return text;
}

bool isHelp(const QString &word)
{
    return word == "--help"_L1 || word == "-h"_L1;
}

int runCommand(const Command &command, const QStringList &arguments)
{
    const QString usage = u"Kullanım: "_s + QString::fromUtf16(command.usage);
    surviveClosedPipes();
    try {
        if (arguments.size() == 1 && isHelp(arguments.first())) {
            printLine(usage);
            return refuseLostOutput(0);
        }
        return refuseLostOutput(command.run(arguments));
    } catch (const WrongUsage &) {
        printError(usage);
        return exitWrongUsage;
    } catch (const std::exception &error) {
        printError(QString::fromUtf8(error.what()));
        return exitRefused;
    }
}

bool outputStands()
{
    return std::ferror(stdout) == 0;
}

int printUsage()
{
    surviveClosedPipes();
    printLine(usageText());
    return refuseLostOutput(0);
}

void printLine(const QString &line)
{
    printTo(stdout, line);
}

void printError(const QString &line)
{
    printTo(stderr, line);
}

} // namespace kuyum
