#pragma once

#include <QString>
#include <stdexcept>

/// A failure of the database, with the engine's own text. Every failure of
/// this layer is thrown as one of these; none is left in a return value.
class DatabaseError : public std::runtime_error
{
public:
    explicit DatabaseError(const QString &text)
        : std::runtime_error(text.toStdString()), m_text(text)
    {
    }
    const QString &text() const { return m_text; }

private:
    QString m_text;
};
