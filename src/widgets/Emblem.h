#pragma once

#include <QIcon>
#include <QWidget>

class QPainter;

namespace kuyum {

/// The program's emblem, a gold ring with a brilliant, drawn at any size.
void paintEmblem(QPainter &painter, const QRectF &box);
QIcon emblemIcon();

/// A place in a window that shows the emblem.
class Emblem : public QWidget
{
    Q_OBJECT

public:
    explicit Emblem(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace kuyum
