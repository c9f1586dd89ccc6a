#include "ReportPages.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

using Kind = ReportColumnKind;

struct Printed
{
    int page = 0;
    QRectF place; ///< in twips
    QString text;
    bool bold = false;
};

QList<Printed> texts(const PrintDocument &document)
{
    QList<Printed> result;
    for (int page = 0; page < document.pages().size(); ++page) {
        for (const PageItem &item : document.pages()[page].items) {
            const auto *text = std::get_if<PageText>(&item);
            if (text == nullptr)
                continue;
            const double height = text->font.points * 20;
            result.append({page + 1,
                           QRectF(text->at.x.count(), text->at.y.count(),
                                  printedWidth(text->font, text->text).count(), height),
                           text->text, text->font.bold});
        }
    }
    return result;
}

/// Nothing reaches over the paper's edge or into another text.
void checkPlaces(const PrintDocument &document)
{
    const QList<Printed> all = texts(document);
    const QRectF paper(400, 400, document.width().count() - 800, document.height().count() - 800);
    for (qsizetype i = 0; i < all.size(); ++i) {
        QVERIFY2(paper.contains(all[i].place), qPrintable(all[i].text));
        for (qsizetype j = 0; j < i; ++j) {
            const bool apart = all[i].page != all[j].page || !all[i].place.intersects(all[j].place);
            QVERIFY2(apart, qPrintable(all[i].text + u" / "_s + all[j].text));
        }
    }
}

QStringList textsOn(const PrintDocument &document, int page)
{
    QStringList result;
    for (const Printed &text : texts(document)) {
        if (text.page == page)
            result.append(text.text);
    }
    return result;
}

ReportTable table(int columns, int rows)
{
    ReportTable table;
    table.columns = {{u"KOD"_s}, {u"gizli"_s, Kind::Number, {}, true}};
    for (int i = 0; i < columns; ++i)
        table.columns.append({u"Adet(%1)"_s.arg(i), Kind::Number, u"##0.00"_s});
    const auto add = [&](const QString &code, ReportRowKind kind) {
        QVariantList values{code, 7};
        for (int i = 0; i < columns; ++i)
            values.append(1000.5 * i);
        table.rows.append(ReportRow{values, kind});
    };
    for (int row = 0; row < rows; ++row)
        add(u"M-%1"_s.arg(row), ReportRowKind::Line);
    add(u"TOPLAM"_s, ReportRowKind::Total);
    return table;
}

} // namespace

class ReportPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPageHasHeaderHeadingAndNumber()
    {
        const QStringList header{u"SİPARİŞ : 7"_s,
                                 u"MÜŞTERİ : "_s + QString(30, u'x').append(u' ').repeated(5)};
        const PrintDocument document =
            reportPages(u"Rapor"_s, header, {{table(3, 130)}, {table(1, 2)}});
        checkPlaces(document);
        QVERIFY(document.height() > document.width());
        QCOMPARE(document.pages().size(), 4);
        QStringList codes;
        for (int page = 1; page <= 4; ++page) {
            const QStringList on = textsOn(document, page);
            QCOMPARE(on.first(), u"Sayfa %1"_s.arg(page));
            QVERIFY(on.contains(u"SİPARİŞ : 7"_s) && on.contains(u"Adet(0)"_s));
            QVERIFY(!on.contains(u"gizli"_s) && !on.contains(u"7"_s));
            codes += on.filter(QRegularExpression(u"^M-"_s));
        }
        QCOMPARE(codes.size(), 132);
        QCOMPARE(codes[129], u"M-129"_s);
        // Figures end where their heading ends; the total is set apart.
        const QList<Printed> all = texts(document);
        const auto find = [&](const QString &text) {
            return *std::ranges::find(all, text, &Printed::text);
        };
        QCOMPARE(find(u"2001.00"_s).place.right(), find(u"Adet(2)"_s).place.right());
        QVERIFY(find(u"TOPLAM"_s).bold && !find(u"M-1"_s).bold);
    }

    void wideTablesLieDownAndFollowOnFurtherPages()
    {
        const PrintDocument lying = reportPages(u"Rapor"_s, {}, {{table(12, 3)}});
        checkPlaces(lying);
        QVERIFY(lying.width() > lying.height());
        QCOMPARE(lying.pages().size(), 1);

        const PrintDocument sliced = reportPages(u"Rapor"_s, {}, {{table(40, 3)}});
        checkPlaces(sliced);
        QSet<QString> headings;
        for (int page = 1; page <= sliced.pages().size(); ++page) {
            const QStringList on = textsOn(sliced, page);
            QCOMPARE(on.count(u"M-2"_s), 1);
            for (const QString &text : on.filter(u"Adet("_s)) {
                QVERIFY(!headings.contains(text));
                headings.insert(text);
            }
        }
        QCOMPARE(headings.size(), 40);
    }

    void longTextsAreBrokenAndCaptionsRunOn()
    {
        ReportTable table;
        table.columns = {{u"KOD"_s}, {u"TANIM"_s}, {u"ADET"_s, Kind::Number}};
        table.rows = {ReportRow{{u"Depodaki kalıplar ------>"_s, {}, {}}, ReportRowKind::Caption},
                      ReportRow{{u"K-1"_s, u"uzun "_s.repeated(30).trimmed(), 2.5}},
                      ReportRow{{u"K-2"_s, QString(90, u'q'), 12345678.25}}};
        const QString line = u"KOD       TANIM     ADET"_s;
        ReportPart part{table, line, {{0, 8}, {10, 8}, {20, 9}}};
        part.table.rows.removeLast();
        const PrintDocument own = reportPages(u"Rapor"_s, {}, {part});
        checkPlaces(own);
        QCOMPARE(textsOn(own, 1).count(line), 1);
        QCOMPARE(textsOn(own, 1).count(u"uzun"_s), 30);

        // A figure that is too wide for the given columns gets fitted ones.
        part.table = table;
        const PrintDocument fitted = reportPages(u"Rapor"_s, {}, {part});
        checkPlaces(fitted);
        const QStringList on = textsOn(fitted, 1);
        QVERIFY(!on.contains(line) && on.contains(u"12345678.25"_s));
        QCOMPARE(on.join(QString()).count(u'q'), 90);
        QVERIFY(on.contains(u"Depodaki kalıplar ------>"_s));
    }
};

KUYUM_TEST(ReportPagesTest)

} // namespace kuyum

#include "ReportPagesTest.moc"
