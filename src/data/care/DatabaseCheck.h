#pragma once

#include <QMap>
#include <QStringList>

namespace kuyum {

class Database;

/// What a check of a company's database found. Dangling codes and empty fields
/// are legal, and no fault of the file.
struct DatabaseCheck
{
    struct Empty
    {
        QString table;
        QString field;
        qint64 rows;
    };
    struct Dangling
    {
        QString reference; ///< "SiparisD.Siprenk -> Renkler.RenkNo"
        qint64 rows;
        qint64 codes;         ///< different ones
        QStringList examples; ///< the most frequent codes, as "SR (12)"
    };

    QStringList faults; ///< what the engine finds damaged; empty: sound
    QStringList missingTables;
    bool isOlder = false;        ///< what is missing is added when it is opened for work
    QStringList missingCounters; ///< as "SiparisD.Dotosayi"
    QStringList notes;           ///< what was told when the company was opened
    QMap<QString, qint64> rows;  ///< by table
    QList<Dangling> dangling;
    QList<Empty> empties;

    /// Whether the file can be worked with as it is.
    bool isSound() const
    {
        return faults.isEmpty() && (missingTables.isEmpty() || isOlder) &&
               missingCounters.isEmpty();
    }
};

/// Reads the whole database; writes nothing. Throws DatabaseError.
DatabaseCheck checkDatabase(const Database &db);

/// What was found, as lines to read.
QStringList checkReport(const DatabaseCheck &check);

} // namespace kuyum
