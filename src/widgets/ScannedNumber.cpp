#include "ScannedNumber.h"

#include <QLineEdit>

namespace kuyum {

/// Longer than from a code's last digit to the Enter behind it.
static constexpr int silenceMs = 200;

ScannedNumber::ScannedNumber(QLineEdit *box, std::function<bool(const QString &text)> isWhole)
    : QObject(box)
{
    m_silence.setSingleShot(true);
    m_silence.setInterval(silenceMs);
    connect(box, &QLineEdit::textEdited, this, [this, isWhole](const QString &text) {
        if (isWhole(text))
            m_silence.start();
    });
    // Opened by Enter, the box shows the number alone.
    connect(box, &QLineEdit::textChanged, this, [this, isWhole](const QString &text) {
        if (!isWhole(text))
            m_silence.stop();
    });
    connect(&m_silence, &QTimer::timeout, this, &ScannedNumber::complete);
}

} // namespace kuyum
