#pragma once

#include "Database.h"

#include <memory>
#include <QString>

namespace kuyum {

/// A small company whose figures can be reckoned by hand: four orders in the
/// karats 585 and 750, models with stones and molds, rates, users and rights.
std::unique_ptr<Database> makeSampleCompany(const QString &path);

} // namespace kuyum
