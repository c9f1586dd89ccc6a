#pragma once

#include "CellEditors.h"

#include <QList>

class QKeyEvent;

namespace kuyum {

/// Knows a scanned label among the keys by their speed: its digits follow one
/// another faster than a person types. What stood in the cell's editor before
/// its first digit is remembered, because only the last one tells a label.
class LabelScan
{
public:
    struct Label
    {
        QString text;
        CellEditors::Entry before; ///< the entry that the label broke in on
    };

    /// Takes the next key and the entry as it is before that key; gives the
    /// label that the key completes.
    std::optional<Label> take(const QKeyEvent &key, const CellEditors::Entry &entry);

private:
    struct Digit
    {
        QChar text;
        quint64 pressed; ///< in milliseconds, by the keyboard's clock
        CellEditors::Entry before;
    };

    QList<Digit> m_digits; ///< in quick succession; as many as a label has
};

} // namespace kuyum
