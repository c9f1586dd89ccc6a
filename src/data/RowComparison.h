#pragma once

#include "LoadedRows.h"

#include <map>

namespace kuyum {

/// The rows of one table three times: as they were loaded, as they stand, and
/// as a save would leave them.
class RowComparison
{
public:
    struct Versions
    {
        const LoadedRows::Rows &loaded;
        const LoadedRows::Rows &standing;
        const LoadedRows::Rows &mine;
    };
    RowComparison(const RecordRows &of, const Versions &versions);

    /// Whether the save would take back what another changed, added or removed.
    bool undoes() const;
    /// In what the save's rows differ from those that stand.
    QList<FieldChange> differences() const;

    /// Whether the rows are the same ones, but for the numbers given anew.
    static bool same(const RecordRows &of, const LoadedRows::Rows &a, const LoadedRows::Rows &b);

private:
    using Row = QVariantList;
    using Pairs = std::map<qsizetype, qsizetype>;

    Pairs pairs(const QList<Row> &a, const QList<Row> &b) const;
    bool sameIn(const QList<int> &places, const Row &a, const Row &b) const;
    QList<int> placesOf(const QStringList &fields) const;
    QString shown(int place, const QVariant &value) const;
    QString label(int place) const;
    QString name(const Row &row) const;
    QString summary(const Row &row) const;
    void addRow(QList<FieldChange> &changes, const Row *loaded, const Row *mine,
                const Row *standing) const;
    QList<FieldChange> differencesIn(const QList<int> &places) const;

    const RecordRows &m_of;
    Versions m_versions;
    QStringList m_fields;
    QList<int> m_compared; ///< the places of all fields but those given anew
    QList<int> m_identity;
    QList<int> m_quiet;
    Pairs m_standingToLoaded;
    Pairs m_standingToMine;
    Pairs m_loadedToMine;
};

} // namespace kuyum
