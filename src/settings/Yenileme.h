#pragma once

#include "MaintenanceProgress.h"
#include "NullFill.h"
#include "TableComparison.h"

namespace kuyum {

/// Told of a table that could not be refreshed and stays as it was. True: the
/// rest goes on; false: all is undone.
using RefreshFailure = std::function<bool(const QString &table, const QString &reason)>;

struct RefreshResult
{
    QString backup; ///< the copy of the database as it was before
    int tables = 0; ///< that were brought up to date
    int newTables = 0;
    int newFields = 0;
    int widenedFields = 0;
    QList<FieldDifference> left; ///< fields that stay, of another type or size than the chosen
    QStringList looseIndexes;    ///< that are not unique, since the rows forbid it
    QList<FilledTable> filled;   ///< of the tables that had rows before
    QStringList failed;          ///< tables that stay as they were

    /// For the user, a sentence a line, what failed first; the copy's place last.
    QString text() const;
};

/// Brings the tables of the working database up to date against the tables of a
/// chosen one: new tables and fields are made, fields widened where that is
/// safe, indexes made anew, and what is null in the tables' rows gets the
/// neutral value of its type. No value that stands is changed, nothing is ever
/// removed, no row is taken from the chosen database.
///
/// A copy of the database is made before; then all is one transaction, each
/// table a part of it that can fail alone.
class Yenileme
{
public:
    Yenileme(Database &db, MaintenanceProgress progress, RefreshFailure failure);

    /// Throws DatabaseError and Cancelled; nothing is changed then.
    RefreshResult yenile(const QList<TableDef> &chosen);

private:
    void refreshTable(const TableComparison &comparison);
    void Islem_Yap(const TableComparison &comparison);
    void Islem_Yap_Yeni(const TableComparison &comparison);
    void Index_Sil(const QString &table);
    void Index_Yarat(const QString &table, const QList<IndexDef> &theirs,
                     const QList<IndexDef> &ours);
    void copyIndex(const QString &table, IndexDef index);
    void Atama_Yap(const QString &table);
    void tell(const QString &table, qint64 rows);

    Database &m_db;
    MaintenanceProgress m_progress;
    RefreshFailure m_failure;
    RefreshResult m_result;
    int m_rows = 0; ///< of the current table
    int m_done = 0; ///< before it; rows count twice: for the fields and for the filling
    int m_total = 0;
};

} // namespace kuyum
