#include "DefinitionFixture.h"
#include "Tanim_Ayar.h"
#include "Tanim_Renk.h"
#include "TestRegistry.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

struct Colours : DefinitionFixture<Tanim_Renk>
{
    QString colour(const QString &RenkNo) const
    {
        return row(u"Select RenkNo, Renksira From Renkler Where RenkNo = '%1'"_s.arg(RenkNo));
    }
};

struct Karats : DefinitionFixture<Tanim_Ayar>
{
    QString karat(int Milyem) const
    {
        return row(u"Select Milyem, Yogunluk From Ayar Where Milyem = %1"_s.arg(Milyem));
    }
};

LookupAnswer chosen(const QString &Secilen)
{
    LookupAnswer answer;
    answer.Secilen = Secilen;
    return answer;
}

} // namespace

class RenkAyarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsAndChangesAColour()
    {
        const Colours on;
        on.enter({u" Ş'İ "_s, u"3"_s, QString()});
        QCOMPARE(on.colour(u"Ş''İ"_s), u"Ş'İ|3"_s);
        on.enter({u"sr"_s});
        QCOMPARE(on.text(u"RenkNo"_s) + on.text(u"Renksira"_s), u"SR1"_s);
        on.key(Qt::Key_Escape);
        QCOMPARE(on.colour(u"SR"_s), u"SR|1"_s);
        // Blanks before a code do not make it another one.
        on.enter({u"  sr"_s, u"9"_s, QString()});
        QCOMPARE(on.colour(u"SR"_s), u"SR|9"_s);
        QCOMPARE(on.row(u"Select Count(*) as n From Renkler"_s), u"3"_s);
    }

    void picksAColourFromTheList()
    {
        Colours on;
        on.answers = {LookupAnswer(), chosen(u"BY"_s)};
        on.enter({u" "_s});
        QVERIFY(!on.isEditing());
        on.enter();
        QCOMPARE(on.asked[1].ListeTuru, u"Renk Listesi"_s);
        QCOMPARE(on.text(u"Renksira"_s), u"2"_s);
        QCOMPARE(on.focus(), u"Renksira"_s);
    }

    void removesAColourAfterAQuestion()
    {
        Colours on;
        const QString question = u"BY RENK TANIMI SİLİNECEK ...!"_s;
        on.enter({u"BY"_s});
        on.remove(question, MessageAnswer::Yes, MessageAnswer::No);
        QCOMPARE(on.colour(u"BY"_s), u"BY|2"_s);
        on.remove(question, MessageAnswer::Yes, MessageAnswer::Yes);
        QCOMPARE(on.colour(u"BY"_s), u"none"_s);
        QVERIFY(!on.isEditing());
    }

    void addsAndChangesAKarat()
    {
        const Karats on;
        on.enter({u"333"_s, u"11,25"_s, QString()});
        QCOMPARE(on.karat(333), u"333|11.25"_s);
        on.enter({u"0585"_s});
        QCOMPARE(on.text(u"Milyem"_s), u"585"_s);
        QCOMPARE(on.text(u"Yogunluk"_s), u"13.075000"_s);
        on.enter({u"13"_s});
        on.press(Qt::Key_V, u"cmdvazgec"_s);
        QCOMPARE(on.karat(585), u"585|13.075"_s);
        on.enter({u"585"_s, u"13.1"_s, QString()});
        QCOMPARE(on.karat(585), u"585|13.1"_s);
    }

    void refusesAKaratThatDoesNotFit()
    {
        Karats on;
        for (const QString &number : {u"99999"_s, u"585,5"_s}) {
            on.messages.expect(u"Milyem -32768 ile 32767 arasında bir tam sayı olmalıdır."_s);
            on.enter({number});
            on.messages.verify();
            QVERIFY(!on.isEditing());
            QCOMPARE(on.focus(), u"Milyem"_s);
        }
    }

    void picksAKaratFromTheList()
    {
        Karats on;
        on.answers = {LookupAnswer(), chosen(u"750"_s)};
        on.enter({u"0"_s});
        QVERIFY(!on.isEditing());
        on.enter();
        QCOMPARE(on.asked[1].ListeTuru, u"Milyem Listesi"_s);
        QCOMPARE(on.text(u"Milyem"_s), u"750"_s);
        QCOMPARE(on.text(u"Yogunluk"_s), u"15.500000"_s);
        QCOMPARE(on.focus(), u"Yogunluk"_s);
    }

    void removesAKaratThatOrdersUse()
    {
        Karats on;
        on.enter({u"585"_s});
        const QString question = u"585 TANIMI SİLİNECEK ...!"_s;
        on.remove(question, MessageAnswer::Yes, MessageAnswer::No);
        QCOMPARE(on.karat(585), u"585|13.075"_s);
        on.remove(question, MessageAnswer::Yes, MessageAnswer::Yes);
        QCOMPARE(on.karat(585), u"none"_s);
        QCOMPARE(on.row(u"Select Count(*) as n From SiparisB Where Ayar = 585"_s), u"3"_s);
    }
};

KUYUM_TEST(RenkAyarTest)

} // namespace kuyum

#include "RenkAyarTest.moc"
