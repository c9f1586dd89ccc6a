#include "BarcodeReader.h"
#include "FileBytes.h"
#include "PdfReader.h"
#include "SampleCompany.h"
#include "Schema.h"
#include "TestRegistry.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

struct Outcome
{
    int exitCode = -1;
    QString output;
    QString error;
};

/// The program as a user without a display starts it.
Outcome kuyum(const QStringList &arguments)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto &display : {u"QT_QPA_PLATFORM"_s, u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s})
        environment.remove(display);
    program.setProcessEnvironment(environment);
    program.start(qEnvironmentVariable("KUYUM_PROGRAM"), arguments);
    if (!program.waitForFinished())
        return {};
    return {program.exitCode(), QString::fromUtf8(program.readAllStandardOutput()),
            QString::fromUtf8(program.readAllStandardError())};
}

} // namespace

class CommandLineTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QString m_database = m_folder.filePath(u"ornek.kuyum"_s);

    QByteArray fileBytes() const
    {
        QFile file(m_database);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

private Q_SLOTS:
    void initTestCase()
    {
        // Where the running program keeps its lock: of this test alone.
        qputenv("XDG_RUNTIME_DIR", m_folder.path().toUtf8());
        makeSampleCompany(m_database).reset();
    }

    void wrongWordsShowTheUsage_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::newRow("unknown word") << QStringList{u"yardim"_s};
        QTest::newRow("unknown option") << QStringList{u"--yok"_s};
        QTest::newRow("no registry named") << QStringList{u"--sirket"_s};
        QTest::newRow("an empty registry name") << QStringList{u"--sirket"_s, QString()};
        QTest::newRow("a word too many") << QStringList{u"--sirket"_s, u"a"_s, u"b"_s};
        QTest::newRow("no query") << QStringList{u"sorgu"_s, m_database};
        QTest::newRow("no database to back up") << QStringList{u"yedekle"_s};
        QTest::newRow("no backup to restore") << QStringList{u"geriyukle"_s, m_database};
        QTest::newRow("nothing to check") << QStringList{u"denetle"_s};
        QTest::newRow("no target") << QStringList{u"aktar"_s, m_database};
        QTest::newRow("a slip without a file") << QStringList{u"fis"_s, m_database, u"1"_s};
        QTest::newRow("an order that is no number")
            << QStringList{u"fis"_s, m_database, u"bir"_s, u"--pdf"_s, u"x.pdf"_s};
        const QStringList sheet{u"uretim"_s, m_database, u"1,3"_s, u"--pdf"_s, u"x.pdf"_s};
        QTest::newRow("a production sheet of no days") << sheet;
        QTest::newRow("a day that is none")
            << sheet + QStringList{u"--bas"_s, u"1.1.2000"_s, u"--bit"_s, u"31.2.2012"_s};
        QTest::newRow("a sheet without a type")
            << QStringList{u"model"_s, m_database, u"A75"_s, u"--pdf"_s, u"x.pdf"_s};
        const QStringList pages{u"katalog"_s, m_database, u"Bahar"_s, u"--pdf"_s, u"x.pdf"_s};
        QTest::newRow("a catalogue in no form") << pages;
        QTest::newRow("a form that there is not") << pages + QStringList{u"--bicim"_s, u"5x5"_s};
        const QStringList label{u"etiket"_s, m_database, u"A75"_s, u"1"_s};
        QTest::newRow("a label without a file") << label;
        QTest::newRow("a label in two files")
            << label + QStringList{u"--pdf"_s, u"x.pdf"_s, u"--png"_s, u"x.png"_s};
        QTest::newRow("dots of no size") << label + QStringList{u"--png"_s, u"x.png"_s};
        QTest::newRow("dots too coarse")
            << label + QStringList{u"--png"_s, u"x.png"_s, u"--dpi"_s, u"50"_s};
        QTest::newRow("a value of no field")
            << label + QStringList{u"--pdf"_s, u"x.pdf"_s,  u"--tip"_s,
                                   u"Küçük"_s, u"--alan"_s, u"YOK=1"_s};
        QTest::newRow("an unknown symbology")
            << QStringList{u"barkod"_s, u"qr"_s, u"1"_s, u"--pdf"_s, u"x.pdf"_s};
        const QStringList report{u"rapor"_s,  u"tas"_s,   m_database,    u"--bas"_s,
                                 u"1.3.12"_s, u"--csv"_s, u"yok/x.csv"_s};
        QTest::newRow("a report without an end") << report;
        const QStringList march = report + QStringList{u"--bit"_s, u"31.3.12"_s};
        QTest::newRow("a report in two files") << march + QStringList{u"--pdf"_s, u"x.pdf"_s};
        QTest::newRow("another report's filter") << march + QStringList{u"--firma"_s, u"10"_s};
        QTest::newRow("an empty folder name") << QStringList{u"demo"_s, QString()};
    }
    void wrongWordsShowTheUsage()
    {
        QFETCH(QStringList, words);
        const Outcome outcome = kuyum(words);
        QCOMPARE(outcome.exitCode, 2);
        QVERIFY2(outcome.error.contains(u"Kullanım:"_s), qPrintable(outcome.error));
        QCOMPARE(outcome.output, QString());
    }

    void helpIsNoError()
    {
        const Outcome all = kuyum({u"--help"_s});
        QCOMPARE(all.exitCode, 0);
        const Outcome one = kuyum({u"sorgu"_s, u"--help"_s});
        QCOMPARE(one.exitCode, 0);
        QVERIFY(one.output.startsWith(u"Kullanım: kuyum sorgu VERITABANI \"SELECT ...\"\n"_s));
        QVERIFY(one.output.contains(u"CSV hamdır"_s));
        QVERIFY(all.output.contains(u"kuyum sorgu VERITABANI"_s));
    }

    void aQueryThatIsNoSingleSelectIsRefused_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QString>("reason");
        const QString noRows = u"Bu ifade kayıt döndürmez"_s;
        QTest::newRow("insert") << u"INSERT INTO Ayar (Milyem) VALUES (1)"_s << noRows;
        QTest::newRow("delete") << u"DELETE From Ayar"_s << noRows;
        QTest::newRow("a second one")
            << u"Select Milyem From Ayar; DELETE From Ayar"_s << u"Birden fazla SQL ifadesi"_s;
        QTest::newRow("nothing") << u" ; "_s << u"Boş SQL ifadesi"_s;
        QTest::newRow("cut off") << u"Select"_s << u"SQL ifadesi çalıştırılamadı."_s;
        QTest::newRow("unknown table")
            << u"Select * From Yok"_s << u"SQL ifadesi çalıştırılamadı. (no such table: Yok)"_s;
    }
    void aQueryThatIsNoSingleSelectIsRefused()
    {
        QFETCH(QString, sql);
        QFETCH(QString, reason);
        const QByteArray before = fileBytes();
        const Outcome outcome = kuyum({u"sorgu"_s, m_database, sql});
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.error.startsWith(reason), qPrintable(outcome.error));
        QCOMPARE(outcome.output, QString());
        QCOMPARE(fileBytes(), before);
    }

    void ordersAreReported()
    {
        const QStringList model{u"rapor"_s,    u"model"_s, m_database,    u"--bas"_s,
                                u"1.3.2012"_s, u"--bit"_s, u"31.5.2012"_s};
        const QString csv = m_folder.filePath(u"model.csv"_s);
        const Outcome outcome = kuyum(
            model + QStringList{u"--bol"_s, u"tip"_s, u"--firma"_s, u"10"_s, u"--ulke"_s, u"1"_s,
                                u"--model"_s, u"a"_s, u"--tip"_s, u"2"_s, u"--csv"_s, csv});
        QCOMPARE(outcome.exitCode, 0);
        QFile file(csv);
        QVERIFY(file.open(QFile::ReadOnly));
        QCOMPARE(QString::fromUtf8(file.readAll()),
                 u"\"KOD\",\"Adet(Kolye)\",\"Adet(Küpe)\",\"Adet(Yüzük)\",\"TOPLAM ADET\"\n"
                 "\"A75\",1,,3,4\n\"TOPLAM\",1,0,3,4\n"_s);

        const QString pdf = m_folder.filePath(u"model.pdf"_s);
        QCOMPARE(kuyum(model + QStringList{u"--firma"_s, u"20"_s, u"--pdf"_s, pdf}).exitCode, 0);
        QCOMPARE(pdfWord(pdf, u"O'Hara"_s).page, 1);
        QCOMPARE(pdfWord(pdf, u"Sayfa"_s).page, 1);

        const Outcome nothing =
            kuyum(model + QStringList{u"--firma"_s, u"99"_s, u"--pdf"_s, pdf + u"x"_s});
        QCOMPARE(nothing.exitCode, 1);
        QVERIFY2(nothing.error.endsWith(u"Kayıt Bulunamadi\n"_s), qPrintable(nothing.error));
        QVERIFY(!QFile::exists(pdf + u"x"_s));
    }

    void aProductionSheetIsWrittenOrRefused_data()
    {
        QTest::addColumn<QString>("orders");
        QTest::addColumn<QString>("begin");
        QTest::addColumn<QString>("reason"); ///< empty: it is written
        const QString always = u"1.1.2000"_s;
        QTest::newRow("of two orders") << u"1,3"_s << always << QString();
        QTest::newRow("of two karats")
            << u"1,2"_s << always << u"FARKLI AYARLARDA SIPARIS SECIMI YAPILAMAZ...\n"_s;
        QTest::newRow("of nothing") << u"1"_s << u"1.1.2012"_s << u"KAYIT BULUNAMADI...\n"_s;
        QTest::newRow("of no order") << u"9"_s << always << u"9 nolu sipariş bulunamadı.\n"_s;
    }
    void aProductionSheetIsWrittenOrRefused()
    {
        QFETCH(QString, orders);
        QFETCH(QString, begin);
        QFETCH(QString, reason);
        const QString pdf = m_folder.filePath(u"üretim.pdf"_s);
        QFile::remove(pdf);
        const Outcome outcome =
            kuyum({u"uretim"_s, m_database, orders, u"--bas"_s, begin, u"--bit"_s, u"31.12.2012"_s,
                   u"--resimli"_s, u"--pdf"_s, pdf});
        // The platform's own complaints may stand before it.
        QVERIFY2(outcome.error.endsWith(reason), qPrintable(outcome.error));
        QCOMPARE(outcome.exitCode, reason.isEmpty() ? 0 : 1);
        QCOMPARE(QFile::exists(pdf), reason.isEmpty());
        if (reason.isEmpty())
            QVERIFY(!pdfWord(pdf, u"İnci-1"_s).text.isEmpty());
    }

    void oneOrderIsReported()
    {
        const QString csv = m_folder.filePath(u"siparis.csv"_s);
        const auto report = [&](const QString &word, const QStringList &more) {
            return kuyum(QStringList{u"rapor"_s, word, m_database, u"1"_s, u"--csv"_s, csv} + more);
        };
        const auto written = [&] {
            QFile file(csv);
            return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
        };
        const Outcome stones =
            report(u"siparis-tas"_s, {u"--tarih"_s, u"1.3.2012"_s, u"--doviz"_s, u"EUR"_s});
        QCOMPARE(stones.exitCode, 0);
        QVERIFY2(stones.error.contains(u"HAS kuru yok"_s), qPrintable(stones.error));
        QVERIFY2(written().contains(u"\n\"PRL 1\",4,0.02,1.6,0.01,-0.01\n"_s),
                 qPrintable(written()));
        QCOMPARE(report(u"siparis-tas"_s, {u"--doviz"_s, u"XXX"_s}).exitCode, 1);
        // Models and molds in one file, an empty line between them.
        QCOMPARE(report(u"yarimamul"_s, {}).exitCode, 0);
        QVERIFY2(written().contains(u"\"Toplam\",,10,392.26,229.48\n\n\"KOD\""_s),
                 qPrintable(written()));
    }

    void aSelectGivesCsv()
    {
        const Outcome outcome =
            kuyum({u"sorgu"_s, m_database,
                   u"Select 'a \"b\", ç' as t, '' as e, Null as n, 0.1 as d, 3 as i, "
                   "Max(SipTrh) as g, DateValue('02.03.2020') as v From SiparisB;"_s});
        QCOMPARE(outcome.error, QString());
        QCOMPARE(outcome.exitCode, 0);
        const QStringList lines = outcome.output.split(u'\n');
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[0], u"\"t\",\"e\",\"n\",\"d\",\"i\",\"g\",\"v\""_s);
        static const QRegularExpression row(
            uR"(^"a ""b"", ç","",,0\.1,3,\d\d\.\d\d\.\d{4},02\.03\.2020$)"_s);
        QVERIFY2(row.match(lines[1]).hasMatch(), qPrintable(lines[1]));
    }

    void anEmptyAnswerHasItsHeading()
    {
        const Outcome outcome =
            kuyum({u"sorgu"_s, m_database, u"Select Milyem From Ayar Where Milyem = 1"_s});
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(outcome.output, u"\"Milyem\"\n"_s);
    }

    void aModelsSheetIsPrinted()
    {
        const QString pdf = m_folder.filePath(u"föy.pdf"_s);
        // The type by its number, its short name and its name.
        for (const QString &type : {u"2"_s, u"kly"_s, u"Kolye"_s}) {
            QFile::remove(pdf);
            const Outcome outcome =
                kuyum({u"model"_s, m_database, u"a75"_s, type, u"--pdf"_s, pdf});
            QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.error));
            QCOMPARE(pdfWord(pdf, u"KLY"_s).page, 1);
        }
        QFile::remove(pdf);
        for (const QStringList &words : {QStringList{u"A75"_s, u"3"_s}, {u"A75"_s, u"YOK"_s}}) {
            const Outcome outcome =
                kuyum(QStringList{u"model"_s, m_database} + words + QStringList{u"--pdf"_s, pdf});
            QCOMPARE(outcome.exitCode, 1);
            QVERIFY2(outcome.error.contains(u"bulunamadı"_s), qPrintable(outcome.error));
        }
        QVERIFY(!QFile::exists(pdf));
    }

    void aCatalogueIsPrinted()
    {
        const QString pdf = m_folder.filePath(u"katalog.pdf"_s);
        const auto print = [&](const QString &name, const QString &form) {
            QFile::remove(pdf);
            return kuyum({u"katalog"_s, m_database, name, u"--bicim"_s, form, u"--pdf"_s, pdf});
        };
        for (const auto &[form, step] : {std::pair(u"3x5"_s, 3600.0), {u"4x6"_s, 2800.0}}) {
            const Outcome outcome = print(u"bahar"_s, form);
            QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.error));
            const double first = pdfWord(pdf, u"A75"_s).x;
            QVERIFY(qAbs(pdfWord(pdf, u"İnci-1"_s).x - first - step) < 30);
        }
        const Outcome outcome = print(u"Kış"_s, u"3x5"_s);
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.error.contains(u"Kış adlı katalog bulunamadı"_s),
                 qPrintable(outcome.error));
        QVERIFY(!QFile::exists(pdf));
    }

    void aLabelIsDrawnOfTheModelUnderItsType()
    {
        const QString png = m_folder.filePath(u"etiket.png"_s);
        const auto label = [&](const QString &model, const QString &type) {
            QFile::remove(png);
            return kuyum(
                {u"etiket"_s, m_database, model, type, u"--png"_s, png, u"--dpi"_s, u"203"_s});
        };
        // The necklace's first row; its type by number, short name and name.
        for (const QString &type : {u"2"_s, u"kly"_s, u"Kolye"_s}) {
            QCOMPARE(label(u"A75"_s, type).exitCode, 0);
            QCOMPARE(readBarcodes(QImage(png)), QStringList{u"EAN-13:1600200000030"_s});
        }
        const Outcome unknown = label(u"İnci-1"_s, u"2"_s);
        QCOMPARE(unknown.exitCode, 1);
        QVERIFY2(unknown.error.contains(u"İnci-1 modeli 2 ürün tipinde bulunamadı."_s),
                 qPrintable(unknown.error));
        QVERIFY(!QFile::exists(png));
        QCOMPARE(label(u"A75"_s, u"Saat"_s).exitCode, 1);
    }

    void aLabelTypeIsPrintedWithAllItsValuesOrNotAtAll()
    {
        const QString database = m_folder.filePath(u"etiketli.kuyum"_s);
        std::unique_ptr<Database> db = makeSampleCompany(database);
        db->execute(u"Insert Into Barkodtip (BarkodTip_ID, BarkodTip_Ad) Values (1, 'Küçük')"_s);
        db->execute(u"Insert Into BarkodtipAlanlar (btipno, alanno, alanadi, [Check], pic_Left) "
                    "Values (1, 1, '%FRM% %TFYT%', 1, 20)"_s);
        db.reset();
        const QString pdf = m_folder.filePath(u"tip.pdf"_s);
        QStringList words{u"etiket"_s, database,   u"A75"_s,   u"2"_s,      u"--pdf"_s,
                          pdf,         u"--tip"_s, u"küçük"_s, u"--alan"_s, u"frm=Atölye"_s};
        const Outcome refused = kuyum(words);
        QCOMPARE(refused.exitCode, 1);
        QVERIFY2(refused.error.contains(u"%TFYT%"_s), qPrintable(refused.error));
        QVERIFY(!QFile::exists(pdf));
        QCOMPARE(kuyum(words + QStringList{u"--alan"_s, u"TFYT="_s}).exitCode, 1);
        words += {u"--alan"_s, u"TFYT=1=500"_s};
        QCOMPARE(kuyum(words).exitCode, 0);
        QVERIFY(pdfWord(pdf, u"Atölye"_s).page == 1 && pdfWord(pdf, u"1=500"_s).page == 1);
    }

    void aBarCodeIsDrawnOfAText()
    {
        const QString png = m_folder.filePath(u"barkod.png"_s);
        const auto draw = [&](const QString &symbology, const QString &text) {
            return kuyum({u"barkod"_s, symbology, text, u"--png"_s, png, u"--dpi"_s, u"203"_s});
        };
        QCOMPARE(draw(u"code128"_s, u"Set-12 ab"_s).exitCode, 0);
        QCOMPARE(readBarcodes(QImage(png)), QStringList{u"CODE-128:Set-12 ab"_s});
        const Outcome refused = draw(u"code39"_s, u"ı"_s);
        QCOMPARE(refused.exitCode, 1);
        QVERIFY2(refused.error.contains(u"\"ı\""_s), qPrintable(refused.error));

        // What stands below the bars is what they say.
        const QString pdf = m_folder.filePath(u"ean.pdf"_s);
        QCOMPARE(kuyum({u"barkod"_s, u"ean13"_s, u"12345"_s, u"--pdf"_s, pdf}).exitCode, 0);
        QCOMPARE(pdfWord(pdf, u"0000000123457"_s).page, 1);
        QCOMPARE(draw(u"ean13"_s, u"5901234123457"_s).exitCode, 0);
        QCOMPARE(readBarcodes(QImage(png)), QStringList{u"EAN-13:5901234123457"_s});
        for (const QString &wrong :
             {u"5901234123456"_s, u"59012341234571"_s, u"A90123412345"_s, QString()})
            QCOMPARE(draw(u"ean13"_s, wrong).exitCode, 1);
    }

    void aCompanyIsBackedUpCheckedAndRestored()
    {
        const Outcome made = kuyum({u"yedekle"_s, m_database});
        QCOMPARE(made.exitCode, 0);
        QVERIFY(made.output.contains(u"\nFirma: 2 kayıt\n"_s));
        const QString backup = made.output.section(u'\n', 0, 0);
        const QByteArray before = fileBytes();
        openCompany(m_database)->execute(u"Delete From Firma"_s);

        // A program has it open, under whichever name.
        const QString link = m_folder.filePath(u"baglanti.kuyum"_s);
        const QString lock = m_folder.filePath(u".ornek.kuyum.acik"_s);
        QVERIFY(QFile::link(m_database, link));
        {
            const std::unique_ptr<Database> open = openCompany(link);
            const Outcome refused = kuyum({u"geriyukle"_s, m_database, backup});
            QCOMPARE(refused.exitCode, 1);
            QVERIFY2(refused.error.contains(u"önce açık olduğu her yerde"_s),
                     qPrintable(refused.error));
            QVERIFY(QFile::exists(lock));
        }
        QVERIFY(!QFile::exists(lock));
        const QString bare = m_folder.filePath(u"tasinan.kuyum"_s);
        QVERIFY(QFile::copy(backup, bare));
        const Outcome unsure = kuyum({u"geriyukle"_s, m_database, bare});
        QCOMPARE(unsure.exitCode, 1);
        QVERIFY2(unsure.error.contains(u"--ozetsiz"_s), qPrintable(unsure.error));
        // One letter is another.
        QVERIFY(QFile::copy(backup + u".sha256"_s, bare + u".sha256"_s));
        QFile changed(bare);
        QVERIFY(changed.open(QFile::ReadWrite));
        changed.seek(changed.readAll().indexOf("Kuyumculuk"));
        changed.putChar('X');
        changed.close();
        const Outcome refused = kuyum({u"geriyukle"_s, m_database, bare});
        QCOMPARE(refused.exitCode, 1);
        QVERIFY2(refused.error.contains(u"değişmiş"_s), qPrintable(refused.error));

        // Nothing but a company is replaced, and a link stays one.
        const QString notes = m_folder.filePath(u"notlar.txt"_s);
        writeFile(notes, "not");
        QCOMPARE(kuyum({u"geriyukle"_s, notes, backup}).exitCode, 1);
        QCOMPARE(kuyum::fileBytes(notes), "not");
        const Outcome restored = kuyum({u"geriyukle"_s, link, backup});
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(restored.error, QString());
        QCOMPARE(restored.exitCode, 0);
        const QString kept = restored.output.section(u": "_s, 2).trimmed();
        QVERIFY2(QFile::exists(kept), qPrintable(restored.output));
        QCOMPARE(kuyum({u"sorgu"_s, m_database, u"Select Count(*) As N From Firma"_s}).output,
                 u"\"N\"\n2\n"_s);
    }

    void noOutputGoesOverADatabase()
    {
        const QString link = m_folder.filePath(u"kisayol.pdf"_s);
        const QString report = m_folder.filePath(u"rapor.pdf"_s);
        const QString journal = m_folder.filePath(u"ornek.kuyum-journal"_s);
        QVERIFY(QFile::link(m_database, link));
        QVERIFY(QFile::copy(m_database, report)); // a database, whatever it is called
        QFile::setPermissions(report, QFile::permissions(report) | QFile::WriteOwner);
        const QByteArray before = fileBytes();
        const QStringList slip{u"fis"_s, m_database, u"1"_s};
        const QStringList march{u"rapor"_s,  u"tas"_s,   m_database,  u"--bas"_s,
                                u"1.3.12"_s, u"--bit"_s, u"31.3.12"_s};
        const QStringList code{u"barkod"_s, u"code39"_s, u"A"_s, u"--dpi"_s, u"203"_s};
        for (const QString &target : {m_database, link, report, journal,
                                      m_folder.filePath(u"yeni.MDB"_s), m_folder.path()}) {
            for (const QStringList &words :
                 {slip + QStringList{u"--pdf"_s, target}, march + QStringList{u"--csv"_s, target},
                  march + QStringList{u"--xlsx"_s, target},
                  code + QStringList{u"--png"_s, target}}) {
                const Outcome refused = kuyum(words);
                QVERIFY2(refused.exitCode == 1 && refused.error.contains(u"yazılamadı"_s),
                         qPrintable(words.join(u' ') + refused.error));
            }
        }
        QCOMPARE(fileBytes(), before);
        QCOMPARE(kuyum::fileBytes(report), before);
        QVERIFY(!QFile::exists(journal) && !QFile::exists(m_folder.filePath(u"yeni.MDB"_s)));
        QVERIFY(QFile::remove(report) && QFile::remove(link));
    }

    void aResultThatNobodyGotIsNone()
    {
        const QString full = u"/dev/full"_s;
        if (!QFile::exists(full))
            QSKIP("no full device here");
        for (const QStringList &words :
             {QStringList{u"--help"_s}, QStringList{u"denetle"_s, m_database},
              QStringList{u"sorgu"_s, m_database, u"Select * From SiparisD"_s}}) {
            QProcess program;
            program.setStandardOutputFile(full);
            program.start(qEnvironmentVariable("KUYUM_PROGRAM"), words);
            QVERIFY(program.waitForFinished());
            QCOMPARE(program.exitCode(), 1);
            QVERIFY(QString::fromUtf8(program.readAllStandardError()).contains(u"disk dolu"_s));
        }
    }

    void aNameThatBeginsWithAColonIsAName()
    {
        QProcess program;
        program.setWorkingDirectory(m_folder.path());
        for (const QString &name : {u":memory:"_s, u"file:a?mode=memory"_s}) {
            QVERIFY(QFile::copy(m_database, m_folder.path() + u'/' + name));
            program.start(qEnvironmentVariable("KUYUM_PROGRAM"),
                          {u"sorgu"_s, name, u"Select Count(*) As N From Firma"_s});
            QVERIFY(program.waitForFinished());
            QCOMPARE(program.readAllStandardOutput(), "\"N\"\n2\n");
            program.start(qEnvironmentVariable("KUYUM_PROGRAM"), {u"yedekle"_s, name});
            QVERIFY(program.waitForFinished());
            QCOMPARE(program.exitCode(), 0);
        }
    }

    void theCheckTellsDanglingCodesEmptyFieldsAndCounts()
    {
        const QString path = m_folder.filePath(u"denet.kuyum"_s);
        {
            const std::unique_ptr<Database> db = makeSampleCompany(path);
            db->execute(u"Delete From Renkler Where RenkNo = 'SR'"_s);
            db->execute(u"Update Firma Set UlkeID = 77 Where Firkod = 10"_s);
            db->execute(u"Update Firma Set UlkeID = 0, Yetkili = null Where Firkod = 20"_s);
        }
        const Outcome checked = kuyum({u"denetle"_s, path});
        QCOMPARE(checked.exitCode, 0);
        const QStringList lines = checked.output.split(u'\n');
        QCOMPARE(lines.first(), u"Dosya sağlam."_s);
        QVERIFY2(lines.contains(u"  Firma.UlkeID -> Ulkeler.ID: 1 kayıt, 1 ayrı kod: 77 (1)"_s),
                 qPrintable(checked.output));
        QVERIFY2(
            lines.contains(u"  Katalog.katno1 -> Model.Model_ID: 1 kayıt, 1 ayrı kod: 99 (1)"_s),
            qPrintable(checked.output));
        QVERIFY2(checked.output.contains(u"  SiparisD.Siprenk -> Renkler.RenkNo: "_s),
                 qPrintable(checked.output));
        QVERIFY2(!checked.output.contains(u"SiparisB.SipFirkod"_s), qPrintable(checked.output));
        QVERIFY2(lines.contains(u"  Firma.Yetkili: 2 kayıt"_s), qPrintable(checked.output));
        // An index that contradicts its table.
        QFile file(path);
        QVERIFY(file.open(QFile::ReadWrite));
        file.seek(file.readAll().lastIndexOf("Kuyumculuk"));
        file.putChar('X');
        file.close();
        const Outcome damaged = kuyum({u"denetle"_s, path});
        QCOMPARE(damaged.exitCode, 1);
        QVERIFY2(damaged.output.startsWith(u"DOSYA BOZUK:"_s), qPrintable(damaged.output));
        // A list of free pages that leads nowhere: a fault a line, under the heading.
        constexpr qint64 firstFreePage = 35;
        QVERIFY(file.open(QFile::ReadWrite));
        file.seek(firstFreePage);
        file.putChar('\xff');
        file.close();
        const QStringList faults = kuyum({u"denetle"_s, path}).output.trimmed().split(u'\n').mid(1);
        QVERIFY(faults.size() > 1);
        for (const QString &fault : faults)
            QVERIFY2(fault.startsWith(u"  "_s) && !fault.contains(u"***"_s), qPrintable(fault));
    }

    void aLegacyFileIsTakenOverOnce()
    {
        const QString source = qEnvironmentVariable("KUYUM_ORNEK") + u"/atolye.mdb"_s;
        if (!QFile::exists(source))
            QSKIP("no example files");
        const QString target = m_folder.filePath(u"hedef.kuyum"_s);
        const Outcome first = kuyum({u"aktar"_s, source, target});
        QCOMPARE(first.error, QString());
        QCOMPARE(first.exitCode, 0);
        QVERIFY(first.output.split(u'\n').contains(u"SiparisD: 3215 kayıt"_s));

        const Outcome again = kuyum({u"aktar"_s, source, target});
        QCOMPARE(again.exitCode, 1);
        QVERIFY2(again.error.startsWith(u"Hedef dosya zaten var"_s), qPrintable(again.error));

        // Read in place, the legacy file answers as the one made from it.
        const QString sql = u"Select * From SiparisB Order By Sipnum"_s;
        const Outcome legacy = kuyum({u"sorgu"_s, source, sql});
        QCOMPARE(legacy.exitCode, 0);
        QVERIFY(legacy.output.count(u'\n') > 395);
        QCOMPARE(legacy.output, kuyum({u"sorgu"_s, target, sql}).output);
    }

    void anUnreadableLegacyFileIsRefused()
    {
        const QString source = m_folder.filePath(u"bozuk.mdb"_s);
        QFile file(source);
        QVERIFY(file.open(QFile::WriteOnly) && file.write(QByteArray(50000, 'x')) > 0);
        file.close();
        const QString target = m_folder.filePath(u"bozuk.kuyum"_s);
        for (const QStringList &words :
             {QStringList{u"aktar"_s, source, target},
              QStringList{u"sorgu"_s, source, u"Select 1 From Ayar"_s}}) {
            const Outcome outcome = kuyum(words);
            QCOMPARE(outcome.exitCode, 1);
            QVERIFY2(outcome.error.startsWith(u"Dosya bir Access (.mdb) veri tabanı değil"_s),
                     qPrintable(outcome.error));
            QCOMPARE(outcome.output, QString());
        }
        QVERIFY(!QFile::exists(target));
    }
};

KUYUM_TEST(CommandLineTest)

} // namespace kuyum

#include "CommandLineTest.moc"
