#include "Measured.h"

#include <algorithm>
#include <cstdio>
#include <QElapsedTimer>
#include <vector>

double middleMilliseconds(int runs, const std::function<void()> &work,
                          const std::function<void()> &prepare)
{
    std::vector<double> durations;
    for (int run = 0; run < runs; ++run) {
        if (prepare)
            prepare();
        QElapsedTimer timer;
        timer.start();
        work();
        durations.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(durations.begin(), durations.end());
    return durations[durations.size() / 2];
}

void printMeasured(const QString &what, double milliseconds)
{
    std::printf("%-52s %10.1f ms\n", what.toUtf8().constData(), milliseconds);
    std::fflush(stdout);
}

void printRatio(const QString &what, double milliseconds, double baseline)
{
    std::printf("%-52s %10.2f x\n", what.toUtf8().constData(), milliseconds / baseline);
    std::fflush(stdout);
}
