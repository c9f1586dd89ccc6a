#pragma once

#include "ScreenContext.h"

namespace kuyum {

class ExcelAktar;

/// What the report screens work with, beyond what the other screens do.
struct RaporContext : ScreenContext
{
    const ExcelAktar &excel;
};

} // namespace kuyum
