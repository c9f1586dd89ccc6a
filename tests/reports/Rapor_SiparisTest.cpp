#include "Rapor_Siparis.h"
#include "ExcelAktar.h"
#include "KeptDocuments.h"
#include "Keyboard.h"
#include "ModelChart.h"
#include "Oturum.h"
#include "RaporGrid.h"
#include "SampleCompany.h"
#include "ScriptedMessages.h"
#include "SheetReader.h"
#include "SpreadsheetApplication.h"
#include "TestRegistry.h"

#include <QBarSet>
#include <QChartView>
#include <QHorizontalStackedBarSeries>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

class KeptSheets : public SpreadsheetApplication
{
public:
    bool isInstalled() const override { return true; }
    bool open(const QString &path) override
    {
        paths += path;
        return true;
    }

    QStringList paths;
};

/// The report screen on a fresh company, on a day with two orders.
struct Screen : Keyboard
{
    Screen()
    {
        oturum.Veritabani = makeSampleCompany(dir.filePath(u"atolye.kuyum"_s));
        oturum.CalismaTarihi = QDate(2012, 3, 5);
        screen = std::make_unique<Rapor_Siparis>(
            RaporContext{{oturum, messages,
                          [](QWidget *, const LookupRequest &) { return LookupAnswer(); }, viewer},
                         excel});
        screen->show();
        if (!QTest::qWaitForWindowActive(screen.get()))
            qFatal("the screen did not come up");
    }

    template <typename Widget = QWidget>
    Widget *control(const QString &name) const
    {
        return screen->findChild<Widget *>(name);
    }
    QString focus() const { return QApplication::focusWidget()->objectName(); }
    /// Types a date over the one that stands there, and goes on.
    static void date(const QString &digits)
    {
        key(Qt::Key_Home);
        enter(digits);
    }
    /// The rows of a grid, cells divided by a bar.
    QStringList shown(const QString &grid) const
    {
        const ReportTable table = control<RaporGrid>(grid)->table();
        QStringList rows;
        for (qsizetype row = 0; row < table.rows.size(); ++row) {
            QStringList cells;
            for (qsizetype column = 0; column < table.columns.size(); ++column)
                cells.append(table.cellText(row, column));
            rows.append(cells.join(u'|'));
        }
        return rows;
    }

    QTemporaryDir dir;
    Oturum oturum;
    ScriptedMessages messages;
    KeptDocuments viewer;
    KeptSheets sheets;
    ExcelAktar excel{sheets, messages};
    std::unique_ptr<Rapor_Siparis> screen;
};

/// Looks at the window that the next key opens, and closes it.
struct NextWindow
{
    NextWindow()
    {
        QTimer::singleShot(0, [this] {
            const QWidget *window = QApplication::activeModalWidget();
            const RaporGrid *grid = window->findChild<RaporGrid *>();
            table = grid->table();
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        });
    }

    ReportTable table;
};

} // namespace

class Rapor_SiparisTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goesFromTheDatesToFiguresLinesAndExcel();
    void filtersAndSplitsTheModels();
    void saysThatThereIsNothing();
};

void Rapor_SiparisTest::goesFromTheDatesToFiguresLinesAndExcel()
{
    Screen s;
    QCOMPARE(s.focus(), u"DTPicker1"_s);
    s.date(u"01032012"_s);
    QCOMPARE(s.focus(), u"DTPicker2"_s);
    s.date(u"31032012"_s);
    QCOMPARE(s.focus(), u"Command6"_s);
    s.enter();
    QCOMPARE(s.shown(u"Rapor0"_s),
             QStringList({u"PRL 1|4|0.02|||4|0.02"_s, u"ZRK 2|16|0.32|20|0.40|36|0.72"_s,
                          u"TOPLAM|20|0.34|20|0.40|40|0.74"_s}));

    // The figure of the second row's first karat.
    s.key(Qt::Key_Home, Qt::ControlModifier);
    s.key(Qt::Key_Down);
    s.key(Qt::Key_Right);
    NextWindow lines;
    s.enter();
    s.screen->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(s.screen.get()));
    QCOMPARE(lines.table.rows.size(), 3);
    QCOMPARE(lines.table.rows.last().values.last().toDouble(), 16.0);

    s.messages.expect(
        {.text = u"RAPOR EXCEL ORTAMINA ALINACAK..."_s, .answer = MessageAnswer::Yes});
    s.key(Qt::Key_X, Qt::AltModifier);
    QTRY_COMPARE(s.sheets.paths.size(), 1);
    QCOMPARE(sheetCells(s.sheets.paths.first()).first().first(),
             u"TAŞ RAPORU : 01.03.2012 - 31.03.2012"_s);

    s.key(Qt::Key_Y, Qt::AltModifier);
    QCOMPARE(s.focus(), u"DTPicker3"_s);
    s.date(u"01032012"_s);
    s.enter();
    s.enter();
    QCOMPARE(s.shown(u"Rapor1"_s), QStringList({u"K-1|Yüzük kolu|4|5|9"_s, u"K-2|Kolye ucu|2||2"_s,
                                                u"TOPLAM||6|5|11"_s}));
}

void Rapor_SiparisTest::filtersAndSplitsTheModels()
{
    Screen s;
    s.key(Qt::Key_M, Qt::AltModifier);
    QCOMPARE(s.focus(), u"DTPicker5"_s);
    s.date(u"01032012"_s);
    s.date(u"31052012"_s);
    QCOMPARE(s.focus(), u"ComboBox1"_s);
    s.key(Qt::Key_R, Qt::AltModifier);
    QTRY_COMPARE(s.shown(u"rapor2"_s),
                 QStringList({u"A75|105|5|110"_s, u"İnci-1|2||2"_s, u"TOPLAM|107|5|112"_s}));
    const auto *chart = s.control<ModelChart>(u"grafik"_s)->findChild<QChartView *>()->chart();
    const auto *bars = qobject_cast<QHorizontalStackedBarSeries *>(chart->series().first());
    QCOMPARE(bars->barSets().first()->at(1), 105.0); // the first model is the last bar
    s.key(Qt::Key_G, Qt::AltModifier);               // a small screen begins without it
    QTRY_VERIFY(s.control(u"grafik"_s)->isVisible());
    s.key(Qt::Key_A, Qt::AltModifier);
    QTRY_COMPARE(s.viewer.documents.size(), 1);
    QCOMPARE(s.viewer.documents.first().title(), u"MODEL RAPORU : 01.03.2012 - 31.05.2012"_s);

    s.key(Qt::Key_K, Qt::AltModifier);
    s.key(Qt::Key_Down);
    s.enter();
    QCOMPARE(s.focus(), u"ComboBox2"_s);
    s.key(Qt::Key_Down); // the first customer
    s.enter();
    s.enter();
    s.type(u"İ"_s);
    QCOMPARE(s.control<QComboBox>(u"ComboBox4"_s)->currentText(), u"İ"_s); // and not İnci
    s.key(Qt::Key_Backspace);
    s.type(u"a7"_s);
    s.enter();
    s.enter();
    QCOMPARE(s.focus(), u"Command10"_s);
    s.enter();
    QCOMPARE(s.shown(u"rapor2"_s), QStringList({u"A75|1||104|105"_s, u"TOPLAM|1|0|104|105"_s}));
}

void Rapor_SiparisTest::saysThatThereIsNothing()
{
    Screen s;
    s.date(u"01012001"_s);
    s.date(u"31122001"_s);
    s.messages.expect({.text = u"Kayıt Bulunamadi"_s, .icon = MessageIcon::Information});
    s.enter();
    QVERIFY(s.control<RaporGrid>(u"Rapor0"_s)->table().rows.isEmpty());
    QCOMPARE(s.focus(), u"DTPicker1"_s);
    s.date(u"99992001"_s);
    s.messages.expect(u"Tarih Hatali."_s);
    s.enter();
    s.enter();
    s.messages.verify();
}

KUYUM_TEST(Rapor_SiparisTest)

} // namespace kuyum

#include "Rapor_SiparisTest.moc"
