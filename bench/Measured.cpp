#include "Measured.h"

#include <algorithm>
#include <cstdio>
#include <QElapsedTimer>

namespace kuyum {

namespace {

void printLine(const QString &what, int decimals, double figure, const char *unit)
{
    std::printf("%-52s %10.*f %s\n", what.toUtf8().constData(), decimals, figure, unit);
    std::fflush(stdout);
}

} // namespace

double milliseconds(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

double middle(std::vector<double> figures)
{
    std::sort(figures.begin(), figures.end());
    return figures[figures.size() / 2];
}

double middleMilliseconds(int runs, const std::function<void()> &work,
                          const std::function<void()> &prepare)
{
    std::vector<double> durations;
    for (int run = 0; run < runs; ++run) {
        if (prepare)
            prepare();
        durations.push_back(milliseconds(work));
    }
    return middle(durations);
}

void printMeasured(const QString &what, double milliseconds)
{
    printLine(what, 1, milliseconds, "ms");
}

void printRatio(const QString &what, double milliseconds, double baseline)
{
    printLine(what, 2, milliseconds / baseline, "x");
}

} // namespace kuyum
