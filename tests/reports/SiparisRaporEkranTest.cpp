#include "ExcelAktar.h"
#include "Giris_Siparis.h"
#include "KeptDocuments.h"
#include "Keyboard.h"
#include "Oturum.h"
#include "PrintDocument.h"
#include "Rapor_Siparis2.h"
#include "Rapor_Ymamul.h"
#include "RaporGrid.h"
#include "SampleCompany.h"
#include "ScriptedMessages.h"
#include "SheetReader.h"
#include "SpreadsheetApplication.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

class FakeSpreadsheet : public SpreadsheetApplication
{
public:
    bool isInstalled() const override { return installed; }
    bool open(const QString &path) override
    {
        opened = path;
        cells = sheetCells(path);
        return true;
    }
    bool installed = true;
    QString opened;
    QList<QStringList> cells;
};

QStringList texts(const PrintDocument &document)
{
    QStringList result;
    for (const PrintPage &page : document.pages()) {
        for (const PageItem &item : page.items) {
            if (const auto *text = std::get_if<PageText>(&item))
                result.append(text->text);
        }
    }
    return result;
}

QStringList rows(const RaporGrid &grid)
{
    QStringList result;
    const ReportTable table = grid.table();
    for (qsizetype row = 0; row < table.rows.size(); ++row) {
        QStringList cells;
        for (qsizetype column = 0; column < table.columns.size(); ++column) {
            if (!table.columns[column].hidden)
                cells.append(table.cellText(row, column));
        }
        result.append(cells.join(u'|'));
    }
    return result;
}

/// The sample company, its rates carried to the working date, and HAS among
/// them: a gram of gold is 40 USD.
struct Reports : Keyboard
{
    Reports()
    {
        oturum.Veritabani = makeSampleCompany(dir.filePath(u"atolye.kuyum"_s));
        oturum.CalismaTarihi = QDate(2012, 3, 1);
        addRate(72);
    }
    void addRate(double rate)
    {
        Recordset set = oturum.Veritabani->table(u"DovizD"_s);
        set.addNew();
        set.set(u"Tarih", oturum.CalismaTarihi);
        set.set(u"Dovcinsi", u"HAS"_s);
        set.set(u"Kur", rate);
        set.update();
    }
    RaporContext context() { return {{oturum, messages, {}, viewer}, excel}; }

    template <typename Screen>
    std::unique_ptr<Screen> open(qint32 order)
    {
        auto screen = std::make_unique<Screen>(context(), order);
        screen->show();
        [&] { QVERIFY(QTest::qWaitForWindowActive(screen.get())); }();
        return screen;
    }

    QTemporaryDir dir;
    Oturum oturum;
    ScriptedMessages messages;
    KeptDocuments viewer;
    FakeSpreadsheet spreadsheet;
    ExcelAktar excel{spreadsheet, messages};
};

RaporGrid *grid(const QWidget &screen, const QString &name = u"Rapor"_s)
{
    return screen.findChild<RaporGrid *>(name);
}

/// Runs once a modal window of that name stands and has the keys.
void whenOpen(const QString &name, const std::function<void(QWidget &)> &then)
{
    auto *timer = new QTimer(QApplication::instance());
    QObject::connect(timer, &QTimer::timeout, timer, [=] {
        QWidget *window = QApplication::activeModalWidget();
        if (window == nullptr || window->objectName() != name || !window->isActiveWindow())
            return;
        timer->deleteLater();
        then(*window);
    });
    timer->start(5);
}

} // namespace

class SiparisRaporEkranTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stonesOfAnOrder()
    {
        Reports on;
        const auto screen = on.open<Rapor_Siparis2>(1);
        QCOMPARE(screen->findChild<QLabel *>(u"FirAdi"_s)->text(), u"Işık Kuyumculuk"_s);
        // 4 pearls of 0.005 g at 80 EUR; 12 zircons of 0.02 g at 1.50 USD.
        QCOMPARE(rows(*grid(*screen)),
                 (QStringList{u"PRL 1|4|0.02|2.13|0.01|0.04"_s, u"ZRK 2|12|0.24|0.36|0.14|-0.13"_s,
                              u"Toplam|16|0.26|2.49|0.15|-0.09"_s}));
        auto *currency = screen->findChild<QComboBox *>(u"Dovcinsi"_s);
        QCOMPARE(currency->count(), 2);
        currency->setFocus();
        on.key(Qt::Key_Down);
        QCOMPARE(currency->currentText(), u"EUR"_s);
        QCOMPARE(rows(*grid(*screen))[0], u"PRL 1|4|0.02|1.60|0.01|0.04"_s);
        QCOMPARE(grid(*screen)->table().columns[3].heading, u"EUR"_s);

        screen->findChild<QPushButton *>(u"cmdYazdir"_s)->setFocus();
        on.key(Qt::Key_Space);
        const QStringList printed = texts(on.viewer.documents.last());
        QVERIFY(printed.contains(u"SİPARİŞ TARİH/NO/AYAR : 01.03.2012 - 000001 - 585"_s));
        QVERIFY(printed.contains(u"MÜŞTERİ               : Işık Kuyumculuk"_s));
        QVERIFY(printed.contains(u"Sayfa 1"_s));

        on.messages.expect({.text = u"RAPOR EXCEL ORTAMINA ALINACAK..."_s,
                            .answer = MessageAnswer::Yes,
                            .icon = MessageIcon::Information});
        auto *box = screen->findChild<QCheckBox *>(u"Check_Excel"_s);
        box->setFocus();
        on.key(Qt::Key_Space);
        on.messages.verify();
        QVERIFY(!box->isChecked());
        QCOMPARE(on.spreadsheet.cells[0][0],
                 u"TAS RAPORU   Firma: Işık Kuyumculuk No: 1  Tarih: 01.03.2012"_s);
        QCOMPARE(on.spreadsheet.cells[2], (QStringList{u" PRL 1"_s, u" 4"_s, u" 0.02"_s, u" 1.60"_s,
                                                       u" 0.01"_s, u" 0.04"_s}));
        QFile::remove(on.spreadsheet.opened);
    }

    void missingRatesAreToldOf()
    {
        Reports on;
        on.oturum.CalismaTarihi = QDate(2012, 3, 2); // USD alone
        const auto screen = on.open<Rapor_Siparis2>(1);
        QCOMPARE(rows(*grid(*screen))[0], u"PRL 1|4|0.02|0.00|0.01|-0.01"_s);
        const auto *note = screen->findChild<QLabel *>(u"kurNotu"_s);
        QVERIFY(note->isVisible());
        QVERIFY2(note->text().startsWith(u"02.03.2012 tarihinde EUR, HAS kuru yok"_s),
                 qPrintable(note->text()));
    }

    void unknownOrdersAreToldOf()
    {
        Reports on;
        on.messages.expect(u"77 NOLU SİPARİŞ KAYDI BULUNAMIYOR..."_s);
        const auto stones = on.open<Rapor_Siparis2>(77);
        on.messages.expect(u"77 NOLU SİPARİŞ KAYDI BULUNAMIYOR..."_s);
        const auto foundry = on.open<Rapor_Ymamul>(77);
        on.messages.verify();
        for (const QWidget *screen :
             {static_cast<QWidget *>(stones.get()), static_cast<QWidget *>(foundry.get())}) {
            QCOMPARE(rows(*grid(*screen)), QStringList());
            QVERIFY(!screen->findChild<QPushButton *>(u"cmdYazdir"_s)->isEnabled());
        }
        on.key(Qt::Key_Escape);
        QVERIFY(!foundry->isVisible());
    }

    void fromTheOrderToTheFiguresAndBack()
    {
        Reports on;
        QSettings settings(on.dir.filePath(u"ayar.ini"_s), QSettings::IniFormat);
        QList<QStringList> shown;
        const OrderReports reports{{}, [&](QWidget *parent, qint32 order, bool) {
                                       Rapor_Ymamul report(on.context(), order, parent);
                                       whenOpen(u"Rapor_Ymamul"_s, [&](QWidget &window) {
                                           shown.append(rows(*grid(window, u"Rapor1"_s)));
                                           shown.append(rows(*grid(window)));
                                           whenOpen(u"Rapor_Satirlar"_s, [&](QWidget &lines) {
                                               shown.append(rows(*grid(lines)));
                                               QTest::keyClick(&lines, Qt::Key_Escape);
                                           });
                                           QTableView *molds = grid(window)->rows();
                                           molds->setFocus();
                                           QTest::keyClick(molds, Qt::Key_End);
                                           QTest::keyClick(molds, Qt::Key_Return);
                                           QTest::keyClick(&window, Qt::Key_Escape);
                                       });
                                       report.exec();
                                   }};
        Giris_Siparis order({on.oturum, on.messages, {}, on.viewer}, settings, reports);
        order.show();
        QVERIFY(QTest::qWaitForWindowActive(&order));
        on.enter(u"1"_s);
        on.key(Qt::Key_U, Qt::AltModifier);
        QTRY_COMPARE(shown.size(), 3);
        // 13.075 is the karat's density; a ring weighs 2 grams, a necklace 5.
        QCOMPARE(shown[0].last(), u"Toplam||10|392.26|229.48"_s);
        QVERIFY(shown[0].contains(u"A75|YZK|3|78.45|45.89"_s));
        QCOMPARE(shown[1], (QStringList{u"Disarda ----->||"_s, u"K-2|Kolye ucu|2"_s, u"Toplam||2"_s,
                                        u"Icerde ------>||"_s, u"K-1|Yüzük kolu|3"_s,
                                        u"Toplam||3"_s, u"Toplam||5"_s}));
        QCOMPARE(shown[2], (QStringList{u"01.03.2012|1|Işık Kuyumculuk|A75|KLY|SR|1|2|2"_s,
                                        u"TOPLAM||||||1||2"_s}));
        QVERIFY(order.isVisible());
    }

    void withoutASpreadsheetTheFileCanBeSaved()
    {
        Reports on;
        on.spreadsheet.installed = false;
        const QString path = on.dir.filePath(u"kalıp.xlsx"_s);
        QString suggested;
        on.excel.setChooser([&](QWidget *, const QString &name) {
            suggested = name;
            return path;
        });
        const auto screen = on.open<Rapor_Ymamul>(1);
        on.messages.expect(u"RAPOR EXCEL ORTAMINA ALINACAK..."_s, MessageAnswer::Yes);
        on.messages.expect({.text = u"You need Microsoft Excel to use this function"_s,
                            .title = u"Print to Excel"_s,
                            .icon = MessageIcon::Exclamation});
        on.messages.expect(u"Rapor Excel dosyası olarak kaydedilsin mi ?"_s, MessageAnswer::Yes);
        on.messages.expect(u"Excel dosyası kaydedildi:\n"_s + QDir::toNativeSeparators(path));
        auto *box = screen->findChild<QWidget *>(u"ExcelKalip"_s);
        box->findChild<QCheckBox *>(u"Check_Sayilarla"_s)->click();
        box->findChild<QCheckBox *>(u"Check_Excel"_s)->click();
        on.messages.verify();
        QVERIFY(suggested.endsWith(u".xlsx"_s) && !suggested.contains(u':'));
        QCOMPARE(sheetCells(path)[3], (QStringList{u"K-2"_s, u"Kolye ucu"_s, u"2"_s}));
        on.messages.expect(u"RAPOR EXCEL ORTAMINA ALINACAK..."_s, MessageAnswer::No);
        box->findChild<QCheckBox *>(u"Check_Excel"_s)->click();
        on.messages.verify();
    }
};

KUYUM_TEST(SiparisRaporEkranTest)

} // namespace kuyum

#include "SiparisRaporEkranTest.moc"
