#include "ChoiceBox.h"

namespace kuyum {

ChoiceBox::ChoiceBox(QWidget *parent) : QComboBox(parent)
{
    connect(this, &QComboBox::activated, this, [this] {
        if (!m_walking)
            Q_EMIT chosen();
    });
}

void ChoiceBox::keyPressEvent(QKeyEvent *event)
{
    m_walking = true;
    QComboBox::keyPressEvent(event);
    m_walking = false;
}

void ChoiceBox::wheelEvent(QWheelEvent *event)
{
    m_walking = true;
    QComboBox::wheelEvent(event);
    m_walking = false;
}

} // namespace kuyum
