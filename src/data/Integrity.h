#pragma once

#include "WorkStage.h"

#include <QMap>
#include <QStringList>

class SqliteEngine;

/// Reads the whole file and compares every index with its table. Gives what
/// the engine finds wrong, in its own words; empty when the file is sound.
/// Throws BackupCancelled when the stage is stopped.
QStringList integrityFaults(const SqliteEngine &engine, const WorkStage &stage = {});

/// How many rows each table has, the bookkeeping ones too.
QMap<QString, qint64> rowCounts(const SqliteEngine &engine);
