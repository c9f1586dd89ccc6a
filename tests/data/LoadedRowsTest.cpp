#include "LoadedRows.h"
#include "Database.h"
#include "SampleCompany.h"
#include "TestRegistry.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

/// What a save tells of changes made meanwhile, and what it keeps quiet about.
class LoadedRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_db = makeSampleCompany(m_dir->filePath(u"a.kuyum"_s));
        m_other = Database::open(m_db->path());
    }

    void onlyWhatWouldBeUndoneIsTold_data()
    {
        QTest::addColumn<QString>("theirs");
        QTest::addColumn<QString>("mine");
        QTest::addColumn<QString>("told"); // "record|field|loaded|mine|standing", parted by ";"
        const QString mine = u"Update Tas Set TasFiyati = 5, TasBirimi = 'USD' Where TasID = 1"_s;
        QTest::newRow("nothing") << QString() << mine << QString();
        QTest::newRow("a field that the save does not write")
            << u"Update Tas Set TasKatsayi = 9 Where TasID = 1"_s << mine << QString();
        QTest::newRow("the same change")
            << u"Update Tas Set TasFiyati = 5 Where TasID = 1"_s << mine << QString();
        QTest::newRow("a field that the save puts back")
            << u"Update Tas Set TasBirimi = 'EUR' Where TasID = 1"_s << mine
            << u"Taş|Fiyatı|1.5|5|1.5;Taş|TasBirimi|USD|USD|EUR"_s;
        QTest::newRow("a removed row comes back with its number")
            << u"Delete From Tas Where TasID = 1"_s << mine
            << u"Taş|(bütünü)|Fiyatı: 1.5|Fiyatı: 5|yok"_s;
        QTest::newRow("a changed row is removed")
            << u"Update Tas Set TasFiyati = 7 Where TasID = 1"_s
            << u"Delete From Tas Where TasID = 1"_s << u"Taş|(bütünü)|Fiyatı: 1.5|yok|Fiyatı: 7"_s;
        QTest::newRow("both removed it") << u"Delete From Tas Where TasID = 1"_s
                                         << u"Delete From Tas Where TasID = 1"_s << QString();
    }

    void onlyWhatWouldBeUndoneIsTold()
    {
        QFETCH(QString, theirs);
        QFETCH(QString, mine);
        LoadedRows loaded(*m_db, {stone()});
        if (!theirs.isEmpty())
            m_other->execute(theirs);
        const QStringList before = rows(u"Tas"_s);
        const auto save = [&] { m_db->execute(mine); };
        const QString told = tryToWrite(loaded, save);
        QTEST(told, "told");
        if (told.isEmpty())
            return;
        QCOMPARE(rows(u"Tas"_s), before);
        // Once more changed after it was seen: asked once more.
        loaded.acceptStanding();
        m_other->execute(u"Delete From Tas Where TasID = 1"_s);
        m_other->execute(u"Insert into Tas (TasID, Taskodu) values (1, 'başka')"_s);
        QVERIFY(!tryToWrite(loaded, save).isEmpty());
        loaded.acceptStanding();
        QCOMPARE(tryToWrite(loaded, save), QString());
        QCOMPARE(rows(u"Tas"_s).filter(u"USD"_s).size(), mine.startsWith(u"Delete"_s) ? 0 : 1);
    }

    void rowsAreKnownAgainUnderNewNumbers_data()
    {
        QTest::addColumn<QString>("theirs");
        QTest::addColumn<QStringList>("told");
        QTest::newRow("rewritten alike, in another order")
            << u"KLY 1,YZK 3,KPE 2"_s << QStringList();
        QTest::newRow("a count") << u"YZK 3,KLY 6,KPE 2"_s
                                 << QStringList{u"Satır KLY|SipAdet|1|1|6"_s,
                                                u"Satır KPE|SipAdet|2|8|2"_s};
        QTest::newRow("added") << u"YZK 3,KLY 1,KPE 2,NEW 4"_s
                               << QStringList{u"Satır KPE|SipAdet|2|8|2"_s,
                                              u"Satır NEW|(bütünü)|yok|yok|var"_s};
        QTest::newRow("removed") << u"YZK 3,KPE 2"_s
                                 << QStringList{u"Satır KPE|SipAdet|2|8|2"_s,
                                                u"Satır KLY|(bütünü)|var|var|yok"_s};
    }

    void rowsAreKnownAgainUnderNewNumbers()
    {
        QFETCH(QString, theirs);
        rewrite(*m_other, u"YZK 3,KLY 1,KPE 2"_s);
        LoadedRows loaded(*m_db, {{.table = u"SiparisD"_s,
                                   .where = u"SipnumD = 1"_s,
                                   .label = u"Satır"_s,
                                   .fields = {},
                                   .identity = {u"SipModel"_s},
                                   .renumbered = {u"Dotosayi"_s}}});
        rewrite(*m_other, theirs);
        QTEST(tryToWrite(loaded, [&] { rewrite(*m_db, u"YZK 3,KLY 1,KPE 8"_s); })
                  .split(u';', Qt::SkipEmptyParts),
              "told");
    }

private:
    static RecordRows stone()
    {
        return {.table = u"Tas"_s,
                .where = u"TasID = 1"_s,
                .label = u"Taş"_s,
                .fields = {{u"TasFiyati"_s, u"Fiyatı"_s}},
                .comesBack = true};
    }
    /// What was told, every row that stands being as it was; nothing once written.
    static QString told(const ChangedMeanwhile &changed)
    {
        QStringList lines;
        for (const FieldChange &c : changed.changes())
            lines.append(QStringList{c.record, c.field, c.loaded, c.mine, c.standing}.join(u'|'));
        return lines.join(u';');
    }
    QString tryToWrite(LoadedRows &loaded, const std::function<void()> &write)
    {
        try {
            loaded.write(*m_db, write);
            return {};
        } catch (const ChangedMeanwhile &changed) {
            return told(changed);
        }
    }
    static void rewrite(Database &db, const QString &lines)
    {
        db.execute(u"Delete From SiparisD Where SipnumD = 1"_s);
        for (const QString &line : lines.split(u',')) {
            db.execute(
                u"Insert into SiparisD (SipnumD, SipModel, SipAdet) values (1, '%1', %2)"_s.arg(
                    line.section(u' ', 0, 0), line.section(u' ', 1)));
        }
    }
    QStringList rows(const QString &table)
    {
        QStringList result;
        Recordset set = m_other->table(table);
        while (set.next()) {
            QStringList fields;
            for (int i = 0; i < set.fieldCount(); ++i)
                fields.append(set.text(set.fieldName(i)));
            result.append(fields.join(u' '));
        }
        return result;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<Database> m_db;
    std::unique_ptr<Database> m_other;
};

KUYUM_TEST(LoadedRowsTest)

} // namespace kuyum

#include "LoadedRowsTest.moc"
