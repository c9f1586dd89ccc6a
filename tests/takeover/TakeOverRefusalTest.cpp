#include "TestRegistry.h"

#include "LegacySample.h"
#include "TakeOver.h"

#include <QDir>
#include <QRandomGenerator>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

/// Bad input: said clearly, nothing left, and this process still here.
class TakeOverRefusalTest : public QObject
{
    Q_OBJECT

private:
    static QString refusalOf(const QString &source, const QString &target);

private Q_SLOTS:
    void pathsThatAreNoFile();
    void filesThatAreNoDatabase();
    void cutOffFiles();
    void lockedFiles();
    void hiddenTables();
    void flippedBytes();
    void leftoversOfAKilledRunDoNotMatter();
    void anUnreadableFileIsGivenUp();
};

QString TakeOverRefusalTest::refusalOf(const QString &source, const QString &target)
{
    try {
        TakeOver(source, target).run();
        return {};
    } catch (const DatabaseError &error) {
        return error.text();
    }
}

void TakeOverRefusalTest::pathsThatAreNoFile()
{
    const QTemporaryDir folder;
    const QString target = folder.filePath(u"hedef.kuyum"_s);
    QVERIFY(refusalOf(folder.filePath(u"yok.mdb"_s), target).startsWith(u"Dosya bulunamadı"_s));
    QVERIFY(refusalOf(folder.path(), target).startsWith(u"Bu bir dosya değil"_s));
    QFile empty(folder.filePath(u"bos.mdb"_s));
    QVERIFY(empty.open(QFile::WriteOnly));
    empty.close();
    QVERIFY(refusalOf(empty.fileName(), target).startsWith(u"Dosya boş"_s));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{u"bos.mdb"_s});

    LegacySample sample(u"sirket.mdb"_s);
    if (!sample.isPresent())
        QSKIP("no example files");
    QCOMPARE(sample.refusal(), QString());
    QVERIFY(refusalOf(sample.source(), sample.target()).startsWith(u"Hedef dosya zaten var"_s));
    QVERIFY(refusalOf(sample.source(), folder.filePath(u"yok/hedef.kuyum"_s))
                .startsWith(u"Hedef klasör bulunamadı"_s));
}

void TakeOverRefusalTest::filesThatAreNoDatabase()
{
    LegacySample sample(u"sirket.mdb"_s);
    QByteArray jpeg("\xff\xd8\xff\xe0", 4);
    jpeg.resize(20000, 'x');
    for (const QByteArray &bytes : {QByteArray("kısa bir metin"), QByteArray(100000, '\0'), jpeg,
                                    QByteArray("SQLite format 3\0", 16) + QByteArray(8192, '\1')}) {
        sample.bytes = bytes;
        QVERIFY(sample.refusal().startsWith(u"Dosya bir Access (.mdb) veri tabanı değil"_s));
        QCOMPARE(sample.leftBehind(), QStringList());
    }
}

void TakeOverRefusalTest::cutOffFiles()
{
    LegacySample sample(u"atolye.mdb"_s);
    if (!sample.isPresent())
        QSKIP("no example files");
    const QByteArray whole = sample.bytes;
    for (const qsizetype length : {qsizetype(100), qsizetype(4096), qsizetype(5 * 4096),
                                   whole.size() / 2, whole.size() - 4096, whole.size() - 1}) {
        sample.bytes = whole.left(length);
        QVERIFY2(sample.refusal().startsWith(u"Dosya hasarlı"_s), qPrintable(sample.refusal()));
        QCOMPARE(sample.leftBehind(), QStringList());
    }
}

void TakeOverRefusalTest::lockedFiles()
{
    LegacySample sample(u"sirket.mdb"_s);
    if (!sample.isPresent())
        QSKIP("no example files");
    const QByteArray open = sample.bytes;
    // The first page's mask is laid over both: a changed bit comes through.
    for (const qsizetype keyOrPassword : {0x3e, 0x42, 0x50}) {
        sample.bytes = open;
        sample.bytes[keyOrPassword] = char(sample.bytes[keyOrPassword] ^ 0x15);
        QVERIFY2(sample.refusal().startsWith(u"Dosya şifreli"_s), qPrintable(sample.refusal()));
        QCOMPARE(sample.leftBehind(), QStringList());
    }
}

/// A table that the file's own list takes for something else would be missing
/// without a word.
void TakeOverRefusalTest::hiddenTables()
{
    LegacySample sample(u"atolye.mdb"_s);
    if (!sample.isPresent())
        QSKIP("no example files");
    const qsizetype list = 2 * LegacySample::pageSize;
    const qsizetype orders = sample.definitionOf({u"SipTrh"_s, u"TesTrh"_s});
    bool hidden = false;
    for (const LegacySample::Row &row : sample.places(list)) {
        const qsizetype id = sample.fixedField(row, list, u"Id"_s);
        if (sample.marksOf(row) == 0 &&
            qsizetype(sample.number(id, 4)) * LegacySample::pageSize == orders) {
            constexpr quint32 container = 3;
            sample.setNumber(sample.fixedField(row, list, u"Type"_s), 2, container);
            hidden = true;
        }
    }
    QVERIFY(hidden);
    QVERIFY(sample.refusal().contains(u"Tablo listesi"_s));
}

void TakeOverRefusalTest::flippedBytes()
{
    LegacySample sample(u"ikinci.mdb"_s);
    if (!sample.isPresent())
        QSKIP("no example files");
    const QByteArray whole = sample.bytes;
    QRandomGenerator random(20);
    for (int run = 0; run < 30; ++run) {
        sample.bytes = whole;
        // Heads of pages hold what leads a reader on; the rest is mostly values.
        for (int flips = 1 << random.bounded(6); flips > 0; --flips) {
            const auto page = random.bounded(quint32(whole.size() / LegacySample::pageSize));
            const auto place = random.bounded(run % 2 == 0 ? 64u : 4096u);
            sample.bytes[qsizetype(page) * LegacySample::pageSize + qsizetype(place)] =
                char(random.bounded(256));
        }
        const QString refusal = sample.refusal();
        QCOMPARE(sample.leftBehind(),
                 refusal.isEmpty() ? QStringList{u"hedef.kuyum"_s} : QStringList());
        QFile::remove(sample.target());
    }
}

void TakeOverRefusalTest::leftoversOfAKilledRunDoNotMatter()
{
    LegacySample sample(u"sirket.mdb"_s);
    if (!sample.isPresent())
        QSKIP("no example files");
    QFile part(sample.target() + u".aktarim"_s);
    QVERIFY(part.open(QFile::WriteOnly) && part.write("half of a file") > 0);
    part.close();
    QCOMPARE(sample.refusal(), QString());
    QCOMPARE(sample.leftBehind(), QStringList{u"hedef.kuyum"_s});
}

void TakeOverRefusalTest::anUnreadableFileIsGivenUp()
{
    LegacySample sample(u"sirket.mdb"_s);
    if (!sample.isPresent())
        QSKIP("no example files");
    QCOMPARE(sample.refusal(), QString());
    QFile::remove(sample.target());
    // A program that makes no progress and one that ends at once.
    TakeOver ends(sample.source(), sample.target(), u"/nirede/boyle/program"_s);
    QVERIFY_THROWS_EXCEPTION(DatabaseError, ends.run());
    TakeOver hangs(sample.source(), sample.target());
    hangs.setStallLimit(1);
    try {
        hangs.run();
        QFAIL("nothing was noticed");
    } catch (const DatabaseError &error) {
        QVERIFY2(error.text().contains(u"ilerleme durdu"_s), error.what());
    }
    QCOMPARE(sample.leftBehind(), QStringList());
}

KUYUM_TEST(TakeOverRefusalTest)

} // namespace kuyum

#include "TakeOverRefusalTest.moc"
