#include "EntryControls.h"
#include "DateBox.h"
#include "Messages.h"
#include "RealBox.h"
#include "ScriptedMessages.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class EntryControlsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numericBox_data();
    void numericBox();
    void selectionOnEntry();
    void listSelection();
    void rowMarks();
    void idleMnemonicTypesNothing();
    void dateBoxTakesWhatIsTyped_data();
    void dateBoxTakesWhatIsTyped();
    void dateBoxStepsAndShowsACalendar();
};

void EntryControlsTest::numericBox_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("kept");
    QTest::addColumn<int>("refusals");
    QTest::newRow("letter after digits") << u"12a"_s << u"12"_s << 1;
    QTest::newRow("letter in front") << u"a5"_s << u"5"_s << 1;
    QTest::newRow("lone point") << u"."_s << u"."_s << 0;
    QTest::newRow("comma becomes a point") << u"3,25"_s << u"3.25"_s << 0;
    QTest::newRow("second comma") << u"3,2,"_s << u"3.2"_s << 1;
    QTest::newRow("many decimals") << u"0.123456789"_s << u"0.123456789"_s << 0;
}

void EntryControlsTest::numericBox()
{
    QFETCH(QString, keys);
    QFETCH(int, refusals);
    ScriptedMessages messages;
    QLineEdit box;
    keepNumeric(box, messages);
    for (int i = 0; i < refusals; ++i)
        messages.expect({.text = u"SAYISAL DEGER GIRIN..."_s, .icon = MessageIcon::Critical});
    QTest::keyClicks(&box, keys);
    messages.verify();
    QTEST(box.text(), "kept");
    QCOMPARE(box.cursorPosition(), box.text().size());
}

void EntryControlsTest::selectionOnEntry()
{
    QWidget window;
    QLineEdit before(&window);
    QLineEdit box(u"0123456789"_s, &window);
    box.setGeometry(0, 60, 200, 30);
    selectOnEntry(box);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    before.setFocus();
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(30, 15));
    QTRY_COMPARE(box.selectedText(), u"0123456789"_s);
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(31, 15));
    QCoreApplication::processEvents();
    QCOMPARE(box.selectedText(), QString());

    before.setFocus();
    box.setFocus();
    QCOMPARE(box.selectedText(), u"0123456789"_s);
    box.setCursorPosition(3);
    QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(&box, &back);
    QCOMPARE(box.selectedText(), QString());
}

void EntryControlsTest::listSelection()
{
    QComboBox list;
    list.addItem(u"admin"_s, 1);
    list.addItem(u"Admin"_s, 12);
    list.addItem(u"Admin"_s, 3);
    list.addItem(u"boş"_s);
    ComboSec(list, u"Admin"_s);
    QCOMPARE(list.currentIndex(), 1);
    ComboSec(list, u"ADMIN"_s);
    QCOMPARE(list.currentIndex(), 1);
    ComboSecNo(list, 3);
    QCOMPARE(list.currentIndex(), 2);
    ComboSecNo(list, 0); // no entry carries it; the last carries nothing
    QCOMPARE(list.currentIndex(), 2);
}

void EntryControlsTest::rowMarks()
{
    QTableWidget grid(2, 3);
    for (int column = 0; column < 3; ++column)
        grid.setItem(1, column, new QTableWidgetItem(u"x"_s));
    grid.setCurrentCell(1, 2);
    SatirYaziRenk(grid, QColor(255, 0, 0));
    QCOMPARE(grid.currentColumn(), 0);
    SatirArkaRenk(grid, QColor(255, 255, 0));
    for (int column = 0; column < 3; ++column) {
        const QTableWidgetItem *cell = grid.item(1, column);
        QCOMPARE(cell->foreground().color(), QColor(255, 0, 0));
        QVERIFY(cell->font().bold());
        QCOMPARE(cell->background().color(), QColor(255, 255, 0));
    }
    QVERIFY(grid.item(0, 0) == nullptr);

    SatirYaziRenk(grid);
    QVERIFY(!grid.item(1, 2)->data(Qt::ForegroundRole).isValid());
    QVERIFY(!grid.item(1, 2)->font().bold());
}

void EntryControlsTest::idleMnemonicTypesNothing()
{
    ignoreIdleMnemonics(*QCoreApplication::instance());
    QLineEdit box;
    const auto press = [&box](Qt::KeyboardModifiers modifiers) {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_K, modifiers, u"k"_s);
        QApplication::sendEvent(&box, &key);
        return box.text();
    };
    QCOMPARE(press(Qt::AltModifier), QString());
    QCOMPARE(press(Qt::ControlModifier | Qt::AltModifier), u"k"_s); // AltGr
    QCOMPARE(press(Qt::NoModifier), u"kk"_s);
}

void EntryControlsTest::dateBoxTakesWhatIsTyped_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QDate>("date");
    const QDate fifth(2027, 1, 5);
    for (const auto *keys : {"05.01.2027", "5.1.27", "5.1.2027", "5/1/2027", "05-01-27", "5,1,2027",
                             "050127", "05012027"})
        QTest::newRow(keys) << QString::fromLatin1(keys) << fifth;
    for (const auto *keys : {"", "5", "05.01", "05.01.", "05.01.2", "05.01.202", "05.01.0202",
                             "31.02.2027", "01.25.2027", "99999999", "5127"})
        QTest::newRow(qPrintable(u"no date: "_s + QString::fromLatin1(keys)))
            << QString::fromLatin1(keys) << QDate();
}

/// Typed over another date, with a real box that refuses.
void EntryControlsTest::dateBoxTakesWhatIsTyped()
{
    QFETCH(QString, keys);
    QFETCH(QDate, date);
    MessageBoxes messages;
    QWidget window;
    DateBox box(&window);
    QLineEdit other(&window);
    box.setDate(QDate(2026, 11, 23));
    keepDate(box, messages);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    other.setFocus();
    box.setFocus(Qt::TabFocusReason);
    if (keys.isEmpty())
        QTest::keyClick(&box, Qt::Key_Delete);
    QTest::keyClicks(&box, keys);
    const QString typed = box.text();
    QCOMPARE(box.date(), date);
    const RealBox answers;
    other.setFocus(Qt::TabFocusReason);
    QTRY_COMPARE(answers.shown(), date.isValid() ? 0 : 1);
    QTRY_COMPARE(window.focusWidget(), date.isValid() ? &other : &box);
    QCOMPARE(box.text(), date.isValid() ? u"05.01.2027"_s : typed);
    QCOMPARE(box.lastDate(), date.isValid() ? date : QDate(2026, 11, 23));
}

void EntryControlsTest::dateBoxStepsAndShowsACalendar()
{
    QWidget window;
    DateBox box(&window);
    box.setDate(QDate(2026, 12, 31));
    const QSignalSpy changes(&box, &DateBox::dateChanged);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    box.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&box, Qt::Key_Up);
    QCOMPARE(box.date(), QDate(2027, 1, 1));
    box.setCursorPosition(4);
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(box.date(), QDate(2026, 12, 1));
    QCOMPARE(changes.count(), 2);
    QTest::keyClick(&box, Qt::Key_F4);
    QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    QCOMPARE(box.date(), QDate(2026, 12, 2));
    QGuiApplication::clipboard()->setText(u"1/10/2027"_s);
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(box.date(), QDate(2027, 10, 1));
}

KUYUM_TEST(EntryControlsTest)

} // namespace kuyum

#include "EntryControlsTest.moc"
