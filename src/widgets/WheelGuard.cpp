#include "WheelGuard.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>

namespace kuyum {

namespace {

class WheelGuard : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool wheel = event->type() == QEvent::Wheel;
        if (!wheel && event->type() != QEvent::Polish)
            return false;
        auto *box = qobject_cast<QWidget *>(watched);
        if (qobject_cast<QComboBox *>(box) == nullptr &&
            qobject_cast<QAbstractSpinBox *>(box) == nullptr)
            return false;
        // Else the wheel would bring the focus along.
        if (box->focusPolicy() == Qt::WheelFocus)
            box->setFocusPolicy(Qt::StrongFocus);
        if (!wheel || box->hasFocus())
            return false;
        event->ignore(); // goes on to what the box stands on
        return true;
    }
};

} // namespace

void guardBoxesFromWheel(QCoreApplication &application)
{
    application.installEventFilter(new WheelGuard(&application));
}

} // namespace kuyum
