// How the program's widgets are drawn and behave: the toolkit's own style, with edges and a
// focus that are easy to see.
#pragma once

#include <QProxyStyle>

namespace tarn {

class DeskStyle : public QProxyStyle {
    Q_OBJECT

public:
    DeskStyle();

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
};

}  // namespace tarn
