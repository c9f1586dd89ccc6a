#include "KatalogBaski.h"
#include "PageReading.h"
#include "PdfReader.h"
#include "Pictures.h"
#include "TestRegistry.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

using namespace PageReading;

namespace {

struct Form
{
    decltype(&Katalog_35) write;
    int across;
    int perPage;
    Twips stepX;
    Twips stepY;
    QSizeF box;
};

const QList<Form> forms = {{Katalog_35, 3, 15, 3600_tw, 3080_tw, {3300, 2480}},
                           {Katalog_46, 4, 24, 2800_tw, 2680_tw, {2500, 1880}}};

Katalog catalogue(int count)
{
    Katalog result{u"Yaz"_s, {}, {}, false};
    for (int i = 0; i < count; ++i)
        result.satirlar.append({u"M%1"_s.arg(i), 2.5, u"not %1"_s.arg(i), i + 1, u"YZK"_s});
    return result;
}

PrintDocument printed(const Form &form, const Katalog &katalog, const QString &folder = {})
{
    return form.write(katalog, folder, [](int, int) { return true; }).value();
}

/// Where the caption of an entry stands; nowhere when its page has none.
std::optional<PagePoint> captionPlace(const PrintDocument &document, const Form &form, int entry)
{
    for (const PageText &text : items<PageText>(document.pages()[entry / form.perPage])) {
        if (text.text == u"M%1  2.50 Gr"_s.arg(entry))
            return text.at;
    }
    return std::nullopt;
}

} // namespace

class KatalogBaskiTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

private Q_SLOTS:
    void initTestCase()
    {
        // A quarter of the entries has a picture, in proportions of its own.
        const QList<QSize> sizes = {{1600, 1200}, {300, 900}, {900, 200}, {4, 3}};
        for (int i = 0; i < 1000; i += 4)
            QVERIFY(plainPicture(Qt::red, sizes[i / 4 % 4])
                        .save(m_folder.filePath(u"M%1.jpg"_s.arg(i))));
    }

    void pagesOfEveryLength()
    {
        for (const Form &form : forms) {
            for (const int count : {1, 15, 16, 24, 25, 1000}) {
                const PrintDocument document = printed(form, catalogue(count), m_folder.path());
                QCOMPARE(document.pages().size(), (count + form.perPage - 1) / form.perPage);
                const QString fault = layoutFault(document);
                QVERIFY2(fault.isEmpty(), qPrintable(fault));
                for (int i = 0; i < count; ++i) {
                    const int cell = i % form.perPage;
                    const auto place = captionPlace(document, form, i);
                    QVERIFY(place.has_value());
                    QCOMPARE(place->x, 500_tw + form.stepX * (cell % form.across));
                    QCOMPARE(place->y, captionPlace(document, form, i - cell)->y +
                                           form.stepY * (cell / form.across));
                }
                for (qsizetype page = 0; page < document.pages().size(); ++page) {
                    QCOMPARE(items<PageText>(document.pages()[page]).first().text,
                             u"KATALOG : Yaz"_s.leftJustified(90) + u"Sayfa : %1"_s.arg(page + 1));
                }
            }
        }
    }

    void picturesFillTheMiddleOfTheirBoxes()
    {
        for (const Form &form : forms) {
            const PrintDocument document = printed(form, catalogue(13), m_folder.path());
            const QList<PagePhoto> photos = items<PagePhoto>(document.pages().first());
            QCOMPARE(photos.size(), 4);
            const QList<double> proportions = {4.0 / 3, 1.0 / 3, 4.5, 4.0 / 3};
            for (int i = 0; i < 4; ++i) {
                const QRectF photo = paperOf(photos[i]).first();
                const int cell = i * 4;
                const Twips left = 500_tw + form.stepX * (cell % form.across);
                // The caption begins 45 twips below the box.
                const Twips bottom = captionPlace(document, form, cell)->y - 45_tw;
                const QRectF box({left.count(), bottom.count() - form.box.height()}, form.box);
                QVERIFY(std::abs(photo.center().x() - box.center().x()) < 0.01);
                QVERIFY(std::abs(photo.center().y() - box.center().y()) < 0.01);
                QVERIFY(qFuzzyCompare(photo.width(), box.width()) ||
                        qFuzzyCompare(photo.height(), box.height()));
                QVERIFY(std::abs(photo.width() / photo.height() / proportions[i] - 1) < 0.01);
                const QImage image = QImage::fromData(photos[i].jpeg);
                QVERIFY(image.width() <= 459 && image.height() <= 345); // 200 dots to the inch
            }
        }
    }

    void longTextsStayInTheirCells()
    {
        for (const Form &form : forms) {
            Katalog katalog = catalogue(2 * form.perPage);
            katalog.KatAdi = QString(200, u'K');
            for (KatalogSatiri &satir : katalog.satirlar) {
                satir.Model = QString(satir.katno1 % 40 + 1, u'W');
                satir.katgram = 12345.678;
                satir.kataciklama = u"uzun bir açıklama "_s.repeated(satir.katno1 % 12);
            }
            katalog.satirlar[0].Model = u"A\n1"_s;
            katalog.satirlar[0].kataciklama = u"yüz harflik not "_s.repeated(6);
            const PrintDocument document = printed(form, katalog, m_folder.path());
            QCOMPARE(document.pages().size(), 2);
            const QString fault = layoutFault(document);
            QVERIFY2(fault.isEmpty(), qPrintable(fault));
            QString all;
            for (const PageText &text : items<PageText>(document.pages().first()))
                all += text.text + u' ';
            // The weight is never what is left out, and a remark that is says so.
            QCOMPARE(all.count(u"  12345.68 Gr"_s), form.perPage);
            QVERIFY(all.contains(u"A 1  12345.68 Gr"_s));
            QVERIFY(all.contains(u'…'));
            QVERIFY(all.contains(u"Sayfa : 1"_s));
        }
    }

    void aMissingOrBrokenPictureLeavesItsBoxEmpty()
    {
        QFile broken(m_folder.filePath(u"bozuk.jpg"_s));
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no picture") > 0);
        broken.close();
        Katalog katalog = catalogue(4);
        katalog.satirlar[0].Model = u"bozuk"_s;
        katalog.satirlar[1].Model = u"../M0"_s;
        const PrintPage page = printed(forms[0], katalog, m_folder.path()).pages().first();
        QCOMPARE(items<PagePhoto>(page).size(), 0);
        QCOMPARE(items<PageLine>(page).size(), 4 * 4); // the frames of the boxes
        QCOMPARE(items<PageText>(page)[1].text, u"bozuk  2.50 Gr"_s);
    }

    void canBeStopped()
    {
        int read = 0;
        const auto stop = [&](int done, int total) {
            read = done;
            return done < 3 && total == 20;
        };
        QVERIFY(!Katalog_35(catalogue(20), m_folder.path(), stop).has_value());
        QCOMPARE(read, 3);
    }

    void thePdfHoldsTheSame()
    {
        const QString pdf = m_folder.filePath(u"katalog.pdf"_s);
        writePdf(printed(forms[1], catalogue(25), m_folder.path()), pdf);
        QCOMPARE(pdfWord(pdf, u"M24"_s).page, 2);
        const PdfWord first = pdfWord(pdf, u"M1"_s);
        QCOMPARE(first.page, 1);
        QVERIFY(std::abs(first.x - 3300) < 15);
        QCOMPARE(pdfImages(pdf).filter(u"jpeg"_s).size(), 7);
    }
};

KUYUM_TEST(KatalogBaskiTest)

} // namespace kuyum

#include "KatalogBaskiTest.moc"
