#pragma once

#include "Database.h"

#include <functional>
#include <memory>
#include <QString>

class QWidget;

namespace kuyum {

class Printers;

/// Opens a company's database for work, a legacy file by taking it over first.
/// Throws DatabaseError; nothing was changed then.
using CompanyOpener =
    std::function<std::unique_ptr<Database>(QWidget *parent, const QString &path)>;

/// What the settings need beyond what the other screens do.
struct ParametreServices
{
    CompanyOpener openCompany;
    const Printers &printers;
};

} // namespace kuyum
