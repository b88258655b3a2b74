#pragma once

#include "controls/TSTheme.h"

#include <QProxyStyle>

class QStyleOptionMenuItem;

/// Flat controls over Fusion: rounded surfaces, thin outlines, and a focus ring on everything that takes
/// keys.
class TSStyle : public QProxyStyle {
    Q_OBJECT

public:
    TSStyle();
    /// Gives the application this style and the scheme's palette. Nothing follows the desktop afterwards.
    static void apply(TSTheme::Scheme scheme = TSTheme::systemScheme());

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                         const QWidget *widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override;

private:
    void drawMenuItem(const QStyleOptionMenuItem &option, QPainter *painter, const QWidget *widget) const;
    void drawSlider(const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const;
};
