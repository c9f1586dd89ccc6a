#pragma once

#include "MaintenanceProgress.h"
#include "NullFill.h"

namespace kuyum {

struct Oturum;
struct TableDef;

/// A row of the list that tells a table's fields: "Name", "Size", "Type".
struct AlanSatiri
{
    QString Name;
    int Size = 0;
    QString Type;
};

QList<AlanSatiri> alanlar(const TableDef &table);

using RepairProgress = MaintenanceProgress;

struct RepairResult
{
    QString backup;            ///< the copy of the database as it was before
    QList<FilledTable> tables; ///< all of them, in the file's order
    bool counterMoved = false; ///< not in an empty SiparisD
    /// SiparisD's rows are not numbered by the database (two lines share a
    /// number): there is no counter to move.
    bool counterMissing = false;

    qint64 filled() const;
    /// For the user: what was filled, what could not be, where the copy is.
    QString text() const;
};

/// Fills the nulls of one table; within the caller's transaction. done and
/// total count the rows of all tables. Throws DatabaseError naming the table,
/// and Cancelled.
FilledTable DosyaDuzelt1(Database &db, const QString &table, const RepairProgress &progress,
                         int done, int total);

/// Repairs the open company: makes a copy of the database, fills the nulls of
/// all its tables, and moves the counter of SiparisD past every line in use,
/// in one transaction. Bookkeeping tables are not touched. Throws DatabaseError
/// and Cancelled; nothing is changed then.
RepairResult TumDosyalariDuzenle(Oturum &oturum, const RepairProgress &progress = {});

} // namespace kuyum
