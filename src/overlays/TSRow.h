#pragma once

#include <QPointF>
#include <QRectF>

/// What an overlay has of its own on each photo. The numbers are 32 bits wide, as layouts have always kept
/// them.
struct TSRow {
    QRectF ratioOfFrameByAlignment;
    /// The one above before the text became a Script.
    QRectF oldRatioOfFrameByAlignment;
    float xPixel = 0;
    float yPixel = 0;
    unsigned wmAlignment = 0;
    float angle = 0;
    /// Of a text.
    QPointF scriptOrigin;

    bool operator==(const TSRow &) const = default;
};
