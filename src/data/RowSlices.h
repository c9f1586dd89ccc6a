#pragma once

#include <QString>
#include <QVariant>

namespace kuyum {

class Database;

/// Walks a table in slices of many rows, so that what changes all of them by
/// statements can tell how far it is, and be stopped.
///
///     while (slices.next())
///         engine.run(u"UPDATE Tas SET ... WHERE "_s + RowSlices::condition(), slices.bounds());
class RowSlices
{
public:
    RowSlices(const Database &db, const QString &table);

    /// Goes to the next slice (at first to the first); false past the last.
    bool next();
    /// The slice's rows, in SQL that takes bounds().
    static QString condition();
    QVariantList bounds() const { return {m_after, m_last}; }
    /// How many rows there are up to the end of this slice.
    qint64 rowsDone() const { return m_rowsDone; }

private:
    const Database &m_db;
    QString m_table;
    qint64 m_after = 0; ///< the row number before the slice
    qint64 m_last;      ///< the slice's own last one
    qint64 m_rowsDone = 0;
};

} // namespace kuyum
