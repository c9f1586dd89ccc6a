#include "BarcodeReader.h"
#include "DateBox.h"
#include "EtiketStore.h"
#include "Giris_Siparis.h"
#include "KeptDocuments.h"
#include "Keyboard.h"
#include "ModelStore.h"
#include "OrderCode.h"
#include "OrderFixture.h"
#include "PrintDocument.h"
#include "ScriptedMessages.h"
#include "SiparisModel.h"
#include "SqliteEngine.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// The order screen on a fresh company, with a lookup list that answers as
/// told beforehand.
struct Screen : OrderFixture, Keyboard
{
    Screen()
    {
        oturum.ResimYolu = dir.filePath(u"resim"_s);
        open();
    }

    void open()
    {
        screen = std::make_unique<Giris_Siparis>(
            ScreenContext{oturum, messages,
                          [this](QWidget *, const LookupRequest &request) {
                              asked.append(request);
                              return answers.isEmpty() ? LookupAnswer() : answers.takeFirst();
                          },
                          viewer},
            settings,
            OrderReports{
                [this](QWidget *, qint32 order, bool) { reports.append(u"tas %1"_s.arg(order)); },
                [this](QWidget *, qint32 order, bool degisti) {
                    reports.append(u"ymamul %1%2"_s.arg(order).arg(degisti ? u"*"_s : QString()));
                }});
        screen->show();
        QVERIFY(QTest::qWaitForWindowActive(screen.get()));
    }

    template <typename Widget = QWidget>
    Widget *control(const QString &name) const
    {
        return screen->findChild<Widget *>(name);
    }
    QString text(const QString &name) const { return control<QLineEdit>(name)->text(); }
    QTableView *grid() const { return control<QTableView>(u"Rapor"_s); }
    QString cell(int row, int column) const
    {
        return grid()->model()->index(row, column).data().toString();
    }
    bool yellow(int row, int column) const
    {
        return grid()->model()->index(row, column).data(Qt::BackgroundRole).value<QBrush>() ==
               QBrush(QColor(255, 255, 0));
    }
    std::pair<int, int> cursor() const
    {
        return {grid()->currentIndex().row(), grid()->currentIndex().column()};
    }

    void press(const QString &button) const { QTest::mouseClick(control(button), Qt::LeftButton); }
    /// Alt and the save button's letter, up to the message that follows.
    void saveByKey() const
    {
        key(Qt::Key_K, Qt::AltModifier);
        QTRY_COMPARE(messages.remaining(), 0);
    }
    /// Opens an order by its number, or a new one.
    void find(const QString &number = {}) const { enter(number); }
    /// A header with everything in it, up to the grid.
    void fillHeader() const
    {
        find();
        enter(u"10"_s);
        enter();
        enter(u"585"_s);
        enter(u"TR585"_s);
        control<QLineEdit>(u"Aciklama"_s)->clear();
        enter(u"O'Hara notu"_s);
    }
    /// What the lookup list answers next.
    void answerList(const QString &Secilen, qint32 SecilenNo = 0)
    {
        LookupAnswer answer;
        answer.Secilen = Secilen;
        answer.SecilenNo = SecilenNo;
        answers.append(answer);
    }

    ScriptedMessages messages;
    KeptDocuments viewer;
    QSettings settings{dir.filePath(u"ayarlar.ini"_s), QSettings::IniFormat};
    QList<LookupRequest> asked;
    QStringList reports; ///< those that were opened
    QList<LookupAnswer> answers;
    std::unique_ptr<Giris_Siparis> screen;
};

/// A keyboard with a clock of its own, in milliseconds: nobody waits for it.
struct TimedKeys
{
    void press(Qt::Key key, const QString &text, quint64 gap)
    {
        now += gap;
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        event.setTimestamp(now);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }
    void type(const QString &text, quint64 gap = 120)
    {
        for (const QChar c : text)
            press(Qt::Key_unknown, c, gap);
    }
    void scan(const QString &label) { type(label, 2); }
    void scannersEnter() { press(Qt::Key_Return, u"\r"_s, 2); }

    quint64 now = 10000;
};

const QString slipQuestion = u"SİPARİŞ LİSTESİ ALINSIN ..!"_s;
const QString ringLabel = u"1600100000019"_s;    // A75 as a ring
const QString earringLabel = u"1600300000047"_s; // İnci-1

} // namespace

class GirisSiparisTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modelPassesTheTester();
    void entersAnOrderByKeyboard();
    void walksThroughTheStates();
    void savesAFoundOrder();
    void savesTheDateAsTyped();
    void theUserChoosesWhoseOrderStays();
    void tellsWhatIsMissing();
    void findsTheCustomer();
    void removesRows();
    void picksModels();
    void scansLabels();
    void scansTheSlipsNumber();
    void readsThePrintedLabelOfAModel();
    void quickEntry();
    void scansOnlyAddRows();
    void scansWhereverTheCursorStands();
    void scansSwallowNoTyping();
    void savesAsNew();
    void deletesTheOrder();
    void refusesAKaratThatCannotBeStored();
    void guardsUnsavedWork();
    void neverReplacesAnOrderThatWasNotShown();
    void keepsTheScreenWhenSavingFails();
    void limitsAndApostrophes();
    void showsPictures();
    void printsTheSlip();
    void theSlipIsPrintedAsChosenLastTime();
};

void GirisSiparisTest::modelPassesTheTester()
{
    SiparisModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setTypes({{2, u"Kolye"_s, u"KLY"_s}, {1, u"Yüzük"_s, u"YZK"_s}});
    model.addRow();
    model.setData(model.index(0, 0), u"A75"_s);
    model.SatirKitle(0, {u"yzk"_s}, u"YZK"_s, 1);
    QCOMPARE(model.index(0, 3).data().toString(), u"1"_s);
    QVERIFY(!model.setData(model.index(0, 2), 5));          // white
    QVERIFY(!model.setData(model.index(0, 5), u"HAZIR"_s)); // a status
    model.removeRow(1);
    model.clearRow(0);
    model.Gridbosalt();
    QCOMPARE(model.rowCount(), 1);
}

void GirisSiparisTest::entersAnOrderByKeyboard()
{
    Screen s;
    QCOMPARE(QApplication::focusWidget(), s.control(u"Sipnum"_s));
    s.fillHeader();
    QCOMPARE(QApplication::focusWidget(), s.grid());
    // Typing starts the editor; Enter goes to colour, to the first yellow
    // cell, to the next, to the note, and into a new row.
    s.enter(u"a75"_s);
    QCOMPARE(s.cell(0, 0), u"A75"_s);
    QVERIFY(s.yellow(0, 2) && s.yellow(0, 3) && !s.yellow(0, 4));
    QCOMPARE(s.cursor(), std::pair(0, 1));
    s.enter(u"B"_s);
    QCOMPARE(s.cell(0, 1), u"BY"_s);
    s.enter(u"12"_s);
    QCOMPARE(s.cursor(), std::pair(0, 3));
    s.enter(u"3"_s);
    QCOMPARE(s.cursor(), std::pair(0, 5));
    s.enter(u"iç yazı: 'Daima'"_s);
    QCOMPARE(s.cursor(), std::pair(1, 0));
    s.enter(u"İnci-1"_s);
    s.key(Qt::Key_Return); // opens the colours
    s.key(Qt::Key_Down);
    s.key(Qt::Key_Return);
    QCOMPARE(s.cursor(), std::pair(1, 4)); // past the white cells
    s.enter(u"7"_s);
    s.messages.expect(
        {.text = slipQuestion, .answer = MessageAnswer::No, .icon = MessageIcon::Exclamation});
    s.saveByKey();
    QCOMPARE(s.lines(5),
             QStringList({u"1 A75 2 BY [iç yazı: 'Daima'] 12"_s,
                          u"1 A75 1 BY [iç yazı: 'Daima'] 3"_s, u"2 İnci-1 3 SR [] 7"_s}));
    QCOMPARE(s.header(5, u"SipTrh"), u"01.06.2012"_s);
    QCOMPARE(s.header(5, u"SipFirkod"), u"10"_s);
    QCOMPARE(s.header(5, u"Ayar"), u"585"_s);
    QCOMPARE(s.header(5, u"Patent"), u"TR585"_s);
    QCOMPARE(s.header(5, u"Aciklama"), u"O'Hara notu"_s);
    QCOMPARE(s.field(5, u"Trhbas").first(), u"01.01.2000"_s);
    QVERIFY(s.viewer.documents.isEmpty());
    QCOMPARE(s.text(u"Sipnum"_s), QString());
    QCOMPARE(QApplication::focusWidget(), s.control(u"Sipnum"_s));
}

void GirisSiparisTest::walksThroughTheStates()
{
    Screen s;
    const auto enabled = [&s] {
        QStringList names;
        for (const QString &name :
             {u"Sipnum"_s, u"cmdListe"_s, u"FirAdi"_s, u"TesTrh"_s, u"Ayar"_s, u"Patent"_s,
              u"Aciklama"_s, u"Rapor"_s, u"cmdvazgec"_s, u"cmdKayit"_s, u"cmdsil"_s, u"Command1"_s,
              u"cmdYazdir"_s, u"cmdTAS"_s, u"CmdYmamul"_s}) {
            if (s.control(name)->isEnabled())
                names.append(name);
        }
        return names.join(u' ');
    };
    const QString editing =
        u"FirAdi TesTrh Ayar Patent Aciklama Rapor cmdvazgec cmdKayit%1 cmdYazdir cmdTAS CmdYmamul"_s;
    QCOMPARE(enabled(), u"Sipnum cmdListe"_s);
    s.find();
    QCOMPARE(enabled(), editing.arg(QString()));
    s.press(u"cmdTAS"_s); // a new order has none
    s.key(Qt::Key_Escape);
    QCOMPARE(enabled(), u"Sipnum cmdListe"_s);
    s.find(u"1"_s);
    QCOMPARE(enabled(), editing.arg(u" cmdsil Command1"_s));
    QCOMPARE(QApplication::focusWidget(), s.control(u"FirAdi"_s));
    QCOMPARE(s.cursor(), std::pair(0, 0));
    QCOMPARE(s.text(u"FirAdi"_s), u"Işık Kuyumculuk"_s);
    QCOMPARE(s.cell(0, 3), u"3"_s);
    QCOMPARE(s.grid()->model()->rowCount(), 3); // an empty one for new input
    s.press(u"cmdTAS"_s);
    s.press(u"CmdYmamul"_s);
    s.control(u"Patent"_s)->setFocus();
    s.type(u"x"_s);
    s.press(u"CmdYmamul"_s); // told that this is not stored
    s.control(u"Patent"_s)->setFocus();
    s.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(s.reports, (QStringList{u"tas 1"_s, u"ymamul 1"_s, u"ymamul 1*"_s}));
    s.press(u"cmdvazgec"_s);
    QCOMPARE(s.text(u"FirAdi"_s) + s.text(u"Firkod"_s) + s.text(u"Ayar"_s), QString());
    s.answerList({}, 2);
    s.press(u"cmdListe"_s);
    QCOMPARE(s.asked.last().ListeTuru, u"Siparis Listesi"_s);
    QCOMPARE(s.text(u"Sipnum"_s), u"2"_s);
    QCOMPARE(s.text(u"FirAdi"_s), u"O'Hara Gold"_s);
    // Column heads, as they have always been written.
    QStringList heads;
    for (int column = 0; column < s.grid()->model()->columnCount(); ++column)
        heads.append(s.grid()->model()->headerData(column, Qt::Horizontal).toString());
    QCOMPARE(heads.join(u' '), u"MODEL RENK KLY YZK KPE AÇIKLAMa Durum1 Durum2 BasTrh Bittrh"_s);
    QCOMPARE(s.control<QComboBox>(u"cmbTas"_s)->itemText(0), u"SR"_s);
}

void GirisSiparisTest::savesAFoundOrder()
{
    Screen s;
    s.oturum.Veritabani->execute(
        u"UPDATE SiparisD SET Drm1 = 'HAZIR', Trhbas = DateValue('4.3.2012') Where SipnumD = 1"_s);
    for (int time = 0; time < 2; ++time) {
        s.find(u"1"_s);
        s.control<DateBox>(u"SipTrh"_s)->setDate(QDate(2020, 1, 1));
        s.messages.expect(slipQuestion, MessageAnswer::No);
        s.press(u"cmdKayit"_s);
        QCOMPARE(s.lines(1), QStringList({u"1 A75 2 SR [ölçü 14] 1"_s, u"1 A75 1 SR [ölçü 14] 3"_s,
                                          u"2 İnci-1 3 BY [] 2"_s}));
        QCOMPARE(s.field(1, u"Drm1"), QStringList({u"HAZIR"_s, u"HAZIR"_s, u"HAZIR"_s}));
        QCOMPARE(s.field(1, u"Trhbas").last(), u"04.03.2012"_s);
        QCOMPARE(s.header(1, u"SipTrh"), u"01.03.2012"_s);
    }
    // What old orders lack or hold beyond the screen's habits stays.
    Recordset header = s.oturum.Veritabani->query(u"Select * From SiparisB Where Sipnum = 3"_s);
    QVERIFY(header.next());
    header.edit();
    header.set(u"TesTrh", QVariant());
    header.set(u"Aciklama", u"iki\r\nsatır"_s);
    header.update();
    s.find(u"3"_s);
    s.messages.expect(slipQuestion, MessageAnswer::No);
    s.press(u"cmdKayit"_s);
    QCOMPARE(s.header(3, u"TesTrh"), u"01.01.2000"_s);
    QCOMPARE(s.header(3, u"Aciklama"), u"iki\r\nsatır"_s);

    // A number that does not exist opens an empty screen; its save fails.
    s.find(u"77"_s);
    QCOMPARE(s.text(u"Sipnum"_s), u"77"_s);
    s.enter(u"10"_s);
    s.enter();
    s.enter(u"585"_s);
    s.enter(u"585"_s);
    s.enter();
    s.enter(u"boş"_s);
    s.enter(u"S"_s);
    s.enter(u"1"_s);
    s.messages.expect({.text = u"SİPARİŞ BAŞLIK KAYDINA ULAŞILAMIYOR..."_s,
                       .title = u"HATA"_s,
                       .icon = MessageIcon::Critical});
    s.press(u"cmdKayit"_s);
    QCOMPARE(s.headerCount(), 4);
    QCOMPARE(s.cell(0, 0), u"boş"_s); // what was typed stands
    // It was told from the start, and still is after models were entered.
    QVERIFY(s.control<QLabel>(u"warningLine"_s)->text().startsWith(u"77 nolu sipariş yok"_s));
    QVERIFY(s.control(u"warningLine"_s)->isVisible());
}

/// A save never takes a date that is half typed, and takes the typed one at once.
void GirisSiparisTest::savesTheDateAsTyped()
{
    Screen s;
    const auto type = [&s](const QString &date) {
        s.control(u"TesTrh"_s)->setFocus(Qt::TabFocusReason);
        s.type(date);
        QTest::keyClick(s.control(u"TesTrh"_s), Qt::Key_K, Qt::AltModifier);
    };
    s.find(u"1"_s);
    const QString before = s.header(1, u"TesTrh");
    s.messages.expect(u"Tarih Hatali."_s);
    type(u"9.3."_s);
    QTRY_COMPARE(s.messages.remaining(), 0);
    QTRY_VERIFY(s.control(u"TesTrh"_s)->hasFocus());
    QCOMPARE(s.control<DateBox>(u"TesTrh"_s)->text(), u"9.3."_s);
    QCOMPARE(s.header(1, u"TesTrh"), before);

    s.messages.expect(slipQuestion, MessageAnswer::No);
    type(u"9.3.27"_s);
    QTRY_COMPARE(s.messages.remaining(), 0);
    QCOMPARE(s.header(1, u"TesTrh"), u"09.03.2027"_s);
}

void GirisSiparisTest::theUserChoosesWhoseOrderStays()
{
    Screen s;
    const QStringList change = {u"Sipariş 1|Açıklama|benim|Acele"_s,
                                u"Satır A75 SR YZK ölçü 14|Sipariş durumu||HAZIR"_s};
    const auto open = [&] {
        s.find(u"1"_s);
        s.control<QLineEdit>(u"Aciklama"_s)->setText(u"benim"_s);
        s.oturum.Veritabani->execute(
            u"UPDATE SiparisD SET Drm1 = 'HAZIR' Where SipnumD = 1 and SipUruntip = 1"_s);
    };
    open();
    for (const ChangeAnswer answer : {ChangeAnswer::Back, ChangeAnswer::Theirs}) {
        s.messages.expectChange(change, answer);
        s.saveByKey();
        QCOMPARE(s.text(u"Aciklama"_s), answer == ChangeAnswer::Back ? u"benim"_s : u"Acele"_s);
        QCOMPARE(s.field(1, u"Drm1").filter(u"HAZIR"_s).size(), 1);
    }
    QVERIFY(s.control(u"cmdsil"_s)->isEnabled()); // the other's order is being edited
    s.key(Qt::Key_Escape);                        // and nothing of it is unsaved
    s.oturum.Veritabani->execute(u"UPDATE SiparisD SET Drm1 = '' Where SipnumD = 1"_s);
    open();
    s.messages.expectChange(change, ChangeAnswer::Mine);
    s.messages.expect(slipQuestion, MessageAnswer::No);
    s.saveByKey();
    QCOMPARE(s.header(1, u"Aciklama"), u"benim"_s);
    QCOMPARE(s.field(1, u"Drm1"), QStringList({u""_s, u""_s, u""_s}));
}

void GirisSiparisTest::tellsWhatIsMissing()
{
    Screen s;
    s.find();
    const auto save = [&s](const QString &message) {
        s.messages.expect(message);
        s.saveByKey();
        return QApplication::focusWidget();
    };
    QCOMPARE(save(u"MÜŞTERİ SEÇİMİ YAPILMAMIŞ...!"_s), s.control(u"FirAdi"_s));
    s.enter(u"10"_s);
    QCOMPARE(save(u"AYAR BİLGİSİ GİRİLMEMİŞ...!"_s), s.control(u"Ayar"_s));
    s.enter(u"585"_s);
    QCOMPARE(save(u"PATENT BİLGİSİ GİRİLMEMİŞ...!"_s), s.control(u"Patent"_s));
    s.enter(u"585"_s);
    s.control<QLineEdit>(u"Aciklama"_s)->clear();
    QCOMPARE(save(u"AÇIKLAMA BİLGİSİ GİRİLMEMİŞ...!"_s), s.control(u"Aciklama"_s));
    s.enter(u"x"_s);
    QCOMPARE(save(u"SİPARİŞ DETAY BİLGİLERİ GİRİLMEMİŞ...!"_s), s.grid());
    s.enter(u"A75"_s);
    QCOMPARE(save(u"RENK BİLGİSİ GİRİLMEMİŞ...!"_s), s.grid());
    QCOMPARE(s.cursor(), std::pair(0, 1));
    s.enter(u"S"_s);
    s.grid()->setCurrentIndex(s.grid()->model()->index(0, 5));
    QCOMPARE(save(u"SİPARİŞ ADETLERİ GİRİLMEMİŞ...!"_s), s.grid());
    QCOMPARE(s.cursor(), std::pair(0, 2));
    s.oturum.Veritabani->execute(u"DELETE From Model Where Model = 'A75'"_s);
    s.messages.expect(
        {.text = u"HATALI MODEL KODU !"_s, .title = u"A75"_s, .icon = MessageIcon::Critical});
    s.saveByKey();
    QCOMPARE(s.headerCount(), 4); // nothing was written
}

void GirisSiparisTest::findsTheCustomer()
{
    Screen s;
    s.find();
    s.messages.expect(u"KAYIT BULUNAMADI ...!"_s);
    s.enter(u"99"_s);
    QCOMPARE(QApplication::focusWidget(), s.control(u"FirAdi"_s));
    s.enter(u"10"_s);
    QCOMPARE(s.text(u"FirAdi"_s), u"Işık Kuyumculuk"_s);
    QCOMPARE(s.text(u"KisaAD"_s), u"IŞIK"_s);
    QCOMPARE(s.text(u"Aciklama"_s), u"Vadeli"_s);
    QCOMPARE(QApplication::focusWidget(), s.control(u"TesTrh"_s));

    // Another name is no customer until it is found.
    s.control(u"FirAdi"_s)->setFocus();
    s.control<QLineEdit>(u"FirAdi"_s)->selectAll();
    s.type(u"O'H"_s);
    QCOMPARE(s.text(u"Firkod"_s), QString());
    s.enter(); // left without a choice
    QCOMPARE(s.asked.last().ListeTuru, u"Firma Listesi"_s);
    QCOMPARE(s.asked.last().ListeFiltre, u"O'H"_s);
    QCOMPARE(s.text(u"FirAdi"_s), u"O'H"_s);
    s.answerList(u"O'Hara Gold"_s, 20);
    s.enter();
    QCOMPARE(s.text(u"Firkod"_s), u"20"_s);
    QCOMPARE(s.text(u"FirAdi"_s), u"O'Hara Gold"_s);
    QCOMPARE(s.text(u"Aciklama"_s), QString()); // the note of the customer before went

    // Passing by a found customer neither asks again nor replaces the note.
    s.control<QLineEdit>(u"Aciklama"_s)->setText(u"elle"_s);
    s.control(u"FirAdi"_s)->setFocus();
    const qsizetype asked = s.asked.size();
    s.enter();
    QCOMPARE(s.asked.size(), asked);
    QCOMPARE(s.text(u"Aciklama"_s), u"elle"_s);
}

void GirisSiparisTest::removesRows()
{
    Screen s;
    s.oturum.Veritabani->execute(
        u"UPDATE SiparisD SET Trhbit = DateValue('4.3.2012') Where SipModel = 'İnci-1'"_s);
    s.find(u"1"_s);
    s.grid()->setFocus();
    s.messages.expect(u"A75 LİSTEDEN ÇIKARILACAK..."_s, MessageAnswer::No);
    s.key(Qt::Key_Delete);
    QCOMPARE(s.cell(0, 0), u"A75"_s);
    s.messages.expect(u"A75 LİSTEDEN ÇIKARILACAK..."_s, MessageAnswer::Yes);
    s.key(Qt::Key_Delete);
    QCOMPARE(s.cell(0, 0), u"İnci-1"_s);
    s.messages.expect({.text = u"HAREKET GORMUŞ SİPARİŞ SATIRI SİLİNEMEZ..."_s,
                       .title = u"HATA"_s,
                       .icon = MessageIcon::Critical});
    s.key(Qt::Key_Delete);
    s.key(Qt::Key_Down);
    s.key(Qt::Key_Delete); // a row without a model: nothing to ask
    QCOMPARE(s.grid()->model()->rowCount(), 2);

    // The only row is emptied instead.
    Screen only;
    only.fillHeader();
    only.enter(u"A75"_s);
    only.messages.expect(u"A75 LİSTEDEN ÇIKARILACAK..."_s, MessageAnswer::Yes);
    only.key(Qt::Key_Delete);
    QCOMPARE(only.grid()->model()->rowCount(), 1);
    QCOMPARE(only.cell(0, 0), QString());
    QVERIFY(!only.yellow(0, 2));
    QCOMPARE(only.cursor(), std::pair(0, 0));
}

void GirisSiparisTest::picksModels()
{
    Screen s;
    s.fillHeader();
    // An unknown code opens the list; without a choice the text stays typed.
    s.enter(u"A7"_s);
    QCOMPARE(s.asked.last().ListeTuru, u"Siparis Model Listesi"_s);
    QCOMPARE(s.asked.last().ListeFiltre, u"A7"_s);
    QCOMPARE(s.text(u"txtTas"_s), u"A7"_s);
    QVERIFY(s.control(u"txtTas"_s)->hasFocus());
    s.answerList(u"A75"_s);
    s.enter();
    QCOMPARE(s.cell(0, 0), u"A75"_s);
    QCOMPARE(s.cursor(), std::pair(0, 1));
    // Escape leaves the cell as it was.
    s.key(Qt::Key_Left);
    s.type(u"boş"_s);
    s.key(Qt::Key_Escape);
    QCOMPARE(s.cell(0, 0), u"A75"_s);
    QVERIFY(s.grid()->hasFocus());

    // Insert opens a row once the last one has model and colour.
    s.key(Qt::Key_Insert);
    QCOMPARE(s.grid()->model()->rowCount(), 1);
    s.key(Qt::Key_Right);
    s.enter(u"s"_s);
    s.key(Qt::Key_Insert);
    QCOMPARE(s.cursor(), std::pair(1, 0));
    // Enter on an empty model cell: the list of all models.
    s.answerList(u"A75"_s);
    s.messages.expect({.text = u"TABLODA KAYIT MEVCUT!"_s, .icon = MessageIcon::Exclamation});
    s.enter();
    s.enter();
    QCOMPARE(s.asked.last().ListeFiltre, QString());
    QCOMPARE(s.cell(1, 0), u"A75"_s);

    // White, status and date cells take nothing; letters are no quantity.
    for (const int column : {4, 6, 7, 8, 9}) {
        s.grid()->setCurrentIndex(s.grid()->model()->index(1, column));
        s.enter(u"5"_s);
        QCOMPARE(s.cell(1, column), QString());
    }
    s.grid()->setCurrentIndex(s.grid()->model()->index(1, 2));
    s.type(u"x4y2"_s);
    s.key(Qt::Key_Down);
    QCOMPARE(s.cell(1, 2), u"42"_s);
    // A model that lacks the type loses the quantity, with the row in sight.
    s.grid()->setCurrentIndex(s.grid()->model()->index(1, 0));
    s.enter(u"boş"_s);
    QCOMPARE(s.cell(1, 2), QString());
    QVERIFY(s.yellow(1, 3) && !s.yellow(1, 2));

    // A model typed but not yet taken is not lost when the focus goes away.
    s.grid()->setCurrentIndex(s.grid()->model()->index(1, 0));
    s.type(u"İnci-1"_s);
    s.control(u"Patent"_s)->setFocus();
    s.messages.expect(u"SİPARİŞ ADETLERİ GİRİLMEMİŞ...!"_s);
    s.press(u"cmdKayit"_s);
    QCOMPARE(s.cell(1, 0), u"İnci-1"_s);
}

void GirisSiparisTest::scansLabels()
{
    Screen s;
    s.fillHeader();
    s.enter(ringLabel);
    QCOMPARE(s.cell(0, 0), u"A75"_s);
    QCOMPARE(s.cell(0, 2) + u'/' + s.cell(0, 3), u"/1"_s);
    QCOMPARE(s.cursor(), std::pair(1, 0));
    s.messages.expect({.text = u"TABLODA KAYIT MEVCUT!"_s, .icon = MessageIcon::Exclamation});
    s.enter(ringLabel);
    QCOMPARE(s.cell(1, 3), u"1"_s);
    QCOMPARE(s.cursor(), std::pair(2, 0));
    // A label that no model has opens no list, whose first model a scanner's
    // second Enter would order.
    s.messages.expect({.text = u"ETİKET BULUNAMADI"_s, .begins = true});
    s.enter(u"1600100009991"_s);
    QCOMPARE(s.cursor(), std::pair(2, 0));
    QCOMPARE(s.cell(2, 0), QString());

    // What is stuck on goods means its model through saves, and tells it later.
    const ModelStore models(s.oturum);
    Model ring = *models.ModelBul(u"A75"_s, 1);
    LoadedRows unread;
    models.save(ring, unread);
    s.messages.expect(u"TABLODA KAYIT MEVCUT!"_s);
    s.enter(ringLabel);
    QCOMPARE(s.cell(2, 0) + s.cell(2, 3), u"A751"_s);
    models.remove(u"A75"_s, 1, unread);
    s.messages.expect({.text = u"ETİKETİN MODELİ SİLİNMİŞ: A75 (YZK)"_s, .begins = true});
    s.enter(ringLabel);
    s.oturum.calistir(u"Delete From UrunTipi Where KisaAD = 'KPE'"_s);
    s.messages.expect({.text = u"ETİKETİN ÜRÜN TİPİ SİLİNMİŞ: İnci-1"_s, .begins = true});
    s.enter(earringLabel);
    s.messages.expect({.text = u"BU BİR SİPARİŞ FİŞİNİN BARKODU"_s, .begins = true});
    s.enter(orderCode(1));
    QCOMPARE(s.cursor(), std::pair(3, 0));
    QVERIFY(s.asked.isEmpty());
}

void GirisSiparisTest::scansTheSlipsNumber()
{
    Screen s;
    s.find(orderCode(2)); // a scanner that sends Enter
    QCOMPARE(s.text(u"Sipnum"_s) + u'/' + s.text(u"Firkod"_s), u"2/20"_s);
    s.press(u"cmdvazgec"_s);
    s.type(orderCode(1)); // and one that does not
    QTRY_COMPARE(s.text(u"Firkod"_s), u"10"_s);
    QCOMPARE(s.text(u"Sipnum"_s), u"1"_s);
    s.press(u"cmdvazgec"_s);

    // No part of another code opens an order.
    const QString misread = orderCode(1).chopped(1) + u'0';
    for (const auto &[code, refusal] :
         {std::pair{ringLabel, u"BU BİR ÜRÜN ETİKETİ, SİPARİŞ NUMARASI DEĞİL:"_s},
          {misread, u"BU BİR SİPARİŞ NUMARASI DEĞİL:"_s}}) {
        s.messages.expect({.text = refusal, .begins = true});
        s.find(code);
        QCOMPARE(QApplication::focusWidget(), s.control(u"Sipnum"_s));
        QVERIFY(!s.control(u"cmdKayit"_s)->isEnabled());
    }
}

/// From the label's dots to the row in the database.
void GirisSiparisTest::readsThePrintedLabelOfAModel()
{
    Screen s;
    const std::optional<EtiketModeli> found = EtiketStore(s.oturum).ModelBul(u"İnci-1"_s, 3);
    QVERIFY(found);
    const PrintDocument label = etiketBelgesi(found->etiket);
    const QStringList read = readBarcodes(pageDots(label, label.pages().first(), 203));
    QCOMPARE(read.size(), 1);

    s.fillHeader();
    s.answerList(u"BY"_s);
    s.press(u"Check_HizliGiris"_s);
    s.enter(read.first().section(u':', 1));
    s.messages.expect(slipQuestion, MessageAnswer::No);
    s.saveByKey();
    QCOMPARE(s.lines(5), QStringList{u"1 İnci-1 3 BY [] 1"_s});
}

void GirisSiparisTest::quickEntry()
{
    Screen s;
    s.fillHeader();
    s.answerList(u"BY"_s);
    s.press(u"Check_HizliGiris"_s);
    QCOMPARE(s.asked.last().ListeTuru, u"Renk Listesi"_s);
    QCOMPARE(s.asked.last().ListeFiltre, QString());
    QCOMPARE(s.control<QPushButton>(u"SabitRenk"_s)->text(), u"BY"_s);
    QCOMPARE(QApplication::focusWidget(), s.grid());

    // One label twice, with the scanner's Enter, and no key between: the
    // warning stands in the screen, not in the way.
    s.enter(ringLabel);
    s.enter(ringLabel);
    QVERIFY(s.control<QLabel>(u"warningLine"_s)->text().startsWith(u"TABLODA KAYIT MEVCUT!"_s));
    // A scanner without Enter, one with two, and a label that is not known.
    s.type(earringLabel + u"1600100009991"_s + earringLabel);
    QVERIFY(s.control<QLabel>(u"warningLine"_s)->text().contains(u"1600100009991"_s));
    QVERIFY(s.control(u"warningLine"_s)->isVisible());
    QCOMPARE(s.asked.size(), 1); // no list came in between
    s.enter();
    s.enter(u"boş"_s); // a typed model gets the colour as well
    s.enter(u"6"_s);
    s.messages.expect(slipQuestion, MessageAnswer::No);
    s.saveByKey();
    QCOMPARE(s.lines(5),
             QStringList({u"1 A75 1 BY [] 1"_s, u"2 A75 1 BY [] 1"_s, u"3 İnci-1 3 BY [] 1"_s,
                          u"4 İnci-1 3 BY [] 1"_s, u"5 boş 1 BY [] 6"_s}));

    s.answerList(u"SR"_s);
    s.press(u"SabitRenk"_s);
    QCOMPARE(s.control<QPushButton>(u"SabitRenk"_s)->text(), u"SR"_s);
    s.press(u"Check_HizliGiris"_s);
    QCOMPARE(s.control<QPushButton>(u"SabitRenk"_s)->text(), QString());
}

void GirisSiparisTest::scansOnlyAddRows()
{
    Screen s;
    const QString likeALabel = u"1699999999999"_s; // a model code, as it happens
    Recordset models = s.oturum.Veritabani->table(u"Model"_s);
    models.addNew();
    models.set(u"Model", likeALabel);
    models.set(u"M_Uruntip", 1);
    models.update();

    s.answerList(u"BY"_s);
    s.press(u"Check_HizliGiris"_s);
    s.control(u"Sipnum"_s)->setFocus();
    s.find(u"1"_s); // the cursor stands on the first row's model
    s.grid()->setFocus();
    s.type(earringLabel);
    QCOMPARE(s.cell(0, 0), u"A75"_s);
    QCOMPARE(s.cell(1, 0), u"İnci-1"_s);
    QCOMPARE(s.cell(2, 0) + s.cell(2, 1) + s.cell(2, 4), u"İnci-1BY1"_s);
    QCOMPARE(s.cursor(), std::pair(3, 0));
    s.grid()->setCurrentIndex(s.grid()->model()->index(0, 0));
    s.type(u"1600100009991"_s); // not known
    QCOMPARE(s.cell(0, 0), u"A75"_s);
    s.type(ringLabel);
    QCOMPARE(s.cell(3, 0), u"A75"_s);

    // Opening the cell of such a code scans nothing.
    s.type(likeALabel);
    QVERIFY(s.control<QLabel>(u"warningLine"_s)->text().contains(u"1600100009991"_s));
    s.grid()->setCurrentIndex(s.grid()->model()->index(4, 0));
    QCOMPARE(s.cell(4, 0), likeALabel);
    s.key(Qt::Key_F2);
    QCOMPARE(s.text(u"txtTas"_s), likeALabel);
    QVERIFY(s.control(u"txtTas"_s)->hasFocus());
}

void GirisSiparisTest::scansWhereverTheCursorStands()
{
    Screen s;
    s.fillHeader();
    s.answerList(u"BY"_s);
    s.press(u"Check_HizliGiris"_s);
    TimedKeys keys;
    QStringList expected;
    for (int i = 0; i < 200; ++i) {
        const bool ring = i % 2 == 0;
        QString quantity = u"1"_s;
        QString colour = u"BY"_s;
        QString note;
        keys.scan(ring ? ringLabel : earringLabel);
        if (i % 3 == 0)
            keys.scannersEnter();
        // The user does something in the new row, and the next scan breaks in.
        const auto goTo = [&](int column) {
            s.grid()->setCurrentIndex(s.grid()->model()->index(i, column));
        };
        switch (i % 6) {
        case 1:
            goTo(ring ? 3 : 4);
            keys.type(quantity = u"12"_s);
            break;
        case 2:
            goTo(5);
            keys.type(note = u"ölçü 16"_s);
            break;
        case 3:
            goTo(i % 4 == 1 ? 2 : 7); // takes no typing
            break;
        case 4:
            goTo(ring ? 3 : 4);
            keys.press(Qt::Key_F2, {}, 120);
            break;
        case 5:
            goTo(1);
            keys.type(u"S"_s);
            colour = u"SR"_s;
            break;
        default:
            break;
        }
        expected.append(u"%1 %2 %3 %4 [%5] %6"_s.arg(i + 1).arg(
            ring ? u"A75"_s : u"İnci-1"_s, ring ? u"1"_s : u"3"_s, colour, note, quantity));
    }
    QCOMPARE(s.asked.size(), 1); // no list came in between
    s.messages.expect(slipQuestion, MessageAnswer::No);
    s.press(u"cmdKayit"_s);
    QCOMPARE(s.lines(5), expected);
}

void GirisSiparisTest::scansSwallowNoTyping()
{
    Screen s;
    s.fillHeader();
    s.answerList(u"BY"_s);
    s.press(u"Check_HizliGiris"_s);
    const auto goTo = [&s](int row, int column) {
        s.grid()->setCurrentIndex(s.grid()->model()->index(row, column));
    };
    TimedKeys keys;
    keys.scan(ringLabel);
    // A person types what a label looks like, and quickly at that.
    goTo(0, 5);
    keys.type(ringLabel, 60);
    s.key(Qt::Key_Return);
    QCOMPARE(s.cell(0, 5), ringLabel);
    QCOMPARE(s.cell(1, 0), QString());
    // Typing and scanning run into each other.
    goTo(0, 3);
    keys.type(u"1"_s);
    keys.type(u"5"_s, 3);
    keys.scan(earringLabel);
    QCOMPARE(s.cell(0, 3), u"15"_s);
    QCOMPARE(s.cell(1, 0), u"İnci-1"_s);
    keys.type(u"1"_s, 3);
    keys.scan(ringLabel);
    QCOMPARE(s.cell(2, 0), u"1"_s); // a code that is not there stays to be seen
    QCOMPARE(s.cell(3, 0), u"A75"_s);
    QVERIFY(s.control<QLabel>(u"warningLine"_s)->text().contains(u"Bulunamayanlar: 1"_s));
    // A model that a scan breaks in on is taken like one gone on from.
    keys.type(u"boş"_s);
    keys.scan(u"1600100009991"_s); // not known
    keys.scan(ringLabel);
    QVERIFY(s.yellow(4, 3));
    QCOMPARE(s.cell(4, 0) + s.cell(4, 1), u"boşBY"_s);
    QCOMPARE(s.cell(5, 0), u"A75"_s);
    QCOMPARE(s.asked.size(), 1);
    s.messages.expect({.text = u"HATALI MODEL KODU !"_s, .title = u"1"_s});
    s.press(u"cmdKayit"_s);

    // The focus may be on what takes no digits.
    for (const QString &name : {u"Check_Kod"_s, u"LabelAdet"_s}) {
        s.press(name);
        s.control(name)->setFocus();
        keys.scan(ringLabel);
        keys.scannersEnter();
    }
    QCOMPARE(s.cell(6, 0) + s.cell(7, 0) + s.cell(7, 3), u"A75A751"_s);
    QCOMPARE(s.cursor(), std::pair(8, 0));

    // Without quick entry a label is what its Enter makes of it.
    s.press(u"Check_HizliGiris"_s);
    goTo(0, 5);
    s.grid()->setFocus();
    keys.scan(earringLabel);
    s.key(Qt::Key_Return);
    QCOMPARE(s.cell(0, 5), earringLabel);
}

void GirisSiparisTest::savesAsNew()
{
    Screen s;
    s.find(u"1"_s);
    for (const std::optional<QString> &noDate : {std::optional(u"31.02.2012"_s), {}}) {
        s.messages.expectInput(u"SİPARİŞ TARİHİ"_s, noDate);
        s.messages.expect({.text = u"HATALI TARIH BILGISI GIRILIYOR!"_s, .title = u"HATA"_s});
        s.press(u"Command1"_s);
        QCOMPARE(s.headerCount(), 4);
        QCOMPARE(s.text(u"Sipnum"_s), u"1"_s);
    }
    s.messages.expectInput(u"SİPARİŞ TARİHİ"_s, u"8.7.2012"_s);
    s.messages.expect(slipQuestion, MessageAnswer::No);
    s.press(u"Command1"_s);
    QCOMPARE(s.header(5, u"SipTrh"), u"08.07.2012"_s);
    QCOMPARE(s.lines(5).size(), 3);
    QCOMPARE(s.lines(1).size(), 3);
    QCOMPARE(s.text(u"Sipnum"_s), QString());
    // The list of the copy shows it like the first one.
    s.find(u"5"_s);
    QCOMPARE(s.cell(0, 2) + u'/' + s.cell(0, 3), u"1/3"_s);
}

void GirisSiparisTest::deletesTheOrder()
{
    Screen s;
    s.oturum.Veritabani->execute(u"UPDATE SiparisD SET Drm1 = 'HAZIR' Where SipnumD = 1"_s);
    s.find(u"1"_s);
    const Message question{.text = u"1 NOLU SİPARİŞ SİLİNECEK.\n\nMüşteri: Işık Kuyumculuk\n"
                                   "Adet: 6 (3 satır)\nÜretimde olan satır: 3"_s};
    s.messages.expect(question.text, MessageAnswer::No);
    s.press(u"cmdsil"_s);
    QCOMPARE(s.lines(1).size(), 3);
    s.messages.expect(question.text, MessageAnswer::Yes);
    s.press(u"cmdsil"_s);
    QCOMPARE(s.lines(1), QStringList());
    QVERIFY(s.header(1, u"Sipnum").isNull());
    QCOMPARE(s.text(u"Sipnum"_s), QString());
}

void GirisSiparisTest::refusesAKaratThatCannotBeStored()
{
    Screen s;
    s.fillHeader();
    for (const QString &karat : {u"14.5"_s, u"99999"_s, u"-14"_s}) {
        for (const QString &button : {u"cmdYazdir"_s, u"cmdKayit"_s}) {
            s.control(u"Ayar"_s)->setFocus();
            s.control<QLineEdit>(u"Ayar"_s)->selectAll();
            s.control<QLineEdit>(u"Ayar"_s)->insert(karat); // as pasted
            s.messages.expect(u"Ayar 1 ile 32767 arasında bir tam sayı olmalıdır."_s);
            s.press(button);
            s.messages.verify();
            QVERIFY(s.control(u"Ayar"_s)->hasFocus());
            QCOMPARE(s.text(u"Ayar"_s), karat);
        }
    }
    QCOMPARE(s.viewer.documents.size(), 0);
}

void GirisSiparisTest::guardsUnsavedWork()
{
    const QString question = u"DEĞİŞİKLİKLER KAYIT EDİLMEDİ, VAZGEÇİLSİN Mİ ?"_s;
    Screen s;
    s.find(u"1"_s);
    s.control(u"Patent"_s)->setFocus();
    s.type(u"X"_s);
    s.messages.expect(
        {.text = question, .answer = MessageAnswer::No, .defaultAnswer = MessageAnswer::No});
    s.key(Qt::Key_Escape);
    QCOMPARE(s.text(u"Sipnum"_s), u"1"_s);
    s.messages.expect(question, MessageAnswer::No);
    s.screen->close();
    QVERIFY(s.screen->isVisible());
    s.messages.expect(question, MessageAnswer::Yes);
    s.key(Qt::Key_Escape);
    QCOMPARE(s.text(u"Sipnum"_s), QString());
    s.find(u"1"_s); // nothing was changed: nothing is asked
    s.grid()->setFocus();
    s.key(Qt::Key_Escape);
    QCOMPARE(s.text(u"Sipnum"_s), QString());
    s.key(Qt::Key_Escape);
    QVERIFY(!s.screen->isVisible());
}

void GirisSiparisTest::neverReplacesAnOrderThatWasNotShown()
{
    Screen s;
    s.oturum.Veritabani->execute(u"DELETE From Firma Where Firkod = 20"_s);
    s.find(u"2"_s);
    QVERIFY(s.control<QLabel>(u"warningLine"_s)->isVisible());
    s.enter(u"10"_s);
    s.enter();
    s.enter(u"585"_s);
    s.enter(u"585"_s);
    s.enter();
    s.enter(ringLabel);
    s.grid()->setCurrentIndex(s.grid()->model()->index(0, 1));
    s.enter(u"S"_s);
    s.messages.expect(u"SİPARİŞİN MÜŞTERİSİ TANIMLI DEĞİL, SİPARİŞ KAYDEDİLEMEZ..."_s);
    s.press(u"cmdKayit"_s);
    QCOMPARE(s.lines(2), QStringList({u"1 a75 1 SR [] 5"_s}));
    QCOMPARE(s.header(2, u"SipFirkod"), u"20"_s);

    // Lines that have no place in the grid are told of, and survive.
    Screen other;
    other.addLine(1, 5, u"A75"_s, 77, u"SR"_s, 6);
    other.find(u"1"_s);
    const auto *note = other.control<QLabel>(u"keptLinesNote"_s);
    QVERIFY(note->text().contains(u"A75 SR, 6 adet"_s));
    QVERIFY(!note->text().contains(u"kaydedilemez"_s));
    other.messages.expect(slipQuestion, MessageAnswer::No);
    other.press(u"cmdKayit"_s);
    QCOMPARE(other.lines(1).first(), u"5 A75 77 SR [] 6"_s);
    QVERIFY(!note->isVisible());
    QCOMPARE(other.control<QLabel>(u"kayitNotu"_s)->text(), u"1 nolu sipariş kaydedildi."_s);
    // A row with nothing but such lines stops the save, and the note says so.
    other.addLine(1, 9, u"A75"_s, 3, u"BY"_s, 2);
    other.addLine(1, 10, u"yok"_s, 1, u"BY"_s, 2);
    other.find(u"1"_s);
    QCOMPARE(other.control<QLabel>(u"kayitNotu"_s)->text(), QString());
    QVERIFY(note->text().contains(u"A75 BY satırına adet girilmeden sipariş kaydedilemez."_s));
    QVERIFY(note->text().contains(u"yok modeli tanımlanmadan sipariş kaydedilemez."_s));
}

void GirisSiparisTest::keepsTheScreenWhenSavingFails()
{
    Screen s;
    s.fillHeader();
    s.enter(ringLabel);
    s.grid()->setCurrentIndex(s.grid()->model()->index(0, 1));
    s.enter(u"S"_s);
    // The lines cannot be written, the header can.
    s.oturum.Veritabani->execute(u"DELETE From SiparisD"_s);
    const std::unique_ptr<Database> blocker = Database::open(s.path());
    const auto engine = [&](const QString &sql) { blocker->engine().run(sql); };
    engine(u"CREATE TRIGGER full BEFORE INSERT ON SiparisD BEGIN "
           "SELECT RAISE(ABORT, 'disk dolu'); END"_s);
    s.messages.expect(
        {.text = u"Kayıt, tablonun anahtarlarına uymuyor. (disk dolu)"_s, .title = u"HATA"_s});
    s.press(u"cmdKayit"_s);
    QCOMPARE(s.text(u"Sipnum"_s), u"5"_s);
    QCOMPARE(s.cell(0, 0), u"A75"_s);
    engine(u"DROP TRIGGER full"_s);
    s.messages.expect(slipQuestion, MessageAnswer::No);
    s.press(u"cmdKayit"_s);
    QCOMPARE(s.headerCount(), 5);
    QCOMPARE(s.lines(5), QStringList({u"1 A75 1 SR [] 1"_s}));
}

void GirisSiparisTest::limitsAndApostrophes()
{
    Screen s;
    s.fillHeader();
    const QString note = u"O'Hara'nın \"notu\" "_s.repeated(12);
    s.control(u"Patent"_s)->setFocus();
    s.control<QLineEdit>(u"Patent"_s)->selectAll();
    s.enter(u"O'Hara 5'8'5 O'Hara 5'8'5"_s);
    s.grid()->setFocus();
    s.enter(u"O'Hara"_s); // a code that is not there
    QCOMPARE(s.asked.last().ListeFiltre, u"O'Hara"_s);
    s.key(Qt::Key_Escape);
    s.enter(ringLabel);
    s.grid()->setCurrentIndex(s.grid()->model()->index(0, 1));
    s.enter(u"S"_s);
    s.grid()->setCurrentIndex(s.grid()->model()->index(0, 3));
    s.enter(u"1234567890123"_s);
    s.grid()->setCurrentIndex(s.grid()->model()->index(0, 5));
    s.enter(note);
    s.messages.expect(slipQuestion, MessageAnswer::No);
    s.press(u"cmdKayit"_s);
    QCOMPARE(s.header(5, u"Patent"), u"O'Hara 5'8'5 O'Hara"_s.leftJustified(20));
    QCOMPARE(s.field(5, u"SipAck").first(), note.first(100));
    QCOMPARE(s.field(5, u"SipAdet").first(), u"123456789"_s);

    // Only numbers go where a number belongs.
    s.messages.expect(u"SAYISAL DEGER GIRIN..."_s);
    s.type(u"5x"_s);
    QCOMPARE(s.text(u"Sipnum"_s), u"5"_s);
}

void GirisSiparisTest::showsPictures()
{
    Screen s;
    QDir(s.dir.path()).mkpath(u"resim/YZK"_s);
    QImage image(300, 300, QImage::Format_RGB32);
    image.fill(Qt::darkYellow);
    QVERIFY(image.save(s.dir.filePath(u"resim/YZK/boş.jpg"_s)));
    QFile broken(s.dir.filePath(u"resim/A75.jpg"_s));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("no picture");
    broken.close();
    s.fillHeader();
    s.enter(u"boş"_s);
    QVERIFY(!s.control<QLabel>(u"Resim"_s)->pixmap(Qt::ReturnByValue).isNull());
    s.key(Qt::Key_Left);
    s.messages.expect(u"A75.jpg: Dosya bir resim değil."_s);
    s.enter(u"A75"_s);
    QVERIFY(s.control<QLabel>(u"Resim"_s)->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(s.cell(0, 0), u"A75"_s);
}

void GirisSiparisTest::printsTheSlip()
{
    Screen s;
    s.find(u"1"_s);
    s.press(u"Check_AD"_s);
    QVERIFY(!s.control<QCheckBox>(u"Check_Kisaad"_s)->isChecked());
    s.press(u"cmdYazdir"_s);
    QCOMPARE(s.viewer.documents.size(), 1);
    QCOMPARE(s.text(u"Sipnum"_s), u"1"_s); // the order stays on the screen
    s.messages.expect(slipQuestion, MessageAnswer::Yes);
    s.press(u"cmdKayit"_s);
    QCOMPARE(s.viewer.documents.size(), 2);
    const auto customer = [&](qsizetype document) {
        for (const PageItem &item : s.viewer.documents[document].pages().first().items) {
            const auto *text = std::get_if<PageText>(&item);
            if (text != nullptr && text->text.contains(u"Işık Kuyumculuk"_s))
                return true;
        }
        return false;
    };
    QVERIFY(customer(0) && customer(1));
    QCOMPARE(s.text(u"Sipnum"_s), QString());
}

void GirisSiparisTest::theSlipIsPrintedAsChosenLastTime()
{
    Screen s;
    const auto adet = [&] { return s.control<QPushButton>(u"LabelAdet"_s)->text(); };
    QCOMPARE(adet(), u"12"_s);
    s.press(u"LabelAdet"_s);
    QCOMPARE(adet(), u"15"_s);
    for (const auto &next : {u"7"_s, u"12"_s, u"15"_s}) {
        s.key(Qt::Key_R, Qt::ControlModifier);
        QTRY_COMPARE(adet(), next);
    }
    s.press(u"Check_Resim"_s);
    s.press(u"Check_Kod"_s);
    s.screen.reset();
    s.open();
    QCOMPARE(adet(), u"15"_s);
    QVERIFY(!s.control<QCheckBox>(u"Check_Kisaad"_s)->isChecked());

    s.find(u"1"_s);
    s.press(u"cmdYazdir"_s);
    s.messages.expect(slipQuestion, MessageAnswer::Yes);
    s.press(u"cmdKayit"_s);
    QCOMPARE(s.viewer.documents.size(), 2);
    for (const PrintDocument &document : std::as_const(s.viewer.documents)) {
        QStringList texts;
        for (const PageItem &item : document.pages().first().items) {
            if (const auto *text = std::get_if<PageText>(&item))
                texts.append(text->text);
        }
        QVERIFY(!texts.filter(u"RESIM        MODEL  "_s).isEmpty());
        QVERIFY(!texts.filter(u"MÜŞTERİ        : 10 "_s).isEmpty());
    }
}

KUYUM_TEST(GirisSiparisTest)

} // namespace kuyum

#include "GirisSiparisTest.moc"
