// bench_picture_slip [RUNS [FOLDER]]: the slip of an order of 300 models with
// 15 pictures to a page, from the order to the PDF file. The baseline decodes
// the same files to the same size and writes them with a bare painter to the
// same places of a PDF file, without any text. The company stays in FOLDER, for
// `kuyum fis FOLDER/olcum.kuyum 1 --resimli 15 --resim FOLDER --pdf ...`.

#include "Measured.h"
#include "OrderSlip.h"
#include "Oturum.h"
#include "Photographs.h"
#include "Schema.h"
#include "SiparisStore.h"
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

constexpr int modelCount = 300;
constexpr QSize photograph(1600, 1200);

QString modelName(int i)
{
    return u"A.%1"_s.arg(1000 + i);
}

void fill(const SqliteEngine &engine, const QString &folder)
{
    engine.run(u"INSERT INTO Ayar (Milyem, Yogunluk) VALUES (585, 13.075)"_s);
    engine.run(u"INSERT INTO Renkler (RenkNo, Renksira) VALUES ('SR', 1)"_s);
    engine.run(u"INSERT INTO Firma (Firkod, FirAdi, KisaAD) VALUES (1, 'Kuyumculuk', 'KUY')"_s);
    engine.run(u"INSERT INTO UrunTipi (TipID, UrunTipi, KisaAD, Sirano) "
               "VALUES (1, 'Yüzük', 'YZK', 1)"_s);
    engine.run(u"INSERT INTO SiparisB (Sipnum, SipTrh, TesTrh, SipFirkod, Ayar, Patent, Aciklama) "
               "VALUES (1, '2012-03-01', '2012-03-15', 1, 585, 'TR585', 'Acele')"_s);
    for (int i = 0; i < modelCount; ++i) {
        engine.run(u"INSERT INTO Model (Model, M_Uruntip, M_Miktar, M_Tip, M_Kod, M_Adet) "
                   "VALUES (?, 1, 2.37, 0, 1, 1)"_s,
                   {modelName(i)});
        engine.run(u"INSERT INTO SiparisD (SipnumD, SipSatir, SipModel, SipUruntip, Siprenk, "
                   "SipAck, SipAdet) VALUES (1, ?, ?, 1, 'SR', 'ölçü 14', ?)"_s,
                   {i + 1, modelName(i), i % 20 + 1});
        makePhotograph(i, photograph).save(folder + u'/' + modelName(i) + u".jpg"_s, "JPG", 90);
    }
}

void paintPictures(const PrintDocument &document, const QString &folder, const QString &path)
{
    QPdfWriter writer(path);
    writer.setResolution(1440);
    QPainter painter(&writer);
    int model = 0;
    for (qsizetype page = 0; page < document.pages().size(); ++page) {
        if (page > 0)
            writer.newPage();
        for (const PageItem &item : document.pages()[page].items) {
            const auto *picture = std::get_if<PagePicture>(&item);
            if (picture == nullptr)
                continue;
            QImageReader reader(folder + u'/' + modelName(model++) + u".jpg"_s);
            reader.setScaledSize(picture->image.size());
            const QImage image = reader.read();
            const QSizeF box(picture->width.count(), picture->height.count());
            painter.drawImage(QRectF(QPointF(picture->at.x.count(), picture->at.y.count()),
                                     QSizeF(image.size()).scaled(box, Qt::KeepAspectRatio)),
                              image);
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const int runs = argc > 1 ? qMax(1, atoi(argv[1])) : 5;
    const QTemporaryDir temporary;
    const QString folder = argc > 2 ? QString::fromLocal8Bit(argv[2]) : temporary.path();
    Oturum oturum;
    oturum.Veritabani = createCompany(folder + u"/olcum.kuyum"_s);
    oturum.ResimYolu = folder;
    {
        Transaction transaction(*oturum.Veritabani);
        fill(oturum.Veritabani->engine(), folder);
        transaction.commit();
    }
    const Siparis order = SiparisStore(oturum).SiparisBul(1).value();
    const SlipChoice choice{MusteriKimligi::Kisa, true, 15};
    const auto goOn = [](int, int) { return true; };
    const QString pdf = folder + u"/fis.pdf"_s;
    PrintDocument document = *orderSlip(oturum, order, choice, goOn);

    const double bare = middleMilliseconds(
        runs, [&] { paintPictures(document, folder, folder + u"/yalin.pdf"_s); });
    const double reading =
        middleMilliseconds(runs, [&] { document = *orderSlip(oturum, order, choice, goOn); });
    const double writing = middleMilliseconds(runs, [&] { writePdf(document, pdf); });

    printMeasured(u"baseline: the pictures to a bare PDF"_s, bare);
    printMeasured(u"weights, pictures, layout"_s, reading);
    printMeasured(u"PDF"_s, writing);
    printRatio(u"all"_s, reading + writing, bare);
    std::printf("%d pages, %lld kB\n", int(document.pages().size()), QFileInfo(pdf).size() / 1024);
    return 0;
}
