// bench_start SIRKET.kuyum COMPANY.kuyum [RUNS]: from the start of the process
// until the login window stands there, against a bare window that opens the
// company's database. Both run in processes of their own.

#include "EndAtFirstPaint.h"
#include "Measured.h"
#include "Program.h"

#include <cstdio>
#include <cstdlib>
#include <QCoreApplication>
#include <QProcess>
#include <stdexcept>
#include <vector>

using namespace Qt::StringLiterals;

using namespace kuyum;

namespace {

constexpr auto measuredVariable = "KUYUM_BENCH_MEASURED";

void watchFirstPaint()
{
    if (qEnvironmentVariableIsSet(measuredVariable))
        endAtFirstPaint();
}
Q_COREAPP_STARTUP_FUNCTION(watchFirstPaint)

void runToFirstPaint(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitCode() != EXIT_SUCCESS)
        throw std::runtime_error(program.toStdString() + " does not start");
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsSet(measuredVariable))
        return runProgram(argc, argv);

    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        std::fprintf(stderr, "bench_start SIRKET.kuyum COMPANY.kuyum [RUNS]\n");
        return EXIT_FAILURE;
    }
    qputenv(measuredVariable, "1");
    const int runs = arguments.value(3, u"21"_s).toInt();
    // One after the other in turns: what else the machine does meets both.
    std::vector<double> bareTimes;
    std::vector<double> loginTimes;
    for (int run = 0; run < runs; ++run) {
        bareTimes.push_back(middleMilliseconds(
            1, [&] { runToFirstPaint(QStringLiteral(KUYUM_BARE_WINDOW), {arguments[2]}); }));
        loginTimes.push_back(middleMilliseconds(1, [&] {
            runToFirstPaint(QCoreApplication::applicationFilePath(), {u"--sirket"_s, arguments[1]});
        }));
    }
    const double bare = middle(bareTimes);
    const double login = middle(loginTimes);
    printMeasured(u"bare window that opens one database"_s, bare);
    printMeasured(u"login window"_s, login);
    printRatio(u"login window / bare window"_s, login, bare);
    return EXIT_SUCCESS;
}
