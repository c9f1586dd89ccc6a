#include "StoppableWork.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace kuyum {

StoppableWork::StoppableWork(QWidget *parent, const QString &title, const QString &text)
    : m_box(text, {}, 0, 0, parent)
{
    m_box.setWindowTitle(title);
    m_box.setWindowModality(Qt::WindowModal);
    m_box.setMinimumDuration(300);
    // What was typed ahead of the next screen must not stop the work: Escape does.
    auto *stop = new QPushButton(u"&Durdur"_s);
    stop->setAutoDefault(false);
    m_box.setCancelButton(stop);
}

std::function<bool(int done, int total)> StoppableWork::progress()
{
    return [this](int done, int total) {
        m_box.setMaximum(total);
        m_box.setValue(done);
        return !m_box.wasCanceled();
    };
}

} // namespace kuyum
