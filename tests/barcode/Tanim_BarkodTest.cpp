#include "Tanim_Barkod.h"
#include "BarcodeReader.h"
#include "BarkodKutusu.h"
#include "DocumentViewer.h"
#include "EntryControls.h"
#include "LabelPrinter.h"
#include "LabelTexts.h"
#include "Oturum.h"
#include "SampleCompany.h"
#include "ScriptedMessages.h"
#include "TestRegistry.h"
#include "Typing.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// Keeps what was printed, and on which printer it should have been.
struct KeptLabels : LabelPrinter
{
    void print(const PrintDocument &document, const QString &printerName) override
    {
        if (fails)
            throw std::runtime_error("Etiket yazıcısı kapalı.");
        labels.append(document);
        printers.append(printerName);
    }
    bool fails = false;
    QList<PrintDocument> labels;
    QStringList printers;
};

struct KeptPreview : DocumentViewer
{
    void show(QWidget *, const PrintDocument &document) override { shown.append(document); }
    QList<PrintDocument> shown;
};

} // namespace

class Tanim_BarkodTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_oturum = std::make_unique<Oturum>();
        m_oturum->Veritabani = makeSampleCompany(m_dir->filePath(u"atolye.kuyum"_s));
        m_oturum->SirketAdi = u"Altın Atölyesi"_s;
        m_oturum->ResimYolu = m_dir->path();
        Recordset settings = m_oturum->Veritabani->table(u"XXX"_s);
        if (settings.next())
            settings.edit();
        else
            settings.addNew();
        settings.set(u"sabitayar", 585.4);
        settings.set(u"YaziciAdi", u" Zebra "_s);
        settings.update();
        m_printer = {};
        m_preview = {};
        m_asked.clear();
        m_answers.clear();
    }
    void cleanup() { m_screen.reset(); }

    void printsByKeysAlone()
    {
        open();
        enter(u"boş"_s);
        QCOMPARE(text(u"txtUruntipi"_s), u"Yüzük"_s);
        QCOMPARE(text(u"txtMiktar"_s), u"3.50"_s);
        QCOMPARE(text(u"txtAyar"_s), u"585"_s);
        QCOMPARE(readBarcodes(surface()), QStringList{u"EAN-13:1600100000055"_s});
        enter(u"3,75"_s);
        enter(u"750"_s);
        enter(u"Nişan"_s);
        QCOMPARE(focus(), u"cmdBarkod"_s);
        enter();
        // Held down, the key goes neither on nor prints a second label.
        for (int i = 0; i < 10; ++i) {
            QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
            QCoreApplication::sendEvent(m_screen->focusWidget(), &held);
        }
        const QSignalSpy pressed(m_screen->findChild<QPushButton *>(u"cmdBarkod"_s),
                                 &QPushButton::pressed);
        qt_sendShortcutOverrideEvent(m_screen->focusWidget(), 0, Qt::Key_B, Qt::AltModifier, u"b"_s,
                                     true);
        QCOMPARE(focus(), u"Model"_s);
        QCOMPARE(m_printer.labels.size() + pressed.count(), 1);
        QCOMPARE(labelLines(m_printer.labels.value(0, PrintDocument(QString()))),
                 (QStringList{u"boş"_s, u"3.75"_s, u"750"_s, u"Nişan"_s}));
        QCOMPARE(m_printer.printers, QStringList{u"Zebra"_s});

        // The next one at once, from a label that was printed long ago.
        m_oturum->Veritabani->execute(
            u"Insert Into EskiEtiket (Ilk, Son, Model, M_Uruntip) Values (90, 95, 'İNCI-1', 3)"_s);
        enter(u"1600300000916"_s);
        QCOMPARE(text(u"Model"_s), u"İnci-1"_s);
        QCOMPARE(text(u"txtAciklama"_s), QString());
        m_screen->findChild<QLineEdit *>(u"Model"_s)->setFocus();
        m_screen->findChild<QLineEdit *>(u"Model"_s)->selectAll();
        enter(u"1600300000961"_s);
        QVERIFY(!canPrint());
        TumunuSec(*m_screen->findChild<QLineEdit *>(u"Model"_s));
        enter(u"İnci-1"_s);
        QCOMPARE(text(u"txtUruntipi"_s), u"Küpe"_s);
        key(Qt::Key_Escape);
        QCOMPARE(focus(), u"Model"_s);
        QCOMPARE(text(u"txtUruntipi"_s), QString());
        QCOMPARE(readBarcodes(surface()), QStringList());
        key(Qt::Key_Escape);
        QVERIFY(!m_screen->isVisible());
    }

    void withoutAFixedKaratNoneIsProposed()
    {
        m_oturum->Veritabani->execute(u"DELETE From XXX"_s);
        open();
        enter(u"boş"_s);
        QCOMPARE(text(u"txtUruntipi"_s), u"Yüzük"_s);
        QCOMPARE(text(u"txtAyar"_s), QString());
    }

    void theListAnswersForNoModelAndForSeveralTypes()
    {
        open();
        m_answers = {{}, {u"A75"_s, {}, 2, 0, {}}};
        enter();
        QCOMPARE(focus(), u"Model"_s);
        enter(u"a75"_s);
        QCOMPARE(m_asked, (QStringList{u"Model Listesi|"_s, u"Model Listesi|a75"_s}));
        QCOMPARE(text(u"Model"_s), u"A75"_s);
        QCOMPARE(text(u"txtUruntipi"_s), u"Kolye"_s);
        QCOMPARE(readBarcodes(surface()), QStringList{u"EAN-13:1600200000030"_s});
    }

    void anUnknownModelLeavesTheScreen()
    {
        open();
        enter(u"boş"_s);
        const QImage before = surface();
        m_screen->findChild<QLineEdit *>(u"Model"_s)->setFocus();
        m_screen->findChild<QLineEdit *>(u"Model"_s)->selectAll();
        enter(u"O'Hara"_s);
        QCOMPARE(text(u"txtUruntipi"_s), u"Yüzük"_s);
        QCOMPARE(surface(), before);
        // The label of another model than the one that is typed is not printed.
        QVERIFY(!canPrint());
        QCOMPARE(focus(), u"Model"_s);
    }

    void aPrinterThatFailsIsToldAndTheLabelStays()
    {
        open();
        enter(u"boş"_s);
        m_printer.fails = true;
        m_messages.expect({.text = u"Etiket yazıcısı kapalı."_s,
                           .title = u"HATA"_s,
                           .icon = MessageIcon::Critical});
        press(Qt::Key_B, u"cmdBarkod"_s);
        m_messages.verify();
        QCOMPARE(text(u"Model"_s), u"boş"_s);
        press(Qt::Key_N, u"cmdOnizleme"_s);
        QCOMPARE(m_preview.shown.size(), 1);
    }

    void labelTypesAreChosenOnlyWhereThereAreSome()
    {
        open();
        QVERIFY(!m_screen->findChild<QComboBox *>(u"BarkodTip"_s)->isVisible());
        m_screen.reset();

        addLabelType();
        open();
        enter(u"boş"_s);
        QVERIFY(!shows(u"txtTopFiyat"_s));
        for (int i = 0; i < 3; ++i)
            enter();
        QCOMPARE(focus(), u"BarkodTip"_s);
        key(Qt::Key_Down);
        QVERIFY(shows(u"txtTopFiyat"_s) && shows(u"OzelUrun"_s) && !shows(u"txtAlan1"_s));
        enter();
        QCOMPARE(focus(), u"OzelUrun"_s);
        key(Qt::Key_Down);
        enter();
        for (const Qt::Key way : {Qt::Key_B, Qt::Key_N}) {
            m_messages.expect(u"Özel etiket tipi TopFiyat alanını basar; değeri girilmelidir."_s);
            press(way, way == Qt::Key_B ? u"cmdBarkod"_s : u"cmdOnizleme"_s);
            QCOMPARE(focus(), u"txtTopFiyat"_s);
        }
        QVERIFY(m_printer.labels.isEmpty() && m_preview.shown.isEmpty());
        enter(u"1.500"_s);
        enter();
        QCOMPARE(labelLines(m_printer.labels.value(0, PrintDocument(QString()))),
                 (QStringList{u"ÖZEL Nişan"_s, u"1.500 TL"_s, u"Altın Atölyesi"_s}));
        enter(u"İnci-1"_s);
        QCOMPARE(text(u"txtTopFiyat"_s), QString());
        QCOMPARE(m_screen->findChild<QComboBox *>(u"OzelUrun"_s)->currentIndex(), 0);
        m_screen->findChild<QComboBox *>(u"BarkodTip"_s)->setCurrentIndex(0);
        QVERIFY(!shows(u"txtTopFiyat"_s) && !shows(u"OzelUrun"_s));
    }

private:
    void open()
    {
        m_screen = std::make_unique<Tanim_Barkod>(
            ScreenContext{*m_oturum, m_messages,
                          [this](QWidget *, const LookupRequest &request) {
                              m_asked.append(request.ListeTuru + u'|' + request.ListeFiltre);
                              return m_answers.isEmpty() ? LookupAnswer() : m_answers.takeFirst();
                          },
                          m_preview},
            m_printer);
        m_screen->show();
        QVERIFY(QTest::qWaitForWindowActive(m_screen.get()));
    }
    void addLabelType()
    {
        for (const QString &sql :
             {u"Insert Into Barkodtip (BarkodTip_ID, BarkodTip_Ad, BarkodTip_OzelUrun, "
              u"pBarkod_Top, "
              "pBarkod_Left) Values (1, 'Özel', 1, 10, 260)"_s,
              u"Insert Into BarkodtipAlanlar (btipno, alanno, alanadi, [Check]) "
              "Values (1, 1, '%KOD%', 1)"_s,
              u"Insert Into BarkodtipAlanlar (btipno, alanno, alanadi, [Check]) "
              "Values (1, 2, '%TFYT% TL', 1)"_s,
              u"Insert Into BarkodtipAlanlar (btipno, alanno, alanadi, [Check]) "
              "Values (1, 3, '%FRM%', 1)"_s,
              u"Insert Into BarkodtipAlanlar (btipno, alanno, alanadi, [Check]) "
              "Values (1, 4, '%ALAN1%', 0)"_s,
              u"Insert Into Barkodtipozel (btipno, BarkodKod_Kod, BarkodKod_Isim) "
              "Values (1, 'ÖZEL', 'Nişan')"_s})
            m_oturum->Veritabani->execute(sql);
    }
    bool canPrint() const
    {
        return m_screen->findChild<QPushButton *>(u"cmdBarkod"_s)->isEnabled();
    }
    QString text(const QString &name) const
    {
        return m_screen->findChild<QLineEdit *>(name)->text();
    }
    bool shows(const QString &name) const
    {
        return m_screen->findChild<QWidget *>(name)->isVisible();
    }
    QImage surface() const
    {
        return m_screen->findChild<QWidget *>(u"pBarkod"_s)->grab().toImage();
    }
    QString focus() const { return m_screen->focusWidget()->objectName(); }
    /// Keys go wherever the focus is, as a keyboard's do.
    void key(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QTest::keyClick(m_screen->focusWidget(), key, held);
    }
    void enter(const QString &text = {}) const
    {
        typeText(m_screen->focusWidget(), text);
        key(Qt::Key_Return);
    }
    /// A button by its letter; the button takes a moment to go down and up.
    void press(Qt::Key letter, const QString &button) const
    {
        const QSignalSpy clicks(m_screen->findChild<QPushButton *>(button), &QPushButton::clicked);
        key(letter, Qt::AltModifier);
        QTRY_COMPARE(clicks.count(), 1);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<Oturum> m_oturum;
    ScriptedMessages m_messages;
    KeptLabels m_printer;
    KeptPreview m_preview;
    QStringList m_asked;
    QList<LookupAnswer> m_answers;
    std::unique_ptr<Tanim_Barkod> m_screen;
};

KUYUM_TEST(Tanim_BarkodTest)

} // namespace kuyum

#include "Tanim_BarkodTest.moc"
