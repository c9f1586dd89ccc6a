#include "LabelScan.h"

#include "Numbers.h"
#include "ProductLabel.h"

#include <QKeyEvent>

namespace kuyum {

/// Scanners take 1 to 30 ms from key to key, people rarely less than 60, and
/// never for a dozen keys.
static constexpr quint64 longestGapMs = 45;

std::optional<LabelScan::Label> LabelScan::take(const QKeyEvent &key,
                                                const CellEditors::Entry &entry)
{
    if (key.key() >= Qt::Key_Shift && key.key() <= Qt::Key_ScrollLock)
        return std::nullopt;
    // The keyboard's time, not ours: keys that had to wait arrive all at once.
    if (!m_digits.isEmpty() && key.timestamp() - m_digits.last().pressed > longestGapMs)
        m_digits.clear();
    if (key.text().size() != 1 || !isDecimalDigit(key.text().front())) {
        m_digits.clear();
        return std::nullopt;
    }
    m_digits.append({key.text().front(), key.timestamp(), entry});
    if (m_digits.size() > labelLength)
        m_digits.removeFirst();
    QString text;
    for (const Digit &digit : std::as_const(m_digits))
        text.append(digit.text);
    if (!readLabel(text))
        return std::nullopt;
    const Label label{text, m_digits.first().before};
    m_digits.clear();
    return label;
}

} // namespace kuyum
