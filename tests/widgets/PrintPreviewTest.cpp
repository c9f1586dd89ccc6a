#include "PrintPreview.h"
#include "BarcodeReader.h"
#include "LabelPrinter.h"
#include "PdfReader.h"
#include "Printers.h"
#include "ScriptedMessages.h"
#include "TestRegistry.h"

#include <QPrinter>
#include <QSettings>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr int testPages = 3;

PrintDocument threePages()
{
    PrintDocument document(u"Sipariş Fişi 7"_s);
    for (int page = 1; page <= testPages; ++page) {
        document.newPage();
        document.setFont({u"Courier New Tur"_s, 12});
        document.text({1440_tw, 1440_tw}, u"Sayfa %1"_s.arg(page));
    }
    return document;
}

/// A small label with a symbol at a place between the dots of any printer.
PrintDocument barCode()
{
    PrintDocument document(u"Etiket"_s, Twips(2880), Twips(720));
    document.bars({101_tw, 103_tw}, {u"XOXXOOXOXXXOX"_s, 10_tw, 350_tw, 2000_tw});
    return document;
}

/// Printers that put their paper into files.
class FilePrinters : public Printers
{
public:
    FilePrinters(QSettings &settings, const QStringList &names, const QString &folder)
        : Printers(settings), m_names(names), m_folder(folder)
    {
    }
    QStringList installed() const override { return m_names; }
    QString VarsayilanYazici() const override { return m_names.value(1); }

protected:
    std::unique_ptr<QPrinter> open(const QString &name) const override
    {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(m_folder + u'/' + name + u".pdf"_s);
        return printer;
    }

private:
    QStringList m_names;
    QString m_folder;
};

/// Where a word stands, in twips.
QPoint wordPosition(const QString &pdf, const QString &text)
{
    const PdfWord word = pdfWord(pdf, text);
    return QPointF(word.x, word.y).toPoint();
}

} // namespace

class PrintPreviewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_settings =
            std::make_unique<QSettings>(m_folder->filePath(u"ayar.ini"_s), QSettings::IniFormat);
        m_messages = std::make_unique<ScriptedMessages>();
    }

    void pagesAreTurnedByKeys()
    {
        FilePrinters printers(*m_settings, {}, m_folder->path());
        PrintPreview preview(threePages(), printers, *m_messages, nullptr);
        open(preview);
        QTest::keyClick(&preview, Qt::Key_PageDown);
        QCOMPARE(preview.currentPage(), 2);
        QTest::keyClick(&preview, Qt::Key_End, Qt::ControlModifier);
        QTest::keyClick(&preview, Qt::Key_PageDown);
        QCOMPARE(preview.currentPage(), testPages);
        QCOMPARE(preview.findChild<QLabel *>(u"pageLabel"_s)->text(), u"Sayfa 3 / 3"_s);
        QTest::keyClick(&preview, Qt::Key_PageUp);
        QCOMPARE(preview.currentPage(), 2);
        QTest::keyClick(&preview, Qt::Key_Escape);
        QVERIFY(!preview.isVisible());
    }

    void savesAsPdfAndToldWhereItFails()
    {
        FilePrinters printers(*m_settings, {}, m_folder->path());
        PrintPreview preview(threePages(), printers, *m_messages, nullptr);
        QString path = m_folder->filePath(u"fiş.pdf"_s);
        QString suggested;
        preview.setPdfChooser([&](QWidget *, const QString &name) {
            suggested = name;
            return path;
        });
        open(preview);
        m_messages->expect(u"PDF dosyası kaydedildi:\n"_s + QDir::toNativeSeparators(path));
        QTest::keyClick(&preview, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(suggested, u"Sipariş Fişi 7.pdf"_s);
        // The digit is the seventh character, at 144 twips each.
        QCOMPARE(wordPosition(path, u"3"_s), QPoint(1440 + 6 * 144, 1440));

        path = m_folder->filePath(u"yok/fiş.pdf"_s);
        m_messages->expect({.text = u"PDF dosyası yazılamadı: %1\nKlasör bulunamadı."_s.arg(
                                QDir::toNativeSeparators(path)),
                            .title = u"HATA"_s,
                            .icon = MessageIcon::Critical});
        QTest::keyClick(&preview, Qt::Key_S, Qt::ControlModifier);
        path.clear();
        QTest::keyClick(&preview, Qt::Key_S, Qt::ControlModifier);
        QVERIFY(preview.isVisible());
        m_messages->verify();
    }

    void printsOnTheChosenPrinterWithItsOffset()
    {
        const QStringList names{u"Büro/1"_s, u"Atölye"_s, u"Depo"_s};
        QDir(m_folder->path()).mkdir(u"Büro"_s);
        FilePrinters printers(*m_settings, names, m_folder->path());
        QCOMPARE(printers.current(), u"Atölye"_s);
        printers.setOffset(u"Depo"_s, {Twips(720), Twips(-360)});
        printers.setOffset(names[0], {Twips(1), Twips(2)});
        {
            PrintPreview preview(threePages(), printers, *m_messages, nullptr);
            open(preview);
            auto *list = preview.findChild<QComboBox *>(u"printerList"_s);
            QCOMPARE(list->currentText(), u"Atölye"_s);
            list->setFocus();
            QTest::keyClick(list, Qt::Key_End);
            QTest::keyClick(&preview, Qt::Key_P, Qt::ControlModifier);
            QVERIFY(!preview.isVisible());
        }
        QCOMPARE(wordPosition(m_folder->filePath(u"Depo.pdf"_s), u"2"_s),
                 QPoint(1440 + 720 + 6 * 144, 1440 - 360));

        // A later run finds the choice again, unless that printer has gone.
        FilePrinters later(*m_settings, names, m_folder->path());
        QCOMPARE(later.current(), u"Depo"_s);
        QCOMPARE(later.offset(names[0]).y, Twips(2));
        FilePrinters fewer(*m_settings, names.first(2), m_folder->path());
        QCOMPARE(fewer.current(), u"Atölye"_s);
        fewer.YaziciSec(u"büro/1"_s);
        QCOMPARE(fewer.current(), u"Atölye"_s);
        fewer.YaziciSec(u"Büro/1"_s);
        QCOMPARE(fewer.current(), u"Büro/1"_s);
    }

    void aPrinterThatFailsOrIsMissingIsTold()
    {
        FilePrinters none(*m_settings, {}, m_folder->path());
        PrintPreview preview(threePages(), none, *m_messages, nullptr);
        open(preview);
        m_messages->expect(u"Kurulu yazıcı bulunamadı. Belge PDF olarak kaydedilebilir."_s);
        QTest::mouseClick(preview.findChild<QPushButton *>(u"printButton"_s), Qt::LeftButton);
        QVERIFY(preview.isVisible());

        FilePrinters broken(*m_settings, {u"Kopuk"_s}, m_folder->filePath(u"yok"_s));
        PrintPreview second(threePages(), broken, *m_messages, nullptr);
        open(second);
        m_messages->expect(
            u"\"Kopuk\" yazıcısına yazdırılamadı. Yazıcının açık, bağlı ve hazır olduğunu "
            "denetleyin; belge PDF olarak da kaydedilebilir."_s);
        QTest::keyClick(&second, Qt::Key_P, Qt::ControlModifier);
        QVERIFY(second.isVisible());
        m_messages->verify();
    }

    void aLabelGoesToItsPrinterAndTheSlipsStayWithTheirs()
    {
        FilePrinters printers(*m_settings, {u"Büro"_s, u"Atölye"_s, u"Zebra"_s}, m_folder->path());
        printers.YaziciSec(u"Büro"_s);
        InstalledLabelPrinter labelPrinter(printers);
        const auto printedOn = [&](const QString &name) {
            labelPrinter.print(threePages(), name);
            return QDir(m_folder->path()).entryList({u"*.pdf"_s}, QDir::Files, QDir::Time).value(0);
        };
        QCOMPARE(printedOn(u" Zebra "_s), u"Zebra.pdf"_s);
        QCOMPARE(printedOn({}), u"Atölye.pdf"_s);
        QFile::remove(m_folder->filePath(u"Atölye.pdf"_s));
        QCOMPARE(printedOn(u"Zebra TLP2844"_s), u"Atölye.pdf"_s);
        QCOMPARE(printers.current(), u"Büro"_s);

        // Before it goes to another one, that is asked, once.
        QFile::remove(m_folder->filePath(u"Atölye.pdf"_s));
        LabelOutlet outlet(labelPrinter, *m_messages);
        QVERIFY(outlet.print(nullptr, threePages(), u"Zebra"_s));
        const ScriptedMessages::Expected question{
            .text = u"\"Zebra TLP2844\" adlı etiket yazıcısı bu bilgisayarda kurulu değil."_s,
            .answer = MessageAnswer::No,
            .defaultAnswer = MessageAnswer::No,
            .begins = true};
        m_messages->expect(question);
        QVERIFY(!outlet.print(nullptr, threePages(), u"Zebra TLP2844"_s));
        QVERIFY(!QFile::exists(m_folder->filePath(u"Atölye.pdf"_s)));
        ScriptedMessages::Expected agreed = question;
        agreed.answer = MessageAnswer::Yes;
        m_messages->expect(agreed);
        for (int copy = 0; copy < 2; ++copy)
            QVERIFY(outlet.print(nullptr, threePages(), u"Zebra TLP2844"_s));
        QVERIFY(QFile::exists(m_folder->filePath(u"Atölye.pdf"_s)));

        const FilePrinters none(*m_settings, {}, m_folder->path());
        QVERIFY_THROWS_EXCEPTION(std::runtime_error,
                                 InstalledLabelPrinter(none).print(threePages(), u"Zebra"_s));
    }

    void barCodesAreWholeDotsOnEveryWayOut()
    {
        FilePrinters printers(*m_settings, {u"Zebra"_s}, m_folder->path());
        printers.setOffset(u"Zebra"_s, {Twips(3), Twips(5)});
        PrintPreview preview(barCode(), printers, *m_messages, nullptr);
        const QString saved = m_folder->filePath(u"etiket.pdf"_s);
        preview.setPdfChooser([&](QWidget *, const QString &) { return saved; });
        open(preview);
        m_messages->expect(u"PDF dosyası kaydedildi:\n"_s + QDir::toNativeSeparators(saved));
        QTest::keyClick(&preview, Qt::Key_S, Qt::ControlModifier);
        QTest::keyClick(&preview, Qt::Key_P, Qt::ControlModifier);
        QVERIFY(!preview.isVisible());
        m_messages->verify();

        const QList<int> twoDotsAModule{2, 2, 4, 4, 2, 2, 6, 2, 2};
        const int row = 203 * 200 / 1440;
        const QString printed = m_folder->filePath(u"Zebra.pdf"_s);
        QCOMPARE(runsOfDots(pdfDots(saved, 203), row), twoDotsAModule);
        QCOMPARE(runsOfDots(pdfDots(printed, 203), row), twoDotsAModule);
        InstalledLabelPrinter(printers).print(barCode(), u"Zebra"_s);
        QCOMPARE(runsOfDots(pdfDots(printed, 203), row), twoDotsAModule);
    }

    void thePrintersOwnDotsAreThoseOfItsHead()
    {
        QCOMPARE(ownResolution({203}), 203);
        QCOMPARE(ownResolution({72, 96, 300, 600, 1200}), 300);
        QCOMPARE(ownResolution({72}), 203);
        QCOMPARE(ownResolution({}), 203);
    }

private:
    static void open(PrintPreview &preview)
    {
        preview.show();
        QVERIFY(QTest::qWaitForWindowActive(&preview));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<ScriptedMessages> m_messages;
};

KUYUM_TEST(PrintPreviewTest)

} // namespace kuyum

#include "PrintPreviewTest.moc"
