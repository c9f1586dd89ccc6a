#pragma once

#include "MenuScreens.h"

namespace kuyum {

struct ScreenServices;

/// The one table that binds the main menu's numbers to screens. Whoever adds a
/// screen adds its row here. The services must outlive the table.
MenuScreens menuTable(ScreenServices &services);

} // namespace kuyum
