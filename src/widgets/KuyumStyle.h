#pragma once

#include <QProxyStyle>

namespace kuyum {

/// Fusion with flat buttons, room to breathe and a gold ring around whatever
/// has the focus, whether a key or the mouse put it there.
class KuyumStyle : public QProxyStyle
{
    Q_OBJECT

public:
    KuyumStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                         const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override;

private:
    void drawArrow(PrimitiveElement arrow, SubControl part, const QStyleOptionComplex *option,
                   QPainter *painter, const QWidget *widget) const;
};

} // namespace kuyum
