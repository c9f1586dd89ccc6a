#pragma once

#include "ElidedLabel.h"

class QBoxLayout;
class QLineEdit;

namespace kuyum {

/// The line by which every screen says what was saved, when it stands at its
/// key again. It is calm: nothing to answer, and gone as soon as the next key
/// is entered.
class SavedLine : public ElidedLabel
{
    Q_OBJECT

public:
    explicit SavedLine(QWidget *parent = nullptr);

    /// Stands before the last part of a screen, its buttons: where there is
    /// space between them, or else in a row that comes and goes with the text.
    void standAboveButtons(QBoxLayout &column);
    /// Goes when the user types into the key.
    void goWith(const QLineEdit &key);
    /// "1045 nolu sipariş" gives "1045 nolu sipariş kaydedildi.", which is read
    /// out too.
    void tell(const QString &what);
    void forget();

private:
    bool m_hides = false; ///< while there is nothing to say
};

} // namespace kuyum
