#include "DosyaDuzelt.h"

#include "FieldTypes.h"
#include "OrderFixture.h"
#include "Schema.h"
#include "TableRows.h"
#include "TakeOver.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

/// The repair fills the nulls and nothing but the nulls.
class DosyaDuzeltTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void legacyCompanyHasNoNullLeft();
    void everyTypeHasItsValue();
    void twoNullsThatMayNotBecomeAlike();
    void newLinesAreNumberedPastAllOthers();
    void stoppedOrFailedChangesNothing();

private:
    static void makeTypes(Database &db);
};

/// What the neutral value of a field looks like in storedRows().
static QString neutral(FieldType type)
{
    switch (type) {
    case FieldType::Boolean:
    case FieldType::Byte:
    case FieldType::Integer:
    case FieldType::Long:
        return u"integer:0"_s;
    case FieldType::Single:
    case FieldType::Double:
        return u"real:0.0"_s;
    case FieldType::Date:
        return u"text:2000-01-01"_s;
    default:
        return u"text: "_s;
    }
}

void DosyaDuzeltTest::legacyCompanyHasNoNullLeft()
{
    const QString source = QString::fromLocal8Bit(qgetenv("KUYUM_ORNEK")) + u"/atolye.mdb"_s;
    if (!QFileInfo::exists(source))
        QSKIP("no example files");
    const QTemporaryDir dir;
    const QString path = dir.filePath(u"atolye.kuyum"_s);
    TakeOver(source, path).run();
    Oturum oturum;
    oturum.Veritabani = openCompany(path);
    const Database &db = *oturum.Veritabani;
    const QMap<QString, QList<QStringList>> before = storedTables(db);

    const RepairResult result = TumDosyalariDuzenle(oturum);

    const QMap<QString, QList<QStringList>> after = storedTables(db);
    QCOMPARE(after.keys(), before.keys());
    qint64 filled = 0;
    for (const QString &table : before.keys()) {
        const QList<FieldDef> fields = db.tableDef(table).fields;
        const QList<QStringList> old = before[table];
        const QList<QStringList> now = after[table];
        QCOMPARE(now.size(), old.size());
        for (qsizetype row = 0; row < old.size(); ++row) {
            for (qsizetype i = 0; i < fields.size(); ++i) {
                const bool wasNull = old[row][i].startsWith("null"_L1);
                filled += wasNull ? 1 : 0;
                QCOMPARE(now[row][i], wasNull ? neutral(fields[i].type) : old[row][i]);
            }
        }
    }
    QVERIFY(filled > 0);
    QCOMPARE(result.filled(), filled);
    const std::unique_ptr<Database> copy = Database::open(result.backup);
    QCOMPARE(storedTables(*copy), before);
}

void DosyaDuzeltTest::makeTypes(Database &db)
{
    TableDef table{u"Türler"_s, {}};
    for (const FieldType type :
         {FieldType::Boolean, FieldType::Byte, FieldType::Integer, FieldType::Long,
          FieldType::Currency, FieldType::Single, FieldType::Double, FieldType::Date,
          FieldType::Time, FieldType::Text, FieldType::Binary, FieldType::LongBinary,
          FieldType::Memo, FieldType::Guid, FieldType::Decimal})
        table.fields.append({typeName(type), type, type == FieldType::Text ? 5 : 0});
    db.createTable(table);
    db.engine().run(u"INSERT INTO [Türler] DEFAULT VALUES"_s);
    db.engine().run(
        u"INSERT INTO [Türler] VALUES (1, 255, -5, 70000, 12.5, 0.5, 1e300, "
        "'2012-03-01T10:00:00', '10:20:30', '', x'00ff', x'', '007', '{guid}', '1.10')"_s);
}

void DosyaDuzeltTest::everyTypeHasItsValue()
{
    OrderFixture company;
    Database &db = *company.oturum.Veritabani;
    makeTypes(db);
    const QList<QStringList> before = storedRows(db, u"Türler"_s);
    const FilledTable filled = DosyaDuzelt1(db, u"türler"_s, {}, 0, 2);
    QCOMPARE(filled.rows, 2);
    QCOMPARE(filled.fields.size(), 15);
    const QList<QStringList> after = storedRows(db, u"Türler"_s);
    QCOMPARE(after[1], before[1]);
    const QList<FieldDef> fields = db.tableDef(u"Türler"_s).fields;
    for (qsizetype i = 0; i < fields.size(); ++i)
        QCOMPARE(fields[i].name + u' ' + after[0][i],
                 fields[i].name + u' ' + neutral(fields[i].type));

    // What holds a blank where a number could stand still reads.
    Recordset row = db.query(u"Select * From [Türler]"_s);
    QVERIFY(row.next());
    QCOMPARE(row.number(u"Currency"), 0.0);
    QCOMPARE(row.text(u"Currency"), u" "_s);
    QCOMPARE(row.integer(u"Decimal"), 0);
    QCOMPARE(row.text(u"Time"), u" "_s);
    QCOMPARE(row.date(u"Date"), QDate(2000, 1, 1));
    QVERIFY(!row.flag(u"Boolean"));

    QStringList list;
    for (const AlanSatiri &alan : alanlar(db.tableDef(u"Türler"_s)))
        list.append(u"%1 %2 %3"_s.arg(alan.Name).arg(alan.Size).arg(alan.Type));
    QCOMPARE(list.mid(7, 3), (QStringList{u"Date 8 Date"_s, u"Time 8 Time"_s, u"Text 5 Text"_s}));
}

void DosyaDuzeltTest::twoNullsThatMayNotBecomeAlike()
{
    OrderFixture company;
    Database &db = *company.oturum.Veritabani;
    db.engine().run(u"INSERT INTO Tas (TasFiyati) VALUES (1), (2), (3)"_s);
    db.engine().run(u"INSERT INTO Durum2 (d2_tanim) VALUES (''), (NULL)"_s);

    const RepairResult result = TumDosyalariDuzenle(company.oturum);

    // One row got the blank; the others keep their rows, and all else is filled.
    QStringList stones;
    for (const QStringList &row : storedRows(db, u"Tas"_s).mid(2))
        stones.append(row.mid(1).join(u'|'));
    QCOMPARE(stones, (QStringList{u"text: |real:1.0|text: |real:0.0|text:2000-01-01"_s,
                                  u"null:|real:2.0|text: |real:0.0|text:2000-01-01"_s,
                                  u"null:|real:3.0|text: |real:0.0|text:2000-01-01"_s}));
    QCOMPARE(storedRows(db, u"Durum2"_s).last(), QStringList{u"null:"_s}); // '' equals ' '
    QVERIFY(result.text().contains(u"Tas.Taskodu: 2 kayıtta boş bırakıldı"_s));
    QVERIFY(result.text().contains(u"Durum2.d2_tanim: 1 kayıtta boş bırakıldı"_s));
}

void DosyaDuzeltTest::newLinesAreNumberedPastAllOthers()
{
    OrderFixture company;
    Database &db = *company.oturum.Veritabani;
    // As a file comes whose lines another program brought in: the number is
    // there, the counter behind it.
    db.engine().run(u"INSERT INTO SiparisD (SipnumD, Dotosayi) VALUES (4, 900)"_s);
    db.engine().run(u"UPDATE sqlite_sequence SET seq = 3 WHERE name = 'SiparisD'"_s);
    QVERIFY(TumDosyalariDuzenle(company.oturum).counterMoved);
    QCOMPARE(company.oturum.SonSQL,
             u"Select Top 1 Dotosayi From SiparisD Order by Dotosayi desc;"_s);
    db.execute(u"DELETE From SiparisD Where Dotosayi = 900"_s);
    company.addLine(4, 1, u"A75"_s, 1, u"SR"_s, 1);
    QCOMPARE(company.field(4, u"Dotosayi").last(), u"901"_s);

    db.execute(u"DELETE From SiparisD"_s);
    QVERIFY(!TumDosyalariDuzenle(company.oturum).counterMoved);
}

void DosyaDuzeltTest::stoppedOrFailedChangesNothing()
{
    OrderFixture company;
    Database &db = *company.oturum.Veritabani;
    const QMap<QString, QList<QStringList>> before = storedTables(db);
    const auto stopAtUsers = [](const QString &what, int, int) { return what != u"Users"_s; };
    QVERIFY_THROWS_EXCEPTION(Cancelled, TumDosyalariDuzenle(company.oturum, stopAtUsers));
    QCOMPARE(storedTables(db), before);

    db.engine().run(u"CREATE TRIGGER bozuk BEFORE UPDATE ON Users "
                    "BEGIN SELECT raise(ABORT, 'bozuk'); END"_s);
    QString told;
    try {
        TumDosyalariDuzenle(company.oturum);
    } catch (const DatabaseError &error) {
        told = error.text();
    }
    QVERIFY2(told.startsWith(u"\"Users\" tablosu düzenlenemedi"_s), qPrintable(told));
    QCOMPARE(storedTables(db), before);
    QVERIFY(company.field(1, u"SipAck").size() == 3); // it goes on working
}

KUYUM_TEST(DosyaDuzeltTest)

} // namespace kuyum

#include "DosyaDuzeltTest.moc"
