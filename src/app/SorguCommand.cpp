#include "CommandLine.h"

#include "Csv.h"
#include "Database.h"

/// kuyum sorgu DATABASE "SELECT ...": one SELECT as CSV, read-only.
int sorguCommand(const QStringList &arguments)
{
    if (arguments.size() != 2)
        throw WrongUsage();
    const std::unique_ptr<Database> db = Database::open(arguments[0], Database::Access::ReadOnly);
    Recordset rows = db->query(arguments[1]);
    printLine(csvHeader(rows));
    while (rows.next())
        printLine(csvRow(rows));
    return 0;
}
