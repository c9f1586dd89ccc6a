#include "DatabaseOpening.h"

std::unique_ptr<Database> openTakenOver(QWidget *, Messages &, const QString &path,
                                        DatabaseOpener open)
{
    return open(path);
}
