#pragma once

#include "overlays/TSTracker.h"

#include <QPointF>

/// The one gesture of the mouse that is under way, in overlay space. Moves of the free mouse settle what a
/// press will take hold of, the press fixes the selection, and the drags that follow work on it.
struct TSGesture {
    /// Where the press was: the fixed corner of a marquee.
    QPointF startPoint;
    /// Where the next step of a drag is measured from.
    QPointF downPoint;
    QPointF curPoint;
    /// No node means a move.
    int draggingNode = TSTrackerNode::None;
    /// Whether the mouse is on the selection; a drag from elsewhere draws a marquee.
    bool isInOverlay = false;
    /// Whether `downPoint` follows the mouse after a step. A snap holds it back.
    bool isUpdateDownPointX = true;
    bool isUpdateDownPointY = true;
};
