#include "CommandLine.h"

#include "Csv.h"
#include "ReadableDatabase.h"

namespace kuyum {

/// kuyum sorgu DATABASE "SELECT ...": one SELECT as CSV, read-only.
int sorguCommand(const QStringList &arguments)
{
    if (arguments.size() != 2)
        throw WrongUsage();
    const ReadableDatabase db = openForReading(arguments[0]);
    Recordset rows = db->query(arguments[1]);
    printLine(csvHeader(rows));
    while (outputStands() && rows.next())
        printLine(csvRow(rows));
    return 0;
}

} // namespace kuyum
