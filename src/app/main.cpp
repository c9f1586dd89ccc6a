#include "CommandLine.h"
#include "Program.h"

#include "TakeOverProcess.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

using namespace kuyum;

int main(int argc, char **argv)
{
    if (const std::optional<int> result = runTakeOverStep(argc, argv))
        return *result;
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const QString word = arguments.value(0);

    const Command *command = findCommand(word);
    if (command != nullptr && command->draws) {
        // Fonts without a window, on a machine without a display too.
        qputenv("QT_QPA_PLATFORM", "offscreen");
        const QGuiApplication application(argc, argv);
        return runCommand(*command, arguments.mid(1));
    }
    if (command != nullptr) {
        const QCoreApplication application(argc, argv);
        return runCommand(*command, arguments.mid(1));
    }
    if (isHelp(word)) {
        return printUsage();
    }
    if (!word.isEmpty() && !word.startsWith(u'-')) {
        printError(usageText());
        return exitWrongUsage;
    }
    return runProgram(argc, argv);
}
