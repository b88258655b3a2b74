#pragma once

#include "preview/TSLine.h"

#include <memory>
#include <QRectF>
#include <vector>

class TSTracker;

/// What the top layer of the preview shows besides the selection, in overlay space.
struct TSTrackerState {
    /// That of the single selected overlay; while drawing, the one at hand.
    std::weak_ptr<TSTracker> tracker;
    /// The guide lines of the present drag step.
    std::vector<TSLine> alignmentLines;
    /// The marquee.
    QRectF boundsRect;
    bool isMultipleChoice = false;
    bool isRotate = false;
    /// The keys go elsewhere, and what is selected is shown so that nobody takes Delete for its own.
    bool isInactive = false;
};
