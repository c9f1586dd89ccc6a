#pragma once

#include <QLabel>

namespace kuyum {

/// A plain line of text that ends in dots where there is no room for all of it;
/// then its tip tells it whole.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString fittedText() const;
};

} // namespace kuyum
