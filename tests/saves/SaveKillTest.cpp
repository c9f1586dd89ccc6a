#include "FullDisk.h"
#include "KilledProcess.h"
#include "SampleCompany.h"
#include "SaveKinds.h"
#include "Schema.h"
#include "TableRows.h"
#include "TestCompanies.h"
#include "TestRegistry.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

/// The program dies in the middle of saving, at many points, or the disk gets
/// full: what is on disk is one whole save, never a mixture and never nothing,
/// and the next save goes on from there.
class SaveKillTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void killed_data() { kinds(); }
    void killed();
    void fullDisk_data() { kinds(); }
    void fullDisk();

private:
    static void kinds();
};

void SaveKillTest::kinds()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : saveKinds().keys())
        QTest::newRow(qPrintable(name)) << name;
}

namespace {

using State = QList<FileState>; // of company and registry

/// The company that is saved into, and a copy on which nothing goes wrong.
struct Folders
{
    explicit Folders(const SaveKind &saved) : kind(saved)
    {
        addRow(*makeSampleCompany(dir.filePath(u"atolye.kuyum"_s)), u"XXX"_s,
               {{u"TeraziTip"_s, 0}});
        addRow(*createRegistry(dir.filePath(u"sirket.kuyum"_s)), u"SirketKayit"_s,
               {{u"Srkkod"_s, 1}, {u"DataYolu"_s, u"atolye.kuyum"_s}});
    }
    void prepare() const
    {
        if (kind.prepare != nullptr)
            kind.prepare(*sessionIn(dir.path()).Veritabani);
        for (const QString &name : {u"atolye.kuyum"_s, u"sirket.kuyum"_s}) {
            QFile::remove(copy.filePath(name));
            QFile::copy(dir.filePath(name), copy.filePath(name));
        }
    }
    static State state(const QTemporaryDir &folder)
    {
        return {fileState(*Database::open(folder.filePath(u"atolye.kuyum"_s))),
                fileState(*Database::open(folder.filePath(u"sirket.kuyum"_s)))};
    }
    /// What a save with that number, begun here, may leave: the state before it,
    /// the one between its transactions where it has two, the one after it.
    QList<State> allowed(int number) const
    {
        QList<State> states = {state(copy)};
        Oturum oturum = sessionIn(copy.path());
        kind.save(oturum, number);
        const State after = state(copy);
        if (!kind.first.isEmpty()) {
            states.append(states.first());
            states.last().first()[kind.first] = after.first()[kind.first];
        }
        return states << after;
    }

    SaveKind kind;
    QTemporaryDir dir;
    QTemporaryDir copy;
};

} // namespace

void SaveKillTest::killed()
{
    QFETCH(QString, name);
    const Folders folders(saveKinds()[name]);
    constexpr qint64 severalSaves = 120000;  // microseconds
    const int kills = (killCount() + 7) / 8; // of each kind
    int midway = 0;
    int saved = 0;
    for (int kill = 0; kill < kills; ++kill) {
        folders.prepare();
        const int told =
            killedWhileWorking(QStringLiteral(SAVE_LOOP),
                               {name, folders.dir.path(), QString::number(saved)}, severalSaves)
                .last()
                .toInt();
        midway += QDir(folders.dir.path()).entryList({u"*-journal"_s}).size();
        {
            Oturum oturum = sessionIn(folders.copy.path());
            while (saved < told)
                folders.kind.save(oturum, ++saved);
        }
        const QList<State> allowed = folders.allowed(saved + 1);
        const State found = Folders::state(folders.dir);
        QVERIFY(allowed.contains(found));
        saved += found == allowed.last() ? 1 : 0;
    }
    qInfo() << kills << "kills," << midway << "with a transaction open," << saved << "saves";
}

void SaveKillTest::fullDisk()
{
    QFETCH(QString, name);
    FullDisk disk;
    const Folders folders(saveKinds()[name]);
    folders.prepare();
    const QList<State> allowed = folders.allowed(1);
    Oturum oturum = sessionIn(folders.dir.path());
    int refused = 0;
    for (;; ++refused) {
        disk.takeWrites(refused);
        try {
            folders.kind.save(oturum, 1);
            break;
        } catch (const DatabaseError &error) {
            QVERIFY2(error.text().contains(u"yer kalmadı"_s), qPrintable(error.text()));
        }
        disk.empty();
        QVERIFY(allowed.contains(Folders::state(folders.dir)));
    }
    QVERIFY(refused > 2 && !disk.wasFull());
    QCOMPARE(Folders::state(folders.dir), allowed.last());
    qInfo() << refused << "refused writes";
}

KUYUM_TEST(SaveKillTest)

} // namespace kuyum

#include "SaveKillTest.moc"
