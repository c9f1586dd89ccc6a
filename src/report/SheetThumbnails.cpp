#include "SheetThumbnails.h"

#include "PictureFiles.h"
#include "TurkishText.h"

#include <QFile>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr int sharpness = 2;     ///< stored pixels for one of the box
constexpr int screenDots = 3780; ///< to the metre, 96 to the inch
constexpr int thumbnailQuality = 80;

} // namespace

SheetThumbnails::SheetThumbnails(const ReportSheet &sheet, const QString &prefix)
    : m_sheet(sheet), m_prefix(prefix)
{
}

bool SheetThumbnails::make(const SheetProgress &progress)
{
    QList<std::pair<const ReportRow *, qsizetype>> wanted; // with the model's column
    const ReportTable &table = m_sheet.table;
    for (qsizetype column = 0; m_sheet.picture && column < table.columns.size(); ++column) {
        if (table.columns[column].kind != ReportColumnKind::Model)
            continue;
        for (const ReportRow &row : table.rows) {
            if (row.kind == ReportRowKind::Line && !m_thumbnails.contains(key(row, column))) {
                m_thumbnails.insert(key(row, column), {});
                wanted.append({&row, column});
            }
        }
    }
    for (qsizetype i = 0; i < wanted.size(); ++i) {
        if (!progress(int(i), int(wanted.size())))
            return false;
        const auto &[row, column] = wanted[i];
        Thumbnail &thumbnail = m_thumbnails[key(*row, column)];
        const QString path = m_sheet.picture(row->values[column].toString(), typeIn(*row));
        if (!path.isEmpty())
            thumbnail = makeOne(path, i);
        m_any = m_any || !thumbnail.file.isEmpty();
    }
    return true;
}

/// Empty where the report does not say it.
QString SheetThumbnails::typeIn(const ReportRow &row) const
{
    const QList<ReportColumn> &columns = m_sheet.table.columns;
    for (qsizetype i = 0; i < columns.size(); ++i) {
        if (columns[i].kind == ReportColumnKind::ModelType)
            return row.values[i].toString();
    }
    return {};
}

QString SheetThumbnails::key(const ReportRow &row, qsizetype column) const
{
    return foldedText(row.values[column].toString().trimmed() + u'\n' + typeIn(row).trimmed());
}

SheetThumbnails::Thumbnail SheetThumbnails::makeOne(const QString &path, qsizetype number) const
{
    QImage image = loadPicture(path, QSize(edge, edge) * sharpness).image;
    if (image.isNull())
        return {};
    image.setDotsPerMeterX(screenDots);
    image.setDotsPerMeterY(screenDots);
    const QString file = m_prefix + u"%1.jpg"_s.arg(number);
    if (!image.save(file, "JPEG", thumbnailQuality))
        throw std::runtime_error(
            u"Geçici klasöre resim yazılamadı; disk dolu olabilir."_s.toStdString());
    return {QFile::encodeName(file), double(edge) / qMax(image.width(), image.height())};
}

SheetThumbnails::Thumbnail SheetThumbnails::of(qsizetype row, qsizetype column) const
{
    return m_thumbnails.value(key(m_sheet.table.rows[row], column));
}

} // namespace kuyum
