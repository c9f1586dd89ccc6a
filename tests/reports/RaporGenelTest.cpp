#include "ChoiceBox.h"
#include "DateBox.h"
#include "Dates.h"
#include "ExcelAktar.h"
#include "KeptDocuments.h"
#include "Keyboard.h"
#include "OrderCode.h"
#include "OrderFixture.h"
#include "PrintDocument.h"
#include "Rapor_Genel.h"
#include "RaporGrid.h"
#include "ScriptedMessages.h"
#include "SpreadsheetApplication.h"
#include "SqliteEngine.h"
#include "TakipModel.h"
#include "TestRegistry.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

class NoSheets : public SpreadsheetApplication
{
public:
    bool isInstalled() const override { return false; }
    bool open(const QString &) override { return false; }
};

const QString unsaved = u"DEĞİŞİKLİKLER KAYIT EDİLMEDİ, VAZGEÇİLSİN Mİ ?"_s;
const QString saveQuestion = u"DEGİSİKLİKLER KAYIT EDİLECEK ?"_s;

/// The screen on a fresh company, on the tab that the menu asked for.
struct Screen : OrderFixture, Keyboard
{
    explicit Screen(const QString &RaporTuru, const QString &user = u"Admin"_s)
    {
        oturum.RaporTuru = RaporTuru;
        oturum.KullaniciAdi = user;
        oturum.KullaniciNo = 3;
    }

    void open()
    {
        screen = std::make_unique<Rapor_Genel>(
            RaporContext{{oturum, messages,
                          [this](QWidget *, const LookupRequest &request) {
                              asked.append(request.ListeTuru);
                              LookupAnswer answer;
                              answer.SecilenNo = chosen;
                              return answer;
                          },
                          viewer},
                         excel});
        screen->show();
        QVERIFY(QTest::qWaitForWindowActive(screen.get()));
        QCoreApplication::processEvents();
    }
    /// Opens an order by its number, with the cursor on its first status.
    void find(const QString &number) const
    {
        enter(number);
        QCOMPARE(grid()->hasFocus(), true);
    }

    /// The control of that name; both tabs show models, the visible one counts.
    template <typename Widget = QWidget>
    Widget *control(const QString &name) const
    {
        for (Widget *widget : screen->findChildren<Widget *>(name)) {
            if (widget->isVisible())
                return widget;
        }
        return screen->findChild<Widget *>(name);
    }
    QTableView *grid() const { return control<QTableView>(u"Rapor1"_s); }
    QTableView *list() const { return control<QTableView>(u"Rapor0"_s); }
    static QString cellOf(const QTableView *view, int row, int column)
    {
        return view->model()->index(row, column).data().toString();
    }
    QString cell(int row, int column) const { return cellOf(grid(), row, column); }
    void goTo(int row, int column) const
    {
        grid()->setCurrentIndex(grid()->model()->index(row, column));
    }
    void press(const QString &button) const { QTest::mouseClick(control(button), Qt::LeftButton); }
    /// The lines of a grid of figures, cells divided by blanks.
    QStringList figures(const QString &name) const
    {
        QCoreApplication::processEvents();
        const QTableView *rows = control<RaporGrid>(name)->rows();
        QStringList result;
        for (int row = 0; row < rows->model()->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < rows->model()->columnCount(); ++column)
                cells.append(cellOf(rows, row, column));
            result.append(cells.join(u' '));
        }
        return result;
    }
    bool marked(int row) const
    {
        const QModelIndex cell = list()->model()->index(row, 0);
        return cell.data(Qt::BackgroundRole).value<QColor>() == QColor(255, 0, 0);
    }
    /// Chooses a sheet by keyboard: 1 with pictures, 2 as text.
    void print(int entry) const
    {
        auto *box = control<QComboBox>(u"CmbYazdir0"_s);
        box->setFocus();
        for (int i = 0; i < entry; ++i)
            key(Qt::Key_Down);
        key(Qt::Key_Return);
        QCOMPARE(box->currentIndex(), 0);
    }

    ScriptedMessages messages;
    KeptDocuments viewer;
    NoSheets sheets;
    ExcelAktar excel{sheets, messages};
    QStringList asked;
    qint32 chosen = 0; ///< what the list answers
    std::unique_ptr<Rapor_Genel> screen;
};

struct Control : Screen
{
    explicit Control(const QString &user = u"Admin"_s) : Screen(u"SIPARIS KONTROL"_s, user)
    {
        // Two lines alike but for their counters.
        addLine(3, 2, u"A75"_s, 1, u"BY"_s, 2);
        open();
    }
};

struct Report : Screen
{
    Report() : Screen(u"URETIM RAPORU"_s) { open(); }
};

} // namespace

class RaporGenelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modelPassesTheTester();
    void opensOrdersByNumberAndList();
    void editsStatusesAndDatesByKeyboard();
    void takesOnlyWhatEnterOrAChoiceConfirms();
    void emptiesCellsOnlyWithoutTheRight();
    void guardsUnsavedEdits();
    void goesOnAfterALineThatFails();
    void tellsWhatBecameOfALine();
    void showsWhatIsMadeOfTheCurrentOrder();
    void marksOrdersAndPrintsThem();
};

void RaporGenelTest::modelPassesTheTester()
{
    OrderFixture company;
    company.addLine(1, 4, u"A75"_s, 1, u"BY"_s, 20, u"HAZIR"_s);
    TakipModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.fill(SiparisTakip(company.oturum).SiparisBul(1)->satirlar);
    const QPersistentModelIndex last = model.index(3, TakipModel::Adet);
    model.sort(TakipModel::Adet, Qt::DescendingOrder);
    QCOMPARE(model.index(0, TakipModel::Adet).data().toString(), u"20"_s);
    QCOMPARE(last.data().toString(), u"2"_s); // a place follows its line
    QVERIFY(!model.isChanged());
    QVERIFY(!model.setData(model.index(0, TakipModel::Adet), u"5"_s));
    QVERIFY(!model.setData(model.index(0, TakipModel::BitTrh), u"31.02.2012"_s));
    QVERIFY(model.setData(model.index(0, TakipModel::BitTrh), u"01.01.2000"_s));
    QVERIFY(!model.isChanged());
}

void RaporGenelTest::opensOrdersByNumberAndList()
{
    Control s;
    for (const QString &number : {u"99"_s, u"1.5"_s}) {
        s.messages.expect({.text = u"SIPARIS KAYDINA ULASILAMADI..."_s, .title = u"HATA"_s});
        s.enter(number);
        QVERIFY(!s.grid()->isEnabled());
        s.control<QLineEdit>(u"Sipnum"_s)->clear();
    }
    s.find(u"1"_s);
    QCOMPARE(s.control<QLineEdit>(u"FirAdi"_s)->text(), u"Işık Kuyumculuk"_s);
    QCOMPARE(s.control<QLineEdit>(u"TesTrh"_s)->text(), u"15.03.2012"_s);
    QCOMPARE(s.cell(0, TakipModel::BasTrh), QString()); // stored 01.01.2000
    QVERIFY(s.grid()->isColumnHidden(TakipModel::OtoSayi));
    QCOMPARE(s.figures(u"Kaliplar"_s), QStringList({u"K-1 1.00"_s, u"K-2 2.00"_s}));
    s.key(Qt::Key_Escape);
    QCOMPARE(s.grid()->model()->rowCount(), 0);
    s.chosen = 2;
    s.key(Qt::Key_Return); // without a number: the list
    QCOMPARE(s.asked, QStringList{u"Siparis Listesi"_s});
    QCOMPARE(s.cell(0, TakipModel::Model), u"a75"_s);
}

void RaporGenelTest::editsStatusesAndDatesByKeyboard()
{
    Control s;
    s.find(u"3"_s);
    s.goTo(0, TakipModel::SipDur);
    s.enter();
    auto *orderStatus = s.control<ChoiceBox>(u"cmbTas"_s);
    QVERIFY(orderStatus->view()->isVisible()); // dropped open at once
    QCOMPARE(orderStatus->geometry(), s.grid()->visualRect(s.grid()->currentIndex()));
    s.enter(u"h"_s); // HAZIR
    QVERIFY(s.grid()->hasFocus());
    QVERIFY(!orderStatus->isVisible());
    // A double click drops it open too, and letting the button go leaves it so.
    const QModelIndex production = s.grid()->model()->index(1, TakipModel::UrtDur);
    const QPoint middle = s.grid()->visualRect(production).center();
    QTest::mouseClick(s.grid()->viewport(), Qt::LeftButton, {}, middle);
    QTest::mouseDClick(s.grid()->viewport(), Qt::LeftButton, {}, middle);
    QTest::mouseRelease(s.grid()->viewport(), Qt::LeftButton, {}, middle);
    QVERIFY(s.control<ChoiceBox>(u"cmbTas1"_s)->view()->isVisible());
    s.key(Qt::Key_Escape);
    QVERIFY(s.grid()->hasFocus());
    s.enter(u"dö"_s); // typing opens the editor as well
    s.goTo(1, TakipModel::BasTrh);
    s.enter();
    s.enter(); // the working date, as it is offered
    s.goTo(1, TakipModel::BitTrh);
    s.enter();
    s.enter(u"15062012"_s);
    s.goTo(1, TakipModel::Adet);
    s.enter(); // opens nothing
    QVERIFY(s.grid()->hasFocus());
    s.messages.expect({.text = saveQuestion, .answer = MessageAnswer::No});
    s.press(u"cmdKayit1"_s);
    QCOMPARE(s.field(3, u"Drm1"), QStringList({u""_s, u""_s}));
    s.messages.expect(
        {.text = saveQuestion, .answer = MessageAnswer::Yes, .icon = MessageIcon::Exclamation});
    s.press(u"cmdKayit1"_s);
    // Each line has its own, and the tab is empty for the next order.
    QCOMPARE(s.field(3, u"Drm1"), QStringList({u"HAZIR"_s, u""_s}));
    QCOMPARE(s.field(3, u"Drm2"), QStringList({u""_s, u"DÖKÜM"_s}));
    QCOMPARE(s.grid()->model()->rowCount(), 0);
    QVERIFY(s.control(u"Sipnum"_s)->hasFocus());
    s.find(orderCode(3)); // from its slip
    QCOMPARE(s.cell(0, TakipModel::BasTrh), QString());
    QCOMPARE(s.cell(1, TakipModel::BasTrh), u"01.06.2012"_s);
    QCOMPARE(s.cell(1, TakipModel::BitTrh), u"15.06.2012"_s);
}

void RaporGenelTest::takesOnlyWhatEnterOrAChoiceConfirms()
{
    Control s;
    s.oturum.Veritabani->execute(u"Update SiparisD Set Drm1 = 'SİLİNMİŞ' Where SipnumD = 3"_s);
    s.find(u"3"_s);
    s.goTo(0, TakipModel::SipDur);
    s.enter();
    s.enter(); // a status that is no longer offered stays until one is chosen
    QCOMPARE(s.cell(0, TakipModel::SipDur), u"SİLİNMİŞ"_s);
    s.enter();
    s.type(u"o"_s);
    s.key(Qt::Key_Escape);
    QCOMPARE(s.cell(0, TakipModel::SipDur), u"SİLİNMİŞ"_s);
    s.goTo(0, TakipModel::BasTrh);
    s.type(u"1"_s);
    s.type(u"5032012"_s);
    s.grid()->setFocus();
    QCOMPARE(s.cell(0, TakipModel::BasTrh), QString());
    s.enter();
    s.messages.expect(u"Tarih Hatali."_s);
    s.enter(u"31022012"_s);
    auto *date = s.control<DateBox>(u"trhEdit"_s);
    QVERIFY(date->hasFocus());
    s.enter(u"01032012"_s);
    QCOMPARE(s.cell(0, TakipModel::BasTrh), u"01.03.2012"_s);
    s.enter();
    s.key(Qt::Key_F4); // the calendar does not take the user out of the cell
    s.key(Qt::Key_Right);
    s.key(Qt::Key_Return);
    s.enter();
    QCOMPARE(s.cell(0, TakipModel::BasTrh), u"02.03.2012"_s);
    s.enter();
    s.key(Qt::Key_Delete);
    s.enter(); // an emptied date is none
    QCOMPARE(s.cell(0, TakipModel::BasTrh), QString());
    // What stands in an open editor when the save button is pressed is meant.
    s.type(u"2"_s);
    s.type(u"0032012"_s);
    s.messages.expect(saveQuestion, MessageAnswer::Yes);
    s.press(u"cmdKayit1"_s);
    QCOMPARE(s.field(3, u"Trhbas").first(), u"20.03.2012"_s);
}

void RaporGenelTest::emptiesCellsOnlyWithoutTheRight()
{
    for (const bool mayEdit : {true, false}) {
        Control s(mayEdit ? u"Admin"_s : u"eski"_s);
        s.oturum.Veritabani->execute(
            u"Update SiparisD Set Drm1 = 'HAZIR', Trhbit = DateValue('02.03.2012') "
            "Where SipnumD = 3"_s);
        s.find(u"3"_s);
        for (const int column : {TakipModel::SipDur, TakipModel::BitTrh, TakipModel::Adet}) {
            s.goTo(0, column);
            s.key(Qt::Key_Delete);
        }
        QCOMPARE(s.cell(0, TakipModel::SipDur), mayEdit ? u"HAZIR"_s : QString());
        QCOMPARE(s.cell(0, TakipModel::BitTrh), mayEdit ? u"02.03.2012"_s : QString());
        QCOMPARE(s.cell(0, TakipModel::Adet), u"1"_s);
        s.goTo(1, TakipModel::SipDur);
        s.enter();
        QCOMPARE(s.grid()->hasFocus(), !mayEdit);
        if (mayEdit)
            continue;
        s.messages.expect(saveQuestion, MessageAnswer::Yes);
        s.press(u"cmdKayit1"_s);
        QCOMPARE(s.field(3, u"Drm1"), QStringList({u""_s, u"HAZIR"_s}));
    }
}

void RaporGenelTest::guardsUnsavedEdits()
{
    Control s;
    s.find(u"3"_s);
    s.enter();
    s.enter(u"h"_s);
    s.messages.expect(
        {.text = unsaved, .answer = MessageAnswer::No, .defaultAnswer = MessageAnswer::No});
    s.key(Qt::Key_Escape);
    s.messages.expect(unsaved, MessageAnswer::No);
    s.press(u"cmdSon"_s);
    QVERIFY(s.screen->isVisible());
    QCOMPARE(s.cell(0, TakipModel::SipDur), u"HAZIR"_s);
    s.press(u"cmdVazgec1"_s); // means to discard
    QCOMPARE(s.grid()->model()->rowCount(), 0);
    s.find(u"3"_s);
    QCOMPARE(s.cell(0, TakipModel::SipDur), QString());
    s.key(Qt::Key_Escape);
    s.key(Qt::Key_Escape);
    QVERIFY(!s.screen->isVisible());
}

void RaporGenelTest::goesOnAfterALineThatFails()
{
    Control s;
    s.find(u"3"_s);
    for (const int row : {0, 1}) {
        s.goTo(row, TakipModel::SipDur);
        s.enter();
        s.enter(row == 0 ? u"h"_s : u"o"_s);
    }
    s.oturum.Veritabani->engine().run(
        u"CREATE TRIGGER t BEFORE UPDATE ON SiparisD WHEN NEW.Drm1 = 'HAZIR' BEGIN "
        "SELECT RAISE(ABORT, 'satır bozuk'); END"_s);
    s.messages.expect(saveQuestion, MessageAnswer::Yes);
    s.messages.expect({.text = u"Kayıt, tablonun anahtarlarına uymuyor. (satır bozuk)"_s,
                       .title = QString(),
                       .icon = MessageIcon::Exclamation});
    s.press(u"cmdKayit1"_s);
    QCOMPARE(s.field(3, u"Drm1"), QStringList({u""_s, u"ONAYLANDI"_s}));
    // What was typed stays until it is on disk.
    QCOMPARE(s.cell(0, TakipModel::SipDur), u"HAZIR"_s);
    s.oturum.Veritabani->engine().run(u"DROP TRIGGER t"_s);
    s.messages.expect(saveQuestion, MessageAnswer::Yes);
    s.press(u"cmdKayit1"_s);
    QCOMPARE(s.field(3, u"Drm1"), QStringList({u"HAZIR"_s, u"ONAYLANDI"_s}));
    QCOMPARE(s.grid()->model()->rowCount(), 0);
}

void RaporGenelTest::tellsWhatBecameOfALine()
{
    Control s;
    const auto set = [&] {
        s.find(u"3"_s);
        s.goTo(0, TakipModel::SipDur);
        s.enter();
        s.enter(u"h"_s); // HAZIR
        s.messages.expect(saveQuestion, MessageAnswer::Yes);
    };
    const auto first = [&](const QString &change) {
        s.oturum.Veritabani->execute(u"%1 Where SipnumD = 3 and Dotosayi = %2"_s.arg(
            change, s.field(3, u"Dotosayi").first()));
    };
    set();
    first(u"Update SiparisD Set Drm1 = 'ONAYLANDI', Drm2 = 'X'"_s);
    const QStringList change{u"Satır A75 BY YZK|Sipariş durumu|HAZIR|ONAYLANDI"_s,
                             u"Satır A75 BY YZK|Üretim durumu||X"_s};
    s.messages.expectChange(change, ChangeAnswer::Back);
    s.press(u"cmdKayit1"_s);
    QCOMPARE(s.cell(0, TakipModel::SipDur), u"HAZIR"_s);
    s.messages.expect(saveQuestion, MessageAnswer::Yes);
    s.messages.expectChange(change, ChangeAnswer::Theirs);
    s.press(u"cmdKayit1"_s);
    QCOMPARE(s.cell(0, TakipModel::SipDur), u"ONAYLANDI"_s);
    s.key(Qt::Key_Escape);

    set();
    first(u"Delete From SiparisD"_s);
    s.messages.expect({.text = u"Sipariş bu arada başka bir yerde değiştirilmiş"_s,
                       .icon = MessageIcon::Exclamation,
                       .begins = true});
    s.press(u"cmdKayit1"_s);
    QCOMPARE(s.cell(0, TakipModel::SipDur), u"HAZIR"_s); // what was typed stays
}

void RaporGenelTest::showsWhatIsMadeOfTheCurrentOrder()
{
    Report s;
    s.oturum.Veritabani->execute(u"Update SiparisD Set Drm1 = 'HAZIR', "
                                 "Trhbas = DateValue('05.03.2012') Where Dotosayi = 1"_s);
    QVERIFY(s.list()->hasFocus());
    QStringList headings;
    QStringList first;
    for (int column = 0; column < 4; ++column) {
        headings.append(s.list()->model()->headerData(column, Qt::Horizontal).toString());
        first.append(s.cellOf(s.list(), 0, column));
    }
    QCOMPARE(headings, QStringList({u"TARIH"_s, u"NO"_s, u"FIRMA"_s, u"AYAR"_s}));
    QCOMPARE(first, QStringList({u"01.05.2012"_s, u"4"_s, u"Işık Kuyumculuk"_s, u"585"_s}));
    QCOMPARE(s.cellOf(s.list(), 1, 1), u"3"_s); // of one date the highest number
    QCOMPARE(s.figures(u"Yedek0"_s), QStringList{u"A75 100 YZK"_s});
    s.key(Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(s.figures(u"Yedek0"_s),
             QStringList({u"A75 1 KLY"_s, u"A75 3 YZK"_s, u"İnci-1 2 KPE"_s}));
    QCOMPARE(s.figures(u"Taslar"_s), QStringList{u"ZRK 2 4.00"_s});
    // Enter on a figure shows the lines behind it.
    QTableView *pieces = s.control<RaporGrid>(u"Yedek0"_s)->rows();
    pieces->setFocus();
    pieces->setCurrentIndex(pieces->model()->index(1, 1));
    ReportTable behind;
    QTimer::singleShot(0, [&] {
        behind = QApplication::activeModalWidget()->findChild<RaporGrid *>()->table();
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    });
    s.key(Qt::Key_Return);
    s.screen->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(s.screen.get()));
    QCOMPARE(behind.title, u"A75 YZK"_s);
    QCOMPARE(behind.rows.last().values.last().toDouble(), 3.0);
    s.control<QComboBox>(u"Sipdur0"_s)->setFocus();
    s.key(Qt::Key_Down);
    s.key(Qt::Key_Down); // HAZIR
    QCOMPARE(s.figures(u"Yedek0"_s), QStringList{u"A75 3 YZK"_s});
    s.key(Qt::Key_Tab, Qt::ControlModifier);
    QVERIFY(s.control(u"Sipnum"_s)->hasFocus());
    s.key(Qt::Key_Tab, Qt::ControlModifier);
    QVERIFY(s.list()->hasFocus());
    // Lines that the dates keep out are told of.
    QVERIFY(!s.control(u"gizliNotu"_s)->isVisible());
    s.oturum.Veritabani->execute(u"Update SiparisD Set Trhbas = Null Where Dotosayi = 1"_s);
    s.control<DateBox>(u"Trh01"_s)->setDate(QDate(2012, 3, 4));
    QCOMPARE(s.figures(u"Yedek0"_s), QStringList());
    QVERIFY(s.control(u"gizliNotu"_s)->isVisible());
    QVERIFY(s.control<QLabel>(u"gizliNotu"_s)
                ->text()
                .startsWith(u"Siparişin 1 satırı tabloda gösterilmiyor: 1 satırın başlangıç"_s));
    QCOMPARE(s.figures(u"Taslar"_s), QStringList());
}

void RaporGenelTest::marksOrdersAndPrintsThem()
{
    Report s;
    s.messages.expect({.text = u"SEÇİM İŞLEMİ YAPILMAMIŞ..."_s, .title = u"HATA"_s});
    s.print(1);
    s.list()->setFocus();
    s.key(Qt::Key_Space);
    QVERIFY(s.marked(0));
    const QPoint third = s.list()->visualRect(s.list()->model()->index(2, 0)).center();
    QTest::mouseClick(s.list()->viewport(), Qt::LeftButton, {}, third);
    QVERIFY(!s.marked(2));
    QTest::mouseDClick(s.list()->viewport(), Qt::LeftButton, {}, third);
    QVERIFY(s.marked(2)); // 750
    s.messages.expect({.text = u"FARKLI AYARLARDA SIPARIS SECIMI YAPILAMAZ..."_s,
                       .icon = MessageIcon::Exclamation});
    s.print(2);
    s.list()->setFocus();
    s.key(Qt::Key_Space);
    QVERIFY(!s.marked(2));
    // A mark stays with its order while the list is narrowed and sorted.
    s.type(u"TR585"_s);
    s.control(u"Arama"_s)->setFocus();
    s.control<QLineEdit>(u"Arama"_s)->selectAll();
    s.enter(u"05.03.2012 ışık"_s);
    QCOMPARE(s.list()->model()->rowCount(), 1);
    s.key(Qt::Key_Space);
    s.print(2);
    QCOMPARE(s.viewer.documents.size(), 1);
    s.print(1);
    QCOMPARE(s.viewer.documents.size(), 2);
    const auto *numbers = std::get_if<PageText>(&s.viewer.documents[0].pages()[0].items[3]);
    QVERIFY(numbers != nullptr);
    QCOMPARE(numbers->text, u"SİPARİŞ NOLARI : 4,3"_s);
    s.control<DateBox>(u"Trh00"_s)->setDate(QDate(2012, 1, 1));
    s.messages.expect(u"KAYIT BULUNAMADI..."_s);
    s.print(1);
    s.print(0); // the first entry does nothing
    // Escape takes the search back, and then does not drop marks unasked.
    s.list()->setFocus();
    s.key(Qt::Key_Escape);
    QCOMPARE(s.control<QLineEdit>(u"Arama"_s)->text(), QString());
    s.key(Qt::Key_Space);
    s.messages.expect({.text = u"SEÇİLEN %1 SİPARİŞ YAZDIRILMADI, ÇIKILSIN MI ?"_s.arg(
                           s.marked(s.list()->currentIndex().row()) ? 3 : 1),
                       .answer = MessageAnswer::No,
                       .defaultAnswer = MessageAnswer::No});
    s.key(Qt::Key_Escape);
    s.messages.verify();
    QVERIFY(s.screen->isVisible());
}

KUYUM_TEST(RaporGenelTest)

} // namespace kuyum

#include "RaporGenelTest.moc"
