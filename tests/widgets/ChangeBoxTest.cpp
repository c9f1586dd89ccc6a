#include "ChangeBox.h"
#include "TestRegistry.h"
#include "Typing.h"

#include <QApplication>
#include <QScrollBar>
#include <QTableWidget>
#include <QTimer>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

/// The box that asks whose change stays, with real keys.
class ChangeBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersByKeys_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("held");
        QTest::addColumn<ChangeAnswer>("answer");
        const Qt::KeyboardModifiers none = Qt::NoModifier;
        const Qt::KeyboardModifiers alt = Qt::AltModifier;
        QTest::newRow("Enter") << Qt::Key_Return << none << ChangeAnswer::Back;
        QTest::newRow("Escape") << Qt::Key_Escape << none << ChangeAnswer::Back;
        QTest::newRow("mine") << Qt::Key_B << alt << ChangeAnswer::Mine;
        QTest::newRow("theirs") << Qt::Key_O << alt << ChangeAnswer::Theirs;
        QTest::newRow("back") << Qt::Key_E << alt << ChangeAnswer::Back;
    }

    void answersByKeys()
    {
        QFETCH(Qt::Key, key);
        QFETCH(Qt::KeyboardModifiers, held);
        const QString longText(300, u'x');
        QList<FieldChange> changes(60,
                                   {u"Satır A75 SR KLY"_s, u"Adet"_s, u"1"_s, u"2"_s, longText});
        bool stays = false;
        QTimer::singleShot(0, this, [&] {
            auto *box = QApplication::activeModalWidget();
            QVERIFY(QTest::qWaitForWindowActive(box));
            // A long list scrolls, a long text goes on below: nothing is cut.
            auto *table = box->findChild<QTableWidget *>();
            QVERIFY(table->verticalScrollBar()->maximum() > 0);
            QCOMPARE(table->horizontalScrollBar()->maximum(), 0);
            QVERIFY(table->rowHeight(0) > 2 * table->fontMetrics().height());
            QVERIFY(box->height() <= box->screen()->availableSize().height());
            holdKey(box->focusWidget(), Qt::Key_Return);
            stays = box->isVisible();
            QTest::keyClick(box->focusWidget(), key, held);
        });
        MessageBoxes boxes;
        const ChangeAnswer answer =
            boxes.choose(nullptr, {changes, ChangedMeanwhile::Save::Changes, true});
        QVERIFY(stays);
        QTEST(answer, "answer");
    }
};

KUYUM_TEST(ChangeBoxTest)

} // namespace kuyum

#include "ChangeBoxTest.moc"
