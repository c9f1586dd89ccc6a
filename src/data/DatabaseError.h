#pragma once

#include <QString>
#include <stdexcept>

namespace kuyum {

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
    /// The engine's number for a file that cannot be opened.
    static constexpr int cannotOpen = 14;

    explicit DatabaseError(const QString &text, Cause cause = Cause::Other, int number = 0)
        : std::runtime_error(text.toStdString()), m_text(text), m_cause(cause), m_number(number)
    {
    }
    const QString &text() const { return m_text; }
    Cause cause() const { return m_cause; }
    /// The engine's own number of the failure; 0 where it was not the engine's.
    int number() const { return m_number; }

private:
    QString m_text;
    Cause m_cause;
    int m_number;
};

} // namespace kuyum
