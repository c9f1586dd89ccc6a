#include "TakeOverProcess.h"

#include "DatabaseError.h"
#include "TakeOverSteps.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <QCoreApplication>
#include <semaphore>
#include <thread>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// The line to the process that started this one. When that has ended, its end
/// of the pipe closes, and so does this process: nobody would clear up behind it.
class Starter
{
public:
    Starter()
    {
        std::thread([this] {
            for (int c = std::getchar(); c != EOF; c = std::getchar()) {
                if (c == '\n')
                    m_lines.release();
            }
            std::_Exit(EXIT_FAILURE);
        }).detach();
        // An interrupt from the keyboard reaches the starter too, which ends us.
        std::signal(SIGINT, SIG_IGN);
    }
    void waitForLine() { m_lines.acquire(); }

private:
    std::counting_semaphore<> m_lines{0};
};

void writeLine(const QByteArray &line)
{
    std::fwrite(line.constData(), 1, size_t(line.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

int refuse(QString reason)
{
    writeLine("error " + reason.replace(u'\n', u' ').toUtf8());
    return EXIT_FAILURE;
}

} // namespace

std::optional<int> runTakeOverStep(int &argc, char **argv)
{
    const QString word = argc == 4 ? QString::fromLocal8Bit(argv[1]) : QString();
    const bool copies = word == TakeOverSteps::copyWord();
    if (!copies && word != TakeOverSteps::proveWord())
        return {};
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    // Never taken apart: its thread runs until the process ends.
    Starter &starter = *new Starter;
    TakeOverSteps::Reporter reporter(writeLine, [&starter] { starter.waitForLine(); });
    try {
        (copies ? TakeOverSteps::copy : TakeOverSteps::prove)(arguments[2], arguments[3], reporter);
        return EXIT_SUCCESS;
    } catch (const DatabaseError &error) {
        return refuse(error.text());
    } catch (const std::exception &) {
        return refuse(u"Dosya hasarlı: okunamıyor."_s);
    }
}

} // namespace kuyum
