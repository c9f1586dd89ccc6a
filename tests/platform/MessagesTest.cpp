#include "Messages.h"
#include "StoppableWork.h"
#include "TestRegistry.h"
#include "Typing.h"

#include <QApplication>
#include <QTimer>
#include <QtTest>

using namespace Qt::StringLiterals;

class MessagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void heldEnterAnswersNothing()
    {
        MessageBoxes boxes;
        for (const auto defaultAnswer : {MessageAnswer::Yes, MessageAnswer::No}) {
            bool stays = false;
            QTimer::singleShot(0, this, [&stays] {
                QWidget *box = QApplication::activeModalWidget();
                QVERIFY(QTest::qWaitForWindowActive(box));
                holdKey(box->focusWidget(), Qt::Key_Return);
                stays = box->isVisible();
                if (stays)
                    QTest::keyClick(box->focusWidget(), Qt::Key_Return);
            });
            const MessageAnswer answer = boxes.show(nullptr, {.text = u"SİLİNECEK"_s,
                                                              .buttons = MessageButtons::YesNo,
                                                              .defaultAnswer = defaultAnswer});
            QVERIFY(stays);
            QCOMPARE(answer, defaultAnswer);
        }
    }

    void enterTypedAheadStopsNoLongWork()
    {
        StoppableWork work(nullptr, u"Günlük yedek"_s, u"Yedek alınıyor..."_s);
        const auto progress = work.progress();
        QVERIFY(progress(1, 10));
        QProgressDialog *box = nullptr;
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (auto *found = qobject_cast<QProgressDialog *>(window))
                box = found;
        }
        QVERIFY(box != nullptr);
        box->show();
        QVERIFY(QTest::qWaitForWindowActive(box));
        QTest::keyClick(box->focusWidget(), Qt::Key_Return);
        QVERIFY(progress(2, 10));
        QTest::keyClick(box->focusWidget(), Qt::Key_Escape);
        QVERIFY(!progress(3, 10));
    }
};

KUYUM_TEST(MessagesTest)
#include "MessagesTest.moc"
