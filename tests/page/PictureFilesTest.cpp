#include "PictureFiles.h"
#include "FullDisk.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

QByteArray encoded(int width, int height, const char *format)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x * 7 % 256, y * 5 % 256, (x * y) % 256));
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

QByteArray jpeg(int width, int height)
{
    return encoded(width, height, "JPEG");
}

/// The same picture with a camera's note that it must be turned (EXIF tag 0x112).
QByteArray turnedJpeg(int width, int height, char orientation)
{
    QByteArray exif = "Exif"_ba;
    exif += QByteArray::fromHex("0000 4d4d002a 00000008 0001 0112 0003 00000001 00");
    exif += orientation;
    exif += QByteArray::fromHex("0000 00000000");
    const int length = int(exif.size()) + 2;
    QByteArray segment("\xff\xe1", 2);
    segment += char(length >> 8);
    segment += char(length & 0xff);
    return jpeg(width, height).insert(2, segment + exif);
}

} // namespace

class PictureFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_folder = m_dir->filePath(u"resim"_s);
        QVERIFY(QDir().mkpath(m_folder + u"/KLP"_s));
        QVERIFY(QDir().mkpath(m_folder + u"/yzk"_s));
    }

    void findsWithoutRegardToCase()
    {
        write(u"resim/Ilgın 1.JPG"_s, "x");
        write(u"resim/yzk/a5.jpg"_s, "x");
        write(u"resim/KLP/ÇB017.jpg"_s, "x");
        QCOMPARE(modelPicturePath(m_folder, u"ilgın 1 "_s, QString()),
                 m_folder + u"/Ilgın 1.JPG"_s);
        QCOMPARE(modelPicturePath(m_folder, u"A5"_s, u"YZK"_s), m_folder + u"/yzk/a5.jpg"_s);
        QCOMPARE(moldPicturePath(m_folder, u"çb017"_s), m_folder + u"/KLP/ÇB017.jpg"_s);
        QCOMPARE(modelPicturePath(m_folder, u"A5"_s, u"KLY"_s), QString());

        // The one in the root folder comes first.
        write(u"resim/A5.jpg"_s, "x");
        QCOMPARE(modelPicturePath(m_folder, u"A5"_s, u"YZK"_s), m_folder + u"/A5.jpg"_s);
    }

    void neverLeavesTheFolder()
    {
        write(u"secret.jpg"_s, "x");
        write(u"resim/yzk/a5.jpg"_s, "x");
        QVERIFY(QFileInfo::exists(m_folder + u"/../secret.jpg"_s));
        for (const QString &code : {u"../secret"_s, u"..\\secret"_s, u"yzk/../../secret"_s,
                                    m_dir->filePath(u"secret"_s), u"yzk/a5"_s, QString()}) {
            QCOMPARE(modelPicturePath(m_folder, code, u"yzk"_s), QString());
            QCOMPARE(moldPicturePath(m_folder, code), QString());
        }
        QCOMPARE(modelPicturePath(m_folder, u"secret"_s, u".."_s), QString());
        QCOMPARE(modelPicturePath(QString(), u"secret"_s, QString()), QString());
    }

    void makesSmallerAndTurnsUpright()
    {
        write(u"wide.jpg"_s, jpeg(400, 200));
        QCOMPARE(loadPicture(m_dir->filePath(u"wide.jpg"_s), {100, 100}).image.size(),
                 QSize(100, 50));
        QCOMPARE(loadPicture(m_dir->filePath(u"wide.jpg"_s), {900, 900}).image.size(),
                 QSize(400, 200));

        write(u"turned.jpg"_s, turnedJpeg(400, 200, 6));
        const PictureResult turned = loadPicture(m_dir->filePath(u"turned.jpg"_s), {100, 100});
        QCOMPARE(turned.error, QString());
        QCOMPARE(turned.image.size(), QSize(50, 100));
    }

    void refusesWhatIsNoWholePicture_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        const QByteArray whole = jpeg(600, 600);
        QByteArray huge = jpeg(8, 8);
        const qsizetype frame = huge.indexOf("\xff\xc0");
        huge.replace(frame + 5, 4, QByteArray("\x27\x10\x4e\x20", 4)); // 20000 x 10000
        QTest::newRow("empty") << QByteArray() << u"Dosya bir resim değil."_s;
        QTest::newRow("text") << "Bu bir resim değildir"_ba << u"Dosya bir resim değil."_s;
        QTest::newRow("head only") << whole.first(40) << u"Resim dosyası bozuk."_s;
        QTest::newRow("half") << whole.first(whole.size() / 2)
                              << u"Resim dosyası eksik, sonu kesilmiş."_s;
        QTest::newRow("last byte") << whole.chopped(1) << u"Resim dosyası eksik, sonu kesilmiş."_s;
        QByteArray unpacked = encoded(8, 8, "BMP");
        unpacked.replace(18, 8, QByteArray("\x70\x17\0\0\x70\x17\0\0", 8)); // 6000 x 6000
        QTest::newRow("more than is decoded")
            << unpacked << u"Resim çok büyük (6000 x 6000 nokta)."_s;
        QTest::newRow("huge") << huge << u"Resim çok büyük (20000 x 10000 nokta)."_s;
    }
    void refusesWhatIsNoWholePicture()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        write(u"b.jpg"_s, bytes);
        const PictureResult result = loadPicture(m_dir->filePath(u"b.jpg"_s), {100, 100});
        QVERIFY(result.image.isNull());
        QCOMPARE(result.error, u"b.jpg: "_s + reason);
    }

    void refusesWhatIsNoFile()
    {
        QCOMPARE(loadPicture(m_folder, {9, 9}).error, u"resim: Resim dosyası bulunamadı."_s);
    }

    void savesRealJpegs()
    {
        QImage image(30, 20, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        const QString path = m_dir->filePath(u"Ağaç.jpg"_s);
        savePicture(image, path);
        QCOMPARE(read(path).first(3), QByteArray("\xff\xd8\xff"));
        const QImage back = loadPicture(path, {99, 99}).image;
        QCOMPARE(back.size(), image.size());
        QCOMPARE(back.pixelColor(10, 10), QColor(Qt::white)); // never black

        // How the camera was held is in the picture itself from then on.
        write(u"turned.jpg"_s, turnedJpeg(400, 200, 6));
        savePicture(loadPicture(m_dir->filePath(u"turned.jpg"_s), {900, 900}).image, path);
        QVERIFY(!read(path).contains("Exif"));
        QCOMPARE(QImageReader(path).size(), QSize(200, 400));
    }

    void keepsTheOldFileWhenTheDiskIsFull()
    {
#ifdef Q_OS_UNIX
        const QString path = m_dir->filePath(u"eski.jpg"_s);
        write(u"eski.jpg"_s, jpeg(40, 40));
        const QByteArray old = read(path);
        QString told;
        {
            const FileSizeLimit full(1000);
            try {
                savePicture(QImage::fromData(jpeg(600, 600)), path);
            } catch (const std::runtime_error &error) {
                told = QString::fromUtf8(error.what());
            }
        }
        QVERIFY2(told.startsWith(u"Resim dosyası yazılamadı: "_s), qPrintable(told));
        QCOMPARE(read(path), old);
        QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files), QStringList{u"eski.jpg"_s});
#else
        QSKIP("needs a limit on file sizes");
#endif
    }

    void tellsWhereANewPictureGoes()
    {
        QCOMPARE(modelPictureTarget(m_folder, u"A5"_s, u"YZK"_s), m_folder + u"/yzk/A5.jpg"_s);
        QCOMPARE(modelPictureTarget(m_folder, u"A5"_s, u"KLY"_s), m_folder + u"/A5.jpg"_s);
        QVERIFY(!QFileInfo::exists(m_folder + u"/KLY"_s));
        write(u"resim/yzk/a5.JPG"_s, "x");
        QCOMPARE(modelPictureTarget(m_folder, u"A5"_s, u"YZK"_s), m_folder + u"/yzk/a5.JPG"_s);

        QVERIFY(QDir(m_folder).rmdir(u"KLP"_s));
        QCOMPARE(moldPictureTarget(m_folder, u" K-1"_s), m_folder + u"/KLP/K-1.jpg"_s);
        QVERIFY(QFileInfo(m_folder + u"/KLP"_s).isDir());

        for (const QString &code : {u"A/5"_s, u"..\\A5"_s, u".."_s, u"C:A5"_s, QString()}) {
            QVERIFY_THROWS_EXCEPTION(std::runtime_error,
                                     modelPictureTarget(m_folder, code, u"YZK"_s));
            QVERIFY_THROWS_EXCEPTION(std::runtime_error, moldPictureTarget(m_folder, code));
        }
        QVERIFY_THROWS_EXCEPTION(std::runtime_error,
                                 moldPictureTarget(m_folder + u"/yok"_s, u"K-1"_s));
        QVERIFY(!QFileInfo::exists(m_folder + u"/yok"_s));
    }

private:
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    }

    void write(const QString &name, const QByteArray &bytes)
    {
        QFile file(m_dir->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_folder;
};

KUYUM_TEST(PictureFilesTest)

} // namespace kuyum

#include "PictureFilesTest.moc"
