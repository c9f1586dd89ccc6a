#include "TurkishText.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class TurkishTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sortsAsTheAlphabet();
    void comparesAllWaysAlike_data();
    void comparesAllWaysAlike();
    void changesCase();
    void findsAsOneTypes();
};

void TurkishTextTest::sortsAsTheAlphabet()
{
    const QStringList inOrder = {u""_s,     u"-"_s,    u"."_s,  u"_"_s,  u"0"_s,  u"1A"_s, u"9"_s,
                                 u"a"_s,    u"A-1"_s,  u"ab"_s, u"âb"_s, u"B"_s,  u"c"_s,  u"Ca"_s,
                                 u"ça"_s,   u"d"_s,    u"ez"_s, u"éa"_s, u"g"_s,  u"ğ"_s,  u"hz"_s,
                                 u"ılık"_s, u"Irak"_s, u"iz"_s, u"İa"_s, u"j"_s,  u"oz"_s, u"Öa"_s,
                                 u"p"_s,    u"sz"_s,   u"şa"_s, u"t"_s,  u"uz"_s, u"ÜA"_s, u"v"_s,
                                 u"z"_s,    u"я"_s};
    // I sorts with i: "Irak" comes before "iz", both after every ı.
    for (qsizetype a = 0; a < inOrder.size(); ++a) {
        for (qsizetype b = 0; b < inOrder.size(); ++b) {
            const int expected = a < b ? -1 : a > b ? 1 : 0;
            QVERIFY2(compareText(inOrder[a], inOrder[b]) == expected,
                     qPrintable(inOrder[a] + u" / "_s + inOrder[b]));
        }
    }
}

void TurkishTextTest::comparesAllWaysAlike_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<bool>("same");
    QTest::newRow("letter case") << u"ÇĞÖŞÜ Kolye"_s << u"çğöşü kOLYE"_s << true;
    QTest::newRow("i is I") << u"IŞIK"_s << u"işik"_s << true;
    QTest::newRow("ı is not I") << u"ışık"_s << u"IŞIK"_s << false;
    QTest::newRow("İ is not i") << u"İnci"_s << u"inci"_s << false;
    QTest::newRow("trailing blanks") << u"A75  "_s << u"a75"_s << true;
    QTest::newRow("leading blanks") << u" A75"_s << u"A75"_s << false;
    QTest::newRow("accent") << u"Kâmil"_s << u"Kamil"_s << false;
    QTest::newRow("prefix") << u"A7"_s << u"A75"_s << false;
    QTest::newRow("beyond the basic plane") << u"😀a"_s << u"😀A"_s << true;
    QTest::newRow("other script") << u"ЯК"_s << u"як"_s << true;
}

void TurkishTextTest::comparesAllWaysAlike()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(bool, same);
    QCOMPARE(sameText(a, b), same);
    QCOMPARE(foldedText(a) == foldedText(b), same);
    const QByteArray ua = a.toUtf8();
    const QByteArray ub = b.toUtf8();
    QCOMPARE(compareUtf8Text(ua.constData(), int(ua.size()), ub.constData(), int(ub.size())),
             compareText(a, b));
}

void TurkishTextTest::changesCase()
{
    QCOMPARE(turkishUpper(u"ışık iğne çöp"), u"IŞIK İĞNE ÇÖP"_s);
    QCOMPARE(turkishLower(u"IŞIK İĞNE ÇÖP"), u"ışık iğne çöp"_s);
}

void TurkishTextTest::findsAsOneTypes()
{
    QCOMPARE(searchKey(u"ILGIN İnci"), searchKey(u"ılgın inci"));
    QCOMPARE(searchKey(u"Ilgın"), searchKey(u"İLGİN"));
    QVERIFY(searchKey(u"şal") != searchKey(u"sal"));
}

KUYUM_TEST(TurkishTextTest)

} // namespace kuyum

#include "TurkishTextTest.moc"
