#pragma once

#include "vector/TSSVGGradient.h"

#include <memory>
#include <QPainterPath>
#include <QPen>

class QPainter;

/// One shape of a document: its outline with the look of its stroke, its colours, and what applies to all of
/// it. What is missing is not painted.
class TSStyledBezierPath {
public:
    QPainterPath path;
    /// Width, miter limit, join, cap and dashes; the colour is apart.
    QPen stroke;
    std::optional<platform::Color> fillColor;
    std::optional<platform::Color> strokeColor;
    std::shared_ptr<TSSVGGradient> gradient;
    std::optional<QTransform> transform;
    /// For fill, gradient and stroke alike, each on its own.
    std::optional<double> opacity;

    /// Fill, then gradient, then stroke.
    void drawStyledPath(QPainter &painter) const;
    /// For logs.
    QString description() const;
};
