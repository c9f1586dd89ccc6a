// bench_slip [RUNS]: the slip of an order of 1,000 lines, from the order to the
// PDF file. The baseline reads the same weights from the engine and writes the
// same texts with a bare painter, one after the other, into a PDF file.

#include "Measured.h"
#include "Oturum.h"
#include "Schema.h"
#include "SiparisFisi.h"
#include "SqliteEngine.h"
#include "ToplamGram.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using namespace kuyum;

namespace {

constexpr int lineCount = 1000;
constexpr int typeCount = 8;
constexpr int modelCount = 300;

QString modelName(int i)
{
    return u"A.%1"_s.arg(1000 + i % modelCount);
}

void fill(const SqliteEngine &engine)
{
    engine.run(u"INSERT INTO Ayar (Milyem, Yogunluk) VALUES (585, 13.075)"_s);
    for (int type = 1; type <= typeCount; ++type)
        engine.run(u"INSERT INTO UrunTipi (TipID, UrunTipi, KisaAD, Sirano) "
                   "VALUES (?, 'Tip', ?, ?)"_s,
                   {type, u"T%1"_s.arg(type), type});
    for (int i = 0; i < modelCount * typeCount; ++i)
        engine.run(u"INSERT INTO Model (Model, M_Uruntip, M_Miktar, M_Tip, M_Kod, M_Adet) "
                   "VALUES (?, ?, 2.37, 0, 1, 1)"_s,
                   {modelName(i / typeCount), i % typeCount + 1});
}

Siparis makeOrder()
{
    Siparis order;
    order.Sipnum = 1;
    order.SipTrh = order.TesTrh = QDate(2012, 3, 1);
    order.FirAdi = order.KisaAD = u"Kuyumculuk"_s;
    order.Ayar = 585;
    order.Patent = u"TR585"_s;
    order.Aciklama = u"Acele"_s;
    for (int type = 1; type <= typeCount; ++type)
        order.tipler.append({type, u"Tip"_s, u"T%1"_s.arg(type)});
    for (int i = 0; i < lineCount; ++i) {
        SiparisSatiri row = SiparisSatiri::empty(typeCount);
        row.model = modelName(i * 7);
        row.renk = u"SR"_s;
        row.adetler[i % typeCount] = i % 20 + 1;
        row.adetler[(i + 3) % typeCount] = 2;
        row.aciklama = i % 4 == 0 ? u"ölçü %1"_s.arg(i % 20) : QString();
        order.satirlar.append(row);
    }
    return order;
}

/// A statement of its own for each weight, as the slip asks for them.
void readWeights(const SqliteEngine &engine, const Siparis &order)
{
    for (const SiparisSatiri &row : order.satirlar) {
        for (int i = 0; i < typeCount; ++i) {
            if (row.adetler[i] == 0)
                continue;
            QSqlQuery query = engine.run(
                u"SELECT * FROM Model, UrunTipi WHERE M_Uruntip = TipID "
                "AND Model = '%1' AND KisaAD = '%2'"_s.arg(row.model, order.tipler[i].KisaAD));
            if (engine.next(query))
                query.value(u"M_Miktar"_s).toDouble();
        }
    }
}

/// The same texts, without the lines, each page after the other.
void writeTexts(const PrintDocument &document, const QString &path)
{
    QPdfWriter writer(path);
    writer.setResolution(1440);
    QPainter painter(&writer);
    QFont font(printedFamily(document.font().family));
    font.setPixelSize(160);
    painter.setFont(font);
    for (qsizetype page = 0; page < document.pages().size(); ++page) {
        if (page > 0)
            writer.newPage();
        for (const PageItem &item : document.pages()[page].items) {
            if (const PageText *text = std::get_if<PageText>(&item))
                painter.drawText(QPointF(text->at.x.count(), text->at.y.count()), text->text);
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const int runs = argc > 1 ? qMax(1, atoi(argv[1])) : 9;
    const QTemporaryDir folder;
    Oturum oturum;
    oturum.Veritabani = createCompany(folder.filePath(u"olcum.kuyum"_s));
    {
        Transaction transaction(*oturum.Veritabani);
        fill(oturum.Veritabani->engine());
        transaction.commit();
    }
    const Siparis order = makeOrder();
    const PrintDocument document =
        siparisFisi(order, MusteriKimligi::Kisa, orderGrams(oturum, order).total);

    const double rawGrams =
        middleMilliseconds(runs, [&] { readWeights(oturum.Veritabani->engine(), order); });
    const double rawPdf =
        middleMilliseconds(runs, [&] { writeTexts(document, folder.filePath(u"yalin.pdf"_s)); });
    const double grams = middleMilliseconds(runs, [&] { orderGrams(oturum, order).total; });
    const double layout =
        middleMilliseconds(runs, [&] { siparisFisi(order, MusteriKimligi::Kisa, 1); });
    const double pdf =
        middleMilliseconds(runs, [&] { writePdf(document, folder.filePath(u"fis.pdf"_s)); });

    printMeasured(u"baseline: weights from the engine"_s, rawGrams);
    printRatio(u"total grams"_s, grams, rawGrams);
    printMeasured(u"baseline: the texts to a bare PDF"_s, rawPdf);
    printMeasured(u"layout"_s, layout);
    printRatio(u"PDF"_s, pdf, rawPdf);
    printRatio(u"all, of both baselines"_s, grams + layout + pdf, rawGrams + rawPdf);
    return 0;
}
