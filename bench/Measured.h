#pragma once

#include <functional>
#include <QString>
#include <vector>

/// How long the work takes.
double milliseconds(const std::function<void()> &work);

/// The middle one of the figures of several runs.
double middle(std::vector<double> figures);

/// One line of a result: what was measured, and how long it took or how many
/// times as long as its baseline.
void printMeasured(const QString &what, double milliseconds);
void printRatio(const QString &what, double ratio);
