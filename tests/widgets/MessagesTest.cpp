#include "Messages.h"
#include "RealBox.h"
#include "StoppableWork.h"
#include "TestRegistry.h"
#include "Typing.h"

#include <QApplication>
#include <QTimer>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

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

    void everyTextIsWhole_data()
    {
        QTest::addColumn<QString>("text");
        const QString path = u"/home/atolye/"_s + QString(90, u'k') + u"/2026/yedek/"_s +
                             QString(60, u'm') + u".kuyum"_s;
        QTest::newRow("question")
            << u"Bu sipariş başka bir pencerede değişti, buradaki hali "
               u"kaydedilirse oradaki değişiklik kaybolur. Devam edilsin mi?"_s;
        QTest::newRow("one line") << u"DEĞİŞİKLİKLER KAYIT EDİLMEDİ, VAZGEÇİLSİN Mİ ?"_s;
        QTest::newRow("path without blanks") << u"Dosya bulunamadı:\n"_s + path;
        QTest::newRow("higher than the screen") << u"SiparisD: satır düzeltildi.\n"_s.repeated(80);
    }

    void everyTextIsWhole()
    {
        QFETCH(QString, text);
        const QFont usual = QApplication::font();
        for (const double points : {usual.pointSizeF(), 2 * usual.pointSizeF()}) {
            QFont font = usual;
            font.setPointSizeF(points);
            QApplication::setFont(font);
            const RealBox box([](QWidget &shown) {
                QCOMPARE(shown.windowTitle(), u"Kuyum"_s);
                QVERIFY(shown.screen()->geometry().contains(shown.geometry()));
                const auto *label = shown.findChild<QLabel *>(u"qt_msgbox_label"_s);
                const QRect room = label->contentsRect().adjusted(label->indent(), 0, 0, 0);
                const int wrapped = label->wordWrap() ? int(Qt::TextWordWrap) : 0;
                const QSize needed =
                    label->fontMetrics()
                        .boundingRect({{}, QSize(room.width(), 1)}, wrapped, label->text())
                        .size();
                QVERIFY2(needed.width() <= room.width() && needed.height() <= room.height(),
                         qPrintable(u"%1x%2 in %3x%4"_s.arg(needed.width())
                                        .arg(needed.height())
                                        .arg(room.width())
                                        .arg(room.height())));
                QVERIFY(label->parentWidget()->width() >= label->width());
            });
            MessageBoxes().show(nullptr, {.text = text, .buttons = MessageButtons::YesNo});
            QCOMPARE(box.shown(), 1);
        }
        QApplication::setFont(usual);
    }

    void inputTakesASentence()
    {
        const QString sentence = u"Müşteri taşları kendisi verecek, teslim haftaya"_s;
        const QString title = u"YARDIM DOSYASINA UZUN BIR BASLIKLA BILGI EKLEME"_s;
        const RealBox box([&](QWidget &shown) {
            const auto *line = shown.findChild<QLineEdit *>();
            typeText(shown.focusWidget(), sentence);
            QVERIFY(line->width() > line->fontMetrics().horizontalAdvance(sentence));
            QVERIFY(shown.width() > shown.fontMetrics().horizontalAdvance(title) + 100);
        });
        QCOMPARE(MessageBoxes().input(nullptr, u"BILGI"_s, title, sentence), sentence);
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

} // namespace kuyum

#include "MessagesTest.moc"
