#include "Database.h"
#include "DatabaseCheck.h"
#include "OpeningNotes.h"
#include "SampleCompany.h"
#include "Schema.h"
#include "SqliteEngine.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class RecordsetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void namesFields();
    void tellsNullFromEmpty();
    void addsAndReadsTheCounterBack();
    void editsOneRowOfMany();
    void changesTheRowsItIsReading();
    void refusesWhatCannotBeStored_data();
    void refusesWhatCannotBeStored();
    void refusesToEditJoins();
    void seeksByKey();
    void rollsBackUnlessCommitted();
    void takesBackACutOffSave();
    void numbersGoOnAfterTheHighest();
    void tellsDefinitionsBack();
    void completesAnOlderFile();
    void aTableWithoutItsCounterIsMendedOrNotOpened();
    void refusesForeignFiles();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Database> m_db;
};

void RecordsetTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_db = makeSampleCompany(m_folder->filePath(u"atolye.kuyum"_s));
}

void RecordsetTest::cleanup()
{
    m_db.reset();
    m_folder.reset();
}

void RecordsetTest::namesFields()
{
    Recordset order = m_db->query(
        u"Select * From SiparisB, Firma Where SiparisB.SipFirkod = Firma.Firkod and Sipnum =  1"_s);
    QVERIFY(order.next());
    QCOMPARE(order.text(u"FIRADI"), u"Işık Kuyumculuk"_s);
    QCOMPARE(order.text(u"siparisb.aciklama"), u"Acele"_s);
    QCOMPARE(order.text(u"Firma.Aciklama"), u"Vadeli"_s);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, order.text(u"Aciklama"));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, order.text(u"Yok"));
    QCOMPARE(order.date(u"SipTrh"), QDate(2012, 3, 1));
    QCOMPARE(order.text(u"SipTrh"), u"01.03.2012"_s);
    QVERIFY(!order.next());
    QVERIFY_THROWS_EXCEPTION(DatabaseError, order.text(u"FirAdi"));
}

void RecordsetTest::tellsNullFromEmpty()
{
    Recordset customer = m_db->table(u"Firma"_s);
    customer.addNew();
    customer.set(u"Firkod", 30);
    customer.set(u"FirAdi", QString());
    customer.update();
    Recordset stored = m_db->query(u"Select * From Firma Where Firkod = 30"_s);
    QVERIFY(stored.next());
    QVERIFY(!stored.isNull(u"FirAdi"));
    QVERIFY(stored.isNull(u"Mail"));
    QCOMPARE(stored.text(u"Mail"), QString());
    QCOMPARE(stored.integer(u"UlkeID"), 0);
}

void RecordsetTest::addsAndReadsTheCounterBack()
{
    Recordset orders = m_db->table(u"SiparisB"_s);
    orders.addNew();
    orders.set(u"SipTrh", QDate(2012, 6, 1));
    orders.set(u"Ayar", u"585"_s);
    orders.set(u"Aciklama", u"O'Hara \"ve\" [köşeli]"_s);
    orders.update();
    QCOMPARE(orders.integer(u"Sipnum"), 5);
    QCOMPARE(orders.date(u"SipTrh"), QDate(2012, 6, 1));
    Recordset stored = m_db->query(u"Select * From SiparisB Where Sipnum =  5"_s);
    QVERIFY(stored.next());
    QCOMPARE(stored.text(u"Aciklama"), u"O'Hara \"ve\" [köşeli]"_s);
    QCOMPARE(stored.integer(u"Ayar"), 585);
    // A line that sets no row number has the field's default.
    Recordset lines = m_db->table(u"SiparisD"_s);
    lines.addNew();
    lines.set(u"SipnumD", 5);
    lines.update();
    QVERIFY(!lines.isNull(u"SipSatir"));
    QCOMPARE(lines.integer(u"SipSatir"), 0);
}

void RecordsetTest::editsOneRowOfMany()
{
    Recordset line = m_db->query(u"Select * From SiparisD Where SipnumD =  1 Order by Dotosayi"_s);
    QVERIFY(line.next());
    QVERIFY(line.next());
    line.edit();
    line.set(u"Drm1", u"HAZIR"_s);
    line.set(u"Trhbas", u"05.03.2012"_s);
    line.update();
    QCOMPARE(line.text(u"drm1"), u"HAZIR"_s);
    QVERIFY(line.next());
    QCOMPARE(line.text(u"SipModel"), u"İnci-1"_s);
    Recordset changed = m_db->query(u"Select Dotosayi From SiparisD Where Drm1 = 'hazır'"_s);
    QVERIFY(!changed.next()); // ı is no I
    changed = m_db->query(u"Select Dotosayi, Trhbas From SiparisD Where Drm1 = 'HAZir' "
                          "and Trhbas = DateValue('5.3.2012')"_s);
    QVERIFY(changed.next());
    QCOMPARE(changed.integer(u"Dotosayi"), 2);
    QVERIFY(!changed.next());
}

void RecordsetTest::changesTheRowsItIsReading()
{
    // Each change moves its row in the very index the rows are found by.
    Recordset rates = m_db->query(
        u"Select * From DovizD Where Tarih >= DateValue('01.01.2012') Order by Tarih"_s);
    int count = 0;
    while (rates.next()) {
        rates.edit();
        rates.set(u"Tarih", QDate(2013, 1, 1));
        rates.update();
        ++count;
    }
    QCOMPARE(count, 3);
    Recordset moved = m_db->query(u"Select * From DovizD Where Tarih = DateValue('01.01.2013')"_s);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(moved.next());
        moved.remove();
        QVERIFY_THROWS_EXCEPTION(DatabaseError, moved.text(u"Kur"));
    }
    QVERIFY(!m_db->query(u"Select * From DovizD"_s).next());
}

void RecordsetTest::refusesWhatCannotBeStored_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("text too long") << u"Patent"_s << QVariant(QString(21, u'x'));
    QTest::newRow("beyond 16 bits") << u"Ayar"_s << QVariant(40000);
    QTest::newRow("beyond 32 bits") << u"SipFirkod"_s << QVariant(3000000000.0);
    QTest::newRow("no number") << u"Ayar"_s << QVariant(u"14a"_s);
    QTest::newRow("no date") << u"TesTrh"_s << QVariant(u"31.02.2012"_s);
    QTest::newRow("unknown field") << u"Yok"_s << QVariant(1);
}

void RecordsetTest::refusesWhatCannotBeStored()
{
    QFETCH(QString, field);
    QFETCH(QVariant, value);
    Recordset orders = m_db->table(u"SiparisB"_s);
    orders.addNew();
    QVERIFY_THROWS_EXCEPTION(DatabaseError, orders.set(field, value));
}

void RecordsetTest::refusesToEditJoins()
{
    Recordset rows = m_db->query(u"Select * From SiparisB, Firma Where SipFirkod = Firkod"_s);
    QVERIFY(rows.next());
    QVERIFY_THROWS_EXCEPTION(DatabaseError, rows.edit());
    Recordset sums = m_db->query(u"Select Sum(Sipadet) as Toplam From SiparisD"_s);
    QVERIFY(sums.next());
    QVERIFY_THROWS_EXCEPTION(DatabaseError, sums.edit());
    QVERIFY_THROWS_EXCEPTION(DatabaseError, m_db->table(u"Firma"_s).edit());
}

void RecordsetTest::seeksByKey()
{
    Recordset customers = m_db->table(u"Firma"_s);
    QVERIFY(customers.seek({20}));
    QCOMPARE(customers.text(u"FirAdi"), u"O'Hara Gold"_s);
    QVERIFY(!customers.seek({21}));
    Recordset colours = m_db->table(u"Renkler"_s);
    QVERIFY(colours.seek({u"sr"_s}));
    colours.edit();
    colours.set(u"Renksira", 9);
    colours.update();
    Recordset orders = m_db->table(u"SiparisB"_s);
    QVERIFY(orders.seek({3}));
    QCOMPARE(orders.text(u"Patent"), u"TR585"_s);
}

void RecordsetTest::rollsBackUnlessCommitted()
{
    {
        Transaction transaction(*m_db);
        m_db->execute(u"DELETE From SiparisD"_s);
    }
    QVERIFY(m_db->query(u"Select * From SiparisD"_s).next());
    {
        Transaction transaction(*m_db);
        m_db->execute(u"DELETE From SiparisD"_s);
        transaction.commit();
    }
    QVERIFY(!m_db->query(u"Select * From SiparisD"_s).next());
}

void RecordsetTest::takesBackACutOffSave()
{
    // A copy of the files in the middle of a save is what a killed program or
    // a power cut leaves behind.
    m_db->engine().run(u"PRAGMA cache_size = 2"_s);
    const QString left = m_folder->filePath(u"kesik.kuyum"_s);
    {
        Transaction transaction(*m_db);
        m_db->execute(u"UPDATE SiparisD Set SipAdet = 77"_s);
        m_db->execute(u"UPDATE Model Set M_Miktar = 77"_s);
        m_db->execute(u"UPDATE Firma Set FirAdi = 'yarım'"_s);
        QVERIFY(QFile::copy(m_db->path(), left));
        QVERIFY(QFile::copy(m_db->path() + u"-journal"_s, left + u"-journal"_s));
    }
    const std::unique_ptr<Database> db = Database::open(left, Database::Access::ReadOnly);
    Recordset half = db->query(u"Select * From Firma Where FirAdi = 'yarım'"_s);
    QVERIFY(!half.next());
    QVERIFY(!db->query(u"Select * From SiparisD Where SipAdet = 77"_s).next());
    QVERIFY_THROWS_EXCEPTION(DatabaseError, db->execute(u"DELETE From Firma"_s));
}

void RecordsetTest::numbersGoOnAfterTheHighest()
{
    m_db->execute(u"DELETE From SiparisB Where Sipnum = 4"_s);
    Recordset orders = m_db->table(u"SiparisB"_s);
    orders.addNew();
    orders.update();
    QCOMPARE(orders.integer(u"Sipnum"), 5); // a number is never given twice
    m_db->raiseCounter(u"siparisb"_s, 700);
    m_db->raiseCounter(u"SiparisB"_s, 30);
    orders.addNew();
    orders.update();
    QCOMPARE(orders.integer(u"Sipnum"), 701);
}

void RecordsetTest::tellsDefinitionsBack()
{
    for (const TableDef &wanted : companyTables()) {
        const TableDef told = m_db->tableDef(wanted.name.toLower());
        QCOMPARE(told.name, wanted.name);
        QCOMPARE(told.fields.size(), wanted.fields.size());
        for (qsizetype i = 0; i < wanted.fields.size(); ++i) {
            QCOMPARE(told.fields[i].name, wanted.fields[i].name);
            QCOMPARE(int(told.fields[i].type), int(wanted.fields[i].type));
            QCOMPARE(told.fields[i].size, wanted.fields[i].size);
            QCOMPARE(told.fields[i].counter, wanted.fields[i].counter);
            QCOMPARE(told.fields[i].defaultValue, wanted.fields[i].defaultValue);
        }
        for (const IndexDef &index : wanted.indexes) {
            const auto same = [&index](const IndexDef &other) {
                return other.name == index.name && other.fields == index.fields &&
                       other.primary == index.primary && other.unique == index.unique;
            };
            QVERIFY2(std::any_of(told.indexes.begin(), told.indexes.end(), same),
                     qPrintable(wanted.name + u'.' + index.name));
        }
    }
}

void RecordsetTest::completesAnOlderFile()
{
    const QString path = m_folder->filePath(u"eski.kuyum"_s);
    {
        const std::unique_ptr<Database> old = Database::create(path);
        old->createTable({u"Tas"_s,
                          {{u"TasID"_s, FieldType::Long, 0, true},
                           {u"Taskodu"_s, FieldType::Text, 20},
                           {u"Ozel"_s, FieldType::Memo}}});
        for (const TableDef &table : companyTables()) {
            if (QStringList{u"Users"_s, u"SiparisB"_s, u"SiparisD"_s}.contains(table.name))
                old->createTable(table);
        }
        Recordset stones = old->table(u"Tas"_s);
        for (const QString &code : {u"ZRK"_s, u"zrk"_s}) { // forbids the unique index
            stones.addNew();
            stones.set(u"Taskodu", code);
            stones.update();
        }
    }
    const std::unique_ptr<Database> db = openCompany(path);
    QCOMPARE(db->tableNames().size(), companyTables().size());
    const TableDef stones = db->tableDef(u"Tas"_s);
    QVERIFY(stones.field(u"TasKatsayi") != nullptr);
    QVERIFY(stones.field(u"Ozel") != nullptr);
    Recordset rows = db->query(u"Select * From Tas Where Taskodu = 'ZRK'"_s);
    QVERIFY(rows.next());
    QVERIFY(rows.next());
    db->setSchemaVersion(currentSchemaVersion + 1);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, openCompany(path));
}

void RecordsetTest::aTableWithoutItsCounterIsMendedOrNotOpened()
{
    const auto takeCounter = [this](const QString &table) {
        TableDef plain = m_db->tableDef(table);
        plain.name = u"sayacsiz"_s;
        plain.indexes.clear();
        for (FieldDef &field : plain.fields)
            field.counter = false;
        m_db->createTable(plain);
        m_db->engine().run(u"INSERT INTO sayacsiz SELECT * FROM "_s + table);
        m_db->engine().run(u"DROP TABLE "_s + table);
        m_db->engine().run(u"ALTER TABLE sayacsiz RENAME TO "_s + table);
    };
    takeCounter(u"SiparisD"_s);
    m_db->execute(u"Update SiparisD Set Dotosayi = 5 Where SipSatir = 1"_s);
    m_db->execute(u"Update SiparisD Set Dotosayi = null Where SipSatir = 2"_s);
    QCOMPARE(checkDatabase(*m_db).missingCounters, QStringList{u"SiparisD.Dotosayi"_s});
    const qint64 rows = m_db->rowCount(u"SiparisD"_s);
    {
        const std::unique_ptr<Database> db = openCompany(m_db->path());
        Recordset numbers = db->query(u"Select Count(*) As Adet, Count(Dotosayi) As Dolu, "
                                      "Sum(IIf(Dotosayi = 5, 1, 0)) As Bes From SiparisD"_s);
        QVERIFY(numbers.next());
        QVERIFY(numbers.integer(u"Adet") == rows && numbers.integer(u"Dolu") == rows);
        QCOMPARE(numbers.integer(u"Bes"), 1);
        QVERIFY(checkDatabase(*db).isSound());
        QVERIFY(untoldNotes(*db).size() > 1);
    }
    // Two models of one number, and a catalogue that means one of them.
    takeCounter(u"Model"_s);
    m_db->execute(
        u"Update Model Set Model_ID = (Select Max(katno1) From Katalog Where katno1 < 90)"_s);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, openCompany(m_db->path()));
    QVERIFY(m_db->tableDef(u"Model"_s).counter() == nullptr);
}

void RecordsetTest::refusesForeignFiles()
{
    QVERIFY_THROWS_EXCEPTION(DatabaseError, openCompany(m_folder->filePath(u"yok.kuyum"_s)));
    QVERIFY(!QFile::exists(m_folder->filePath(u"yok.kuyum"_s)));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, openCompany(m_folder->path()));
    QFile text(m_folder->filePath(u"metin.kuyum"_s));
    QVERIFY(text.open(QIODevice::WriteOnly));
    text.write(QByteArray(5000, 'x'));
    text.close();
    QVERIFY_THROWS_EXCEPTION(DatabaseError, openCompany(text.fileName()));
    // What is a database, but not a company's, is not made into one.
    const QString registry = m_folder->filePath(u"sirket.kuyum"_s);
    createRegistry(registry)->setSchemaVersion(1);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, openCompany(registry));
    QVERIFY_THROWS_EXCEPTION(DatabaseError, openRegistry(m_db->path()));
    const std::unique_ptr<Database> untouched = Database::open(registry);
    QCOMPARE(untouched->tableNames(), QStringList(u"SirketKayit"_s));
    QCOMPARE(untouched->schemaVersion(), 1);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, createCompany(m_db->path()));
}

KUYUM_TEST(RecordsetTest)

} // namespace kuyum

#include "RecordsetTest.moc"
