#include "Messages.h"
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
};

KUYUM_TEST(MessagesTest)
#include "MessagesTest.moc"
