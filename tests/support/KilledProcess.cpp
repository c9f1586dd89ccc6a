#include "KilledProcess.h"

#include <chrono>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <stdexcept>
#include <thread>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr int patience = 60000; // milliseconds

void startUntilReady(QProcess &process, const QString &program, const QStringList &arguments)
{
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(patience))
            throw std::runtime_error("the program told nothing: " + program.toStdString());
    }
}

} // namespace

int killCount()
{
    constexpr int usual = 40;
    bool set = false;
    const int count = qEnvironmentVariableIntValue("KUYUM_KILLS", &set);
    return set ? count : usual;
}

QList<QByteArray> killedWhileWorking(const QString &program, const QStringList &arguments,
                                     qint64 microseconds)
{
    QProcess process;
    startUntilReady(process, program, arguments);
    // Finer than QProcess waits: a save takes few milliseconds.
    std::this_thread::sleep_for(std::chrono::microseconds(
        QRandomGenerator::global()->bounded(qMax<qint64>(1, microseconds))));
    process.kill();
    process.waitForFinished(patience);
    QList<QByteArray> lines = process.readAllStandardOutput().split('\n');
    lines.removeLast(); // what follows the last line's end
    return lines;
}

qint64 workingTime(const QString &program, const QStringList &arguments)
{
    QProcess process;
    startUntilReady(process, program, arguments);
    QElapsedTimer timer;
    timer.start();
    if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        throw std::runtime_error("the program failed: " + program.toStdString());
    return timer.nsecsElapsed() / 1000;
}

} // namespace kuyum
