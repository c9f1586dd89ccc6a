#pragma once

#include "LookupLists.h"

#include <memory>
#include <QStringList>

namespace kuyum {

struct Oturum;

struct LookupColumn
{
    QString heading;
    Twips width; ///< 0: not shown
    Qt::Alignment alignment = Qt::AlignLeft;
    QString picture = {}; ///< of its numbers
};

/// The rows of an open list, read one after the other as they are wanted.
/// Throws DatabaseError.
class LookupRows
{
public:
    virtual ~LookupRows() = default;

    const QList<LookupColumn> &columns() const { return m_columns; }
    /// Reads the next row, a value per column; false past the last.
    virtual bool next(QVariantList &row) = 0;

protected:
    QList<LookupColumn> m_columns;
};

/// Opens a list at its filter. The text of its query is kept in SonSQL.
std::unique_ptr<LookupRows> openLookup(Oturum &oturum, const LookupList &list,
                                       const QString &filter);
/// Opens the order list with a condition of orderCondition(), or without one.
std::unique_ptr<LookupRows> openOrders(Oturum &oturum, const QString &condition);

} // namespace kuyum
