// bench_sheet [ROWS]: a report of 100,000 rows as a spreadsheet, in both forms. The baseline is
// a bare loop over the same cells with the library, in its constant memory too.

#include "Measured.h"
#include "ProcessMemory.h"
#include "ReportSheet.h"

#include <cstdio>
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <xlsxwriter.h>

using namespace Qt::StringLiterals;

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

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const int rows = argc > 1 ? QString::fromLocal8Bit(argv[1]).toInt() : 100'000;
    const ReportTable table = makeTable(rows);
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
        writeSheet({table, u"RAPOR"_s, form}, path, [&](int, int) {
            most = qMax(most, memoryOfTree(QCoreApplication::applicationPid()));
            return true;
        });
        const QString name = texts ? u"as texts"_s : u"with figures"_s;
        printMeasured(name + u", a bare loop"_s, bare);
        printMeasured(name + u", the export"_s, whole);
        printRatio(name + u", times the baseline"_s, whole, bare);
    }
    std::printf("the table %lld KB with the process, at most %lld KB while writing\n",
                static_cast<long long>(before), static_cast<long long>(most));
    return 0;
}
