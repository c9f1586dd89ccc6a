#pragma once

#include <functional>
#include <QTimer>

class QLineEdit;

namespace kuyum {

/// Tells when a whole code was scanned into a box. Scanners that send Enter
/// behind it need nobody to tell; those that send none fall silent.
class ScannedNumber : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the box.
    ScannedNumber(QLineEdit *box, std::function<bool(const QString &text)> isWhole);

Q_SIGNALS:
    void complete();

private:
    QTimer m_silence;
};

} // namespace kuyum
