#include "PictureEntry.h"

#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// What the box said, and what it asked for.
struct Box
{
    Box()
    {
        entry.setChooser([this](QWidget *) { return chosen; });
        QObject::connect(&entry, &PictureEntry::refused, &entry,
                         [this](const QString &why) { refusals.append(why); });
        entry.resize(200, 200);
        entry.show();
    }

    void drop(const QMimeData &data)
    {
        QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.setAccepted(false);
        QApplication::sendEvent(&entry, &enter);
        if (!enter.isAccepted())
            return;
        QDropEvent dropped(QPointF(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&entry, &dropped);
    }

    PictureEntry entry;
    QString chosen;
    QStringList refusals;
};

} // namespace

class PictureEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }
    void takesFromFileDropAndClipboard();
    void refusesAtOnceAndKeepsWhatItShows();
    void theStoredPictureIsNotNew();

private:
    QString saved(const QString &name, QSize size)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::darkYellow);
        const QString path = m_dir->filePath(name);
        image.save(path);
        return path;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void PictureEntryTest::takesFromFileDropAndClipboard()
{
    Box box;
    box.chosen = saved(u"büyük.png"_s, {5000, 1000});
    QTest::keyClick(&box.entry, Qt::Key_Return);
    QCOMPARE(box.entry.newPicture().size(), QSize(2500, 500));
    QVERIFY(box.entry.pixmap().width() <= 200);

    QMimeData file;
    file.setUrls({QUrl::fromLocalFile(saved(u"a b.bmp"_s, {30, 40}))});
    box.drop(file);
    QCOMPARE(box.entry.newPicture().size(), QSize(30, 40));

    QMimeData image; // a browser's: the address on the net, and the picture itself
    image.setUrls({QUrl(u"https://example.invalid/a.png"_s)});
    image.setImageData(QImage(50, 60, QImage::Format_RGB32));
    box.drop(image);
    QCOMPARE(box.entry.newPicture().size(), QSize(50, 60));

    QApplication::clipboard()->setImage(QImage(70, 80, QImage::Format_RGB32));
    QTest::keyClick(&box.entry, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(box.entry.newPicture().size(), QSize(70, 80));
    QCOMPARE(box.refusals, QStringList());
}

void PictureEntryTest::refusesAtOnceAndKeepsWhatItShows()
{
    Box box;
    box.chosen = saved(u"iyi.png"_s, {10, 10});
    QTest::keyClick(&box.entry, Qt::Key_Return);

    box.chosen = m_dir->filePath(u"kırık.jpg"_s);
    QFile broken(box.chosen);
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("resim değil");
    broken.close();
    QTest::keyClick(&box.entry, Qt::Key_Return);

    // A bitmap of 200 megapixels of which only the head is there.
    QByteArray head =
        QByteArray::fromHex("424d36000000000000003600000028000000204e000010270000"
                            "01001800000000000000000000000000000000000000000000000000");
    QMimeData huge;
    QFile file(m_dir->filePath(u"dev.bmp"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(head);
    file.close();
    huge.setUrls({QUrl::fromLocalFile(file.fileName())});
    box.drop(huge);

    QApplication::clipboard()->setText(u"yazı"_s);
    QTest::keyClick(&box.entry, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(box.refusals, QStringList({u"kırık.jpg: Dosya bir resim değil."_s,
                                        u"dev.bmp: Resim çok büyük (20000 x 10000 nokta)."_s,
                                        u"Panodaki ya da bırakılan veri bir resim değil."_s}));
    QCOMPARE(box.entry.newPicture().size(), QSize(10, 10));
}

void PictureEntryTest::theStoredPictureIsNotNew()
{
    Box box;
    box.entry.take(QImage(10, 10, QImage::Format_RGB32));
    QVERIFY(box.entry.isNew());
    box.entry.showStored(saved(u"eski.png"_s, {20, 20}));
    QVERIFY(!box.entry.isNew());
    QVERIFY(box.entry.holdsPicture());
    box.entry.showStored(m_dir->filePath(u"yok.jpg"_s));
    QVERIFY(!box.entry.holdsPicture());
    box.entry.showStored({});
    QVERIFY(!box.entry.holdsPicture());
    QVERIFY(box.entry.pixmap().isNull());
}

KUYUM_TEST(PictureEntryTest)

} // namespace kuyum

#include "PictureEntryTest.moc"
