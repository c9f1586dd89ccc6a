#pragma once

#include <QComboBox>

namespace kuyum {

/// A list that tells choosing an entry from walking past it: arrow keys, typed
/// letters and the wheel only move on, whatever they land on.
class ChoiceBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ChoiceBox(QWidget *parent = nullptr);

Q_SIGNALS:
    /// An entry was taken from the opened list.
    void chosen();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    bool m_walking = false;
};

} // namespace kuyum
