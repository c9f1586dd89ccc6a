#include "AllCodes.h"
#include "BarcodeReader.h"
#include "PrintDocument.h"
#include "TestRegistry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

QString modulesOf(Symbology symbology, const QString &text)
{
    QString modules;
    encode(symbology, text, [&](const BarPart &part) { modules += part.modules; });
    return modules;
}

QImage pictureOf(const QString &modules)
{
    PrintDocument document(u"Barkod"_s, Twips(double(modules.size()) * 20), 600_tw);
    document.bars({0_tw, 50_tw}, {modules, 10_tw, 500_tw, document.width()});
    return pageDots(document, document.pages().first(), 300);
}

/// What a reader makes of the text's symbol.
QString readBack(Symbology symbology, const QString &text)
{
    // Interleaved 2 of 5 of few digits is switched off by default.
    return readBarcodes(pictureOf(modulesOf(symbology, text)), {u"-Si25.min-length=2"_s})
        .join(u'\n');
}

QString refusal(Symbology symbology, const QString &text)
{
    try {
        modulesOf(symbology, text);
    } catch (const std::runtime_error &error) {
        return QString::fromUtf8(error.what());
    }
    return {};
}

} // namespace

class AllCodesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCharacterIsReadBack_data()
    {
        QTest::addColumn<Symbology>("symbology");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("read");
        const auto row = [](const char *name, Symbology symbology, const QString &text,
                            const QString &read) {
            QTest::newRow(name) << symbology << text << read;
        };
        for (const QString &text :
             {u"0123456789ABCDEF"_s, u"GHIJKLMNOPQRSTUVWXYZ"_s, u"-. $/+%7"_s})
            row(qPrintable(u"code39 "_s + text), Symbology::Code39, text, u"CODE-39:"_s + text);
        for (const QString &text :
             {u" !\"#$%&'()*+,-./0123"_s, u"456789:;<=>?@ABCDEFG"_s, u"HIJKLMNOPQRSTUVWXYZ["_s,
              u"\\]^_`abcdefghijkmnop"_s, u"qrstuvwxyz{|}~"_s, u"12345678901234567890123456789"_s})
            row(qPrintable(u"code128 "_s + text), Symbology::Code128, text, u"CODE-128:"_s + text);
        row("2of5 even", Symbology::Interleaved2of5, u"0123456789"_s, u"I2/5:0123456789"_s);
        row("2of5 odd", Symbology::Interleaved2of5, u"9876543"_s, u"I2/5:09876543"_s);
        row("codabar", Symbology::Codabar, u"0123456789-$:/.+"_s, u"Codabar:A0123456789-$:/.+A"_s);
        row("codabar letters", Symbology::Codabar, u"B40156C"_s, u"Codabar:B40156C"_s);
        row("codabar D", Symbology::Codabar, u"D40156A"_s, u"Codabar:D40156A"_s);
    }
    void everyCharacterIsReadBack()
    {
        QFETCH(Symbology, symbology);
        QFETCH(QString, text);
        QTEST(readBack(symbology, text), "read");
    }

    void whatCannotBeEncodedIsNamed_data()
    {
        QTest::addColumn<Symbology>("symbology");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("named");
        QTest::newRow("lower-case l") << Symbology::Code128 << u"Kolye Telli"_s << u"\"l\""_s;
        QTest::newRow("Turkish") << Symbology::Code128 << u"YÜZÜK"_s << u"\"Ü\""_s;
        QTest::newRow("lower case") << Symbology::Code39 << u"ABc"_s << u"\"c\""_s;
        QTest::newRow("edge inside") << Symbology::Code39 << u"A*B"_s << u"\"*\""_s;
        QTest::newRow("letter") << Symbology::Interleaved2of5 << u"12A4"_s << u"\"A\""_s;
        QTest::newRow("edge letter inside") << Symbology::Codabar << u"12B4"_s << u"\"B\""_s;
        QTest::newRow("nothing") << Symbology::Code39 << QString() << u"metin"_s;
    }
    void whatCannotBeEncodedIsNamed()
    {
        QFETCH(Symbology, symbology);
        QFETCH(QString, text);
        QFETCH(QString, named);
        QVERIFY2(refusal(symbology, text).contains(named), qPrintable(refusal(symbology, text)));
    }
};

KUYUM_TEST(AllCodesTest)

} // namespace kuyum

#include "AllCodesTest.moc"
