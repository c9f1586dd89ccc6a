#include "CommandLine.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));

    const Command *command = arguments.isEmpty() ? nullptr : findCommand(arguments.first());
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
    printError(usageText());
    return exitWrongUsage;
}
