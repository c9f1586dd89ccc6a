#pragma once

#include "MaintenanceProgress.h"

namespace kuyum {

struct Oturum;

/// Makes a database file with the tables, fields and indexes of the open
/// company, and no rows. It is built beside the target, checked, and put in
/// place in one rename; a file that stood there is replaced only then. The
/// company is closed meanwhile, and open again on every way out.
///
/// Refuses the working database, the registry and every company's database as
/// the target. Throws DatabaseError, with the engine's number where the place
/// cannot be written to, and Cancelled; the target is unchanged then.
void makeEmptyDatabase(Oturum &oturum, const QString &target, const MaintenanceProgress &progress);

/// The company could not be opened again: there is nothing to work on.
class CompanyLost : public DatabaseError
{
public:
    using DatabaseError::DatabaseError;
};

} // namespace kuyum
