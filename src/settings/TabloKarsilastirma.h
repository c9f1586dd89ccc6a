#pragma once

#include "TableDef.h"

#include <optional>

class Database;

/// A field that both databases have, with another type or size there.
struct AlanFarki
{
    QString table;
    FieldDef burada;    ///< in the working database
    FieldDef secilende; ///< in the chosen one
};

/// What the refresh finds in one table of the chosen database.
struct TabloDurumu
{
    TableDef secilen;                 ///< as the chosen database has it
    bool yeni = false;                ///< the working database lacks it
    QString ad = {};                  ///< its name in the working database
    QList<FieldDef> yeniAlanlar = {}; ///< fields that the working table lacks
    QList<AlanFarki> genisleyen = {}; ///< fields that take the chosen type and size
    QList<AlanFarki> kalan = {};      ///< fields that stay as they are

    /// "Tas-(YENI)" or "Tas-(ESKI)".
    QString text() const;
};

/// Compares the chosen database's tables with the working one's, field by field
/// (name, type, size). Names that differ in letter case only are the same.
QList<TabloDurumu> Kontrol_Et(const Database &db, const QList<TableDef> &secilen);

/// The field with the chosen type and size, where every value that it can hold
/// keeps its every digit and letter; nothing where it might not.
std::optional<FieldDef> widened(const FieldDef &burada, const FieldDef &secilende);

/// "Text(20)", "Long".
QString typeText(const FieldDef &field);
