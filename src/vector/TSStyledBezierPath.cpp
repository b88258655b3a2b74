#include "vector/TSStyledBezierPath.h"

#include <QPainter>

void TSStyledBezierPath::drawStyledPath(QPainter &painter) const
{
    painter.save();
    if (transform)
        painter.setTransform(*transform, true);
    if (opacity)
        painter.setOpacity(*opacity);
    if (fillColor)
        painter.fillPath(path, fillColor->toQColor());
    if (const auto brush = gradient ? gradient->brush() : std::nullopt)
        painter.fillPath(path, *brush);
    if (strokeColor && stroke.widthF() > 0) {
        QPen pen = stroke;
        pen.setColor(strokeColor->toQColor());
        painter.strokePath(path, pen);
    }
    painter.restore();
}

QString TSStyledBezierPath::description() const
{
    const auto name = [](const std::optional<platform::Color> &color) {
        return color ? color->toQColor().name() : QStringLiteral("none");
    };
    return QStringLiteral("path of %1 elements, fill %2, stroke %3, gradient %4")
        .arg(path.elementCount())
        .arg(name(fillColor), name(strokeColor), gradient ? gradient->identifier : QStringLiteral("none"));
}
