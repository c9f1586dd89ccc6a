#pragma once

#include "TableDef.h"

#include <memory>
#include <QString>

namespace kuyum {

class Database;

/// The one description of all tables: it makes a new company or registry,
/// completes one that was taken over or written by an older program, and tells
/// which fields hold what.
const QList<TableDef> &companyTables();
const QList<TableDef> &registryTables();

/// The layout version this program writes.
constexpr int currentSchemaVersion = 3;

/// Whether the file holds a company, of whatever layout: users, customers,
/// models and orders.
bool isCompany(const Database &db);

/// Adds the tables, fields and indexes of the description that the file lacks.
/// What is there stays as it is. An index that the rows forbid to be unique is
/// made without that.
void completeTables(Database &db, const QList<TableDef> &tables);

/// Makes an index; one that the rows forbid to be unique without that.
void createIndexAsAllowed(Database &db, const QString &table, IndexDef index);

/// Whether the table has an index that begins with the wanted one's fields, and
/// is unique where that one shall be.
bool hasIndexOver(const TableDef &table, const IndexDef &wanted);

/// The index under a name that none of the table's indexes has.
IndexDef freelyNamed(IndexDef index, const TableDef &table);

/// Opens a company for work: steps an older file up to the current layout,
/// refuses a newer one, and one that is no company, with a DatabaseError that
/// says so and the file as it was. As long as it is open no other program can
/// put another file in its place (see CompanyLock).
std::unique_ptr<Database> openCompany(const QString &path);
std::unique_ptr<Database> openRegistry(const QString &path);

/// Makes an empty company or registry file.
std::unique_ptr<Database> createCompany(const QString &path);
std::unique_ptr<Database> createRegistry(const QString &path);

} // namespace kuyum
