#pragma once

#include "session/TSOutputCodes.h"

#include <QRectF>
#include <QSizeF>

/// The geometry of the preview, or of an output that is being composed. Rectangles are points of the overlay
/// space, y downward; `canvasFrame` is the area that stands for the whole photo, and every overlay places
/// itself against it. `photoRatioOfSize` is points a pixel.
struct TSCanvas {
    unsigned sizeMode = TSSizeMode::Fit;
    QRectF canvasFrame;
    QRectF previewFrame;
    double photoRatioOfSize = 0;
    QSizeF frameSize{0, 0};
    bool isCenter = false;
};
