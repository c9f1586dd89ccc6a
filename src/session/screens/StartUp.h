#pragma once

#include "MenuScreens.h"

#include <QString>

namespace kuyum {

class AnaMenu;
class Messages;
struct Oturum;

/// What the way from the program's start to its main menu needs.
struct StartUp
{
    Oturum &oturum; ///< kayitYolu names the registry
    Messages &messages;
    MenuScreens screens;
    QString programFolder;
};

/// Logs in, backs the company up on its first start of a day, and makes the
/// main menu, not yet shown. Null when the program has
/// to end: another copy runs, there is no registry, or nobody logged in.
std::unique_ptr<AnaMenu> startUp(const StartUp &start, bool otherCopyRuns);

} // namespace kuyum
