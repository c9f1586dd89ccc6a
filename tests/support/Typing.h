#pragma once

#include <QtTest>

namespace kuyum {

/// Types a text into a widget, the Turkish letters too, which the keys of
/// QTest do not have.
inline void typeText(QWidget *widget, const QString &text)
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(letter), Qt::NoModifier);
}

/// One more press of a key that is held down since before.
inline void holdKey(QWidget *widget, Qt::Key key)
{
    QKeyEvent repeat(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(widget, &repeat);
}

} // namespace kuyum
