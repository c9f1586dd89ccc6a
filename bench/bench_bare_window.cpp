// bench_bare_window DATABASE: opens one window on a row of one database and
// ends as soon as it is painted. What bench_start compares the program with.

#include "EndAtFirstPaint.h"

#include <cstdlib>
#include <QApplication>
#include <QLabel>
#include <QSqlDatabase>
#include <QSqlQuery>

using namespace Qt::StringLiterals;

using namespace kuyum;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    endAtFirstPaint();
    QSqlDatabase db = QSqlDatabase::addDatabase(u"QSQLITE"_s);
    db.setDatabaseName(QCoreApplication::arguments().value(1));
    QSqlQuery query(db);
    if (!db.open() || !query.exec(u"Select User_Name From Users"_s) || !query.next())
        return EXIT_FAILURE;
    QLabel window(query.value(0).toString());
    window.resize(640, 340);
    window.show();
    return application.exec();
}
