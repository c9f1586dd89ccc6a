#pragma once

#include <functional>
#include <QString>
#include <vector>

namespace kuyum {

/// How long the work takes.
double milliseconds(const std::function<void()> &work);

/// The middle one of the figures of several runs.
double middle(std::vector<double> figures);

/// Runs the work several times and gives the middle of its durations, in
/// milliseconds. prepare runs before each, outside the time.
double middleMilliseconds(int runs, const std::function<void()> &work,
                          const std::function<void()> &prepare = {});

/// One line of a result: what was measured, how long it took, and how many
/// times as long as the baseline that is.
void printMeasured(const QString &what, double milliseconds);
void printRatio(const QString &what, double milliseconds, double baseline);

} // namespace kuyum
