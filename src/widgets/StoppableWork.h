#pragma once

#include <functional>
#include <QProgressDialog>

namespace kuyum {

/// Tells the user of work that takes a while, and lets it be stopped. What is
/// done at once is not told of.
class StoppableWork
{
public:
    StoppableWork(QWidget *parent, const QString &title, const QString &text);

    /// Called with how many of how many are done; false when the user stopped.
    std::function<bool(int done, int total)> progress();

    /// Says anew what is done.
    void setText(const QString &text) { m_box.setLabelText(text); }

private:
    QProgressDialog m_box;
};

} // namespace kuyum
