#include "Yenileme.h"

#include "ChosenTables.h"
#include "EmptyDatabase.h"
#include "OrderFixture.h"
#include "RefreshSource.h"
#include "Schema.h"
#include "TableRows.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

/// The refresh adds, widens and fills; it takes nothing away.
class YenilemeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comparesByNameTypeAndSize();
    void everyValueThatStoodStands();
    void everyKeyAndIndexIsThere();
    void oneTableFails();
    void whatOtherProgramsMadeStays();
    void sourcesThatAreRefused();
    void legacySourceTellsItsOwnTables();
    void newDatabaseHasAllButRows();
    void newDatabaseGoesNowhereElse();
};

namespace {

using Rows = QMap<QString, QList<QStringList>>;

/// As it was before, but for nulls and for the digits' new types.
void compareKept(const Rows &before, const Rows &after)
{
    for (const auto &[table, rows] : before.asKeyValueRange()) {
        QCOMPARE(after[table].size(), rows.size());
        for (qsizetype i = 0; i < rows.size(); ++i) {
            for (qsizetype j = 0; j < rows[i].size(); ++j) {
                const QString &old = rows[i][j];
                QString now = after[table][i][j];
                if (old.startsWith("null"_L1))
                    continue;
                if (old.startsWith("integer"_L1) && now.startsWith("real"_L1))
                    now = u"integer"_s + now.mid(4).chopped(2);
                QCOMPARE(table + u' ' + now, table + u' ' + old);
            }
        }
    }
}

RefreshResult refresh(
    Database &db, const RefreshFailure &failure = [](auto...) { return false; },
    const MaintenanceProgress &progress = {})
{
    return Yenileme(db, progress, failure).yenile(chosenTables());
}

QString refusal(const QString &path, const Database &working)
{
    try {
        readRefreshSource(path, working);
        return {};
    } catch (const DatabaseError &error) {
        return u"%1 %2"_s.arg(error.number()).arg(error.text());
    }
}

QString targetRefusal(Oturum &oturum, const QString &path)
{
    try {
        makeEmptyDatabase(oturum, path, {});
        return {};
    } catch (const DatabaseError &error) {
        return u"%1 %2"_s.arg(error.number()).arg(error.text());
    }
}

} // namespace

void YenilemeTest::comparesByNameTypeAndSize()
{
    const OrderFixture company;
    QStringList list;
    QStringList fields;
    for (const TableComparison &comparison :
         Kontrol_Et(*company.oturum.Veritabani, chosenTables())) {
        list.append(comparison.text());
        for (const FieldDef &field : comparison.newFields)
            fields.append(u"+"_s + field.name);
        for (const FieldDifference &difference : comparison.widened)
            fields.append(u"%1>%2"_s.arg(difference.ours.name, typeText(difference.theirs)));
        for (const FieldDifference &difference : comparison.left)
            fields.append(u"%1!%2"_s.arg(difference.ours.name, typeText(difference.theirs)));
    }
    QCOMPARE(list, (QStringList{u"Tas-(ESKI)"_s, u"Ayar-(ESKI)"_s, u"Firma-(ESKI)"_s,
                                u"Katalog-(ESKI)"_s, u"Depo-(YENI)"_s}));
    QCOMPARE(fields, (QStringList{u"+Renk"_s, u"+Stok"_s, u"+Giris"_s, u"Taskodu>Text(40)"_s,
                                  u"TasBirimi!Text(3)"_s, u"+Ad"_s, u"Milyem>Double"_s,
                                  u"Yogunluk!Single"_s, u"FirAdi>Memo"_s, u"Firkod!Text(10)"_s,
                                  u"+KatID"_s}));
}

void YenilemeTest::everyValueThatStoodStands()
{
    const OrderFixture company;
    Database &db = *company.oturum.Veritabani;
    db.engine().run(u"UPDATE sqlite_sequence SET seq = 77 WHERE name = 'Tas'"_s);
    db.engine().run(u"DELETE FROM Tas WHERE TasID = 1"_s);
    db.engine().run(u"INSERT INTO Tas (TasID, Taskodu) VALUES (40, 'son'), (30, 'ğüş')"_s);
    const Rows before = storedTables(db);

    const RefreshResult result = refresh(db);

    const Rows after = storedTables(db);
    compareKept(before, after);
    QCOMPARE(after.size(), before.size() + 1);
    // New fields stand behind the old ones and hold neutral values, whatever
    // their default for rows to come.
    QCOMPARE(after[u"Tas"_s].last(),
             (QStringList{u"integer:40"_s, u"text:son"_s, u"real:0.0"_s, u"text: "_s, u"real:0.0"_s,
                          u"text:2000-01-01"_s, u"text: "_s, u"real:0.0"_s, u"text:2000-01-01"_s}));
    QCOMPARE(db.tableDef(u"Tas"_s).field(u"Stok")->defaultValue, QVariant(5));
    QCOMPARE(typeText(*db.tableDef(u"Tas"_s).field(u"Taskodu")), u"Text(40)"_s);
    QCOMPARE(typeText(*db.tableDef(u"Tas"_s).field(u"TasBirimi")), u"Text(5)"_s);
    QCOMPARE(typeText(*db.tableDef(u"Ayar"_s).field(u"Milyem")), u"Double"_s);
    QVERIFY(result.text().contains(u"Tas.TasBirimi: Text(5) olarak kaldı"_s));

    // A counter goes on behind the highest number it ever gave; one that is new
    // has numbered the rows.
    Recordset stones = db.table(u"Tas"_s);
    stones.addNew();
    stones.set(u"Taskodu", u"yeni"_s);
    stones.update();
    QCOMPARE(stones.integer(u"TasID"), 78);
    Recordset katalog = db.query(u"Select * From Katalog Where KatID = 3"_s);
    QVERIFY(katalog.next());
    QCOMPARE(katalog.integer(u"katno1"), 99);
    // The Turkish order of texts is the field's own in a table made anew, too.
    Recordset found = db.query(u"Select * From Tas Where Taskodu = 'ĞÜŞ'"_s);
    QVERIFY(found.next());

    const std::unique_ptr<Database> copy = Database::open(result.backup);
    QCOMPARE(storedTables(*copy), before);
}

void YenilemeTest::everyKeyAndIndexIsThere()
{
    const OrderFixture company;
    Database &db = *company.oturum.Veritabani;
    db.createIndex(u"Ayar"_s, {u"eski"_s, {u"Yogunluk"_s}, false, true});
    db.engine().run(u"UPDATE Firma SET Aciklama = 'aynı'"_s);
    const RefreshResult result = refresh(db);
    for (const TableDef &own : companyTables()) {
        for (const IndexDef &index : own.indexes)
            QVERIFY2(hasIndexOver(db.tableDef(own.name), index), qPrintable(own.name));
    }
    QVERIFY(hasIndexOver(db.tableDef(u"Tas"_s), {{}, {u"Renk"_s}}));
    QVERIFY(hasIndexOver(db.tableDef(u"Firma"_s), {{}, {u"FirAdi"_s, u"Firkod"_s}, false, true}));
    QVERIFY(hasIndexOver(db.tableDef(u"Ayar"_s), {{}, {u"Yogunluk"_s}, false, true}));
    QVERIFY(hasIndexOver(db.tableDef(u"Depo"_s), {{}, {u"Adi"_s}, false, true}));
    QCOMPARE(result.looseIndexes, QStringList{u"Firma (Aciklama)"_s});
    // A second time there is nothing left to do.
    const QString once = definitions(db);
    const RefreshResult again = refresh(db);
    QCOMPARE(again.newTables + again.newFields + again.widenedFields, 0);
    QCOMPARE(definitions(db).size(), once.size());
}

void YenilemeTest::oneTableFails()
{
    const OrderFixture company;
    Database &db = *company.oturum.Veritabani;
    // A value that no Double holds, brought in by another program.
    db.engine().run(u"INSERT INTO Ayar VALUES (9007199254740993, 1)"_s);
    const QString definitionsBefore = definitions(db);
    const Rows before = storedTables(db);

    QStringList told;
    const auto answer = [&told](bool goOn) {
        return [&told, goOn](const QString &table, const QString &) {
            told.append(table);
            return goOn;
        };
    };
    QVERIFY_THROWS_EXCEPTION(Cancelled, refresh(db, answer(false)));
    QCOMPARE(definitions(db), definitionsBefore);
    QCOMPARE(storedTables(db), before);
    const auto stop = [](const QString &what, int, int) { return what != u"Katalog"_s; };
    QVERIFY_THROWS_EXCEPTION(Cancelled, refresh(db, answer(true), stop));
    QCOMPARE(definitions(db), definitionsBefore);
    QCOMPARE(storedTables(db), before);

    const QString ayar = db.tableDef(u"Ayar"_s).indexes.first().name;
    const RefreshResult result = refresh(db, answer(true));
    QCOMPARE(told, (QStringList{u"Ayar"_s, u"Ayar"_s, u"Ayar"_s}));
    QCOMPARE(result.failed, QStringList{u"Ayar"_s});
    QCOMPARE(storedRows(db, u"Ayar"_s), before[u"Ayar"_s]);
    QCOMPARE(db.tableDef(u"Ayar"_s).indexes.first().name, ayar);
    QVERIFY(db.tableDef(u"Ayar"_s).field(u"Ad") == nullptr);
    QVERIFY(db.hasTable(u"Depo"_s));
    compareKept(before, storedTables(db));
}

void YenilemeTest::whatOtherProgramsMadeStays()
{
    const OrderFixture company;
    Database &db = *company.oturum.Veritabani;
    const QStringList made = {
        u"CREATE TABLE [Ölçü] ([Çap] TEXT(5), [Ağırlık] LONG DEFAULT 3)"_s,
        u"CREATE UNIQUE INDEX kismi ON [Ölçü] ([Ağırlık]) WHERE [Ağırlık] > 5"_s,
        u"CREATE INDEX ifade ON [Ölçü] (lower([Çap]))"_s,
        u"CREATE TABLE Kural (No integer primary key, Ad TEXT(5) CHECK (Ad <> 'x'))"_s,
        u"CREATE TABLE Sayac (No integer primary key autoincrement, Ad TEXT(5))"_s,
        u"CREATE TABLE Sade (Ad TEXT(5) DEFAULT 'check', [check] LONG DEFAULT -1)"_s,
        u"CREATE TABLE Izli (Ad TEXT(5))"_s,
        u"CREATE TRIGGER iz AFTER INSERT ON Izli BEGIN SELECT 1; END"_s};
    for (const QString &sql : made)
        db.engine().run(sql);
    const FieldDef name = {u"Ad"_s, FieldType::Text, 9};
    const QList<TableDef> chosen = {
        {u"ÖLÇÜ"_s, {{u"ÇAP"_s, FieldType::Text, 5}}, {{u"cap"_s, {u"ÇAP"_s}}}},
        {u"Kural"_s, {name}},
        {u"Sayac"_s, {name}},
        {u"Sade"_s, {name}},
        {u"Izli"_s, {name}}};
    const RefreshResult result = Yenileme(db, {}, [](auto...) { return true; }).yenile(chosen);

    // A table that would lose something, made anew, stays; the others do not.
    QCOMPARE(result.failed, (QStringList{u"Kural"_s, u"Izli"_s}));
    const QString after = definitions(db);
    for (const qsizetype kept : {1, 2, 3, 6, 7})
        QVERIFY2(after.contains(made[kept]), qPrintable(made[kept]));
    // The chosen index is over the field as it is written here.
    QVERIFY(after.contains(u"CREATE INDEX [Ölçü.ix.cap] ON [Ölçü] ([Çap])"_s));
    QVERIFY(db.tableDef(u"Sayac"_s).counter() != nullptr);
    QCOMPARE(db.tableDef(u"Sayac"_s).textLimit(u"Ad"), 9);
    QCOMPARE(db.tableDef(u"Sade"_s).textLimit(u"Ad"), 9);
}

void YenilemeTest::sourcesThatAreRefused()
{
    const OrderFixture company;
    const Database &db = *company.oturum.Veritabani;
    const auto path = [&](const QString &name) { return company.dir.filePath(name); };
    createRegistry(path(u"sirket.kuyum"_s));
    createCompany(path(u"yeni.kuyum"_s))->setSchemaVersion(currentSchemaVersion + 1);
    Database::create(path(u"boş.kuyum"_s))->setSchemaVersion(1);
    QFile text(path(u"yazı.mdb"_s));
    QVERIFY(text.open(QFile::WriteOnly) && text.write(QByteArray(5000, 'x')) == 5000);
    text.close();

    QVERIFY(refusal(path(u"yok.mdb"_s), db).startsWith(u"14 Dosya bulunamadı"_s));
    QVERIFY(refusal(db.path(), db).startsWith(u"0 Bu dosya, çalışılan veri tabanının kendisi"_s));
    QVERIFY(refusal(path(u"sirket.kuyum"_s), db).startsWith(u"0 Bu dosya şirketlerin kayıt"_s));
    QVERIFY(refusal(path(u"yeni.kuyum"_s), db).startsWith(u"0 Bu dosya programın daha yeni"_s));
    QVERIFY(refusal(path(u"boş.kuyum"_s), db).startsWith(u"0 Bu dosyada hiç tablo yok"_s));
    QVERIFY(refusal(path(u"yazı.mdb"_s), db).startsWith(u"0 "_s));
}

void YenilemeTest::legacySourceTellsItsOwnTables()
{
    const QString source = QString::fromLocal8Bit(qgetenv("KUYUM_ORNEK")) + u"/ikinci.mdb"_s;
    if (!QFileInfo::exists(source))
        QSKIP("no example files");
    const OrderFixture company;
    QStringList names;
    for (const TableDef &table : readRefreshSource(source, *company.oturum.Veritabani).tables)
        names.append(table.name);
    QVERIFY(names.contains(u"Firma"_s));
    QVERIFY(!names.contains(u"KatalogSira"_s)); // this program's own
}

void YenilemeTest::newDatabaseHasAllButRows()
{
    OrderFixture company;
    const QString target = company.dir.filePath(u"boş.kuyum"_s);
    company.oturum.Veritabani->createTable(chosenTables().last());
    company.oturum.Veritabani->addField(u"Tas"_s, {u"Özel"_s, FieldType::Guid});
    QFile old(target);
    QVERIFY(old.open(QFile::WriteOnly) && old.write("eski") == 4);
    old.close();

    makeEmptyDatabase(company.oturum, target, {});

    const std::unique_ptr<Database> made = openCompany(target);
    Database &db = *company.oturum.Veritabani;
    QCOMPARE(made->tableNames(), db.tableNames());
    QCOMPARE(made->schemaVersion(), db.schemaVersion());
    QCOMPARE(definitions(*made), definitions(db));
    for (const QString &table : made->tableNames())
        QCOMPARE(made->rowCount(table), 0);
    QCOMPARE(company.headerCount(), 4);
    QCOMPARE(QDir(company.dir.path()).entryList(QDir::Files),
             (QStringList{u"atolye.kuyum"_s, u"boş.kuyum"_s}));
}

void YenilemeTest::newDatabaseGoesNowhereElse()
{
    OrderFixture company;
    Oturum &oturum = company.oturum;
    const auto path = [&](const QString &name) { return company.dir.filePath(name); };
    QVERIFY(QDir(company.dir.path()).mkdir(u"database"_s));
    oturum.kayitYolu = path(u"database/sirket.kuyum"_s);
    {
        const std::unique_ptr<Database> registry = createRegistry(oturum.kayitYolu);
        Recordset rows = registry->table(u"SirketKayit"_s);
        rows.addNew();
        rows.set(u"turkod", u"048"_s);
        rows.set(u"Srkkod", 2);
        rows.set(u"Srkadi", u"İkinci"_s);
        rows.set(u"DataYolu", u"C:\\ikinci.mdb"_s);
        rows.update();
    }
    makeSampleCompany(path(u"ikinci.kuyum"_s));
    QVERIFY(targetRefusal(oturum, company.path()).contains(u"çalışılan veri tabanının kendisi"_s));
    QVERIFY(targetRefusal(oturum, oturum.kayitYolu).contains(u"kayıt dosyası"_s));
    QVERIFY(targetRefusal(oturum, path(u"ikinci.kuyum"_s)).contains(u"bir şirketin veri tabanı"_s));
    makeSampleCompany(path(u"yedek.kuyum"_s)); // of no registry
    QVERIFY(targetRefusal(oturum, path(u"yedek.kuyum"_s)).contains(u"kayıtlar olan"_s));
    QVERIFY(targetRefusal(oturum, path(u"a.MDB"_s)).contains(u".kuyum ile biten"_s));
    QVERIFY(targetRefusal(oturum, path(u"yok/a.kuyum"_s)).startsWith(u"14 "_s));

    QFile old(path(u"eski.kuyum"_s));
    QVERIFY(old.open(QFile::ReadWrite) && old.write("eski") == 4 && old.flush());
    const auto stop = [](const QString &what, int, int) { return what != u"Users"_s; };
    QVERIFY_THROWS_EXCEPTION(Cancelled, makeEmptyDatabase(oturum, old.fileName(), stop));
    QVERIFY(old.seek(0));
    QCOMPARE(old.readAll(), QByteArray("eski"));
    QCOMPARE(company.headerCount(), 4); // the company is open after each of them
}

KUYUM_TEST(YenilemeTest)

} // namespace kuyum

#include "YenilemeTest.moc"
