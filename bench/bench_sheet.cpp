// bench_sheet [ROWS]: a report of 100,000 rows as a spreadsheet, in both forms. The baseline is
// a bare loop over the same cells with the library, in its constant memory too.
// bench_sheet ROWS PICTURES: with a picture beside every row, of so many in turn.

#include "Measured.h"
#include "Photographs.h"
#include "ProcessMemory.h"
#include "ReportSheet.h"

#include <cstdio>
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <xlsxwriter.h>

using namespace Qt::StringLiterals;

using namespace kuyum;

namespace {

constexpr int figures = 7;

ReportTable makeTable(int rows)
{
    ReportTable table;
    table.columns = {{u"KOD"_s}};
    for (int i = 0; i < figures; ++i)
        table.columns.append({u"Adet(%1)"_s.arg(i), ReportColumnKind::Number, u"##0.00"_s});
    for (int row = 0; row < rows; ++row) {
        QVariantList values{u"MODEL-%1"_s.arg(row)};
        for (int i = 0; i < figures; ++i)
            values.append(row * 0.37 + i);
        table.rows.append(ReportRow{values});
    }
    return table;
}

void bareLoop(const ReportTable &table, const QString &path, bool texts)
{
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    lxw_workbook *book = workbook_new_opt(QFile::encodeName(path).constData(), &options);
    lxw_worksheet *page = workbook_add_worksheet(book, nullptr);
    for (int row = 0; row < table.rows.size(); ++row) {
        for (int column = 0; column < table.columns.size(); ++column) {
            const lxw_row_t at = lxw_row_t(row);
            const auto to = lxw_col_t(column);
            if (texts || column == 0) {
                const QByteArray text = table.cellText(row, column).toUtf8();
                worksheet_write_string(page, at, to, text.constData(), nullptr);
            } else {
                worksheet_write_number(page, at, to, table.rows[row].values[column].toDouble(),
                                       nullptr);
            }
        }
    }
    workbook_close(book);
}

void printMemory(qint64 before, qint64 most)
{
    std::printf("the table %lld KB with the process, at most %lld KB while writing\n",
                static_cast<long long>(before), static_cast<long long>(most));
}

/// Writes it, and looks at the memory meanwhile.
qint64 mostMemory(const ReportSheet &sheet, const QString &path)
{
    qint64 most = 0;
    writeSheet(sheet, path, [&](int, int) {
        most = qMax(most, memoryOfTree(QCoreApplication::applicationPid()));
        return true;
    });
    return most;
}

/// Every row bears a picture, of so many in turn.
void measurePictures(ReportTable table, int pictures)
{
    const QTemporaryDir folder;
    const auto picturePath = [&](int number) {
        return folder.filePath(u"%1.jpg"_s.arg(number % pictures));
    };
    for (int i = 0; i < pictures; ++i)
        makePhotograph(i, QSize(1024, 768)).save(picturePath(i));
    table.columns[0].kind = ReportColumnKind::Model;
    for (int row = 0; row < table.rows.size(); ++row)
        table.rows[row].values[0] = QString::number(row % pictures);
    const ReportSheet sheet{
        table, u"RAPOR"_s, SheetForm::Sayilarla,
        [&](const QString &model, const QString &) { return picturePath(model.toInt()); }};
    const QString path = folder.filePath(u"rapor.xlsx"_s);
    const qint64 before = memoryOfTree(QCoreApplication::applicationPid());
    const double whole =
        middleMilliseconds(1, [&] { writeSheet(sheet, path, [](int, int) { return true; }); });
    printMeasured(u"with figures and pictures, the export"_s, whole);
    printMemory(before, mostMemory(sheet, path));
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const int rows = argc > 1 ? QString::fromLocal8Bit(argv[1]).toInt() : 100'000;
    const ReportTable table = makeTable(rows);
    if (argc > 2) {
        measurePictures(table, QString::fromLocal8Bit(argv[2]).toInt());
        return 0;
    }
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"rapor.xlsx"_s);
    const qint64 before = memoryOfTree(QCoreApplication::applicationPid());
    qint64 most = before;
    for (const SheetForm form : {SheetForm::Metin, SheetForm::Sayilarla}) {
        const bool texts = form == SheetForm::Metin;
        const double bare = middleMilliseconds(3, [&] { bareLoop(table, path, texts); });
        const double whole = middleMilliseconds(3, [&] {
            writeSheet({table, u"RAPOR"_s, form}, path, [](int, int) { return true; });
        });
        // Once more, for looking at the memory takes its time.
        most = qMax(most, mostMemory({table, u"RAPOR"_s, form}, path));
        const QString name = texts ? u"as texts"_s : u"with figures"_s;
        printMeasured(name + u", a bare loop"_s, bare);
        printMeasured(name + u", the export"_s, whole);
        printRatio(name + u", times the baseline"_s, whole, bare);
    }
    printMemory(before, most);
    return 0;
}
