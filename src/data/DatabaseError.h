#pragma once

#include <QString>
#include <stdexcept>

/// A failure of the database, with the engine's own text. Every failure of
/// this layer is thrown as one of these; none is left in a return value.
class DatabaseError : public std::runtime_error
{
public:
    /// What a caller can do something about.
    enum class Cause {
        Other,
        FileDamaged, ///< the file is no database, is cut off, or contradicts itself
        FileMissing
    };

    explicit DatabaseError(const QString &text, Cause cause = Cause::Other)
        : std::runtime_error(text.toStdString()), m_text(text), m_cause(cause)
    {
    }
    const QString &text() const { return m_text; }
    Cause cause() const { return m_cause; }

private:
    QString m_text;
    Cause m_cause;
};
