#pragma once

#include "ReportSheet.h"

#include <QHash>
#include <QSize>

namespace kuyum {

/// The pictures of a report's models, small and in files of their own, each
/// made once however many rows show it.
class SheetThumbnails
{
public:
    static constexpr int edge = 80; ///< of the box they stand in, in pixels

    struct Thumbnail
    {
        QByteArray file;  ///< as the system names it; empty: the model has no picture
        double scale = 1; ///< at which it fits into the box
    };

    /// The files' names begin with the prefix, their folder included; it must
    /// outlive this.
    SheetThumbnails(const ReportSheet &sheet, const QString &prefix);

    /// Makes them; false when it was stopped.
    bool make(const SheetProgress &progress);
    bool any() const { return m_any; }
    /// Of the model in that row of the column.
    Thumbnail of(qsizetype row, qsizetype column) const;

private:
    QString typeIn(const ReportRow &row) const;
    QString key(const ReportRow &row, qsizetype column) const;
    Thumbnail makeOne(const QString &path, qsizetype number) const;

    const ReportSheet &m_sheet;
    QString m_prefix;
    QHash<QString, Thumbnail> m_thumbnails; ///< by folded model code and type
    bool m_any = false;
};

} // namespace kuyum
