// bench_catalogue [RUNS [FOLDER]]: a catalogue of 1,000 models with a photograph
// each, in both page forms, from its rows to the PDF file. The baseline decodes
// the same files to the same size and writes them with a bare painter to the same
// places of a PDF file, without any text. The company stays in FOLDER, for
// `kuyum katalog FOLDER/olcum.kuyum OLCUM --bicim 3x5 --resim FOLDER --pdf ...`.

#include "KatalogBaski.h"
#include "KatalogStore.h"
#include "Measured.h"
#include "Oturum.h"
#include "Photographs.h"
#include "Schema.h"
#include "SqliteEngine.h"

#include <cstdio>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using namespace kuyum;

namespace {

constexpr int modelCount = 1000;
constexpr int photographCount = 100; ///< each is in ten files

using Write = decltype(&Katalog_35);

QString fileOf(const QString &folder, int model)
{
    return folder + u"/A.%1.jpg"_s.arg(1000 + model);
}

void fill(const SqliteEngine &engine)
{
    engine.run(u"INSERT INTO UrunTipi (TipID, UrunTipi, KisaAD) VALUES (1, 'Yüzük', 'YZK')"_s);
    for (int i = 0; i < modelCount; ++i) {
        engine.run(u"INSERT INTO Model (Model_ID, Model, M_Uruntip, M_Miktar) "
                   "VALUES (?, ?, 1, 2.37)"_s,
                   {i + 1, u"A.%1"_s.arg(1000 + i)});
        engine.run(u"INSERT INTO Katalog (KatAdi, katno1, katgram, kataciklama) "
                   "VALUES ('OLCUM', ?, 2.37, 'iki renk')"_s,
                   {i + 1});
    }
}

void makeFiles(const QString &folder)
{
    for (int i = 0; i < photographCount; ++i) {
        makePhotograph(i, {1600, 1200}).save(fileOf(folder, i), "JPG", 90);
        for (int copy = i + photographCount; copy < modelCount; copy += photographCount)
            QFile::copy(fileOf(folder, i), fileOf(folder, copy));
    }
}

PrintDocument layOut(Write form, Oturum &oturum)
{
    const Katalog katalog = KatalogStore(oturum).KatalogBul(u"OLCUM"_s);
    return form(katalog, oturum.ResimYolu, [](int, int) { return true; }).value();
}

void paintPictures(const PrintDocument &document, const QString &folder)
{
    QPdfWriter writer(folder + u"/yalin.pdf"_s);
    writer.setResolution(1440);
    QPainter painter(&writer);
    int model = 0;
    for (qsizetype page = 0; page < document.pages().size(); ++page) {
        if (page > 0)
            writer.newPage();
        for (const PageItem &item : document.pages()[page].items) {
            const auto *photo = std::get_if<PagePhoto>(&item);
            if (photo == nullptr)
                continue;
            QImageReader reader(fileOf(folder, model++));
            reader.setScaledSize(QImage::fromData(photo->jpeg).size());
            painter.drawImage(QRectF(photo->at.x.count(), photo->at.y.count(), photo->width.count(),
                                     photo->height.count()),
                              reader.read());
        }
    }
}

void measure(const QString &name, Write form, Oturum &oturum, int runs)
{
    const QString &folder = oturum.ResimYolu;
    const QString pdf = folder + u'/' + name + u".pdf"_s;
    PrintDocument document = layOut(form, oturum);
    const double bare = middleMilliseconds(runs, [&] { paintPictures(document, folder); });
    const double reading = middleMilliseconds(runs, [&] { document = layOut(form, oturum); });
    const double writing = middleMilliseconds(runs, [&] { writePdf(document, pdf); });
    printMeasured(name + u", baseline: the pictures to a bare PDF"_s, bare);
    printMeasured(name + u", pictures and layout"_s, reading);
    printMeasured(name + u", PDF"_s, writing);
    printRatio(name + u", all"_s, reading + writing, bare);
    std::printf("%d pages, %lld kB\n", int(document.pages().size()), QFileInfo(pdf).size() / 1024);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const int runs = argc > 1 ? qMax(1, atoi(argv[1])) : 5;
    const QTemporaryDir temporary;
    Oturum oturum;
    oturum.ResimYolu = argc > 2 ? QString::fromLocal8Bit(argv[2]) : temporary.path();
    oturum.Veritabani = createCompany(oturum.ResimYolu + u"/olcum.kuyum"_s);
    {
        Transaction transaction(*oturum.Veritabani);
        fill(oturum.Veritabani->engine());
        transaction.commit();
    }
    makeFiles(oturum.ResimYolu);
    measure(u"3 x 5"_s, Katalog_35, oturum, runs);
    measure(u"4 x 6"_s, Katalog_46, oturum, runs);
    return 0;
}
