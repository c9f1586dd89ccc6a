#pragma once

#include <exception>
#include <QString>

namespace kuyum {

/// The user stopped a work, and nothing of it stands. No failure: whoever
/// catches those lets it pass.
class Cancelled : public std::exception
{
public:
    explicit Cancelled(const QString &text = QStringLiteral("İşlem durduruldu."))
        : m_text(text), m_what(text.toUtf8())
    {
    }
    const QString &text() const { return m_text; }
    const char *what() const noexcept override { return m_what.constData(); }

private:
    QString m_text;
    QByteArray m_what;
};

} // namespace kuyum
