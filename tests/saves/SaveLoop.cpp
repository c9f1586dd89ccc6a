#include "SaveKinds.h"

#include <cstdio>
#include <QCoreApplication>

using namespace kuyum;

/// save_loop KIND FOLDER NUMBER: saves over and over, with the numbers that
/// follow, and prints each number once its save is done, until it is killed.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const SaveKind kind = saveKinds().value(arguments.at(1));
    Oturum oturum = sessionIn(arguments.at(2));
    for (int number = arguments.at(3).toInt();;) {
        std::printf("%d\n", number);
        std::fflush(stdout);
        kind.save(oturum, ++number);
    }
}
