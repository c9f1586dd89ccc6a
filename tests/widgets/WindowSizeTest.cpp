#include "WindowSize.h"
#include "TestRegistry.h"
#include "WheelGuard.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// A window of the program's own.
class Pencere : public QDialog
{
    Q_OBJECT

public:
    explicit Pencere(QSize content = {200, 100})
    {
        auto *layout = new QVBoxLayout(this);
        first = new QLineEdit;
        last = new QLineEdit;
        last->setMinimumHeight(content.height());
        last->setMinimumWidth(content.width());
        layout->addWidget(first);
        layout->addWidget(last);
        resize(content);
    }

    QLineEdit *first;
    QLineEdit *last;
};

} // namespace

class WindowSizeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        static QTemporaryDir dir; // outlive the windows of the other tests
        static QSettings settings(dir.filePath(u"ayarlar.ini"_s), QSettings::IniFormat);
        m_settings = &settings;
        guardBoxesFromWheel(*qApp);
        rememberWindows(*qApp, settings);
    }

    void opensWhereItWasLeft()
    {
        const QRect place(40, 70, 320, 240);
        const QString key = u"pencere/Pencere/yer"_s;
        Pencere().show();
        {
            Pencere window;
            window.show();
            window.setGeometry(place);
            window.hide();
        }
        for (int time = 0; time < 3; ++time) {
            Pencere window;
            window.show();
            QCOMPARE(window.geometry(), place);
            window.hide();
        }
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        m_settings->setValue(key, QRect(screen.right() - 100, screen.bottom() - 100, 900, 9000));
        Pencere window;
        window.show();
        QVERIFY(screen.contains(window.geometry()));
        window.hide();
        m_settings->setValue(key, QRect(screen.right() + 5000, 40, 320, 240));
        Pencere elsewhere;
        elsewhere.show();
        QVERIFY(screen.contains(elsewhere.geometry()));
    }

    void contentLargerThanTheScreenScrolls()
    {
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        Pencere window(screen.size() * 2);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QVERIFY(screen.contains(window.geometry()));
        QVERIFY(window.first->visibleRegion().boundingRect().height() == window.first->height());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(window.last->hasFocus());
        QVERIFY(window.last->visibleRegion().boundingRect().bottom() > screen.height() / 2);
    }

    void wheelScrollsThePageNotTheBox()
    {
        QScrollArea page;
        auto *content = new QWidget;
        content->setFixedSize(250, 2000);
        auto *list = new QComboBox(content);
        list->addItems({u"a"_s, u"b"_s, u"c"_s});
        auto *number = new QSpinBox(content);
        number->setGeometry(0, 60, 80, 30);
        auto *other = new QLineEdit(content);
        other->setGeometry(0, 120, 80, 30);
        page.setWidget(content);
        page.resize(300, 200);
        page.show();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        other->setFocus();
        for (QWidget *box : std::initializer_list<QWidget *>{list, number}) {
            page.verticalScrollBar()->setValue(0);
            const QPoint middle = box->rect().center();
            QWheelEvent wheel(middle, box->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QSpontaneKeyEvent::setSpontaneous(&wheel);
            qApp->notify(box, &wheel); // sent, it would not be the user's
            QVERIFY(page.verticalScrollBar()->value() > 0);
            QVERIFY(other->hasFocus());
        }
        QCOMPARE(list->currentIndex(), 0);
        QCOMPARE(number->value(), 0);
    }

private:
    QSettings *m_settings = nullptr;
};

KUYUM_TEST(WindowSizeTest)

} // namespace kuyum

#include "WindowSizeTest.moc"
