#pragma once

#include <QtTest>

namespace kuyum {

/// Keys that go wherever the focus is, as a keyboard's do.
struct Keyboard
{
    static void key(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, held);
    }
    static void type(const QString &text)
    {
        for (const QChar c : text) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, c);
            QApplication::sendEvent(QApplication::focusWidget(), &press);
        }
    }
    static void enter(const QString &text = {})
    {
        type(text);
        key(Qt::Key_Return);
    }
};

} // namespace kuyum
