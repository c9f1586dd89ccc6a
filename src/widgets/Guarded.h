#pragma once

#include "Messages.h"

#include <exception>
#include <utility>

namespace kuyum {

/// Tells the user of an error that nobody expected.
inline void sayUnexpected(Messages &messages, QWidget *parent, const std::exception &error)
{
    messages.say(parent, QString::fromUtf8(error.what()), MessageIcon::Critical,
                 QStringLiteral("HATA"));
}

/// Runs one of the user's actions. An error that nobody expected ends this
/// action with a message and leaves the screen as it stands, with all that was
/// typed. Returns whether the action came to its end. Every handler of a key
/// or a button goes through here:
///
///     connect(cmdKayit, &QPushButton::clicked, this,
///             [this] { guarded(m_messages, this, [this] { Kaydet(); }); });
template <typename Action>
bool guarded(Messages &messages, QWidget *parent, Action &&action)
{
    try {
        std::forward<Action>(action)();
        return true;
    } catch (const std::exception &error) {
        sayUnexpected(messages, parent, error);
        return false;
    }
}

} // namespace kuyum
