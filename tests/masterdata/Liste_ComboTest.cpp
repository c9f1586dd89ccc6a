#include "Liste_Combo.h"
#include "HelpFile.h"
#include "LookupCompany.h"
#include "PictureBox.h"
#include "ScriptedMessages.h"
#include "SqliteEngine.h"
#include "TestRegistry.h"
#include "Typing.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class Liste_ComboTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_company = std::make_unique<LookupCompany>();
        m_messages = std::make_unique<ScriptedMessages>();
    }
    void cleanup()
    {
        m_dialog.reset();
        m_messages->verify();
    }

    void looksAsTheUsersKnowIt()
    {
        open(u"Model Listesi"_s);
        QCOMPARE(m_dialog->windowTitle(), u" MODEL LİSTESİ"_s);
        QCOMPARE(m_grid->font().pointSize(), 12);
        QVERIFY(m_grid->isColumnHidden(1));
        QVERIFY(!m_grid->isColumnHidden(2));
        open(u"Tas Listesi"_s);
        QCOMPARE(m_grid->columnWidth(1), qRound(3000.0 * m_dialog->logicalDpiX() / 1440));
        open(u"Siparis Listesi"_s);
        // A whole date can be read, even where the font is wider than its column.
        QVERIFY(m_grid->columnWidth(0) >
                QFontMetrics(m_grid->font()).horizontalAdvance(u"02.03.2025"_s));
        QVERIFY(text("Ipucu").startsWith(u"F11 : Firma Sıfırla  , F12 : Firma Kriteri"_s));
        QCOMPARE(m_grid->model()->headerData(5, Qt::Horizontal).toString(), u"Aciklama"_s);
        open(u"Kur Listesi"_s);
        QCOMPARE(m_dialog->windowTitle(), u"KUR LISTESI"_s);
        QCOMPARE(headings(), (QStringList{u"TARIH"_s, u"EUR"_s, u"USD"_s}));
        // The columns round; what they hide is told of the highlighted day.
        while (m_grid->model()->canFetchMore({}))
            m_grid->model()->fetchMore({});
        m_grid->setCurrentIndex(m_grid->model()->index(2, 0));
        QCOMPARE(m_grid->currentIndex().siblingAtColumn(2).data().toString(), u"36,500"_s);
        QCOMPARE(text("Kurlar"), u"EUR : 38499.5  ,  USD : 36500.4"_s);
    }

    void takesTheHighlightedRow()
    {
        open(u"Tas Listesi"_s);
        holdKey(m_grid, Qt::Key_Return); // of what opened the list
        QVERIFY(m_dialog->isVisible());
        QTest::keyClick(m_grid, Qt::Key_Down);
        QTest::keyClick(m_grid, Qt::Key_Return);
        QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
        QVERIFY(!m_dialog->isVisible());
        QCOMPARE(m_dialog->answer().Secilen, u"ÇATAL"_s);

        open(u"Firma Listesi"_s, u"b"_s);
        const QPoint second = m_grid->visualRect(m_grid->model()->index(1, 1)).center();
        QTest::mouseClick(m_grid->viewport(), Qt::LeftButton, {}, second);
        QTest::mouseDClick(m_grid->viewport(), Qt::LeftButton, {}, second);
        QCOMPARE(m_dialog->answer().SecilenNo, 2);
        QVERIFY(!m_dialog->isVisible());
    }

    void takesSeveralRowsWhereTheScreenWantsThem()
    {
        open(u"Tas Listesi"_s);
        QTest::keyClick(m_grid, Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(m_grid, Qt::Key_Return);
        QVERIFY(m_dialog->answer().Secilenler.empty()); // this screen wants one

        open(u"Tas Listesi"_s, {}, true);
        QTest::keyClick(m_grid, Qt::Key_Down);
        QTest::keyClick(m_grid, Qt::Key_Down, Qt::ShiftModifier);
        const QPoint first = m_grid->visualRect(m_grid->model()->index(0, 1)).center();
        QTest::mouseClick(m_grid->viewport(), Qt::LeftButton, Qt::ControlModifier, first);
        const QStringList codes = column(1).first(3);
        QTest::keyClick(m_grid, Qt::Key_Return);
        QStringList taken;
        for (const LookupAnswer &answer : m_dialog->answer().Secilenler)
            taken.append(answer.Secilen);
        QCOMPARE(taken, codes);

        open(u"Tas Listesi"_s, {}, true); // with one row marked it is as ever
        QTest::keyClick(m_grid, Qt::Key_Down);
        QTest::keyClick(m_grid, Qt::Key_Return);
        QCOMPARE(m_dialog->answer().Secilen, codes[1]);
        QVERIFY(m_dialog->answer().Secilenler.empty());
    }

    void leavesWithoutARow()
    {
        open(u"Tas Listesi"_s);
        QTest::keyClick(m_grid, Qt::Key_Down);
        QTest::keyClicks(m_grid, u"i"_s);
        QTest::keyClick(m_grid, Qt::Key_Escape);
        QVERIFY(!m_dialog->isVisible());
        QCOMPARE(m_dialog->answer().Secilen, QString());

        open(u"Tas Listesi"_s, u"zzz"_s);
        QTest::keyClick(m_grid, Qt::Key_Enter);
        QVERIFY(!m_dialog->isVisible());
        QCOMPARE(m_dialog->answer().Secilen, QString());
    }

    void narrowsAsOneTypes()
    {
        open(u"Tas Listesi"_s);
        QTest::keyClicks(m_grid, u"IN"_s);
        QCOMPARE(m_dialog->findChild<QLineEdit *>(u"Arama"_s)->text(), u"IN"_s);
        QCOMPARE(column(1), QStringList{u"İnci"_s});
        QTRY_COMPARE(text("KayitSayisi"), u"1 / 6 kayıt"_s);
        QTest::keyClick(m_grid, Qt::Key_Backspace);
        QCOMPARE(column(1), (QStringList{u"CIRA"_s, u"Işık"_s, u"İnci"_s}));
        QTest::keyClick(m_grid, Qt::Key_Backspace);
        QTest::keyClick(m_grid, Qt::Key_Backspace);
        QTRY_COMPARE(text("KayitSayisi"), u"6 kayıt"_s);

        // The same from the box itself; a key for the rows still moves them.
        auto *search = m_dialog->findChild<QLineEdit *>(u"Arama"_s);
        QTest::sendKeyEvent(QTest::Click, search, Qt::Key_unknown, u"ş"_s, Qt::NoModifier);
        QCOMPARE(column(1), QStringList{u"Işık"_s});
        QTest::keyClick(search, Qt::Key_Backspace);
        QTest::keyClick(search, Qt::Key_Down);
        QTest::keyClick(search, Qt::Key_Return);
        QCOMPARE(m_dialog->answer().Secilen, u"ÇATAL"_s);
    }

    void sortsByTheHeadingThatIsClicked()
    {
        open(u"Siparis Listesi"_s);
        const auto click = [this](int section) {
            QHeaderView *header = m_grid->horizontalHeader();
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                              QPoint(header->sectionViewportPosition(section) + 20, 5));
        };
        click(0);
        QTRY_COMPARE(column(1), (QStringList{u"13"_s, u"10"_s, u"12"_s, u"11"_s}));
        click(0);
        QTRY_COMPARE(column(1), (QStringList{u"12"_s, u"11"_s, u"10"_s, u"13"_s}));
        click(2);
        QTRY_COMPARE(column(1), (QStringList{u"12"_s, u"10"_s, u"13"_s, u"11"_s}));
        m_grid->setCurrentIndex(m_grid->model()->index(0, 1));
        QTest::keyClick(m_grid, Qt::Key_F9);
        QTRY_COMPARE(column(1), (QStringList{u"10"_s, u"11"_s, u"12"_s, u"13"_s}));
        QTest::keyClick(m_grid, Qt::Key_F9);
        QTRY_COMPARE(column(1), (QStringList{u"13"_s, u"12"_s, u"11"_s, u"10"_s}));
    }

    void narrowsOrdersByTheCurrentCell()
    {
        open(u"Siparis Listesi"_s);
        QTest::keyClicks(m_grid, u"acele"_s);
        QTest::keyClick(m_grid, Qt::Key_F12);
        QCOMPARE(column(1), (QStringList{u"10"_s, u"13"_s}));
        QVERIFY(m_company->oturum.SonSQL.contains(u"and Firadi = 'çınar' "_s));
        QTest::keyClick(m_grid, Qt::Key_F11);
        QCOMPARE(column(1), (QStringList{u"12"_s, u"11"_s, u"10"_s, u"13"_s}));
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(m_grid, Qt::Key_Right);
        QTest::keyClick(m_grid, Qt::Key_F12);
        QCOMPARE(column(1), (QStringList{u"12"_s, u"10"_s}));
        QTest::keyClick(m_grid, Qt::Key_Down);
        QTest::keyClick(m_grid, Qt::Key_Return);
        QCOMPARE(m_dialog->answer().SecilenNo, 10);

        open(u"Tas Listesi"_s);
        const QString before = m_company->oturum.SonSQL;
        QTest::keyClick(m_grid, Qt::Key_F12);
        QCOMPARE(m_company->oturum.SonSQL, before);
    }

    void addsToTheHelp()
    {
        open(u"Yardim Bilgileri"_s);
        QCOMPARE(m_grid->font().pointSize(), 10);
        m_messages->expectInput(u"BILGI GIRIN"_s, std::nullopt);
        QTest::keyClick(m_grid, Qt::Key_Insert);
        m_messages->expectInput(u"BILGI GIRIN"_s, u"   "_s);
        QTest::keyClick(m_grid, Qt::Key_Insert);
        QCOMPARE(column(0), QStringList());
        m_messages->expectInput(u"BILGI GIRIN"_s, u"Önce mum"_s);
        QTest::keyClick(m_grid, Qt::Key_Insert);
        const QStringList lines = HelpFile(m_company->oturum.kayitYolu).lines();
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.first().endsWith(u"  Önce mum"_s));
        QCOMPARE(column(0), lines);
        QTest::keyClick(m_grid, Qt::Key_Return);
        QCOMPARE(m_dialog->answer().Secilen, QString());
    }

    void showsThePictureOfTheRow()
    {
        const QDir folder(m_company->oturum.ResimYolu);
        QVERIFY(folder.mkpath(u"KLP"_s));
        QImage picture(900, 300, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(picture.save(folder.filePath(u"KLP/k-1.jpg"_s)));
        QFile broken(folder.filePath(u"KLP/K-2.jpg"_s));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write("no picture");
        broken.close();

        open(u"Kalip Listesi"_s);
        const auto *box = m_dialog->findChild<PictureBox *>(u"Resim"_s);
        QTRY_VERIFY(!box->pixmap().isNull());
        const QSizeF shown = box->pixmap().deviceIndependentSize();
        QVERIFY(shown.width() <= box->width() && shown.height() <= box->height());
        QTest::keyClick(m_grid, Qt::Key_Down);
        QTRY_COMPARE(box->text(), u"K-2.jpg: Dosya bir resim değil."_s);

        open(u"Model Listesi"_s);
        QVERIFY(m_dialog->findChild<PictureBox *>(u"Resim"_s)->isVisible());
        open(u"Tas Listesi"_s);
        QVERIFY(!m_dialog->findChild<PictureBox *>(u"Resim"_s)->isVisible());
    }

    void refusesATypeNumberThatDoesNotFit()
    {
        open(u"Model Listesi"_s, u"Z8"_s);
        m_messages->expect({.text = u"Sayı çok büyük: 40000"_s, .title = u"HATA"_s});
        QTest::keyClick(m_grid, Qt::Key_Return);
        QVERIFY(m_dialog->isVisible());
    }

    void opensForAScreen()
    {
        const LookupOpener opener = lookupOpener(m_company->oturum, *m_messages);
        QTimer::singleShot(0, this, [] {
            auto *list = QApplication::activeModalWidget();
            QTest::keyClick(list->findChild<QTableView *>(u"Rapor"_s), Qt::Key_Return);
        });
        QCOMPARE(opener(nullptr, {u"Renk Listesi"_s, QString()}).Secilen, u"B"_s);

        m_company->oturum.Veritabani->engine().run(u"DROP TABLE Renkler"_s);
        m_messages->expect({.text = u"SQL ifadesi çalıştırılamadı. (no such table: Renkler)"_s,
                            .title = u"HATA"_s});
        QCOMPARE(opener(nullptr, {u"Renk Listesi"_s, QString()}).Secilen, QString());
    }

private:
    void open(const QString &list, const QString &filter = {}, bool several = false)
    {
        m_dialog = std::make_unique<Liste_Combo>(m_company->oturum, *m_messages,
                                                 LookupRequest{list, filter, several});
        m_grid = m_dialog->findChild<QTableView *>(u"Rapor"_s);
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    }

    QString text(const char *name) const
    {
        return m_dialog->findChild<QLabel *>(QString::fromLatin1(name))->text();
    }

    QStringList column(int number) const
    {
        QStringList result;
        for (int row = 0; row < m_grid->model()->rowCount(); ++row)
            result.append(m_grid->model()->index(row, number).data().toString());
        return result;
    }

    QStringList headings() const
    {
        QStringList result;
        for (int i = 0; i < m_grid->model()->columnCount(); ++i)
            result.append(m_grid->model()->headerData(i, Qt::Horizontal).toString());
        return result;
    }

    std::unique_ptr<LookupCompany> m_company;
    std::unique_ptr<ScriptedMessages> m_messages;
    std::unique_ptr<Liste_Combo> m_dialog;
    QTableView *m_grid = nullptr;
};

KUYUM_TEST(Liste_ComboTest)

} // namespace kuyum

#include "Liste_ComboTest.moc"
