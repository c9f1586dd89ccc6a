#include "ModelStore.h"
#include "Oturum.h"
#include "SampleCompany.h"
#include "SqlText.h"
#include "TestRegistry.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class ModelStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_oturum = std::make_unique<Oturum>();
        m_oturum->Veritabani = makeSampleCompany(m_dir->filePath(u"atolye.kuyum"_s));
        m_store = std::make_unique<ModelStore>(*m_oturum);
    }

    void findsAModelOfItsType();
    void savesTheRowsThatCount();
    void replacesAFoundModelWholly();
    void keepsTheCodesOfEverySpelling();

private:
    /// The rows of a model as "tip kod adet miktar".
    QStringList rows(const QString &model, int type) const
    {
        Recordset set = m_oturum->Veritabani->query(
            u"Select * From Model Where Model = %1 and M_Uruntip = %2 Order by Model_ID"_s.arg(
                sqlText(model), QString::number(type)));
        QStringList result;
        while (set.next())
            result.append(u"%1 %2 %3 %4"_s.arg(set.text(u"M_Tip"), set.text(u"M_Kod"),
                                               set.text(u"M_Adet"), set.text(u"M_Miktar")));
        return result;
    }

    /// The record numbers that models had before.
    QStringList oldLabels() const
    {
        Recordset set =
            m_oturum->Veritabani->query(u"Select * From EskiEtiket Order by Ilk, M_Uruntip"_s);
        QStringList result;
        while (set.next())
            result.append(u"%1-%2 %3 %4"_s.arg(set.text(u"Ilk"), set.text(u"Son"),
                                               set.text(u"Model"), set.text(u"M_Uruntip")));
        return result;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<Oturum> m_oturum;
    std::unique_ptr<ModelStore> m_store;
    LoadedRows m_unread;
};

void ModelStoreTest::findsAModelOfItsType()
{
    const std::optional<Model> ring = m_store->ModelBul(u"a75"_s, 1);
    QVERIFY(ring);
    QCOMPARE(ring->M_Miktar, 2.0);
    QCOMPARE(ring->satirlar, QList<ModelSatiri>({{MalzemeTipi::Tas, u"ZRK 2"_s, 1, 4},
                                                 {MalzemeTipi::YariMamul, u"K-1"_s, 1, 1}}));
    QCOMPARE(m_store->ModelBul(u"A75"_s, 2)->satirlar,
             QList<ModelSatiri>({{MalzemeTipi::YariMamul, u"K-2"_s, 2, 2}}));
    QVERIFY(!m_store->ModelBul(u"A75"_s, 3));
    QVERIFY(m_store->ModelBul(u"boş"_s, 1)->satirlar.isEmpty());
    QCOMPARE(m_store->KisaADBul(u"A75"_s, 2), u"KLY"_s);

    m_oturum->Veritabani->execute(u"DELETE From Tas Where Taskodu = 'ZRK 2'"_s);
    const QList<ModelSatiri> dangling = m_store->ModelBul(u"A75"_s, 1)->satirlar;
    QCOMPARE(dangling.size(), 2);
    QCOMPARE(dangling.first(), ModelSatiri({MalzemeTipi::Tas, QString(), 1, 4}));
    QVERIFY(dangling.first().isDangling());
}

void ModelStoreTest::savesTheRowsThatCount()
{
    Model model{u"Yeni"_s,
                3,
                1.25,
                {{MalzemeTipi::Tas, u"ZRK 2"_s, 1, 1.5},
                 {MalzemeTipi::Tas, u" "_s, 2, 3},
                 {MalzemeTipi::YariMamul, u"K-1"_s, 1, 0},
                 {MalzemeTipi::YariMamul, u"K-1"_s, 1, -2},
                 {MalzemeTipi::YariMamul, u"K-2"_s, 2, 2}},
                0};
    m_store->save(model, m_unread);
    QCOMPARE(rows(u"Yeni"_s, 3), QStringList({u"0 1 1.5 1.25"_s, u"1 2 2 1.25"_s}));
    Recordset last = m_oturum->Veritabani->query(u"Select Max(Model_ID) as n From Model"_s);
    last.next();
    QCOMPARE(model.Model_ID, qint32(last.integer(u"n")));

    Model bare{u"Sade"_s, 1, 3, {{}}, 0};
    m_store->save(bare, m_unread);
    QCOMPARE(rows(u"Sade"_s, 1), QStringList(u"0 0 0 3"_s));
}

void ModelStoreTest::replacesAFoundModelWholly()
{
    Model ring = *m_store->ModelBul(u"A75"_s, 1);
    const qint32 before = ring.Model_ID;
    ring.satirlar.removeFirst();
    ring.M_Miktar = 2.5;
    m_store->save(ring, m_unread);
    QCOMPARE(rows(u"A75"_s, 1), QStringList(u"1 1 1 2.5"_s));
    QVERIFY(ring.Model_ID > before); // a label of the old row must not mean another model
    QCOMPARE(rows(u"A75"_s, 2), QStringList(u"1 2 2 5"_s));

    m_store->remove(u"a75"_s, 2, m_unread);
    QCOMPARE(rows(u"A75"_s, 2), QStringList());
    QCOMPARE(rows(u"A75"_s, 1).size(), 1);

    // Numbers in a row take one row, over all the saves; another model's do not.
    Model pearl = *m_store->ModelBul(u"İnci-1"_s, 3);
    m_store->save(pearl, m_unread);
    m_store->save(pearl, m_unread);
    m_store->save(ring, m_unread);
    QCOMPARE(oldLabels(), QStringList({u"1-2 A75 1"_s, u"3-3 A75 2"_s, u"4-4 İnci-1 3"_s,
                                       u"6-6 A75 1"_s, u"7-7 İnci-1 3"_s}));
    m_store->save(ring, m_unread);
    QCOMPARE(oldLabels().mid(3), QStringList({u"6-6 A75 1"_s, u"7-7 İnci-1 3"_s, u"9-9 A75 1"_s}));
    m_store->save(ring, m_unread);
    QCOMPARE(oldLabels().last(), u"9-10 A75 1"_s);
}

void ModelStoreTest::keepsTheCodesOfEverySpelling()
{
    m_oturum->Veritabani->execute(u"Insert into Tas (Taskodu) values ('O''Ne İğ')"_s);
    const std::optional<Malzeme> stone = m_store->malzemeBul(MalzemeTipi::Tas, u"o'ne İğ"_s);
    QVERIFY(stone);
    QCOMPARE(stone->kod, u"O'Ne İğ"_s);
    QVERIFY(!m_store->malzemeBul(MalzemeTipi::YariMamul, u"O'Ne İğ"_s));

    Model model{u"Işık'ın \"Gülü\""_s, 2, 1, {{MalzemeTipi::Tas, stone->kod, stone->id, 2}}, 0};
    m_store->save(model, m_unread);
    QCOMPARE(m_store->ModelBul(model.ad, 2)->satirlar, model.satirlar);
    QVERIFY(!m_store->ModelBul(u"İşık'ın \"Gülü\""_s, 2)); // ı and i are two letters
}

KUYUM_TEST(ModelStoreTest)

} // namespace kuyum

#include "ModelStoreTest.moc"
