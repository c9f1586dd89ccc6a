#pragma once

#include <functional>
#include <QtTest>

namespace kuyum {

/// Answers the program's own boxes, as the user does, with a real Enter, and
/// counts them. `look` sees each one before.
class RealBox : public QObject
{
public:
    explicit RealBox(std::function<void(QWidget &)> look = {}) : m_look(std::move(look))
    {
        connect(&m_poll, &QTimer::timeout, this, &RealBox::answer);
        m_poll.start(0);
    }

    int shown() const { return m_shown; }

private:
    void answer()
    {
        QWidget *box = QApplication::activeModalWidget();
        if (box == nullptr || !box->inherits("QDialog") || !box->isActiveWindow() ||
            box->focusWidget() == nullptr)
            return;
        ++m_shown;
        if (m_look)
            m_look(*box);
        QTest::keyClick(box->focusWidget(), Qt::Key_Return);
    }

    std::function<void(QWidget &)> m_look;
    QTimer m_poll;
    int m_shown = 0;
};

} // namespace kuyum
