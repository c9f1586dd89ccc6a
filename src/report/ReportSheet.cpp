#include "ReportSheet.h"

#include "FixedPitchText.h"
#include "SheetThumbnails.h"
#include "WholeFile.h"

#include <clocale>
#include <cmath>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <string>
#include <utility>
#include <xlsxwriter.h>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr int progressStep = 500;
constexpr double widestColumn = 80; ///< in characters, as all widths of a sheet
constexpr double pictureRowPoints = 63;
constexpr double textRowPoints = 18;
constexpr qint64 leastRoom = 4 << 20;
constexpr qint64 cellBytes = 96; ///< around a cell's text, in the library's files
constexpr qint64 pictureBytes = 1200;

/// One cell's text: control characters are blanks, and what the format cannot
/// hold is left out.
QByteArray sheetText(const QString &text)
{
    constexpr qsizetype longest = 32767;
    QString clean = onOneLine(text.left(longest));
    clean.remove(QChar(0xfffe)).remove(QChar(0xffff));
    // Such a run would be read as the character of that number.
    static const QRegularExpression escape(u"_(?=x[0-9A-Fa-f]{4}_)"_s);
    return clean.replace(escape, u"_x005F_"_s).toUtf8();
}

/// About as wide as the text stands in the sheet's own font.
double textWidth(const QString &text)
{
    double width = 0;
    for (const QChar character : text) {
        if (character.isUpper() || character == u'%' || character == u'@')
            width += 1.3;
        else
            width += character.isPunct() || character.isSpace() ? 0.8 : 1.05;
    }
    return width;
}

/// The library writes numbers as the locale has them, and a spreadsheet cannot
/// be read with commas in its numbers.
class DecimalPoints
{
public:
    DecimalPoints() : m_before(std::setlocale(LC_NUMERIC, nullptr))
    {
        std::setlocale(LC_NUMERIC, "C");
    }
    DecimalPoints(const DecimalPoints &) = delete;
    DecimalPoints &operator=(const DecimalPoints &) = delete;
    ~DecimalPoints() { std::setlocale(LC_NUMERIC, m_before.c_str()); }

private:
    std::string m_before;
};

/// The file while it is being written, and a folder for what that takes.
class SheetBook
{
public:
    explicit SheetBook(const WholeFile &target) : m_target(target)
    {
        QByteArray folder = QFile::encodeName(m_folder.path());
        lxw_workbook_options options{};
        options.constant_memory = LXW_TRUE;
        options.tmpdir = folder.data();
        options.use_zip64 = LXW_TRUE;
        if (m_folder.isValid())
            m_book = workbook_new_opt(QFile::encodeName(file()).constData(), &options);
        if (m_book == nullptr)
            target.refuseFullDisk();
    }
    SheetBook(const SheetBook &) = delete;
    SheetBook &operator=(const SheetBook &) = delete;
    ~SheetBook()
    {
        if (m_book != nullptr)
            lxw_workbook_free(m_book);
    }

    lxw_workbook *book() const { return m_book; }
    QString folder() const { return m_folder.path(); }
    QString file() const { return m_folder.filePath(u"rapor.xlsx"_s); }

    void close()
    {
        for (const QFileInfo &picture : QDir(m_folder.path()).entryInfoList(QDir::Files))
            count(picture.size());
        checkRoom();
        check(workbook_close(std::exchange(m_book, nullptr)));
    }
    void check(lxw_error error) const
    {
        if (error >= LXW_ERROR_CREATING_XLSX_FILE && error <= LXW_ERROR_ZIP_CLOSE)
            m_target.refuseFullDisk();
        if (error != LXW_NO_ERROR)
            m_target.refuse(QString::fromUtf8(lxw_strerror(error)));
    }
    /// Told of all that goes into the library's files.
    void count(qint64 bytes) { m_written += bytes; }
    /// The library does not notice when its own files find no room, and when it
    /// closes it copies them, and packs the copy: a file cut off would be the
    /// result. So there must be room for that before.
    void checkRoom() const
    {
        const QStorageInfo disk(m_folder.path());
        const qint64 closing = m_written + m_written / 2;
        if (disk.isValid() && disk.bytesAvailable() < leastRoom + closing)
            m_target.refuse(u"Geçici klasörde yer kalmadı; disk dolu."_s);
    }
    [[noreturn]] void refuse(const QString &reason) const { m_target.refuse(reason); }

private:
    const WholeFile &m_target;
    QTemporaryDir m_folder;
    lxw_workbook *m_book = nullptr;
    qint64 m_written = 0;
};

/// Writes one sheet, row after row.
class SheetWriter
{
public:
    SheetWriter(const ReportSheet &sheet, SheetBook &book, qsizetype number)
        : m_sheet(sheet),
          m_table(sheet.table),
          m_book(book),
          m_thumbnails(sheet, book.folder() + u"/%1-"_s.arg(number))
    {
        for (qsizetype column = 0; column < m_table.columns.size(); ++column) {
            if (!m_table.columns[column].hidden)
                m_columns.append(column);
        }
    }

    bool write(const SheetProgress &progress);

private:
    bool figures() const { return m_sheet.form == SheetForm::Sayilarla; }
    void open();
    void writeTitle();
    void writeHeading();
    void freezeAndFilter(lxw_col_t lastColumn);
    void writeRow(qsizetype row);
    void writeValue(qsizetype row, qsizetype column, lxw_col_t at);
    void writePicture(qsizetype row, qsizetype column, lxw_col_t at);
    void writeText(lxw_col_t at, const QString &text, lxw_format *format);
    void finish();
    void writeNotes();
    lxw_format *format(ReportRowKind kind, const QString &picture, bool right);
    void check(lxw_error error) const { m_book.check(error); }

    const ReportSheet &m_sheet;
    const ReportTable &m_table;
    SheetBook &m_book;
    SheetThumbnails m_thumbnails;
    QList<qsizetype> m_columns; ///< those that are shown
    QList<double> m_widths;     ///< of the sheet's columns
    QHash<std::pair<int, QString>, lxw_format *> m_formats;
    lxw_worksheet *m_page = nullptr;
    lxw_row_t m_row = 0;
    lxw_row_t m_headingRow = 0;
};

bool SheetWriter::write(const SheetProgress &progress)
{
    if (figures() && !m_thumbnails.make(progress))
        return false;
    const int total = int(m_table.rows.size());
    open();
    writeTitle();
    writeHeading();
    for (int row = 0; row < total; ++row) {
        if (row % progressStep == 0) {
            m_book.checkRoom();
            if (!progress(row, total))
                return false;
        }
        writeRow(row);
    }
    finish();
    return progress(total, total);
}

void SheetWriter::open()
{
    // Two rows for title and heading.
    if (m_table.rows.size() + 2 > LXW_ROW_MAX || m_columns.size() * 2 > LXW_COL_MAX)
        m_book.refuse(u"Rapor bir Excel sayfasına sığmıyor."_s);
    m_page = workbook_add_worksheet(m_book.book(), m_sheet.ad.toUtf8().constData());
    if (m_page == nullptr)
        m_book.refuse(u"Excel sayfası açılamadı."_s);
    if (m_thumbnails.any())
        worksheet_set_default_row(m_page, pictureRowPoints, LXW_FALSE);
}

void SheetWriter::writeTitle()
{
    if (m_sheet.baslik.isEmpty())
        return;
    if (figures()) {
        worksheet_set_row(m_page, m_row, textRowPoints, nullptr);
        check(worksheet_write_string(m_page, m_row, 0, sheetText(m_sheet.baslik).constData(),
                                     format(ReportRowKind::Total, {}, false)));
    } else {
        writeText(0, m_sheet.baslik, nullptr);
    }
    ++m_row;
}

void SheetWriter::writeHeading()
{
    constexpr double filterButton = 3;
    m_headingRow = m_row;
    if (figures())
        worksheet_set_row(m_page, m_row, textRowPoints, nullptr);
    lxw_col_t at = 0;
    for (const qsizetype column : m_columns) {
        const ReportColumn &about = m_table.columns[column];
        const bool right = about.kind == ReportColumnKind::Number;
        if (figures()) {
            writeText(at, about.heading, format(ReportRowKind::Caption, {}, right));
            m_widths[at] += filterButton;
        } else {
            writeText(at, u' ' + about.heading, nullptr);
        }
        ++at;
        if (about.kind == ReportColumnKind::Model && m_thumbnails.any())
            writeText(at++, u"RESİM"_s, format(ReportRowKind::Caption, {}, false));
    }
    if (figures() && at > 0)
        freezeAndFilter(lxw_col_t(at - 1));
    ++m_row;
}

/// The heading stays in view and filters the rows but the closing totals. Said
/// before the rows are written, for they cannot be reached afterwards.
void SheetWriter::freezeAndFilter(lxw_col_t lastColumn)
{
    qsizetype rows = m_table.rows.size();
    while (rows > 0 && m_table.rows[rows - 1].kind == ReportRowKind::Total)
        --rows;
    worksheet_freeze_panes(m_page, m_headingRow + 1, 0);
    check(
        worksheet_autofilter(m_page, m_headingRow, 0, m_headingRow + lxw_row_t(rows), lastColumn));
}

void SheetWriter::writeRow(qsizetype row)
{
    if (m_thumbnails.any() && m_table.rows[row].kind != ReportRowKind::Line)
        worksheet_set_row(m_page, m_row, textRowPoints, nullptr);
    lxw_col_t at = 0;
    for (const qsizetype column : m_columns) {
        if (figures())
            writeValue(row, column, at);
        else
            writeText(at, u' ' + m_table.cellText(row, column), nullptr);
        ++at;
        if (m_table.columns[column].kind == ReportColumnKind::Model && m_thumbnails.any())
            writePicture(row, column, at++);
    }
    ++m_row;
}

void SheetWriter::writeValue(qsizetype row, qsizetype column, lxw_col_t at)
{
    const QVariant &value = m_table.rows[row].values[column];
    const ReportColumn &about = m_table.columns[column];
    const ReportRowKind kind = m_table.rows[row].kind;
    const auto asText = [&] {
        writeText(at, m_table.cellText(row, column), format(kind, {}, false));
    };
    if (!value.isValid())
        return asText();
    m_widths[at] = qMax(m_widths[at], textWidth(m_table.cellText(row, column)));
    if (value.typeId() == QMetaType::QDate) {
        m_book.count(cellBytes);
        constexpr int firstYear = 1900; // that the format knows
        const QDate date = value.toDate();
        if (date.year() < firstYear)
            return asText();
        lxw_datetime moment{date.year(), date.month(), date.day(), 0, 0, 0};
        return check(worksheet_write_datetime(m_page, m_row, at, &moment,
                                              format(kind, u"dd.mm.yyyy"_s, false)));
    }
    if (about.kind != ReportColumnKind::Number || value.typeId() == QMetaType::QString ||
        !std::isfinite(value.toDouble()))
        return asText();
    m_book.count(cellBytes);
    check(worksheet_write_number(m_page, m_row, at, value.toDouble(),
                                 format(kind, about.picture, true)));
}

void SheetWriter::writePicture(qsizetype row, qsizetype column, lxw_col_t at)
{
    const ReportRow &about = m_table.rows[row];
    if (about.kind != ReportRowKind::Line)
        return;
    const QString model = about.values[column].toString();
    const SheetThumbnails::Thumbnail thumbnail = m_thumbnails.of(row, column);
    if (thumbnail.file.isEmpty())
        return;
    QByteArray description = model.toUtf8();
    lxw_image_options options{};
    options.x_offset = 2;
    options.y_offset = 2;
    options.x_scale = thumbnail.scale;
    options.y_scale = thumbnail.scale;
    options.object_position = LXW_OBJECT_MOVE_AND_SIZE;
    options.description = description.data();
    m_book.count(pictureBytes);
    check(worksheet_insert_image_opt(m_page, m_row, at, thumbnail.file.constData(), &options));
}

void SheetWriter::writeText(lxw_col_t at, const QString &text, lxw_format *format)
{
    while (m_widths.size() <= at)
        m_widths.append(0);
    m_widths[at] = qMax(m_widths[at], textWidth(text));
    if (text.isEmpty() && format == nullptr)
        return;
    const QByteArray bytes = sheetText(text);
    m_book.count(cellBytes + bytes.size());
    check(worksheet_write_string(m_page, m_row, at, bytes.constData(), format));
}

void SheetWriter::finish()
{
    constexpr double besides = 1.5;
    constexpr double pictureColumn = 11.7; // of the pictures' box
    for (lxw_col_t at = 0; at < m_widths.size(); ++at)
        worksheet_set_column(m_page, at, at, qMin(m_widths[at] + besides, widestColumn), nullptr);
    lxw_col_t at = 0;
    for (const qsizetype column : m_columns) {
        ++at;
        if (m_table.columns[column].kind == ReportColumnKind::Model && m_thumbnails.any()) {
            worksheet_set_column(m_page, at, at, pictureColumn, nullptr);
            ++at;
        }
    }
    worksheet_set_selection(m_page, 0, 0, 0, 0);
    writeNotes();
}

/// Below the rows, apart from them. They reach over columns, and widen none.
void SheetWriter::writeNotes()
{
    for (const QString &note : m_table.notes) {
        ++m_row;
        if (figures())
            worksheet_set_row(m_page, m_row, textRowPoints, nullptr);
        const QByteArray bytes = sheetText(note);
        m_book.count(cellBytes + bytes.size());
        check(worksheet_write_string(m_page, m_row, 0, bytes.constData(), nullptr));
    }
}

/// Made once for each look: headings and captions, lines, totals.
lxw_format *SheetWriter::format(ReportRowKind kind, const QString &picture, bool right)
{
    lxw_format *&made = m_formats[{int(kind) * 2 + int(right), picture}];
    if (made != nullptr)
        return made;
    made = workbook_add_format(m_book.book());
    format_set_align(made, LXW_ALIGN_VERTICAL_CENTER);
    if (right)
        format_set_align(made, LXW_ALIGN_RIGHT);
    if (kind != ReportRowKind::Line)
        format_set_bold(made);
    if (kind == ReportRowKind::Caption)
        format_set_bg_color(made, 0xF0EBDD);
    if (!picture.isEmpty())
        format_set_num_format(made, picture.toUtf8().constData());
    return made;
}

} // namespace

bool writeSheets(const QList<ReportSheet> &sheets, const QString &path,
                 const SheetProgress &progress)
{
    const WholeFile target(u"Excel"_s, path);
    const DecimalPoints points;
    SheetBook book(target);
    for (qsizetype i = 0; i < sheets.size(); ++i) {
        if (!SheetWriter(sheets[i], book, i).write(progress))
            return false;
    }
    book.close();
    QFile written(book.file());
    if (!written.open(QIODevice::ReadOnly))
        target.refuseFullDisk();
    target.write(written);
    return true;
}

bool writeSheet(const ReportSheet &sheet, const QString &path, const SheetProgress &progress)
{
    return writeSheets({sheet}, path, progress);
}

} // namespace kuyum
