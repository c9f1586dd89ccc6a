#include "TestRegistry.h"

#include "Dates.h"
#include "LegacySample.h"
#include "MdbExport.h"
#include "OpeningNotes.h"
#include "Schema.h"
#include "TakeOver.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

/// What is in an example file arrives wholly and once.
class TakeOverTest : public QObject
{
    Q_OBJECT

private:
    void compareTable(Database &db, const QString &source, const QString &table);
    static qint64 count(Database &db, const QString &sql);

private Q_SLOTS:
    void agreesWithAnotherReader_data()
    {
        QTest::addColumn<QString>("file");
        for (const char *name : {"atolye.mdb", "ikinci.mdb", "sirket.mdb"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void agreesWithAnotherReader();
    void definitionsAreTaken();
    void countersGoOnBehindTheHighest();
    void everythingTheSchemaKnowsIsThere();
    void rowsThatMovedAndWereDeletedStayAway();
    void twiceUsedNumbersOfLinesBecomeNewOnes();
    void aTwiceUsedNumberThatOthersMeanIsRefused();
    void whatIsMissingIsTold();
    void unknownTablesCome();
    void progressRunsToTheEnd();
    void cancellingLeavesNothing();
};

qint64 TakeOverTest::count(Database &db, const QString &sql)
{
    Recordset rows = db.query(sql);
    return rows.next() ? rows.value(0).toLongLong() : -1;
}

void TakeOverTest::compareTable(Database &db, const QString &source, const QString &table)
{
    const QList<QStringList> exported = mdbExport(source, table);
    QVERIFY2(!exported.isEmpty(), qPrintable(table));
    QStringList expected;
    for (qsizetype i = 1; i < exported.size(); ++i)
        expected.append(exported[i].join(u'|'));

    QStringList actual;
    Recordset rows = db.query(u"Select * From [%1]"_s.arg(table));
    while (rows.next()) {
        QStringList values;
        for (int i = 0; i < rows.fieldCount(); ++i) {
            QCOMPARE(rows.fieldName(i), exported[0][i]);
            values.append(asExported(rows.value(i)));
        }
        actual.append(values.join(u'|'));
    }
    expected.sort();
    actual.sort();
    QCOMPARE(actual.size(), expected.size());
    for (qsizetype i = 0; i < actual.size(); ++i)
        QCOMPARE(actual[i], expected[i]);
}

void TakeOverTest::agreesWithAnotherReader()
{
    QFETCH(QString, file);
    LegacySample sample(file);
    if (!sample.isPresent())
        QSKIP("no example files");
    const std::unique_ptr<Database> db = sample.takenOver();
    const QStringList tables = mdbTables(sample.source());
    QVERIFY(!tables.isEmpty());
    for (const QString &table : tables)
        compareTable(*db, sample.source(), table);
    QFile source(sample.source());
    QVERIFY(source.open(QFile::ReadOnly));
    QVERIFY2(source.readAll() == sample.bytes, "the source was changed");
    QCOMPARE(sample.leftBehind(), QStringList{u"hedef.kuyum"_s});
}

void TakeOverTest::definitionsAreTaken()
{
    LegacySample sample(u"atolye.mdb"_s);
    if (!sample.isPresent())
        QSKIP("no example files");
    const std::unique_ptr<Database> db = sample.takenOver();
    const TableDef firma = db->tableDef(u"Firma"_s);
    QCOMPARE(firma.field(u"FirAdi")->type, FieldType::Text);
    QCOMPARE(firma.field(u"FirAdi")->size, 80);
    QCOMPARE(firma.field(u"Firkod")->type, FieldType::Long);
    QVERIFY(firma.counter() == nullptr);
    const auto primary = std::find_if(firma.indexes.begin(), firma.indexes.end(),
                                      [](const IndexDef &index) { return index.primary; });
    QVERIFY(primary != firma.indexes.end());
    QCOMPARE(primary->fields, QStringList{u"Firkod"_s});

    // Two codes of the example differ in letter case only: one text here.
    const TableDef rates = db->tableDef(u"DovizD"_s);
    const auto key = std::find_if(rates.indexes.begin(), rates.indexes.end(),
                                  [](const IndexDef &index) { return index.fields.size() == 2; });
    QVERIFY(key != rates.indexes.end());
    QCOMPARE(key->fields, (QStringList{u"Tarih"_s, u"Dovcinsi"_s}));
    QCOMPARE(db->tableDef(u"SiparisB"_s).field(u"Aciklama")->type, FieldType::Memo);
    QCOMPARE(db->tableDef(u"Barkodtip"_s).field(u"BarkodTip_OzelUrun")->type, FieldType::Boolean);
}

void TakeOverTest::countersGoOnBehindTheHighest()
{
    LegacySample sample(u"atolye.mdb"_s);
    if (!sample.isPresent())
        QSKIP("no example files");
    const std::unique_ptr<Database> db = sample.takenOver();
    const qint64 highest = count(*db, u"Select Max(Sipnum) From SiparisB"_s);
    QVERIFY(highest > 0);
    Recordset orders = db->table(u"SiparisB"_s);
    orders.addNew();
    orders.update();
    QCOMPARE(orders.integer(u"Sipnum"), highest + 1);
}

void TakeOverTest::everythingTheSchemaKnowsIsThere()
{
    LegacySample company(u"ikinci.mdb"_s);
    LegacySample registry(u"sirket.mdb"_s);
    if (!company.isPresent() || !registry.isPresent())
        QSKIP("no example files");
    const auto lacks = [](Database &db, const QList<TableDef> &tables) -> QString {
        for (const TableDef &table : tables) {
            const TableDef present = db.tableDef(table.name);
            for (const FieldDef &field : table.fields) {
                if (present.field(field.name) == nullptr)
                    return table.name + u'.' + field.name;
            }
        }
        return {};
    };
    const std::unique_ptr<Database> companyDb = company.takenOver();
    QCOMPARE(lacks(*companyDb, companyTables()), QString());
    QCOMPARE(companyDb->schemaVersion(), currentSchemaVersion);
    const std::unique_ptr<Database> registryDb = registry.takenOver();
    QCOMPARE(registryDb->tableNames(), QStringList{u"SirketKayit"_s});
    QCOMPARE(registryDb->schemaVersion(), currentSchemaVersion);
}

/// A row that had moved to another page and was deleted then: its old place
/// bears both marks, its new one looks like that of any moved row.
void TakeOverTest::rowsThatMovedAndWereDeletedStayAway()
{
    LegacySample sample(u"atolye.mdb"_s);
    if (!sample.isPresent())
        QSKIP("no example files");
    const qsizetype lines = sample.definitionOf({u"Dotosayi"_s, u"SipSatir"_s});
    constexpr quint16 moved = 0x4000;
    constexpr quint16 deleted = 0xc000;
    int deletions = 0;
    for (const LegacySample::Row &row : sample.places(lines)) {
        if (sample.marksOf(row) == moved && deletions < 3) {
            sample.setMarks(row, deleted);
            ++deletions;
        }
    }
    QCOMPARE(deletions, 3);
    const quint32 rows = sample.number(lines + 16, 4);
    QVERIFY2(sample.refusal().contains(u"SiparisD"_s), "lost rows must refuse");
    sample.setNumber(lines + 16, 4, rows - 3);
    const std::unique_ptr<Database> db = sample.takenOver();
    QCOMPARE(count(*db, u"Select Count(*) From SiparisD"_s), qint64(rows - 3));
}

/// Gives the table's second row the number of its first; returns it.
static quint32 useTwice(LegacySample &sample, qsizetype table, const QString &counter)
{
    QList<LegacySample::Row> rows = sample.places(table);
    rows.removeIf([&sample](const LegacySample::Row &row) { return sample.marksOf(row) != 0; });
    const quint32 number = sample.number(sample.fixedField(rows[0], table, counter), 4);
    sample.setNumber(sample.fixedField(rows[1], table, counter), 4, number);
    return number;
}

void TakeOverTest::twiceUsedNumbersOfLinesBecomeNewOnes()
{
    LegacySample sample(u"atolye.mdb"_s);
    if (!sample.isPresent())
        QSKIP("no example files");
    const qsizetype lines = sample.definitionOf({u"Dotosayi"_s, u"SipSatir"_s});
    const quint32 number = useTwice(sample, lines, u"Dotosayi"_s);
    const std::unique_ptr<Database> db = sample.takenOver();
    const qint64 rows = sample.number(lines + 16, 4);
    QCOMPARE(count(*db, u"Select Count(*) From SiparisD"_s), rows);
    QCOMPARE(count(*db, u"Select Count(*) From SiparisD Where Dotosayi = %1"_s.arg(number)), 1);
    QCOMPARE(db->tableDef(u"SiparisD"_s).counter()->name, u"Dotosayi"_s);
    QVERIFY(!db->tableDef(u"SiparisD"_s).indexes.isEmpty());
    const QStringList notes = openingNotes(*db);
    QCOMPARE(notes.size(), 1);
    QVERIFY2(notes[0].startsWith(
                 u"SiparisD.Dotosayi: %1 başka bir kayıtta da vardı, yeni numarası "_s.arg(number)),
             qPrintable(notes[0]));
}

void TakeOverTest::aTwiceUsedNumberThatOthersMeanIsRefused()
{
    LegacySample sample(u"atolye.mdb"_s);
    if (!sample.isPresent())
        QSKIP("no example files");
    const quint32 number =
        useTwice(sample, sample.definitionOf({u"Sipnum"_s, u"TesTrh"_s}), u"Sipnum"_s);
    const QString told = sample.refusal();
    QVERIFY2(told.contains(u"\"SiparisB\" tablosunda %1 numarası"_s.arg(number)), qPrintable(told));
    QCOMPARE(sample.leftBehind(), QStringList());
}

void TakeOverTest::whatIsMissingIsTold()
{
    LegacySample sample(u"atolye.mdb"_s);
    if (!sample.isPresent())
        QSKIP("no example files");
    const qsizetype colours = sample.definitionOf({u"RenkNo"_s, u"Renksira"_s});
    for (const LegacySample::Row &row : sample.places(colours))
        sample.setMarks(row, 0xc000);
    sample.setNumber(colours + 16, 4, 0);
    const QStringList notes = openingNotes(*sample.takenOver());
    QCOMPARE(notes.size(), 1);
    QVERIFY2(notes[0].startsWith(u"Renkler tablosu boş, ama SiparisD"_s), qPrintable(notes[0]));
}

void TakeOverTest::unknownTablesCome()
{
    LegacySample sample(u"atolye.mdb"_s);
    if (!sample.isPresent())
        QSKIP("no example files");
    const auto utf16 = [](const QString &text) {
        return QByteArray(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
    };
    int renamed = 0;
    for (const LegacySample::Row &row : sample.places(2 * LegacySample::pageSize)) {
        const qsizetype at =
            sample.bytes.mid(row.start, sample.endOf(row) - row.start).indexOf(utf16(u"Katalog"_s));
        if (at < 0 || sample.marksOf(row) != 0)
            continue;
        sample.bytes.replace(row.start + at, 14, utf16(u"Ek Üç x"_s));
        ++renamed;
    }
    QCOMPARE(renamed, 1);
    const std::unique_ptr<Database> db = sample.takenOver();
    QCOMPARE(count(*db, u"Select Count(*) From [Ek Üç x]"_s), 48);
    QCOMPARE(count(*db, u"Select Count(*) From Katalog"_s), 0);
    QCOMPARE(openingNotes(*db),
             QStringList{u"Katalog tablosu eski dosyada yok; boş olarak açıldı."_s});
}

void TakeOverTest::progressRunsToTheEnd()
{
    LegacySample sample(u"atolye.mdb"_s);
    if (!sample.isPresent())
        QSKIP("no example files");
    QVERIFY(sample.refusal().isEmpty());
    QFile::remove(sample.target());
    TakeOver takeOver(sample.source(), sample.target());
    QList<int> steps;
    QStringList tables;
    connect(&takeOver, &TakeOver::progressed, this,
            [&](int permille, const QString &) { steps.append(permille); });
    connect(&takeOver, &TakeOver::tableCopied, this, [&](const QString &name, qint64 rows) {
        tables.append(u"%1 %2"_s.arg(name, QString::number(rows)));
    });
    takeOver.run();
    QVERIFY(std::is_sorted(steps.begin(), steps.end()));
    QVERIFY(!steps.isEmpty() && steps.last() > 900 && steps.last() <= 1000);
    QVERIFY(tables.contains(u"SiparisD 3215"_s));
    QVERIFY(tables.contains(u"SiparisB 395"_s));
}

void TakeOverTest::cancellingLeavesNothing()
{
    LegacySample sample(u"atolye.mdb"_s);
    if (!sample.isPresent())
        QSKIP("no example files");
    QVERIFY(sample.refusal().isEmpty());
    QFile::remove(sample.target());
    for (const int stopAt : {0, 300, 700}) {
        TakeOver takeOver(sample.source(), sample.target());
        connect(&takeOver, &TakeOver::progressed, &takeOver, [&](int permille, const QString &) {
            if (permille >= stopAt)
                takeOver.cancel();
        });
        QVERIFY_THROWS_EXCEPTION(Cancelled, takeOver.run());
        QCOMPARE(sample.leftBehind(), QStringList());
    }
}

KUYUM_TEST(TakeOverTest)

} // namespace kuyum

#include "TakeOverTest.moc"
