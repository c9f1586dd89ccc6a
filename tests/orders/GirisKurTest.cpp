#include "DailyRates.h"
#include "DocumentViewer.h"
#include "Giris_Kur.h"
#include "Keyboard.h"
#include "KurModel.h"
#include "OrderFixture.h"
#include "RealBox.h"
#include "ScriptedMessages.h"
#include "SqliteEngine.h"
#include "SqlText.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

class NoDocuments : public DocumentViewer
{
public:
    void show(QWidget *, const PrintDocument &) override { QFAIL("nothing is printed here"); }
};

/// The rate screen on a fresh company.
struct Screen : OrderFixture, Keyboard
{
    Screen() { open(messages); }
    explicit Screen(Messages &real) { open(real); }

    void open(Messages &spoken)
    {
        screen = std::make_unique<Giris_Kur>(
            ScreenContext{oturum, spoken,
                          [this](QWidget *, const LookupRequest &request) {
                              asked.append(request.ListeTuru);
                              LookupAnswer answer;
                              answer.SecilenTarih = chosen;
                              return answer;
                          },
                          viewer},
            settings);
        screen->show();
        QVERIFY(QTest::qWaitForWindowActive(screen.get()));
    }

    template <typename Widget = QWidget>
    Widget *control(const QString &name) const
    {
        return screen->findChild<Widget *>(name);
    }
    QTableView *grid() const { return control<QTableView>(u"KurGrid"_s); }
    QString note() const { return control<QLabel>(u"kurNotu"_s)->text(); }
    void press(const QString &button) const { QTest::mouseClick(control(button), Qt::LeftButton); }
    /// Types a date over the one that stands there, and goes on.
    void goTo(const QString &date) const
    {
        key(Qt::Key_Home);
        enter(date);
    }
    std::pair<int, int> cursor() const
    {
        return {grid()->currentIndex().row(), grid()->currentIndex().column()};
    }
    /// The rows of the grid, cells divided by blanks.
    QStringList shown() const
    {
        QStringList rows;
        for (int row = 0; row < grid()->model()->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < grid()->model()->columnCount(); ++column)
                cells.append(grid()->model()->index(row, column).data().toString());
            rows.append(cells.join(u' '));
        }
        return rows;
    }
    /// The stored rates of a date, "currency selling/buying".
    QStringList stored(QDate date) const
    {
        Recordset set = oturum.Veritabani->query(u"Select * From DovizD Where Tarih = "_s +
                                                 sqlDate(date) + u" Order by Dovcinsi"_s);
        QStringList rows;
        while (set.next()) {
            rows.append(set.text(u"Dovcinsi") + u' ' + set.text(u"Kur") + u'/' +
                        (set.isNull(u"aliskur") ? u"-"_s : set.text(u"aliskur")));
        }
        return rows;
    }
    bool isEntering() const { return grid()->isEnabled(); }

    ScriptedMessages messages;
    NoDocuments viewer;
    QSettings settings{dir.filePath(u"ayarlar.ini"_s), QSettings::IniFormat};
    QStringList asked;
    QDate chosen; ///< what the list answers
    std::unique_ptr<Giris_Kur> screen;
};

const QDate firstDate(2012, 3, 1); // USD 1.8/1.7 and EUR 2.4/2.3
const QDate newDate(2012, 3, 7);
const QString unsaved = u"DEĞİŞİKLİKLER KAYIT EDİLMEDİ, VAZGEÇİLSİN Mİ ?"_s;

} // namespace

class GirisKurTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modelPassesTheTester();
    void entersRatesByKeyboard();
    void editorOutlivesItsBox();
    void movesBetweenCells();
    void refusesWhatIsNoDate();
    void tellsThatThereAreNoRates();
    void tellsWhereRatesComeFrom();
    void keepsBuyingRatesOrNot();
    void deletesADate();
    void picksADate();
    void takesOnlyNumbers();
    void guardsUnsavedRates();
    void theUserChoosesWhoseRatesStay();
    void keepsTheOldRatesWhenSavingFails();
};

void GirisKurTest::modelPassesTheTester()
{
    KurModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.fill({{u"USD"_s, 1.23456789, 1.2}, {u"TL"_s, {}, {}}});
    QCOMPARE(model.columnCount(), 2);
    model.setAlisKurlari(AlisKurlari::Tutulur);
    QCOMPARE(model.index(0, 2).data().toString(), u"1.2000"_s);
    // What is shown rounded is kept as it is unless it is typed anew.
    QVERIFY(model.setData(model.index(0, 1), u"1.234568"_s));
    QCOMPARE(model.satirlar()[0].Kur, std::optional(1.23456789));
    QVERIFY(model.setData(model.index(0, 1), u"12,5"_s));
    QCOMPARE(model.index(0, 1).data().toString(), u"12.5000"_s);
    QVERIFY(model.setData(model.index(0, 1), u"."_s));
    QCOMPARE(model.satirlar()[0].Kur, std::optional<double>());
    QVERIFY(!model.setData(model.index(0, 0), u"EUR"_s));
    model.setAlisKurlari(AlisKurlari::Yok);
    QCOMPARE(model.satirlar()[0].aliskur, std::optional(1.2));
    model.fill({});
}

void GirisKurTest::entersRatesByKeyboard()
{
    Screen s;
    QCOMPARE(QApplication::focusWidget(), s.control(u"Tarih"_s));
    QCOMPARE(s.control<QLineEdit>(u"Tarih"_s)->selectedText(), u"01.06.2012"_s);
    s.goTo(u"07032012"_s);
    QCOMPARE(s.shown(), QStringList({u"USD "_s, u"EUR "_s, u"TL "_s, u"GBP "_s}));
    QVERIFY(s.note().contains(u"henüz kur girilmemiş"_s));
    QVERIFY(!s.control(u"Sil_Cmd"_s)->isEnabled() && !s.control(u"Tarih"_s)->isEnabled());
    // Enter goes down and, behind the last rate, to the save button.
    s.enter(u"1,85"_s);
    s.enter(u"2.4712345"_s);
    s.enter(u"7"_s);
    QCOMPARE(s.cursor(), std::pair(3, 1));
    s.key(Qt::Key_Return);
    s.key(Qt::Key_Return);
    QCOMPARE(s.shown(),
             QStringList({u"USD 1.8500"_s, u"EUR 2.471235"_s, u"TL 7.0000"_s, u"GBP "_s}));
    QCOMPARE(QApplication::focusWidget(), s.control(u"Kayit_Cmd"_s));
    s.enter();
    const QStringList saved = {u"EUR 2.4712345/-"_s, u"GBP 0/-"_s, u"TL 1/-"_s, u"USD 1.85/-"_s};
    QCOMPARE(s.stored(newDate), saved);
    QVERIFY(!s.isEntering());
    QCOMPARE(s.shown(), QStringList());
    QCOMPARE(QApplication::focusWidget(), s.control(u"Tarih"_s));

    // Saved once more, also with a duplicate that an old file may hold.
    s.oturum.Veritabani->execute(u"INSERT INTO DovizD (Tarih, Dovcinsi, Kur) "
                                 "VALUES (DateValue('07.03.2012'), 'USD', 9)"_s);
    s.enter();
    QCOMPARE(s.shown().first(), u"USD 1.8500"_s);
    QVERIFY(s.control(u"Sil_Cmd"_s)->isEnabled());
    s.key(Qt::Key_K, Qt::AltModifier);
    QTRY_VERIFY(!s.isEntering());
    QCOMPARE(s.stored(newDate), saved);
    QCOMPARE(s.stored(firstDate), QStringList({u"EUR 2.4/2.3"_s, u"USD 1.8/1.7"_s}));
}

/// The program's own box takes the focus from the editor, and gives it back.
void GirisKurTest::editorOutlivesItsBox()
{
    MessageBoxes boxes;
    Screen s(boxes);
    s.goTo(u"07.03.2012"_s);
    const RealBox answers;
    const auto typed = [&] {
        const auto *txtEdit = s.grid()->findChild<QLineEdit *>(u"txtEdit"_s);
        return txtEdit != nullptr && s.screen->focusWidget() == txtEdit &&
                       txtEdit->cursorPosition() == txtEdit->text().size()
                   ? txtEdit->text()
                   : QString();
    };
    s.key(Qt::Key_F2);
    for (const auto &[keys, left] : {std::pair{u"1.."_s, u"1."_s}, {u"5.3"_s, u"1.53"_s}}) {
        QTest::keyClicks(s.screen->focusWidget(), keys);
        QCOMPARE(typed(), left);
    }
    QCOMPARE(answers.shown(), 2);
    QTest::keyClick(s.screen->focusWidget(), Qt::Key_Return);
    QVERIFY(s.shown().join(u' ').contains(u" 1.53"_s));
}

void GirisKurTest::movesBetweenCells()
{
    Screen s;
    s.control<QCheckBox>(u"Check_Alis"_s)->setChecked(true);
    s.goTo(u"07032012"_s);
    const auto typeAnd = [&s](const QString &text, Qt::Key key) {
        s.type(text);
        s.key(key);
        return s.cursor();
    };
    QCOMPARE(typeAnd(u"1"_s, Qt::Key_Tab), std::pair(0, 2));
    QCOMPARE(typeAnd(u"2"_s, Qt::Key_Tab), std::pair(1, 1));
    QCOMPARE(typeAnd(u"3"_s, Qt::Key_Backtab), std::pair(0, 2));
    QCOMPARE(typeAnd(u"4"_s, Qt::Key_Down), std::pair(1, 2));
    QCOMPARE(typeAnd(u"5"_s, Qt::Key_Up), std::pair(0, 2));
    s.key(Qt::Key_Left);
    QCOMPARE(typeAnd(u"6"_s, Qt::Key_Up), std::pair(0, 1));
    s.grid()->setCurrentIndex(s.grid()->model()->index(3, 1));
    QCOMPARE(typeAnd(u"7"_s, Qt::Key_Return), std::pair(0, 2));
    s.grid()->setCurrentIndex(s.grid()->model()->index(3, 2));
    QCOMPARE(typeAnd(u"8"_s, Qt::Key_Tab), std::pair(3, 2));
    QCOMPARE(s.shown(), QStringList({u"USD 6.0000 4.0000"_s, u"EUR 3.0000 5.0000"_s, u"TL  "_s,
                                     u"GBP 7.0000 8.0000"_s}));
    QCOMPARE(QApplication::focusWidget(), s.control(u"Kayit_Cmd"_s));

    // Tab passes rates by also where nothing is typed, and leaves at the ends.
    s.key(Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), s.grid());
    s.grid()->setCurrentIndex(s.grid()->model()->index(2, 2));
    s.key(Qt::Key_Tab);
    QCOMPARE(s.cursor(), std::pair(3, 1));
    s.key(Qt::Key_Backtab);
    QCOMPARE(s.cursor(), std::pair(2, 2));
    for (int i = 0; i < 3; ++i)
        s.key(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), s.control(u"Kayit_Cmd"_s));
    // The cursor stays out of the currencies.
    s.grid()->setFocus();
    s.grid()->setCurrentIndex(s.grid()->model()->index(1, 1));
    s.key(Qt::Key_Left);
    QCOMPARE(s.cursor(), std::pair(1, 1));
    QTest::mouseClick(s.grid()->viewport(), Qt::LeftButton, {},
                      s.grid()->visualRect(s.grid()->model()->index(2, 0)).center());
    QCOMPARE(typeAnd(u"9"_s, Qt::Key_Return), std::pair(3, 1));
    QCOMPARE(s.shown()[2], u"TL 9.0000 "_s);
}

void GirisKurTest::refusesWhatIsNoDate()
{
    Screen s;
    s.messages.expect(u"Tarih Hatali."_s);
    s.goTo(u"31022012"_s);
    QVERIFY(!s.isEntering());
    QCOMPARE(s.control<QLineEdit>(u"Tarih"_s)->selectedText(), u"01.06.2012"_s);
    s.control<QLineEdit>(u"Tarih"_s)->clear();
    s.messages.expect(u"Tarih Hatali."_s);
    s.press(u"Gir_Cmd"_s);
    QVERIFY(!s.isEntering());
    s.control<QLineEdit>(u"Tarih"_s)->setText(u"1.3.12"_s);
    s.press(u"Gir_Cmd"_s);
    QCOMPARE(s.shown(), QStringList({u"USD 1.8000"_s, u"EUR 2.4000"_s}));
    QCOMPARE(s.control<QLineEdit>(u"Tarih"_s)->text(), u"01.03.2012"_s);
}

void GirisKurTest::tellsThatThereAreNoRates()
{
    Screen s;
    s.oturum.Veritabani->execute(u"DELETE From DovizD"_s);
    s.messages.expect(
        {.text = u"DOVIZ DOSYASINDA HENUZ HIC KAYIT YOK."_s, .icon = MessageIcon::Information});
    s.enter();
    QCOMPARE(s.shown().size(), 4);
    QVERIFY(s.isEntering());
    s.key(Qt::Key_Escape); // nothing was typed: nothing is asked
    QVERIFY(!s.isEntering());
    s.oturum.Veritabani->execute(u"DELETE From DovizB"_s);
    s.messages.expect(u"DOVIZ DOSYASINDA HENUZ HIC KAYIT YOK."_s);
    s.enter();
    s.key(Qt::Key_Return); // without a currency there is no cell
    s.key(Qt::Key_K, Qt::AltModifier);
    QTRY_VERIFY(!s.isEntering());
    s.key(Qt::Key_Escape);
    QVERIFY(!s.screen->isVisible());
}

void GirisKurTest::tellsWhereRatesComeFrom()
{
    Screen s;
    for (const int day : {5, 9, 12}) { // a gap of days each
        s.oturum.CalismaTarihi = QDate(2012, 3, day);
        carryRatesForward(s.oturum);
    }
    const QString origin = u"02.03.2012 tarihinden"_s;
    s.goTo(u"12032012"_s);
    QCOMPARE(s.shown(), QStringList(u"USD 1.9000"_s));
    QVERIFY(s.note().contains(origin));
    s.key(Qt::Key_Escape);
    s.goTo(u"02032012"_s);
    QCOMPARE(s.note(), QString());
    s.key(Qt::Key_Escape);

    // A changed day is the origin of those that follow it.
    s.goTo(u"09032012"_s);
    QVERIFY(s.note().contains(origin));
    s.type(u"1.95"_s);
    s.key(Qt::Key_K, Qt::AltModifier);
    QTRY_VERIFY(!s.isEntering());
    QCOMPARE(s.stored({2012, 3, 9}), QStringList(u"USD 1.95/1.8"_s));
    s.enter();
    QCOMPARE(s.note(), QString());
    s.key(Qt::Key_Escape);
    s.goTo(u"12032012"_s);
    QCOMPARE(s.note(), QString());
    s.key(Qt::Key_Escape);
    s.goTo(u"05032012"_s);
    QVERIFY(s.note().contains(origin));
}

void GirisKurTest::keepsBuyingRatesOrNot()
{
    Screen s;
    const int narrow = s.screen->width();
    QTest::keyClick(s.control(u"Check_Alis"_s), Qt::Key_Space);
    QVERIFY(s.screen->width() > narrow);
    s.control(u"Tarih"_s)->setFocus();
    s.goTo(u"01032012"_s);
    QCOMPARE(s.grid()->model()->headerData(1, Qt::Horizontal).toString(), u"Satış Kuru"_s);
    QCOMPARE(s.shown(), QStringList({u"USD 1.8000 1.7000"_s, u"EUR 2.4000 2.3000"_s}));
    s.key(Qt::Key_Right);
    s.type(u"1.75"_s);
    s.press(u"Kayit_Cmd"_s);
    QCOMPARE(s.stored(firstDate), QStringList({u"EUR 2.4/2.3"_s, u"USD 1.8/1.75"_s}));
    s.goTo(u"07032012"_s);
    s.press(u"Kayit_Cmd"_s);
    QCOMPARE(s.stored(newDate),
             QStringList({u"EUR 0/0"_s, u"GBP 0/0"_s, u"TL 1/1"_s, u"USD 0/0"_s}));

    // The choice lasts, and is the company's own.
    s.oturum.SirketKodu = 2;
    s.open(s.messages);
    QVERIFY(!s.control<QCheckBox>(u"Check_Alis"_s)->isChecked());
    s.oturum.SirketKodu = 0;
    s.open(s.messages);
    QVERIFY(s.control<QCheckBox>(u"Check_Alis"_s)->isChecked());
    // Without them none is written; what is stored already is not lost.
    s.goTo(u"01032012"_s);
    QTest::keyClick(s.control(u"Check_Alis"_s), Qt::Key_Space);
    QCOMPARE(s.grid()->model()->headerData(1, Qt::Horizontal).toString(), u"Degeri"_s);
    QCOMPARE(s.shown().first(), u"USD 1.8000"_s);
    s.press(u"Kayit_Cmd"_s);
    QCOMPARE(s.stored(firstDate), QStringList({u"EUR 2.4/2.3"_s, u"USD 1.8/1.75"_s}));
}

void GirisKurTest::deletesADate()
{
    Screen s;
    s.goTo(u"01032012"_s);
    const QString question = u"01.03.2012 TARIHLI KURLAR SILINECEK, ONAYLIYORMUSUNUZ."_s;
    s.messages.expect({.text = question,
                       .answer = MessageAnswer::No,
                       .icon = MessageIcon::Critical,
                       .defaultAnswer = MessageAnswer::No});
    s.press(u"Sil_Cmd"_s);
    QCOMPARE(s.stored(firstDate).size(), 2);
    QVERIFY(s.isEntering());
    s.messages.expect(question, MessageAnswer::Yes);
    s.press(u"Sil_Cmd"_s);
    QCOMPARE(s.stored(firstDate), QStringList());
    QCOMPARE(s.stored({2012, 3, 2}).size(), 1);
    QVERIFY(!s.isEntering());
    QCOMPARE(QApplication::focusWidget(), s.control(u"Tarih"_s));
}

void GirisKurTest::picksADate()
{
    Screen s;
    s.press(u"Liste_Cmd"_s); // left without a choice
    QVERIFY(!s.isEntering());
    QCOMPARE(s.control<QLineEdit>(u"Tarih"_s)->text(), u"01.06.2012"_s);
    s.chosen = firstDate;
    s.press(u"Liste_Cmd"_s);
    QCOMPARE(s.asked, QStringList({u"Kur Listesi"_s, u"Kur Listesi"_s}));
    QCOMPARE(s.control<QLineEdit>(u"Tarih"_s)->text(), u"01.03.2012"_s);
    QCOMPARE(s.shown(), QStringList({u"USD 1.8000"_s, u"EUR 2.4000"_s}));
    QCOMPARE(s.cursor(), std::pair(0, 1));
}

void GirisKurTest::takesOnlyNumbers()
{
    Screen s;
    s.goTo(u"07032012"_s);
    s.enter(u"a1-b,8 5e"_s);
    QCOMPARE(s.shown()[0], u"USD 1.8500"_s);
    s.messages.expect({.text = u"SAYISAL DEGER GIRIN..."_s, .icon = MessageIcon::Critical});
    s.enter(u"1.2.3"_s);
    QCOMPARE(s.shown()[1], u"EUR 1.2300"_s);
    // Opened and left again, a long rate is what it was.
    s.enter(u"99999999999999999"_s);
    s.key(Qt::Key_Up);
    s.key(Qt::Key_F2);
    s.key(Qt::Key_Up);
    QCOMPARE(s.shown()[2], u"TL 999999999999999.0000"_s);
    QCOMPARE(s.cursor(), std::pair(1, 1));
    s.type(u"5"_s);
    s.key(Qt::Key_Escape);
    QCOMPARE(s.shown()[1], u"EUR 1.2300"_s);
    QVERIFY(s.isEntering());
    QCOMPARE(QApplication::focusWidget(), s.grid());
}

void GirisKurTest::guardsUnsavedRates()
{
    Screen s;
    s.goTo(u"01032012"_s);
    s.enter(u"5"_s);
    s.messages.expect(
        {.text = unsaved, .answer = MessageAnswer::No, .defaultAnswer = MessageAnswer::No});
    s.key(Qt::Key_Escape);
    QVERIFY(s.isEntering());
    s.messages.expect(unsaved, MessageAnswer::No);
    s.screen->close();
    QVERIFY(s.screen->isVisible());
    s.messages.expect(unsaved, MessageAnswer::Yes);
    s.press(u"Geri_Cmd"_s);
    QVERIFY(!s.isEntering());
    s.key(Qt::Key_Return);
    QCOMPARE(s.shown().first(), u"USD 1.8000"_s);
}

void GirisKurTest::theUserChoosesWhoseRatesStay()
{
    Screen s;
    // Without rates of its own; another workstation carries some to it meanwhile.
    s.goTo(u"07.03.2012"_s);
    s.enter(u"9"_s);
    s.oturum.Veritabani->execute(u"Insert into DovizD (Tarih, Dovcinsi, Kur) values ("_s +
                                 sqlDate(newDate) + u", 'USD', 1.9)"_s);
    const QStringList theirs = s.stored(newDate);
    const QStringList change = {
        u"Kur USD|Satış Kuru|9|1.9"_s, u"Kur EUR|(bütünü)|Satış Kuru: 0|yok"_s,
        u"Kur GBP|(bütünü)|Satış Kuru: 0|yok"_s, u"Kur TL|(bütünü)|Satış Kuru: 1|yok"_s};
    s.messages.expectChange(change, ChangeAnswer::Back);
    s.press(u"Kayit_Cmd"_s);
    QVERIFY(s.isEntering());
    s.messages.expectChange(change, ChangeAnswer::Theirs);
    s.press(u"Kayit_Cmd"_s);
    QCOMPARE(s.stored(newDate), theirs);
    QCOMPARE(s.shown(), QStringList{u"USD 1.9000"_s});
    QVERIFY(s.control(u"Sil_Cmd"_s)->isEnabled());
}

void GirisKurTest::keepsTheOldRatesWhenSavingFails()
{
    Screen s;
    // A rate of a currency that is not defined is not on the screen.
    s.oturum.Veritabani->execute(u"INSERT INTO DovizD (Tarih, Dovcinsi, Kur) "
                                 "VALUES (DateValue('01.03.2012'), 'CHF', 1.5)"_s);
    s.goTo(u"01032012"_s);
    s.enter(u"5"_s);
    s.oturum.Veritabani->engine().run(
        u"CREATE TRIGGER full BEFORE INSERT ON DovizD WHEN NEW.Dovcinsi = 'EUR' BEGIN "
        "SELECT RAISE(ABORT, 'disk dolu'); END"_s);
    s.messages.expect(
        {.text = u"Kayıt, tablonun anahtarlarına uymuyor. (disk dolu)"_s, .title = u"HATA"_s});
    s.press(u"Kayit_Cmd"_s);
    QCOMPARE(s.stored(firstDate),
             QStringList({u"CHF 1.5/-"_s, u"EUR 2.4/2.3"_s, u"USD 1.8/1.7"_s}));
    QCOMPARE(s.shown().first(), u"USD 5.0000"_s);
    s.oturum.Veritabani->engine().run(u"DROP TRIGGER full"_s);
    s.press(u"Kayit_Cmd"_s);
    QCOMPARE(s.stored(firstDate), QStringList({u"CHF 1.5/-"_s, u"EUR 2.4/2.3"_s, u"USD 5/1.7"_s}));
}

KUYUM_TEST(GirisKurTest)

} // namespace kuyum

#include "GirisKurTest.moc"
