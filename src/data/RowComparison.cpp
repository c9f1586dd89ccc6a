#include "RowComparison.h"

#include "Dates.h"
#include "Numbers.h"
#include "TurkishText.h"

#include <algorithm>
#include <numeric>
#include <set>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// Nothing and an empty text are the same to a user.
bool sameValue(const QVariant &a, const QVariant &b)
{
    const auto isNothing = [](const QVariant &value) {
        return !value.isValid() ||
               (value.typeId() == QMetaType::QString && value.toString().isEmpty());
    };
    return (isNothing(a) && isNothing(b)) || a == b;
}

QString plain(const QVariant &value)
{
    if (value.typeId() == QMetaType::QDateTime)
        return formatDateTime(value.toDateTime());
    return value.typeId() == QMetaType::Double ? plainNumber(value.toDouble()) : value.toString();
}

/// The first of the fields, one after the other fewer, down to two.
QList<QList<int>> shorterAndShorter(const QList<int> &identity)
{
    QList<QList<int>> result;
    for (qsizetype count = identity.size(); count > 0 && (result.isEmpty() || count > 1); --count)
        result.append(identity.first(count));
    return result;
}

} // namespace

RowComparison::RowComparison(const RecordRows &of, const Versions &versions)
    : m_of(of), m_versions(versions), m_fields(versions.loaded.fields)
{
    m_identity = placesOf(of.identity);
    m_quiet = placesOf(of.quiet);
    const QList<int> renumbered = placesOf(of.renumbered);
    for (int place = 0; place < m_fields.size(); ++place) {
        if (!renumbered.contains(place))
            m_compared.append(place);
    }
    m_standingToLoaded = pairs(versions.standing.rows, versions.loaded.rows);
    m_standingToMine = pairs(versions.standing.rows, versions.mine.rows);
    m_loadedToMine = pairs(versions.loaded.rows, versions.mine.rows);
}

QList<int> RowComparison::placesOf(const QStringList &fields) const
{
    QList<int> places;
    for (const QString &field : fields) {
        const auto found =
            std::ranges::find_if(m_fields, [&](const QString &f) { return sameText(f, field); });
        if (found != m_fields.end())
            places.append(int(found - m_fields.begin()));
    }
    return places;
}

bool RowComparison::sameIn(const QList<int> &places, const Row &a, const Row &b) const
{
    return std::ranges::all_of(places, [&](int place) { return sameValue(a[place], b[place]); });
}

bool RowComparison::same(const RecordRows &of, const LoadedRows::Rows &a, const LoadedRows::Rows &b)
{
    if (a.rows.size() != b.rows.size())
        return false;
    const LoadedRows::Rows nothing{a.fields, {}};
    const RowComparison fields(of, {nothing, nothing, nothing});
    for (qsizetype i = 0; i < a.rows.size(); ++i) {
        if (!fields.sameIn(fields.m_compared, a.rows[i], b.rows[i]))
            return false;
    }
    return true;
}

/// Which row of the one version is which of the other: the same number, else
/// the same values, else what it is known by.
RowComparison::Pairs RowComparison::pairs(const QList<Row> &a, const QList<Row> &b) const
{
    QList<QList<int>> ways;
    if (const QList<int> numbers = placesOf(m_of.renumbered); !numbers.isEmpty())
        ways.append(numbers);
    ways.append(m_compared);
    ways += m_identity.isEmpty() ? QList<QList<int>>{{}} : shorterAndShorter(m_identity);
    Pairs found;
    std::set<qsizetype> taken;
    for (const QList<int> &way : std::as_const(ways)) {
        qsizetype from = 0; // rows mostly stand in the same order: no search from the beginning
        for (qsizetype i = 0; i < a.size(); ++i) {
            if (found.contains(i))
                continue;
            for (qsizetype step = 0; step < b.size(); ++step) {
                const qsizetype j = (from + step) % b.size();
                if (taken.contains(j) || !sameIn(way, a[i], b[j]))
                    continue;
                found[i] = j;
                taken.insert(j);
                from = j + 1;
                break;
            }
        }
    }
    return found;
}

bool RowComparison::undoes() const
{
    const QList<Row> &standing = m_versions.standing.rows;
    std::set<qsizetype> stillLoaded;
    for (const auto &[row, loaded] : m_standingToLoaded)
        stillLoaded.insert(loaded);
    for (qsizetype i = 0; i < standing.size(); ++i) {
        const auto loaded = m_standingToLoaded.find(i);
        const auto mine = m_standingToMine.find(i);
        for (const int place : m_compared) {
            const bool changed =
                loaded == m_standingToLoaded.end() ||
                !sameValue(standing[i][place], m_versions.loaded.rows[loaded->second][place]);
            const bool kept =
                mine != m_standingToMine.end() &&
                sameValue(standing[i][place], m_versions.mine.rows[mine->second][place]);
            if (changed && !kept)
                return true;
        }
    }
    std::set<qsizetype> stillStanding;
    for (const auto &[row, mine] : m_standingToMine)
        stillStanding.insert(mine);
    for (qsizetype i = 0; i < m_versions.loaded.rows.size(); ++i) {
        const auto mine = m_loadedToMine.find(i);
        if (!stillLoaded.contains(i) && mine != m_loadedToMine.end() &&
            !stillStanding.contains(mine->second))
            return true; // removed, and the save would put it back
    }
    return false;
}

QList<FieldChange> RowComparison::differences() const
{
    QList<int> loud = m_compared;
    loud.removeIf([this](int place) { return m_quiet.contains(place); });
    const QList<FieldChange> changes = differencesIn(loud);
    return changes.isEmpty() ? differencesIn(m_compared) : changes;
}

QList<FieldChange> RowComparison::differencesIn(const QList<int> &places) const
{
    const auto &[loaded, standing, mine] = m_versions;
    const auto paired = [](const Pairs &pairs, qsizetype i, const LoadedRows::Rows &rows) {
        const auto pair = pairs.find(i);
        return pair == pairs.end() ? nullptr : &rows.rows[pair->second];
    };
    QList<FieldChange> changes;
    std::set<qsizetype> paired_mine;
    for (qsizetype i = 0; i < standing.rows.size(); ++i) {
        const Row &there = standing.rows[i];
        const Row *before = paired(m_standingToLoaded, i, loaded);
        const Row *own = paired(m_standingToMine, i, mine);
        if (own == nullptr) {
            addRow(changes, before, nullptr, &there);
            continue;
        }
        paired_mine.insert(m_standingToMine.at(i));
        for (const int place : places) {
            const QString ours = shown(place, (*own)[place]);
            const QString theirs = shown(place, there[place]);
            // No date and the date that stands for none look the same.
            if (sameValue(there[place], (*own)[place]) || (ours.isEmpty() && theirs.isEmpty()))
                continue;
            changes.append({name(there), label(place),
                            before == nullptr ? QString() : shown(place, (*before)[place]), ours,
                            theirs});
        }
    }
    std::map<qsizetype, qsizetype> before;
    for (const auto &[from, to] : m_loadedToMine)
        before[to] = from;
    for (qsizetype i = 0; i < mine.rows.size(); ++i) {
        if (!paired_mine.contains(i))
            addRow(changes, paired(before, i, loaded), &mine.rows[i], nullptr);
    }
    return changes;
}

/// A row that only one of the two has.
void RowComparison::addRow(QList<FieldChange> &changes, const Row *loaded, const Row *mine,
                           const Row *standing) const
{
    const auto content = [this](const Row *row) {
        return row == nullptr ? u"yok"_s : summary(*row);
    };
    changes.append({name(mine != nullptr ? *mine : *standing), u"(bütünü)"_s, content(loaded),
                    content(mine), content(standing)});
}

QString RowComparison::label(int place) const
{
    for (const FieldLabel &field : m_of.fields) {
        if (sameText(field.field, m_fields[place]))
            return field.label;
    }
    return m_fields[place];
}

QString RowComparison::shown(int place, const QVariant &value) const
{
    for (const FieldLabel &field : m_of.fields) {
        if (field.shown && sameText(field.field, m_fields[place]))
            return field.shown(value);
    }
    return plain(value);
}

QString RowComparison::name(const Row &row) const
{
    QStringList parts{m_of.label};
    for (const int place : m_identity)
        parts.append(shown(place, row[place]));
    parts.removeAll(QString());
    return parts.join(u' ');
}

/// The row's other values, as far as users know them.
QString RowComparison::summary(const Row &row) const
{
    QStringList parts;
    for (const FieldLabel &field : m_of.fields) {
        for (const int place : placesOf({field.field})) {
            const QString text = shown(place, row[place]);
            if (!m_identity.contains(place) && !m_quiet.contains(place) && !text.isEmpty())
                parts.append(field.label + u": "_s + text);
        }
    }
    return parts.isEmpty() ? u"var"_s : parts.join(u", "_s);
}

} // namespace kuyum
