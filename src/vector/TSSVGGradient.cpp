#include "vector/TSSVGGradient.h"

#include <algorithm>
#include <cmath>

namespace {

/// Two stops at one position are an edge. The toolkit keeps one colour for each position, so the two are set
/// apart by as little as there is; what stands between them is never seen.
QGradientStops withEdges(const QGradientStops &sorted)
{
    QGradientStops stops;
    for (const QGradientStop &stop : sorted) {
        const bool isThird = stops.size() > 1 && stops[stops.size() - 2].first >= stop.first;
        if (isThird)
            stops.removeLast();
        stops.append(stop);
    }
    for (qsizetype i = 1; i < stops.size(); ++i) {
        if (stops[i].first > stops[i - 1].first)
            continue;
        if (stops[i].first < 1)
            stops[i].first = std::nextafter(stops[i].first, 2.0);
        else
            stops[i - 1].first = std::nextafter(1.0, 0.0);
    }
    return stops;
}

} // namespace

std::optional<QBrush> TSSVGGradient::brush() const
{
    QGradient gradient = geometry();
    QGradientStops stops;
    for (const TSSVGGradientColorStop &stop : colorStops)
        if (stop.color)
            stops.append({std::clamp(stop.position, 0.0, 1.0), stop.color->toQColor()});
    if (stops.isEmpty())
        return std::nullopt;
    std::stable_sort(stops.begin(), stops.end(),
                     [](const QGradientStop &a, const QGradientStop &b) { return a.first < b.first; });
    gradient.setStops(withEdges(stops));
    QBrush brush(gradient);
    if (gradientTransform)
        brush.setTransform(*gradientTransform);
    return brush;
}
