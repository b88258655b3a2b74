#include "vector/TSSVGGradient.h"

#include <algorithm>

std::optional<QBrush> TSSVGGradient::brush() const
{
    QGradient gradient = geometry();
    bool hasColor = false;
    for (const TSSVGGradientColorStop &stop : colorStops) {
        if (!stop.color)
            continue;
        gradient.setColorAt(std::clamp(stop.position, 0.0, 1.0), stop.color->toQColor());
        hasColor = true;
    }
    if (!hasColor)
        return std::nullopt;
    QBrush brush(gradient);
    if (gradientTransform)
        brush.setTransform(*gradientTransform);
    return brush;
}
