#pragma once

#include "MenuScreens.h"

class Messages;
struct Oturum;

/// The one table that binds the main menu's numbers to screens. Whoever adds a
/// screen adds its row here.
MenuScreens menuTable(Oturum &oturum, Messages &messages);
