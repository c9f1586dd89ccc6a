#include "Demo.h"
#include "Csv.h"
#include "Database.h"
#include "Passwords.h"
#include "Schema.h"
#include "TestRegistry.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

void ignoreProgress(const QString &) {}

qint64 count(Database &db, const QString &from)
{
    Recordset rows = db.query(u"Select Count(*) as n From "_s + from);
    return rows.next() ? rows.integer(u"n") : -1;
}

/// Every table, row by row.
QString everything(Database &db)
{
    QStringList lines;
    for (const QString &table : db.tableNames()) {
        Recordset rows = db.table(table);
        lines.append(table + u": "_s + csvHeader(rows));
        while (rows.next())
            lines.append(csvRow(rows));
    }
    return lines.join(u'\n');
}

QMap<QString, QByteArray> pictures(const QString &folder)
{
    QMap<QString, QByteArray> result;
    QDirIterator files(folder, {u"*.jpg"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        result.insert(QDir(folder).relativeFilePath(file.fileName()),
                      QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha1));
    }
    return result;
}

} // namespace

class DemoTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::unique_ptr<Database> m_single;
    std::unique_ptr<Database> m_double;

    QString in(const QString &name) const { return m_folder.filePath(name); }
    std::unique_ptr<Database> made(const QString &name, int scale) const
    {
        makeDemo(in(name), scale, ignoreProgress);
        return openCompany(in(name) + u"/database/atolye.kuyum"_s);
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_single = made(u"single"_s, 1);
        m_double = made(u"double"_s, 2);
    }

    void growsWithTheScale_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<int>("atScaleOne");
        QTest::addColumn<int>("atScaleTwo");
        const auto row = [](const char *what, const QString &from, int one, int two) {
            QTest::newRow(what) << from << one << two;
        };
        row("types", u"UrunTipi"_s, 8, 8);
        row("models", u"(Select Model From Model Group by Model)"_s, 300, 600);
        row("customers", u"Firma"_s, 25, 50);
        row("their names", u"(Select FirAdi From Firma Group by FirAdi)"_s, 25, 50);
        row("orders", u"SiparisB"_s, 400, 800);
        row("stones", u"Tas"_s, 60, 120);
        row("molds", u"Kalip"_s, 120, 240);
        row("catalogues", u"(Select KatAdi From Katalog Group by KatAdi)"_s, 3, 6);
        row("long orders",
            u"(Select SipnumD From SiparisD Group by SipnumD Having Count(*) > 100)"_s, 1, 2);
    }
    void growsWithTheScale()
    {
        QFETCH(QString, from);
        QTEST(int(count(*m_single, from)), "atScaleOne");
        QTEST(int(count(*m_double, from)), "atScaleTwo");
    }

    /// What the screens join must be there.
    void nothingDangles_data()
    {
        QTest::addColumn<QString>("from");
        QTest::newRow("models of lines")
            << u"SiparisD Where Not Exists (Select * From Model Where Model = SipModel "
               "and M_Uruntip = SipUruntip)"_s;
        QTest::newRow("colours of lines")
            << u"SiparisD Where Siprenk Not In (Select RenkNo From Renkler)"_s;
        QTest::newRow("headers of lines")
            << u"SiparisD Where SipnumD Not In (Select Sipnum From SiparisB)"_s;
        QTest::newRow("lines of headers")
            << u"SiparisB Where Sipnum Not In (Select SipnumD From SiparisD)"_s;
        QTest::newRow("customers of headers")
            << u"SiparisB Where SipFirkod Not In (Select Firkod From Firma)"_s;
        QTest::newRow("karats of headers")
            << u"SiparisB Where Ayar Not In (Select Milyem From Ayar)"_s;
        QTest::newRow("statuses of lines")
            << u"SiparisD Where Drm1 <> '' and Drm1 Not In (Select d1_tanim From Durum1)"_s;
        QTest::newRow("stages of lines")
            << u"SiparisD Where Drm2 <> '' and Drm2 Not In (Select d2_tanim From Durum2)"_s;
        QTest::newRow("countries of customers")
            << u"Firma Where UlkeID Not In (Select ID From Ulkeler)"_s;
        QTest::newRow("stones of models")
            << u"Model Where M_Kod > 0 and M_Tip = 0 and M_Kod Not In (Select TasID From Tas)"_s;
        QTest::newRow("molds of models") << u"Model Where M_Kod > 0 and M_Tip = 1 and M_Kod Not In "
                                            "(Select KalipID From Kalip)"_s;
        QTest::newRow("models of catalogues")
            << u"Katalog Where katno1 Not In (Select Model_ID From Model)"_s;
        QTest::newRow("rates of the demo day")
            << u"DovizB Where Dovcinsi Not In (Select Dovcinsi From DovizD Where Tarih = "
               "DateValue('20.11.2026'))"_s;
        QTest::newRow("menu items of users")
            << u"MenuKisit Where MK_menuid Not In (Select m_ID From Menuler)"_s;
    }
    void nothingDangles()
    {
        QFETCH(QString, from);
        QCOMPARE(count(*m_single, from), 0);
        QCOMPARE(count(*m_double, from), 0);
    }

    /// One grid row has one note, one status and one date for all its types.
    void linesFoldIntoGridRows()
    {
        const QString cells = u"(Select SipnumD, SipSatir, SipUruntip From SiparisD Group by "
                              "SipnumD, SipSatir, SipUruntip)"_s;
        QCOMPARE(count(*m_single, cells), count(*m_single, u"SiparisD"_s));
        const auto rows = [](const QString &fields) {
            return u"(Select %1 From SiparisD Group by %1)"_s.arg(fields);
        };
        QCOMPARE(count(*m_single, rows(u"SipnumD, SipSatir, SipModel, Siprenk, SipAck, Drm1, "
                                       "Drm2, Trhbas, Trhbit"_s)),
                 count(*m_single, rows(u"SipnumD, SipSatir"_s)));
    }

    void itsUsersCanLogIn()
    {
        const std::unique_ptr<Database> registry =
            openRegistry(in(u"single/database/sirket.kuyum"_s));
        Recordset firm = registry->query(u"Select * From SirketKayit Where turkod = '048'"_s);
        QVERIFY(firm.next());
        QCOMPARE(firm.text(u"DataYolu"), uR"(c:\database\atolye.kuyum)"_s);

        Recordset users = m_single->query(u"Select * From Users Where User_Sil = 0"_s);
        QVERIFY(users.next());
        QCOMPARE(users.text(u"User_Name"), u"Admin"_s);
        QCOMPARE(SifreCoz(users.text(u"user_pass")), u"1234"_s);
        QVERIFY(users.next());
        QCOMPARE(SifreCoz(users.text(u"user_pass")), u"inci2026"_s);
        QVERIFY(count(*m_single, u"MenuKisit Where MK_userid = 2"_s) > 0);
    }

    void everyModelAndMoldHasItsPicture()
    {
        const QString folder = in(u"single/database/resim/"_s);
        Recordset models =
            m_single->query(u"Select Model, KisaAD From Model, UrunTipi Where M_Uruntip = TipID "
                            "Order by Model_ID"_s);
        QMap<QString, QStringList> places;
        while (models.next()) {
            const QString file = models.text(u"Model") + u".jpg"_s;
            places[file].append({folder + file, folder + models.text(u"KisaAD") + u'/' + file});
        }
        int inTypeFolder = 0;
        for (const QStringList &candidates : std::as_const(places)) {
            const auto present = std::ranges::find_if(
                candidates, [](const QString &path) { return QFileInfo::exists(path); });
            QVERIFY2(present != candidates.end(), qPrintable(candidates.first()));
            inTypeFolder += present == candidates.begin() ? 0 : 1;
        }
        QVERIFY(inTypeFolder > 20);

        Recordset molds = m_single->table(u"Kalip"_s);
        while (molds.next()) {
            const QImage picture(folder + u"KLP/"_s + molds.text(u"KalipKodu") + u".jpg"_s, "JPG");
            QVERIFY2(!picture.isNull(), qPrintable(molds.text(u"KalipKodu")));
        }
    }

    void refusesAFolderThatHoldsACompany()
    {
        const QString before = everything(*m_single);
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, makeDemo(in(u"single"_s), 2, ignoreProgress));
        QCOMPARE(everything(*m_single), before);
    }

    /// Cut short, it leaves nothing that looks like a company; what a killed
    /// run left is cleared away by the next one, and the same scale makes the
    /// same company again.
    void leavesNoHalfCompany()
    {
        const auto giveUp = [](const QString &line) {
            if (line.startsWith(u"Siparişler"))
                throw std::runtime_error("cut short");
        };
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, makeDemo(in(u"again"_s), 1, giveUp));
        QVERIFY(QDir(in(u"again"_s)).isEmpty());

        QVERIFY(QDir().mkpath(in(u"again/database.part/resim"_s)));
        QFile left(in(u"again/database.part/atolye.kuyum"_s));
        QVERIFY(left.open(QIODevice::WriteOnly));
        left.write("half");
        left.close();
        const std::unique_ptr<Database> again = made(u"again"_s, 1);
        QVERIFY(!QFileInfo::exists(in(u"again/database.part"_s)));
        QVERIFY(everything(*again) == everything(*m_single));
        const QMap<QString, QByteArray> first = pictures(in(u"single"_s));
        QCOMPARE(first.size(), 420);
        QVERIFY(pictures(in(u"again"_s)) == first);
    }

    void commandSaysWhyItRefuses_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("reason");
        QTest::newRow("a company is there")
            << QStringList{in(u"single"_s)} << 1 << u"Bu klasörde zaten bir veri tabanı var"_s;
        QTest::newRow("no folder") << QStringList{} << 2 << u"kuyum demo"_s;
        QTest::newRow("a scale that is no number")
            << QStringList{in(u"x"_s), u"--olcek"_s, u"çok"_s} << 2 << u"kuyum demo"_s;
    }
    void commandSaysWhyItRefuses()
    {
        QFETCH(QStringList, words);
        QProcess kuyum;
        kuyum.start(qEnvironmentVariable("KUYUM_PROGRAM"), QStringList(u"demo"_s) + words);
        QVERIFY(kuyum.waitForFinished());
        QTEST(kuyum.exitCode(), "exitCode");
        QFETCH(QString, reason);
        const QString said = QString::fromUtf8(kuyum.readAllStandardError());
        QVERIFY2(said.contains(reason), qPrintable(said));
    }
};

KUYUM_TEST(DemoTest)

} // namespace kuyum

#include "DemoTest.moc"
