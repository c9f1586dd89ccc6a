#pragma once

#include "TableDef.h"

#include <optional>

namespace kuyum {

class Database;

/// A field that both databases have, with another type or size there.
struct FieldDifference
{
    QString table;
    FieldDef ours;   ///< in the working database
    FieldDef theirs; ///< in the chosen one
};

/// What the refresh finds in one table of the chosen database.
struct TableComparison
{
    TableDef theirs;                     ///< as the chosen database has it
    bool isNew = false;                  ///< the working database lacks it
    QString name = {};                   ///< its name in the working database
    QList<FieldDef> newFields = {};      ///< fields that the working table lacks
    QList<FieldDifference> widened = {}; ///< fields that take the chosen type and size
    QList<FieldDifference> left = {};    ///< fields that stay as they are

    /// "Tas-(YENI)" or "Tas-(ESKI)".
    QString text() const;
};

/// Compares the chosen database's tables with the working one's, field by field
/// (name, type, size). Names that differ in letter case only are the same.
QList<TableComparison> Kontrol_Et(const Database &db, const QList<TableDef> &chosen);

/// The field with the chosen type and size, where every value that it can hold
/// keeps its every digit and letter; nothing where it might not.
std::optional<FieldDef> widenedField(const FieldDef &ours, const FieldDef &theirs);

/// "Text(20)", "Long".
QString typeText(const FieldDef &field);

} // namespace kuyum
