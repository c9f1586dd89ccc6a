#include "Tanim_Katalog.h"
#include "DefinitionFixture.h"
#include "KatalogGrid.h"
#include "KatalogModel.h"
#include "PageReading.h"
#include "PictureBox.h"
#include "Pictures.h"
#include "TestRegistry.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

struct Catalogues : DefinitionFixture<Tanim_Katalog>
{
    KatalogGrid *grid() const { return control<KatalogGrid>(u"Rapor"_s); }
    /// The rows of the grid as "model gram remark".
    QStringList rows() const
    {
        QStringList result;
        for (int row = 0; row < grid()->model()->rowCount(); ++row) {
            const auto cell = [&](int column) {
                return grid()->model()->index(row, column).data().toString();
            };
            result.append(u"%1 %2 %3"_s.arg(cell(0), cell(1), cell(2)));
        }
        return result;
    }
    QString stored(const QString &KatAdi) const
    {
        Recordset set = oturum.Veritabani->query(
            u"Select * From Katalog Where KatAdi = '%1' Order by katno1"_s.arg(KatAdi));
        QStringList result;
        while (set.next())
            result.append(u"%1 %2 %3"_s.arg(set.text(u"katno1"), set.text(u"katgram"),
                                            set.text(u"kataciklama")));
        return result.join(u'|');
    }
    static LookupAnswer model(const QString &Secilen, qint16 SecilenTip)
    {
        LookupAnswer answer;
        answer.Secilen = Secilen;
        answer.SecilenTip = SecilenTip;
        return answer;
    }
};

const QString unsaved = u"DEĞİŞİKLİKLER KAYIT EDİLMEDİ, VAZGEÇİLSİN Mİ ?"_s;

} // namespace

class Tanim_KatalogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromTheNameToTheSavedRows()
    {
        Catalogues on;
        QDir().mkpath(on.oturum.ResimYolu + u"/YZK"_s);
        const QString picture = on.oturum.ResimYolu + u"/YZK/A75.jpg"_s;
        QVERIFY(plainPicture(Qt::red).save(picture));
        on.messages.expect(
            {.text = u"BİR KATALOG ADI VERİN ...!"_s, .icon = MessageIcon::Exclamation});
        on.enter({u" "_s});
        QCOMPARE(on.focus(), u"KatAdi"_s);
        on.enter({u"Kış '26 "_s});
        QCOMPARE(on.focus(), u"txtModel"_s);
        on.messages.expect(u"MODEL SECIMI YAPILMAMIS ...!"_s);
        on.press(Qt::Key_E, u"cmdEkle"_s);

        on.answers = {Catalogues::model(u"A75"_s, 1)};
        on.enter({u"a"_s});
        QCOMPARE(on.asked.last().ListeTuru, u"Model Listesi"_s);
        QCOMPARE(on.asked.last().ListeFiltre, u"a"_s);
        QCOMPARE(on.text(u"txtGram"_s), u"2.00"_s);
        QCOMPARE(on.control<PictureBox>(u"Resim"_s)->path(), picture);
        on.enter({u"3,456"_s, u"ölçü 14"_s});
        QCOMPARE(on.focus(), u"cmdEkle"_s);
        on.enter();
        QCOMPARE(on.focus(), u"txtModel"_s);

        // The same model again, typed over after it was chosen: no choice.
        on.answers = {Catalogues::model(u"A75"_s, 2)};
        on.enter();
        on.control<QLineEdit>(u"txtModel"_s)->setText(u"A7"_s);
        on.messages.expect(u"MODEL SECIMI YAPILMAMIS ...!"_s);
        on.press(Qt::Key_E, u"cmdEkle"_s);
        QCOMPARE(on.rows(), QStringList(u"A75 3.46 ölçü 14"_s));

        on.messages.expect(u"Kış '26 ISIMLI KATALOG OLUŞTURULMUŞTUR...!"_s);
        on.press(Qt::Key_K, u"cmdKayit"_s);
        on.messages.verify();
        QCOMPARE(on.stored(u"Kış ''26"_s), u"1 3.46 ölçü 14"_s);
        QCOMPARE(on.focus(), u"KatAdi"_s);
        QVERIFY(!on.isEditing());
        QVERIFY(on.control<PictureBox>(u"Resim"_s)->path().isEmpty());
    }

    void aWeightTypedAfterTheListReplacesTheModels()
    {
        Catalogues on;
        on.listIsWindow = true;
        on.enter({u"Kış"_s});
        on.answers = {Catalogues::model(u"A75"_s, 1)};
        on.enter({u"a"_s});
        on.screen->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(on.screen.get()));
        QTest::keyClick(on.screen->focusWidget(), Qt::Key_7);
        QCOMPARE(on.text(u"txtGram"_s), u"7"_s);
    }

    void aChosenModelIsNotLeftOutUnseen()
    {
        Catalogues on;
        on.enter({u"Kış"_s});
        on.answers = {Catalogues::model(u"A75"_s, 1)};
        on.enter({u"a"_s});
        on.messages.expect(unsaved, MessageAnswer::No);
        on.key(Qt::Key_Escape);
        on.messages.expect(u"A75 LİSTEYE EKLENMEDİ. EKLENSİN Mİ ?"_s, MessageAnswer::Yes);
        on.messages.expect(u"Kış ISIMLI KATALOG OLUŞTURULMUŞTUR...!"_s);
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QCOMPARE(on.stored(u"Kış"_s).count(u'|'), 0);
        QVERIFY(!on.stored(u"Kış"_s).isEmpty());
    }

    void takesSeveralModelsAtOnceAndACatalogueFromTheList()
    {
        Catalogues on;
        LookupAnswer list;
        list.Secilen = u"bahar"_s;
        LookupAnswer several = Catalogues::model(u"A75"_s, 2);
        several.Secilenler = {several, Catalogues::model(u"boş"_s, 1)};
        on.answers = {list, several};
        on.press(Qt::Key_L, u"cmdListe"_s);
        QCOMPARE(on.asked.last().ListeTuru, u"Katalog Listesi"_s);
        QCOMPARE(on.rows(), QStringList({u"A75 2.10 yeni"_s, u"İnci-1 1.10 "_s}));
        QVERIFY(on.control(u"uyari"_s)->isVisible()); // of the row whose model is gone
        on.press(Qt::Key_O, u"cmdModel"_s);
        QVERIFY(on.asked.last().cokSecim);
        QCOMPARE(on.rows().mid(2), QStringList({u"A75 5.00 "_s, u"boş 3.50 "_s}));
        on.messages.expect(u"Bahar ISIMLI KATALOG OLUŞTURULMUŞTUR...!"_s);
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QCOMPARE(on.stored(u"Bahar"_s), u"1 2.1 yeni|3 5 |4 1.1 |5 3.5 |99 1 "_s);
    }

    void rowsAreMovedEditedAndTakenOut()
    {
        Catalogues on;
        on.enter({u"Bahar"_s});
        on.grid()->setFocus();
        on.key(Qt::Key_Down, Qt::AltModifier);
        on.key(Qt::Key_Down, Qt::AltModifier); // it is the last one already
        QCOMPARE(on.rows(), QStringList({u"İnci-1 1.10 "_s, u"A75 2.10 yeni"_s}));
        QCOMPARE(on.grid()->currentIndex().row(), 1);

        on.key(Qt::Key_Return); // on the model, which stays: the weight
        on.enter({u"2,5"_s});
        QTRY_COMPARE(on.rows().last(), u"A75 2.50 yeni"_s);

        // By the mouse, back to the first place.
        QWidget *cells = on.grid()->viewport();
        const auto middle = [&](int row) {
            return on.grid()->visualRect(on.grid()->model()->index(row, 0)).center();
        };
        QTest::mousePress(cells, Qt::LeftButton, {}, middle(1));
        const QPointF goal = middle(0);
        QMouseEvent move(QEvent::MouseMove, goal, cells->mapToGlobal(goal), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(cells, &move);
        QTest::mouseRelease(cells, Qt::LeftButton, {}, goal.toPoint());
        QCOMPARE(on.rows(), QStringList({u"A75 2.50 yeni"_s, u"İnci-1 1.10 "_s}));

        for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Yes}) {
            on.messages.expect({.text = u"A75 LİSTEDEN ÇIKARILACAK..."_s,
                                .answer = answer,
                                .icon = MessageIcon::Information});
            on.key(Qt::Key_Delete);
            holdKey(on.grid(), Qt::Key_Delete);
            on.messages.verify();
            QCOMPARE(on.rows().size(), answer == MessageAnswer::No ? 2 : 1);
        }
        on.key(Qt::Key_Insert);
        QCOMPARE(on.focus(), u"txtModel"_s);
        on.messages.expect(
            {.text = unsaved, .answer = MessageAnswer::No, .defaultAnswer = MessageAnswer::No});
        on.key(Qt::Key_Escape);
        QVERIFY(on.isEditing());
        on.messages.expect(unsaved, MessageAnswer::Yes);
        on.key(Qt::Key_Escape);
        QVERIFY(!on.isEditing());
        QVERIFY(on.stored(u"Bahar"_s).startsWith(u"1 2.1 yeni|"_s));
    }

    void anOrderByHandOutlivesTheScreen()
    {
        Catalogues on;
        on.enter({u"Bahar"_s});
        on.grid()->setFocus();
        on.key(Qt::Key_Down, Qt::AltModifier);
        on.messages.expect(u"Bahar ISIMLI KATALOG OLUŞTURULMUŞTUR...!"_s);
        on.press(Qt::Key_K, u"cmdKayit"_s);
        on.enter({u"Bahar"_s});
        QCOMPARE(on.rows(), QStringList({u"İnci-1 1.10 "_s, u"A75 2.10 yeni"_s}));
        on.key(Qt::Key_Escape); // nothing was changed, nothing is asked
        QVERIFY(!on.isEditing());
        typeText(on.screen->focusWidget(), u"x"_s);
        on.key(Qt::Key_Escape); // empties the name
        QVERIFY(on.screen->isVisible());
        on.key(Qt::Key_Escape);
        QVERIFY(!on.screen->isVisible());
    }

    void refusesWhatWouldLoseRows()
    {
        Catalogues on;
        on.enter({u"Yeni"_s});
        on.messages.expect(u"KATALOGDA HİÇ MODEL YOK ...!"_s);
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QVERIFY(!on.control(u"cmdsil"_s)->isEnabled());
        on.key(Qt::Key_Escape);

        on.enter({u"Bahar"_s});
        on.oturum.Veritabani->execute(u"Update Katalog Set katgram = 7 Where katno1 = 4"_s);
        const QString before = on.stored(u"Bahar"_s);
        on.messages.expectChange({u"Model İnci-1|Gram|1.1|7"_s}, ChangeAnswer::Theirs);
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QCOMPARE(on.stored(u"Bahar"_s), before);
        QVERIFY(on.rows().contains(u"İnci-1 7.00 "_s)); // the other's is on the screen
        const QString question = u"Bahar SİLİNECEK. ONAYLIYORMUSUNUZ.?"_s;
        on.remove(question, MessageAnswer::No, MessageAnswer::No);
        QVERIFY(on.isEditing());
        on.remove(question, MessageAnswer::No, MessageAnswer::Yes);
        QCOMPARE(on.stored(u"Bahar"_s), QString());
        QVERIFY(!on.isEditing());
    }

    void printsInBothForms()
    {
        Catalogues on;
        on.enter({u"Bahar"_s});
        const auto choose = [&](Qt::Key letter, const QString &name) {
            const QSignalSpy clicks(on.control<QRadioButton>(name), &QRadioButton::clicked);
            on.key(letter, Qt::AltModifier);
            QTRY_COMPARE(clicks.count(), 1);
            QVERIFY(!on.control<QRadioButton>(name)->isChecked());
        };
        choose(Qt::Key_3, u"BaskiSekli_1"_s); // looked at only: no message
        on.viewer.prints = true;
        on.messages.expect(
            {.text = u"BILGILER YAZICIYA GONDERILMISTIR..."_s, .title = u"TARLEN"_s});
        choose(Qt::Key_4, u"BaskiSekli_2"_s);
        on.messages.verify();
        QCOMPARE(on.viewer.shown.size(), 2);
        const auto second = [&](int document) {
            return PageReading::items<PageText>(on.viewer.shown[document].pages().first())[3];
        };
        QCOMPARE(second(0).text, u"İnci-1  1.10 Gr"_s);
        QCOMPARE(second(0).at.x, 4100_tw);
        QCOMPARE(second(1).at.x, 3300_tw);
    }
};

KUYUM_TEST(Tanim_KatalogTest)

} // namespace kuyum

#include "Tanim_KatalogTest.moc"
