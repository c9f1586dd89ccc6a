#pragma once

#include "ModuleBarkod.h"

#include <QWidget>

namespace kuyum {

/// Shows a product's symbol as on paper: black on white in every theme.
class BarkodKutusu : public QWidget
{
public:
    explicit BarkodKutusu(QWidget *parent = nullptr);

    /// Draws the number's symbol; an empty number leaves the box empty.
    /// Throws std::runtime_error as BarkodCiz() does and shows what was drawn
    /// until then.
    void draw(const QString &number);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    BarkodYuzeyi m_surface;
    bool m_isDrawn = false;
};

} // namespace kuyum
