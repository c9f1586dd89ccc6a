#include "ReportSheet.h"
#include "SheetReader.h"
#include "TestRegistry.h"

#include <QImage>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

using Kind = ReportColumnKind;

ReportTable figures()
{
    ReportTable table;
    table.columns = {{u"KOD"_s, Kind::Model},
                     {u"fyt"_s, Kind::Number, {}, true},
                     {u"ADET"_s, Kind::Number},
                     {u"GR"_s, Kind::Number, u"##0.00"_s},
                     {u"TARİH"_s, Kind::Date}};
    const QStringList codes{u"=1+1"_s, u"+5"_s, u"a\tb\x01\n\"c\""_s, u"_x0041_<&>"_s,
                            u"ĞÜŞİÖÇ ğüşıöç"_s};
    for (int row = 0; row < codes.size(); ++row)
        table.rows.append(
            ReportRow{{codes[row], 99, row + 1, 1234.565 * row, QDate(2012, 3, 1 + row)}});
    table.rows[1].values[3] = QVariant();
    table.rows.append(ReportRow{{u"TOPLAM"_s, {}, 15, 11111.0, {}}, ReportRowKind::Total});
    return table;
}

bool goOn(int, int)
{
    return true;
}

} // namespace

class ReportSheetTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"rapor ş.xlsx"_s);

    QByteArray part(const QString &name) const { return sheetPart(m_path, name); }

private Q_SLOTS:
    void cleanup() { QFile::remove(m_path); }

    void everyCellGoesAsABlankAndItsText()
    {
        const ReportTable table = figures();
        QVERIFY(writeSheet({table, u"TAŞ RAPORU : 01.01.2012 - 31.12.2012"_s}, m_path, goOn));
        const QList<QStringList> cells = sheetCells(m_path);
        QCOMPARE(cells.size(), 8);
        QCOMPARE(cells[0][0], u"TAŞ RAPORU : 01.01.2012 - 31.12.2012"_s);
        QCOMPARE(cells[1], (QStringList{u" KOD"_s, u" ADET"_s, u" GR"_s, u" TARİH"_s}));
        QCOMPARE(cells[2], (QStringList{u" =1+1"_s, u" 1"_s, u" 0.00"_s, u" 01.03.2012"_s}));
        QCOMPARE(cells[3], (QStringList{u" +5"_s, u" 2"_s, u" "_s, u" 02.03.2012"_s}));
        QCOMPARE(cells[4][0], u" a b  \"c\""_s);
        QCOMPARE(cells[5][0], u" _x0041_<&>"_s);
        QCOMPARE(cells[6][2], u" 4938.26"_s);
        QCOMPARE(cells[7][2], u" 11111.00"_s);
        const QByteArray sheet = part(u"xl/worksheets/sheet1.xml"_s);
        QVERIFY(!sheet.contains("<v>"));
        QVERIFY(sheet.contains("activeCell=\"A1\"") || !sheet.contains("<selection"));
        // Fitted: the date column is neither cut off nor as wide as the first.
        static const QRegularExpression width(
            u"<col min=\"(\\d)\" max=\"\\d\" width=\"([\\d.]+)\""_s);
        QMap<int, double> widths;
        for (auto found = width.globalMatch(QString::fromUtf8(sheet)); found.hasNext();) {
            const QRegularExpressionMatch match = found.next();
            widths[match.captured(1).toInt()] = match.captured(2).toDouble();
        }
        QVERIFY2(widths[4] > 11 && widths[4] < 15, sheet.left(600).constData());
        QVERIFY(widths[1] > 36);
    }

    void figuresGoAsNumbersAndDates()
    {
        QVERIFY(writeSheet({figures(), u"BAŞLIK"_s, SheetForm::Sayilarla}, m_path, goOn));
        const QList<QStringList> cells = sheetCells(m_path);
        QCOMPARE(cells[0][0], u"BAŞLIK"_s);
        QCOMPARE(cells[1], (QStringList{u"KOD"_s, u"ADET"_s, u"GR"_s, u"TARİH"_s}));
        QCOMPARE(cells[2], (QStringList{u"=1+1"_s, u"1"_s, u"0.00"_s, u"01.03.2012"_s}));
        QCOMPARE(cells[3], (QStringList{u"+5"_s, u"2"_s, QString(), u"02.03.2012"_s}));
        QCOMPARE(cells[6][2], u"4938.26"_s);
        const QByteArray sheet = part(u"xl/worksheets/sheet1.xml"_s);
        QVERIFY(sheet.contains("<v>4938.26</v>"));
        QVERIFY(sheet.contains("<v>40969</v>")); // 01.03.2012 as a day's number
        QVERIFY(sheet.contains("ySplit=\"2\""));
        QVERIFY(sheet.contains("<autoFilter ref=\"A2:D7\"/>"));
        QVERIFY(!sheet.contains("<f>"));
        QVERIFY(part(u"xl/styles.xml"_s).contains("formatCode=\"##0.00\""));
    }

    void picturesStandBesideTheirRows()
    {
        // A tall picture and a broken one; a model that comes again.
        QImage tall(300, 600, QImage::Format_RGB32);
        tall.fill(Qt::darkYellow);
        QVERIFY(tall.save(m_folder.filePath(u"uzun.jpg"_s)));
        QFile broken(m_folder.filePath(u"bozuk.jpg"_s));
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("JPEG") == 4);
        broken.close();
        ReportTable table;
        table.columns = {
            {u"ADET"_s, Kind::Number}, {u"KOD"_s, Kind::Model}, {u"TİP"_s, Kind::ModelType}};
        for (const QString &model : {u"uzun"_s, u"bozuk"_s, u"yok"_s, u"UZUN"_s})
            table.rows.append(ReportRow{{1, model, u"x"_s}});
        table.rows.append(ReportRow{{1, u"uzun"_s, u"y"_s}});
        QStringList asked;
        const PictureFinder find = [&](const QString &model, const QString &type) {
            asked.append(model + u' ' + type);
            return model == "yok"_L1 || type == "y"_L1 ? QString()
                                                       : m_folder.filePath(model + u".jpg"_s);
        };
        QVERIFY(writeSheet({table, {}, SheetForm::Sayilarla, find}, m_path, goOn));
        QCOMPARE(asked, (QStringList{u"uzun x"_s, u"bozuk x"_s, u"yok x"_s, u"uzun y"_s}));
        const QList<QStringList> cells = sheetCells(m_path);
        QCOMPARE(cells[0], (QStringList{u"ADET"_s, u"KOD"_s, u"RESİM"_s, u"TİP"_s}));
        QCOMPARE(cells[4], (QStringList{u"1"_s, u"UZUN"_s, QString(), u"x"_s}));

        const QString drawing = QString::fromUtf8(part(u"xl/drawings/drawing1.xml"_s));
        static const QRegularExpression place(
            u"<xdr:from><xdr:col>(\\d+)</xdr:col>.*?<xdr:row>(\\d+)</xdr:row>.*?<xdr:to><xdr:col>"
            "(\\d+)</xdr:col>.*?<xdr:row>(\\d+)</xdr:row>.*?<a:ext cx=\"(\\d+)\" cy=\"(\\d+)\""_s);
        QStringList places;
        for (auto found = place.globalMatch(drawing); found.hasNext();) {
            const QStringList captured = found.next().capturedTexts();
            places.append(captured.mid(1, 4).join(u' '));
            // Its proportions, and no higher than its row of 63 points.
            QCOMPARE(captured[6].toDouble() / captured[5].toDouble(), 2.0);
            QVERIFY(captured[6].toInt() <= 63 * 12700);
        }
        QCOMPARE(places, (QStringList{u"2 1 2 1"_s, u"2 4 2 4"_s}));
        QVERIFY(!part(u"xl/media/image1.jpeg"_s).isEmpty());
    }

    void nothingIsLeftOfAStoppedOrFailedExport()
    {
        ReportTable table = figures();
        while (table.rows.size() < 2000)
            table.rows.append(table.rows[0]);
        int steps = 0;
        QVERIFY(!writeSheet({table, {}}, m_path, [&](int, int) { return ++steps < 3; }));
        QVERIFY(!QFile::exists(m_path));
        QVERIFY(QDir().mkdir(m_path));
        for (const QString &path : {m_path, m_folder.filePath(u"yok/rapor.xlsx"_s)}) {
            try {
                writeSheet({figures(), {}}, path, goOn);
                QFAIL("written");
            } catch (const std::runtime_error &error) {
                QVERIFY2(
                    QString::fromUtf8(error.what()).startsWith(u"Excel dosyası yazılamadı: "_s),
                    error.what());
            }
        }
        QVERIFY(QDir().rmdir(m_path));
    }
};

KUYUM_TEST(ReportSheetTest)

} // namespace kuyum

#include "ReportSheetTest.moc"
