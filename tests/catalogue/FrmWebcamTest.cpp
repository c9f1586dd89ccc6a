#include "FrmWebcam.h"
#include "CameraFrames.h"
#include "DefinitionFixture.h"
#include "PictureEntry.h"
#include "PictureFrames.h"
#include "Pictures.h"
#include "Tanim_Kalip.h"
#include "Tanim_Model.h"
#include "TestRegistry.h"

#include <QClipboard>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

const ScriptedMessages::Expected noCamera{
    .text = u"WebCam Bulunamadi...."_s, .title = u"Webcam"_s, .icon = MessageIcon::Critical};

FrmWebcam *openScreen()
{
    return qobject_cast<FrmWebcam *>(QApplication::activeModalWidget());
}

/// A definition screen with a camera that shows a picture file.
template <typename Screen>
struct Pictured : DefinitionFixture<Screen>
{
    Pictured()
    {
        QDir().mkpath(this->oturum.ResimYolu + u"/KLP"_s);
        QVERIFY(plainPicture(Qt::blue, {320, 240}).save(picture));
        this->camera = [this](QWidget *parent, const QString &Secilen) {
            mode = Secilen;
            return webcamFrame({this->messages, settings, openSource}, parent, Secilen);
        };
        this->open();
    }

    /// Presses cmdCek and, on the screen that opens, does what was told.
    void shoot(const std::function<void(FrmWebcam &)> &act)
    {
        bool seen = false;
        QTimer begin;
        QObject::connect(&begin, &QTimer::timeout, &begin, [&] {
            FrmWebcam *screen = openScreen();
            if (screen == nullptr ||
                !screen->findChild<QPushButton *>(u"cmdResimCopy"_s)->isEnabled())
                return;
            begin.stop();
            seen = true;
            const auto close = qScopeGuard([screen] { screen->reject(); });
            act(*screen);
        });
        begin.start(5);
        this->press(Qt::Key_R, u"cmdCek"_s);
        QVERIFY(seen);
        this->screen->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(this->screen.get()));
    }
    static void take(FrmWebcam &screen) { QTest::keyClick(&screen, Qt::Key_Return); }

    QString picture = this->dir.filePath(u"kamera.png"_s);
    QString mode;
    QSettings settings{this->dir.filePath(u"ayar.ini"_s), QSettings::IniFormat};
    FrameSourceOpener openSource = [this](int) { return std::make_unique<PictureFrames>(picture); };
};

/// Held by another program: it fails while it is started.
struct HeldCamera : PictureFrames
{
    using PictureFrames::PictureFrames;
    bool start() override
    {
        Q_EMIT lost();
        return true;
    }
};

ScriptedMessages::Expected overwrite(MessageAnswer answer)
{
    return {.text = u"Resim Mevcut. Uzerine Yazılsınmı?"_s,
            .answer = answer,
            .title = u"Resim Kayıt"_s,
            .defaultAnswer = MessageAnswer::No};
}

} // namespace

class FrmWebcamTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aMoldsPictureFromTheCameraToTheDisk()
    {
        Pictured<Tanim_Kalip> on;
        const QString file = on.oturum.ResimYolu + u"/KLP/K-1.jpg"_s;
        for (const QColor &color : {QColor(Qt::blue), QColor(Qt::green)}) {
            QVERIFY(plainPicture(color, {320, 240}).save(on.picture));
            on.enter({u"K-1"_s});
            on.shoot(on.take);
            QCOMPARE(on.mode, u"KALIP CEK"_s);
            QVERIFY(QGuiApplication::clipboard()->image().pixelColor(9, 9) == color);
            if (color == Qt::green)
                on.messages.expect(overwrite(MessageAnswer::Yes));
            on.press(Qt::Key_K, u"cmdKayit"_s);
            on.messages.verify();
            QVERIFY(isJpegOf(file, color));
        }
    }

    void aModelsPicture()
    {
        Pictured<Tanim_Model> on;
        on.enter({u"boş"_s});
        on.control<QComboBox>(u"UrunTipi"_s)->setCurrentText(u"Yüzük"_s);
        on.enter();
        QVERIFY(on.isEditing());
        on.shoot(on.take);
        QCOMPARE(on.mode, u"MODEL CEK"_s);
        QVERIFY(on.control<PictureEntry>(u"Resim"_s)->isNew());
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QVERIFY(isJpegOf(on.oturum.ResimYolu + u"/boş.jpg"_s, Qt::blue));
    }

    void withoutACameraThePictureStays()
    {
        Pictured<Tanim_Kalip> on;
        QVERIFY(plainPicture(Qt::red).save(on.oturum.ResimYolu + u"/KLP/K-1.jpg"_s));
        on.enter({u"K-1"_s});
        const QList<FrameSourceOpener> none = {
            [](int) { return nullptr; },
            [](int) { return std::make_unique<PictureFrames>(u"yok.png"_s); }, openCamera};
        for (const FrameSourceOpener &source : none) {
            on.openSource = source;
            on.messages.expect(noCamera);
            on.press(Qt::Key_R, u"cmdCek"_s);
            on.messages.verify();
        }
        QVERIFY(on.control<PictureEntry>(u"KalipResim"_s)->holdsPicture());
        QVERIFY(!on.control<PictureEntry>(u"KalipResim"_s)->isNew());
    }

    void aFrameForNobodyGoesToTheClipboardOnly()
    {
        Pictured<Tanim_Kalip> on;
        on.camera = [&](QWidget *parent, const QString &) {
            return webcamFrame({on.messages, on.settings, on.openSource}, parent, u"BASKA"_s);
        };
        on.open();
        on.enter({u"K-1"_s});
        QGuiApplication::clipboard()->clear();
        on.shoot(on.take);
        QCOMPARE(QGuiApplication::clipboard()->image().size(), QSize(320, 240));
        QVERIFY(!on.control<PictureEntry>(u"KalipResim"_s)->holdsPicture());
    }

    void unpluggedWhileOpen()
    {
        Pictured<Tanim_Kalip> on;
        on.enter({u"K-1"_s});
        on.messages.expect(noCamera);
        on.shoot([&](FrmWebcam &screen) {
            // The dialog of the formats goes with the camera.
            QTimer::singleShot(0, &screen, [&on] { QFile::remove(on.picture); });
            QTest::mouseClick(screen.findChild<QPushButton *>(u"Ayarla_Cmd"_s), Qt::LeftButton);
            QCOMPARE(on.messages.remaining(), 0);
        });
        on.messages.verify();
        QVERIFY(!on.control<PictureEntry>(u"KalipResim"_s)->holdsPicture());
    }

    void aHeldCameraSaysSoAtOnce()
    {
        const QTemporaryDir dir;
        QSettings settings(dir.filePath(u"ayar.ini"_s), QSettings::IniFormat);
        ScriptedMessages messages;
        messages.expect(noCamera);
        FrmWebcam screen(
            {messages, settings, [](int) { return std::make_unique<HeldCamera>(QString()); }});
        QVERIFY(screen.Baglan());
        QTRY_COMPARE(messages.remaining(), 0);
    }

    void savesTheFrameAndChangesTheFormat()
    {
        Pictured<Tanim_Kalip> on;
        on.enter({u"K-1"_s});
        QString file = on.dir.filePath(u"kare.png"_s);
        on.shoot([&](FrmWebcam &screen) {
            screen.setFileChooser([&](QWidget *) { return file; });
            const auto press = [&](const QString &name) {
                QTest::mouseClick(screen.findChild<QPushButton *>(name), Qt::LeftButton);
            };
            press(u"cmdKaydet"_s);
            QVERIFY(isJpegOf(file + u".jpg"_s, Qt::blue)); // named after what it is
            file = on.dir.filePath(u"yok/kare.jpg"_s);
            on.messages.expect(
                {.text = u"Problem saving frame"_s, .icon = MessageIcon::Information});
            press(u"cmdKaydet"_s);
            on.messages.verify();

            // The second format; the screen gets as small as its image.
            QTimer::singleShot(0, &screen, [] {
                QWidget *list = QApplication::activeModalWidget()->focusWidget();
                QTest::keyClick(list, Qt::Key_Down);
                QTest::keyClick(list, Qt::Key_Return);
            });
            const int height = screen.height();
            press(u"Ayarla_Cmd"_s);
            QTRY_VERIFY(screen.height() < height);
            QTest::keyClick(&screen, Qt::Key_Escape);
        });
        QVERIFY(!on.control<PictureEntry>(u"KalipResim"_s)->holdsPicture());
    }

    void keepsPlaceAndColour()
    {
        const QTemporaryDir dir;
        QSettings settings(dir.filePath(u"ayar.ini"_s), QSettings::IniFormat);
        settings.setValue(u"driver/index"_s, u"3"_s);
        ScriptedMessages messages;
        const QString picture = dir.filePath(u"kamera.png"_s);
        QVERIFY(plainPicture(Qt::red).save(picture));
        int index = -1;
        const WebcamServices services{messages, settings, [&](int i) {
                                          index = i;
                                          return std::make_unique<PictureFrames>(picture);
                                      }};
        const auto show = [&](const std::function<void(FrmWebcam &)> &act) {
            FrmWebcam screen(services);
            QVERIFY(screen.Baglan());
            screen.show();
            act(screen);
            screen.reject();
        };
        show([](FrmWebcam &screen) {
            QCOMPARE(screen.palette().color(QPalette::Window), QColor(0x40, 0x40, 0x40));
            screen.setGeometry({QPoint(120, 90), screen.size()});
        });
        QCOMPARE(index, 3);
        QCOMPARE(settings.value(u"preferences/left"_s).toInt(), 120);
        settings.setValue(u"preferences/backcolor"_s, u"&HFF8000"_s); // blue, green, red
        for (int time = 0; time < 2; ++time) {
            show([](FrmWebcam &screen) {
                QCOMPARE(screen.palette().color(QPalette::Window), QColor(0, 0x80, 0xff));
                QCOMPARE(screen.geometry().topLeft(), QPoint(120, 90));
            });
        }
        settings.setValue(u"preferences/left"_s, 90000); // a screen that is gone
        show([](FrmWebcam &screen) { QVERIFY(screen.x() < 5000); });
    }
};

KUYUM_TEST(FrmWebcamTest)

} // namespace kuyum

#include "FrmWebcamTest.moc"
