#include "CommandLine.h"

#include "Database.h"
#include "OpeningNotes.h"
#include "OutputPlace.h"
#include "TakeOver.h"

#include <csignal>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

volatile std::sig_atomic_t interrupted = 0;

} // namespace

/// kuyum aktar SOURCE.mdb TARGET.kuyum: takes a legacy database over.
int aktarCommand(const QStringList &arguments)
{
    if (arguments.size() != 2)
        throw WrongUsage();
    TakeOver takeOver(writtenPath(arguments[0]), writtenPath(arguments[1]));
    QObject::connect(&takeOver, &TakeOver::tableCopied, &takeOver,
                     [](const QString &name, qint64 rows) {
                         printLine(u"%1: %2 kayıt"_s.arg(name, QString::number(rows)));
                     });
    QTimer interruptWatch;
    QObject::connect(&interruptWatch, &QTimer::timeout, &takeOver, [&takeOver] {
        if (interrupted != 0)
            takeOver.cancel();
    });
    std::signal(SIGINT, [](int) { interrupted = 1; });
    interruptWatch.start(100);
    takeOver.run();
    const QStringList notes =
        openingNotes(*Database::open(takeOver.target(), Database::Access::ReadOnly));
    if (!notes.isEmpty())
        printLine(u"\nDikkat:"_s);
    for (const QString &note : notes)
        printLine(u"  "_s + note);
    printLine(notes.isEmpty()
                  ? u"Bütün tablolar kaynakla karşılaştırıldı, fark yok."_s
                  : u"Bütün tablolar kaynakla karşılaştırıldı, bunlardan başka fark yok."_s);
    return 0;
}

} // namespace kuyum
