#pragma once

#include "WorkStage.h"

#include <chrono>
#include <QMap>
#include <QStringList>

namespace kuyum {

class Database;
class SqliteEngine;

/// Reads the whole file and compares every index with its table. Gives what
/// the engine finds wrong, in its own words; empty when the file is sound.
/// Throws Cancelled when the stage is stopped.
QStringList integrityFaults(const SqliteEngine &engine, const WorkStage &stage = {});

/// The same without the indexes and for no longer than that: a company of usual
/// size is read wholly, of a very large one a part. Throws DatabaseError with
/// the cause FileDamaged when something is wrong.
void refuseDamaged(const Database &db, std::chrono::milliseconds limit);

/// How many rows each table has, the bookkeeping ones too.
QMap<QString, qint64> rowCounts(const SqliteEngine &engine);

} // namespace kuyum
