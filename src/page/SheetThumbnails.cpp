#include "SheetThumbnails.h"

#include "PictureFiles.h"
#include "TurkishText.h"

#include <QFile>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr int sharpness = 2;     ///< stored pixels for one of the box
constexpr int screenDots = 3780; ///< to the metre, 96 to the inch
constexpr int thumbnailQuality = 80;

QString key(const QString &model)
{
    return foldedText(model.trimmed());
}

} // namespace

SheetThumbnails::SheetThumbnails(const ReportSheet &sheet, const QString &prefix)
    : m_sheet(sheet), m_prefix(prefix)
{
}

bool SheetThumbnails::make(const SheetProgress &progress)
{
    QStringList models;
    for (qsizetype column = 0; m_sheet.picture && column < m_sheet.table.columns.size(); ++column) {
        if (m_sheet.table.columns[column].kind != ReportColumnKind::Model)
            continue;
        for (const ReportRow &row : m_sheet.table.rows) {
            const QString model = row.values[column].toString();
            if (row.kind == ReportRowKind::Line && !m_thumbnails.contains(key(model))) {
                m_thumbnails.insert(key(model), {});
                models.append(model);
            }
        }
    }
    for (qsizetype i = 0; i < models.size(); ++i) {
        if (!progress(int(i), int(models.size())))
            return false;
        if (const QString path = m_sheet.picture(models[i]); !path.isEmpty())
            m_thumbnails[key(models[i])] = makeOne(path, i);
        m_any = m_any || !m_thumbnails[key(models[i])].file.isEmpty();
    }
    return true;
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

SheetThumbnails::Thumbnail SheetThumbnails::of(const QString &model) const
{
    return m_thumbnails.value(key(model));
}
