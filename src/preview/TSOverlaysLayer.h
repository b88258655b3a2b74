#pragma once

#include <memory>
#include <QPointF>
#include <QRectF>

class QPainter;
class TSOverlay;

/// The middle layer of the preview: the overlays, drawn within the canvas and found by a point. Overlay
/// space.
class TSOverlaysLayer {
public:
    /// Draws the overlays whose frames meet the rectangle, the last of the list first.
    void drawRect(QPainter &context, const QRectF &dirtyRect) const;
    /// The topmost overlay at a point. A Script text covers the whole canvas and all that lies behind it.
    std::shared_ptr<TSOverlay> selectOverlayAtPoint(const QPointF &point) const;
};
