#pragma once

#include <functional>
#include <QDate>
#include <QString>

namespace kuyum {

/// The demo company: a manufacturer as it might be, to try the program on and
/// to measure it with.

/// The day on which the demo company stands still: its last orders and rates
/// are of this day. Fixed, so that the same scale makes the same company
/// whenever it is made.
QDate demoDay();

/// The largest scale; it makes 200,000 orders.
constexpr int largestDemoScale = 500;

/// Makes FOLDER/database with the registry, the company and its pictures.
/// Models, molds, stones, customers, orders, catalogues and pictures grow with
/// the scale. It all takes its place in one rename at the end: what is cut
/// short leaves no company behind, only a database.part that the next run
/// clears away.
///
/// Throws std::exception, with a Turkish text, when the folder already holds a
/// company or cannot be written. Needs a QGuiApplication for the fonts.
void makeDemo(const QString &folder, int scale,
              const std::function<void(const QString &)> &progress);

} // namespace kuyum
