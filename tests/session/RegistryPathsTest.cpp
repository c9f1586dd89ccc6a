#include "RegistryPaths.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class RegistryPathsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void resolves_data();
    void resolves();
    void databaseWhoseNameDiffersInCase();

private:
    QTemporaryDir m_root;
};

void RegistryPathsTest::initTestCase()
{
    const QDir root(m_root.path());
    QVERIFY(root.mkpath(u"Kayıt/Resim/KLP"_s) && root.mkpath(u"Gelen"_s));
    for (const QString &name : {u"Kayıt/Atolye.mdb"_s, u"Kayıt/ikinci.kuyum"_s}) {
        QFile file(root.filePath(name));
        QVERIFY(file.open(QFile::WriteOnly));
    }
}

void RegistryPathsTest::resolves_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("place");
    QTest::newRow("file") << u"c:\\database\\Atolye.mdb"_s << u"Kayıt/Atolye.mdb"_s;
    QTest::newRow("other case") << u"C:\\DATABASE\\ATOLYE.MDB"_s << u"Kayıt/Atolye.mdb"_s;
    QTest::newRow("folder, slash at its end")
        << u"c:/database/resim\\klp\\"_s << u"Kayıt/Resim/KLP"_s;
    QTest::newRow("database itself") << u"c:\\Database"_s << u"Kayıt"_s;
    QTest::newRow("beside database") << u"c:\\gelen"_s << u"Gelen"_s;
    QTest::newRow("not there") << u"c:\\database\\Yok\\x.mdb"_s << u"Kayıt/Yok/x.mdb"_s;
    QTest::newRow("name that only begins so") << u"c:\\database2\\x"_s << u"database2/x"_s;
    QTest::newRow("up and down") << u"c:\\database\\resim\\..\\atolye.mdb"_s
                                 << u"Kayıt/Atolye.mdb"_s;
    QTest::newRow("never above") << u"c:\\..\\..\\gelen"_s << u"Gelen"_s;
    QTest::newRow("relative") << u"atolye.mdb"_s << u"Kayıt/Atolye.mdb"_s;
}

void RegistryPathsTest::resolves()
{
    QFETCH(QString, path);
    QFETCH(QString, place);
    const RegistryPaths paths(m_root.filePath(u"Kayıt/sirket.mdb"_s));
    QCOMPARE(paths.resolve(path), m_root.filePath(place));
    QCOMPARE(paths.resolve(u"  "_s), QString());
    QCOMPARE(paths.resolve(u"\\\\sunucu\\pay"_s), u"//sunucu/pay"_s);
    QCOMPARE(paths.resolve(u"d:\\veri\\x.mdb"_s), u"d:/veri/x.mdb"_s);
    QCOMPARE(paths.resolve(m_root.filePath(u"gelen"_s)), m_root.filePath(u"Gelen"_s));
}

void RegistryPathsTest::databaseWhoseNameDiffersInCase()
{
    const RegistryPaths paths(m_root.filePath(u"Kayıt/sirket.mdb"_s));
    QCOMPARE(paths.resolveDatabase(u"c:\\database\\ATOLYE.mdb"_s),
             m_root.filePath(u"Kayıt/Atolye.mdb"_s));
    // The legacy file was thrown away after its take-over.
    QCOMPARE(paths.resolveDatabase(u"c:\\database\\IKINCI.MDB"_s),
             m_root.filePath(u"Kayıt/ikinci.kuyum"_s));
}

KUYUM_TEST(RegistryPathsTest)

} // namespace kuyum

#include "RegistryPathsTest.moc"
