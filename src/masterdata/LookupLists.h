#pragma once

#include "LookupRequest.h"
#include "Twips.h"

#include <QList>
#include <QVariant>

namespace kuyum {

/// The lists that `Liste_Combo` knows, as data. A list's rows come from
/// LookupRows.

/// What a row gives back, and from which column.
struct LookupResult
{
    enum class Value { Code, Id, Type, Number, Date };
    Value value;
    int column;
};

enum class LookupPicture { None, Model, Mold };

/// Where the rows of a list come from, if not from its SQL.
enum class LookupSource { Sql, Rates, Help };

struct LookupList
{
    QString name = {}; ///< what callers ask for
    QString caption = {};
    QString hint = {}; ///< the keys of this list; mostly nothing
    QList<Twips> widths = {};
    QList<LookupResult> results = {};
    /// The text of the query that starts at a filter (empty: at the first row).
    QString (*sql)(const QString &filter) = nullptr;
    /// Gives the same rows as long as a product type's number is unique, and
    /// gives the first of them at once, where the engine would first sort all.
    QString (*streamedSql)(const QString &filter) = nullptr;
    LookupSource source = LookupSource::Sql;
    LookupPicture picture = LookupPicture::None;
    int centredColumn = -1;
    int fontPoints = 12;
};

const QList<LookupList> &lookupLists();
/// The list of that name; an empty one, without columns, for any other name.
const LookupList &lookupList(const QString &name);

/// The name of the list that F11 and F12 work on.
inline constexpr QStringView orderListName = u"Siparis Listesi";

/// The order list narrowed by a condition such as "and Ayar =  585 ", or whole.
QString orderListSql(const QString &condition = {});
/// The condition that the current cell of the order list stands for: its karat
/// or its hallmark; from every other column, the row's customer.
QString orderCondition(int column, const QVariantList &row);

/// What taking a row gives back. Throws std::overflow_error for a number that
/// the answer cannot hold.
LookupAnswer lookupAnswer(const LookupList &list, const QVariantList &row);

/// A value as the list shows it; numbers by the picture when there is one.
QString lookupText(const QVariant &value, const QString &picture = {});

} // namespace kuyum
