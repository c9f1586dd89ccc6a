#include "LookupCompany.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class LookupListsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_company = std::make_unique<LookupCompany>(); }

    void showsTheRows_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QStringList>("rows");
        const QStringList stones = {u"2|CIRA|1|USD"_s,   u"6|ÇATAL||USD"_s,
                                    u"3|Işık|3|EUR"_s,   u"4|İnci|110|USD"_s,
                                    u"5|O'Hara|4|USD"_s, u"1|zümrüt|12.5|USD"_s};
        QTest::newRow("stones") << u"Tas Listesi"_s << QString() << stones;
        QTest::newRow("stones, blank") << u"Tas Listesi"_s << u"  "_s << stones;
        QTest::newRow("stones from ç") << u"Tas Listesi"_s << u"ç"_s << stones.mid(1);
        QTest::newRow("stones from İ") << u"Tas Listesi"_s << u"İ"_s << stones.mid(3);
        QTest::newRow("stones from O'") << u"Tas Listesi"_s << u"O'"_s << stones.mid(4);
        QTest::newRow("past the end") << u"Tas Listesi"_s << u"zz"_s << QStringList();
        QTest::newRow("molds") << u"Kalip Listesi"_s << u"k-2"_s << QStringList{u"7|K-2|geniş"_s};
        QTest::newRow("types") << u"Tip Listesi"_s << u"x"_s
                               << QStringList{u"1|Yüzük|YZK"_s, u"2|Kolye|KLY"_s,
                                              u"40000|Küpe|KPE"_s};
        const QStringList models = {u"A1|1|Yüzük|YZK"_s, u"A1|2|Kolye|KLY"_s, u"B7|1|Yüzük|YZK"_s,
                                    u"Z8|40000|Küpe|KPE"_s};
        QTest::newRow("models") << u"Model Listesi"_s << QString() << models;
        QTest::newRow("models from b") << u"Model Listesi"_s << u"b"_s << models.mid(2);
        QTest::newRow("order's models") << u"Siparis Model Listesi"_s << QString() << models;
        QTest::newRow("order's models from a2")
            << u"Siparis Model Listesi"_s << u"a2"_s << models.mid(2);
        QTest::newRow("customers by code")
            << u"Firma Listesi"_s << QString()
            << QStringList{u"1|çınar|Ali"_s, u"2|O'Hara|"_s, u"3|Altın Saray|Işıl"_s};
        QTest::newRow("customers by name")
            << u"Firma Listesi"_s << u"b"_s << QStringList{u"1|çınar|Ali"_s, u"2|O'Hara|"_s};
        QTest::newRow("orders") << u"Siparis Listesi"_s << QString()
                                << QStringList{u"02.03.2025|12|Altın Saray|585|AS|uzun not"_s,
                                               u"02.03.2025|11|O'Hara|750||"_s,
                                               u"01.03.2025|10|çınar|585|ÇNR|acele"_s,
                                               u"31.12.2024|13|çınar|750|ÇNR|"_s};
        // A rate of 0 shows as nothing; a date has its row even when none of
        // its currencies has a column.
        QTest::newRow("rates") << u"Kur Listesi"_s << QString()
                               << QStringList{u"03.03.2025||"_s, u"02.03.2025||"_s,
                                              u"01.03.2025|38,500|36,500"_s};
        QTest::newRow("colours") << u"Renk Listesi"_s << QString()
                                 << QStringList{u"B|2"_s, u"S|1"_s};
        QTest::newRow("karats") << u"Milyem Listesi"_s << QString()
                                << QStringList{u"585|13.6"_s, u"750|15.5"_s};
        QTest::newRow("catalogues")
            << u"Katalog Listesi"_s << QString() << QStringList{u"Kış"_s, u"Yaz"_s};
        QTest::newRow("users") << u"Kullanıcı Listesi"_s << QString()
                               << QStringList{u"2|Saim"_s, u"1|Şule"_s};
        QTest::newRow("unknown") << u"tas listesi"_s << QString() << QStringList();
    }
    void showsTheRows()
    {
        QFETCH(QString, list);
        QFETCH(QString, filter);
        QFETCH(QStringList, rows);
        QCOMPARE(m_company->rows(list, filter), rows);
    }

    void keepsTheTextOfItsQuery()
    {
        m_company->rows(u"Model Listesi"_s, u"O'B"_s);
        QCOMPARE(
            m_company->oturum.SonSQL,
            u"Select Model, M_Uruntip, UrunTipi, Kisaad From Model, UrunTipi "
            "Where Model.M_uruntip = Uruntipi.TipID and Model >= 'O''B' "
            "Group by Model, M_Uruntip, uruntipi, Kisaad Order by Model, M_Uruntip, Uruntipi;"_s);
        m_company->rows(u"Firma Listesi"_s, u"x"_s);
        QCOMPARE(m_company->oturum.SonSQL,
                 u"Select Firkod as Kod, Firadi as Firma, Yetkili From Firma "
                 "Where Firadi >= 'x' Order by Firadi;"_s);
    }

    /// The model lists take a shorter way as long as types are unique; it must
    /// give what their own text gives.
    void takesTheSameRowsOnTheShortWay()
    {
        Oturum &oturum = m_company->oturum;
        for (const QString &name : {u"Model Listesi"_s, u"Siparis Model Listesi"_s}) {
            const QStringList streamed = m_company->rows(name);
            LookupList list = lookupList(name);
            list.streamedSql = nullptr;
            QCOMPARE(remainingRows(*openLookup(oturum, list, {})), streamed);
        }
    }

    void narrowsOrders()
    {
        Oturum &oturum = m_company->oturum;
        const auto whole = openOrders(oturum, {});
        QVariantList first;
        QVERIFY(whole->next(first));
        QVariantList second;
        QVERIFY(whole->next(second));
        QCOMPARE(remainingRows(*openOrders(oturum, orderCondition(3, first))).size(), 2);
        QCOMPARE(oturum.SonSQL,
                 u"Select Siptrh, Sipnum, Firadi, Ayar, Patent, SiparisB.Aciklama From SiparisB, "
                 "Firma Where Sipfirkod = Firkod and Ayar =  585 "
                 "Order by Siptrh desc, Sipnum desc;"_s);
        QCOMPARE(orderCondition(4, first), u"and Patent = 'AS' "_s);
        QCOMPARE(orderCondition(0, second), u"and Firadi = 'O''Hara' "_s);
        QCOMPARE(remainingRows(*openOrders(oturum, orderCondition(5, second))),
                 QStringList{u"02.03.2025|11|O'Hara|750||"_s});
    }

    void givesBackWhatTheListIsFor()
    {
        const auto taken = [this](const QString &name, int skipped = 0) {
            const LookupList &list = lookupList(name);
            const auto rows = openLookup(m_company->oturum, list, {});
            QVariantList row;
            for (int i = 0; i <= skipped; ++i)
                rows->next(row);
            return lookupAnswer(list, row);
        };
        QCOMPARE(taken(u"Tas Listesi"_s).Secilen, u"CIRA"_s);
        QCOMPARE(taken(u"Tas Listesi"_s).SecilenID, u"2"_s);
        QCOMPARE(taken(u"Kalip Listesi"_s).SecilenID, u"9"_s);
        QCOMPARE(taken(u"Tip Listesi"_s).SecilenID, u"1"_s);
        QCOMPARE(taken(u"Tip Listesi"_s).Secilen, QString());
        QCOMPARE(taken(u"Model Listesi"_s, 1).Secilen, u"A1"_s);
        QCOMPARE(taken(u"Model Listesi"_s, 1).SecilenTip, 2);
        QCOMPARE(taken(u"Siparis Model Listesi"_s, 1).SecilenTip, 0);
        QCOMPARE(taken(u"Firma Listesi"_s).SecilenNo, 1);
        QCOMPARE(taken(u"Firma Listesi"_s).Secilen, u"çınar"_s);
        QCOMPARE(taken(u"Siparis Listesi"_s).SecilenNo, 12);
        QCOMPARE(taken(u"Siparis Listesi"_s).Secilen, QString());
        QCOMPARE(taken(u"Kur Listesi"_s, 2).SecilenTarih, QDate(2025, 3, 1));
        QCOMPARE(taken(u"Milyem Listesi"_s).Secilen, u"585"_s);
        QCOMPARE(taken(u"Kullanıcı Listesi"_s).Secilen, u"2"_s);
        // The type number of an answer has 16 bits: never another type's.
        QVERIFY_THROWS_EXCEPTION(std::overflow_error, taken(u"Model Listesi"_s, 3));
    }

private:
    std::unique_ptr<LookupCompany> m_company;
};

KUYUM_TEST(LookupListsTest)

} // namespace kuyum

#include "LookupListsTest.moc"
