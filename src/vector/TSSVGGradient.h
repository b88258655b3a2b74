#pragma once

#include "platform/paint/Color.h"

#include <optional>
#include <QBrush>
#include <QPointF>
#include <QString>
#include <QTransform>
#include <vector>

/// A colour of a gradient and where it stands, 0 to 1. A stop that names its colour in a way that the reader
/// does not know has none.
struct TSSVGGradientColorStop {
    std::optional<platform::Color> color;
    double position = 0;
};

/// The colours along a line or around a point, in the coordinates of the document.
class TSSVGGradient {
public:
    virtual ~TSSVGGradient() = default;

    QString identifier;
    std::vector<TSSVGGradientColorStop> colorStops;
    std::optional<QTransform> gradientTransform;

    /// The brush that paints it, going on in its end colours at both sides; none for a gradient without
    /// colours.
    std::optional<QBrush> brush() const;

protected:
    virtual QGradient geometry() const = 0;
};
