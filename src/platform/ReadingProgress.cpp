#include "ReadingProgress.h"

#include <QProgressDialog>

using namespace Qt::StringLiterals;

std::optional<PrintDocument> makeWithProgress(QWidget *parent, const QString &title,
                                              const DocumentMaker &make)
{
    QProgressDialog box(u"Model resimleri okunuyor..."_s, u"Durdur"_s, 0, 0, parent);
    box.setWindowTitle(title);
    box.setWindowModality(Qt::WindowModal);
    box.setMinimumDuration(300);
    return make([&box](int done, int total) {
        box.setMaximum(total);
        box.setValue(done);
        return !box.wasCanceled();
    });
}
