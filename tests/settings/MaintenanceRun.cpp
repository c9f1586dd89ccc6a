#include "DosyaDuzelt.h"
#include "Oturum.h"
#include "RefreshSource.h"
#include "Schema.h"
#include "Yenileme.h"

#include <cstdio>
#include <QCoreApplication>

using namespace kuyum;

/// maintenance_run DATABASE [CHOSEN]: repairs the company, or refreshes it by the
/// chosen database. Tells a line when it begins and one when it is done or has
/// failed.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    Oturum oturum;
    oturum.Veritabani = openCompany(arguments.at(1));
    QList<TableDef> chosen;
    if (arguments.size() > 2)
        chosen = readRefreshSource(arguments.at(2), *oturum.Veritabani).tables;
    std::puts("begins");
    std::fflush(stdout);
    try {
        if (chosen.isEmpty())
            TumDosyalariDuzenle(oturum);
        else
            Yenileme(*oturum.Veritabani, {}, [](auto...) { return false; }).yenile(chosen);
        std::puts("done");
    } catch (const DatabaseError &error) {
        std::puts("failed");
        std::fputs(error.what(), stderr);
    }
    std::fflush(stdout);
    return 0;
}
