#include "CommandLine.h"
#include "Demo.h"
#include "OutputPlace.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace kuyum {

/// kuyum demo FOLDER [--olcek N]: makes the demo company.
int demoCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption scaleOption(u"olcek"_s, {}, u"N"_s, u"1"_s);
    parser.addOption(scaleOption);
    if (!parser.parse(QStringList(u"demo"_s) + arguments))
        throw WrongUsage();
    bool isNumber = false;
    const int scale = parser.value(scaleOption).toInt(&isNumber);
    const QStringList folders = parser.positionalArguments();
    if (folders.size() != 1 || folders.first().isEmpty() || !isNumber || scale < 1 ||
        scale > largestDemoScale)
        throw WrongUsage();

    makeDemo(writtenPath(folders.first()), scale, printLine);
    printLine(
        u"Örnek şirket hazır: kuyum --sirket \"%1/database/sirket.kuyum\""_s.arg(folders.first()));
    printLine(u"Kullanıcı: Admin, şifre: 1234"_s);
    return 0;
}

} // namespace kuyum
