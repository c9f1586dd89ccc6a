#include "Csv.h"
#include "Database.h"
#include "Exchange.h"
#include "Passwords.h"
#include "ReportCsv.h"
#include "ReportTable.h"
#include "SampleCompany.h"
#include "SqlText.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class SharedProceduresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void scramblesPasswords();
    void convertsCurrencies();
    void findsDensities();
    void readsNumbers();
    void quotesValues();
    void writesCsv();

private:
    QTemporaryDir m_folder;
    std::unique_ptr<Database> m_db;
};

void SharedProceduresTest::initTestCase()
{
    m_db = makeSampleCompany(m_folder.filePath(u"atolye.kuyum"_s));
}

void SharedProceduresTest::scramblesPasswords()
{
    QCOMPARE(Sifrele(u""_s), u""_s);
    QCOMPARE(Sifrele(u"ABC"_s), u"BDF"_s);
    QCOMPARE(Sifrele(u"1234"_s), u"2468"_s);
    // Stored by another program on the Turkish code page.
    QCOMPARE(SifreCoz(u"ñş}iq"_s), u"ğüzel"_s);
    QCOMPARE(SifreCoz(u"Qÿupft{i"_s), u"Pırlanta"_s);
    QCOMPARE(SifreCoz(u"hk}irrp‚"_s), u"gizemliz"_s);
    QCOMPARE(Sifrele(u"kapış"_s).toUtf8(), "lcs\u0101\u0103"); // beyond the code page
    // Every character comes back from every place, on the code page or not.
    for (int first = 1; first < 32768 - 8; first += first < 0x300 ? 1 : 17) {
        const QString text(8, QChar(first));
        QVERIFY(!firstUnstorable(text));
        QCOMPARE(SifreCoz(Sifrele(text)), text);
    }
    QCOMPARE(firstUnstorable(QString(8, QChar(32760))), std::optional<qsizetype>(7));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, Sifrele(u"😀"_s));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, SifreCoz(u"a\u0001"_s));
}

void SharedProceduresTest::convertsCurrencies()
{
    const QDate day(2012, 3, 1);
    QCOMPARE(KurCevir(*m_db, day, 10, u"USD"_s, u"TL"_s), 18.0);
    QCOMPARE(KurCevir(*m_db, day, 10, u"TL"_s, u"USD"_s), 5.56);
    QCOMPARE(KurCevir(*m_db, day, 10, u"USD"_s, u"EUR"_s), 7.5);
    QCOMPARE(KurCevir(*m_db, day, 2.675, u"TL"_s, u"TL "_s), 2.68);
    QCOMPARE(KurCevir(*m_db, day, 10, u"USD"_s, u"GBP"_s), 0.0);
    QCOMPARE(KurCevir(*m_db, day, 10, u"GBP"_s, u"TL"_s), 0.0);
    QCOMPARE(KurCevir(*m_db, day.addDays(5), 10, u"TL"_s, u"USD"_s), 0.0);
}

void SharedProceduresTest::findsDensities()
{
    QCOMPARE(YogunlukBul(*m_db, 585), 13.075);
    QCOMPARE(YogunlukBul(*m_db, 999), 0.0);
}

void SharedProceduresTest::readsNumbers()
{
    QCOMPARE(Deger(u"  "_s), 0.0);
    QCOMPARE(Deger(u" 12.5 "_s), 12.5);
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, Deger(u"12a"_s));
}

void SharedProceduresTest::quotesValues()
{
    const QString typed = u"x' or '1'='1"_s;
    Recordset none = m_db->query(u"Select * From Firma Where FirAdi = "_s + sqlText(typed));
    QVERIFY(!none.next());
    Recordset found =
        m_db->query(u"Select * From Firma Where FirAdi = "_s + sqlText(u"o'hara GOLD"));
    QVERIFY(found.next());
    QCOMPARE(sqlDate(QDate(2012, 3, 5)), u"DateValue('05.03.2012')"_s);
}

void SharedProceduresTest::writesCsv()
{
    Recordset rows = m_db->query(
        u"Select FirAdi, Mail, Firma.Aciklama, Firkod, Max(SipTrh) as son, 0.1+0.2 as x From "
        u"Firma, "
        "SiparisB Where Firkod = SipFirkod Group by FirAdi, Mail, Firma.Aciklama, Firkod Order by FirAdi"_s);
    QCOMPARE(csvHeader(rows), uR"("FirAdi","Mail","Aciklama","Firkod","son","x")"_s);
    QVERIFY(rows.next());
    QCOMPARE(csvRow(rows), uR"("Işık Kuyumculuk",,"Vadeli",10,01.05.2012,0.30000000000000004)"_s);
    QVERIFY(rows.next());
    QCOMPARE(csvRow(rows), uR"("O'Hara Gold",,"",20,05.03.2012,0.30000000000000004)"_s);
    Recordset quoted = m_db->query(u"Select 'a\"b' as x"_s);
    QVERIFY(quoted.next());
    QCOMPARE(csvRow(quoted), uR"("a""b")"_s);

    // A report's texts run nothing in a spreadsheet, a query's are what they are.
    const QStringList formulas = {u"=1+1"_s, u"+A1"_s, u"-A1"_s, u"@x"_s, u"\t=1"_s, u"\r=1"_s};
    ReportTable table{{}, {{u"=h"_s}, {u"n"_s, ReportColumnKind::Number}}, {}, {u"=not"_s}};
    QString expected = u"\"'=h\",\"n\"\n"_s;
    for (const QString &text : formulas) {
        table.rows.append(ReportRow{{text, -1.5}});
        expected += u"\"'%1\",-1.5\n"_s.arg(text);
    }
    table.rows.append(ReportRow{{u"-2,5"_s, QVariant()}});
    const QString path = m_folder.filePath(u"rapor.csv"_s);
    writeCsv({table}, path);
    QFile file(path);
    QVERIFY(file.open(QFile::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()), expected + u"\"-2,5\",\n\n\"'=not\"\n"_s);
    Recordset raw = m_db->query(u"Select '=1+1' as x"_s);
    QVERIFY(raw.next());
    QCOMPARE(csvRow(raw), uR"("=1+1")"_s);
}

KUYUM_TEST(SharedProceduresTest)

} // namespace kuyum

#include "SharedProceduresTest.moc"
