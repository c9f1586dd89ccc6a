#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

namespace kuyum {

/// How many times a test ends a process at a random point of an operation:
/// KUYUM_KILLS, or few enough for every run of the tests.
int killCount();

/// Starts a program that tells a first line when it is ready, lets it work on
/// for a random part of that many microseconds, and ends it without a warning.
/// Gives the lines it told; the last one may be cut off by the end and is then
/// left out. A program that came to its own end is over as well: whether it
/// did is told by a line of its own. Throws std::runtime_error when the program
/// told nothing.
QList<QByteArray> killedWhileWorking(const QString &program, const QStringList &arguments,
                                     qint64 microseconds);

/// How long that program works from its first line to its own end, in
/// microseconds: the span in which killedWhileWorking() meets every point.
/// Throws std::runtime_error when it failed.
qint64 workingTime(const QString &program, const QStringList &arguments);

} // namespace kuyum
