#include "ReadingProgress.h"

#include "StoppableWork.h"

using namespace Qt::StringLiterals;

namespace kuyum {

std::optional<PrintDocument> makeWithProgress(QWidget *parent, const QString &title,
                                              const DocumentMaker &make)
{
    StoppableWork work(parent, title, u"Model resimleri okunuyor..."_s);
    return make(work.progress());
}

} // namespace kuyum
