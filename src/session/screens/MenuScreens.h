#pragma once

#include <functional>
#include <map>
#include <memory>
#include <QDialog>

namespace kuyum {

/// Makes a screen, not yet shown, with parent as its owner window.
using ScreenFactory = std::function<std::unique_ptr<QDialog>(QWidget *parent)>;

/// The screens of the main menu by their menu numbers. A number that is not in
/// it has no screen.
using MenuScreens = std::map<int, ScreenFactory>;

} // namespace kuyum
