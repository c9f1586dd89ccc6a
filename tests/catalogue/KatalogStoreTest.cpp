#include "KatalogStore.h"
#include "ModelStore.h"
#include "Oturum.h"
#include "SampleCompany.h"
#include "Schema.h"
#include "SqliteEngine.h"
#include "TestRegistry.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class KatalogStoreTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    Oturum m_oturum;
    KatalogStore m_store{m_oturum};
    LoadedRows m_unread;

    QStringList models(const QString &KatAdi) const
    {
        QStringList result;
        for (const KatalogSatiri &satir : m_store.KatalogBul(KatAdi).satirlar)
            result.append(satir.Model);
        return result;
    }
    /// What is stored of all catalogues, as "name number grams remark".
    QStringList stored() const
    {
        Recordset rows =
            m_oturum.Veritabani->query(u"Select * From Katalog Order by KatAdi, katno1"_s);
        QStringList result;
        while (rows.next())
            result.append(u"%1 %2 %3 %4"_s.arg(rows.text(u"KatAdi"), rows.text(u"katno1"),
                                               rows.text(u"katgram"), rows.text(u"kataciklama")));
        return result;
    }

private Q_SLOTS:
    void init()
    {
        m_oturum.Veritabani.reset();
        const QString path = m_dir.filePath(u"atolye.kuyum"_s);
        QFile::remove(path);
        m_oturum.Veritabani = makeSampleCompany(path);
    }

    void findsTheRowsInTheOrderOfTheirModels()
    {
        const Katalog found = m_store.KatalogBul(u" BAHAR "_s);
        QCOMPARE(m_oturum.SonSQL,
                 u"Select * From Katalog, Model, Uruntipi Where Katno1 = Model_ID and "
                 "Model.M_uruntip = Uruntipi.TipID and KatAdi = 'Bahar' Order by Model;"_s);
        QCOMPARE(found.KatAdi, u"Bahar"_s);
        QCOMPARE(found.satirlar, QList<KatalogSatiri>({{u"A75"_s, 2.1, u"yeni"_s, 1, u"YZK"_s},
                                                       {u"İnci-1"_s, 1.1, u""_s, 4, u"KPE"_s}}));
        QVERIFY(!found.elleSirali);
        QVERIFY(!m_store.KatalogBul(u"yok"_s).isStored());
        QVERIFY(!m_store.KatalogBul(u"x' or '1' = '1"_s).isStored());
        QCOMPARE(m_store.ModelBul(u"a75"_s, 2)->katgram, 5.0);
        QVERIFY(!m_store.ModelBul(u"A75"_s, 3));
    }

    void savingReplacesTheShownRowsAndKeepsTheOthers()
    {
        Katalog katalog = m_store.KatalogBul(u"Bahar"_s);
        QCOMPARE(katalog.keptRows.size(), 1);
        katalog.satirlar = {{u"boş"_s, 3.456, u"O'Hara"_s, 5, u"YZK"_s}};
        m_store.save(katalog, m_unread);
        QCOMPARE(stored(), QStringList({u"Bahar 5 3.456 O'Hara"_s, u"Bahar 99 1 "_s}));
        // A row whose product type went is not lost either.
        m_oturum.Veritabani->execute(u"DELETE From Uruntipi Where TipID = 1"_s);
        katalog = m_store.KatalogBul(u"Bahar"_s);
        QVERIFY(katalog.satirlar.isEmpty() && katalog.isStored());
        m_store.save(katalog, m_unread);
        QCOMPARE(stored().size(), 2);
        m_store.remove(u"Bahar"_s, m_unread);
        QCOMPARE(stored(), QStringList());
    }

    void anOrderOfTheUsersOwnIsKept()
    {
        Katalog katalog = m_store.KatalogBul(u"Bahar"_s);
        std::reverse(katalog.satirlar.begin(), katalog.satirlar.end());
        m_store.save(katalog, m_unread); // merely another order: the models' holds
        QCOMPARE(models(u"Bahar"_s), QStringList({u"A75"_s, u"İnci-1"_s}));
        katalog.elleSirali = true;
        m_store.save(katalog, m_unread);
        QCOMPARE(models(u"Bahar"_s), QStringList({u"İnci-1"_s, u"A75"_s}));
        QVERIFY(m_store.KatalogBul(u"Bahar"_s) == katalog);
    }

    void aCompanyOfAnOlderLayout()
    {
        Database &db = *m_oturum.Veritabani;
        db.engine().run(u"DROP TABLE KatalogSira"_s);
        db.setSchemaVersion(1);
        QCOMPARE(models(u"Bahar"_s), QStringList({u"A75"_s, u"İnci-1"_s})); // as `kuyum katalog`
        const QString path = db.path();
        m_oturum.Veritabani.reset();
        m_oturum.Veritabani = openCompany(path);
        Katalog katalog = m_store.KatalogBul(u"Bahar"_s);
        QVERIFY(!katalog.elleSirali);
        katalog.elleSirali = true;
        m_store.save(katalog, m_unread);
        QVERIFY(m_store.KatalogBul(u"Bahar"_s) == katalog);
    }

    void aModelThatIsSavedAnewStaysInItsCatalogues()
    {
        const ModelStore models(m_oturum);
        Model ring = models.ModelBul(u"A75"_s, 1).value();
        const Katalog before = m_store.KatalogBul(u"Bahar"_s);
        LoadedRows loaded = m_store.oku(u"Bahar"_s);
        models.save(ring, m_unread);
        const Katalog katalog = m_store.KatalogBul(u"Bahar"_s);
        QCOMPARE(katalog.satirlar.size(), 2);
        QCOMPARE(katalog.satirlar.first().katno1, ring.Model_ID);
        m_store.save(before, loaded); // opened before, and saved without a question
        QVERIFY(m_store.KatalogBul(u"Bahar"_s) == katalog);
        models.remove(u"A75"_s, 1, m_unread);
        QCOMPARE(m_store.KatalogBul(u"Bahar"_s).satirlar.size(), 1);
        QCOMPARE(stored().size(), 3);
    }
};

KUYUM_TEST(KatalogStoreTest)

} // namespace kuyum

#include "KatalogStoreTest.moc"
