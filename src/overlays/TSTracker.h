#pragma once

#include "platform/paint/Color.h"

#include <QPointF>
#include <QRectF>

class QPainter;

/// The nodes of a tracker: 0 to 7 sit on the anchors of the same numbers and resize.
namespace TSTrackerNode {
/// The handle above the top edge.
constexpr int Rotate = 8;
constexpr int None = 9;
} // namespace TSTrackerNode

/// The frame by which an overlay is taken hold of, in overlay space. Kept equal to the overlay's own frame,
/// so it is the rectangle before rotation, and the points given to it are turned back like it.
class TSTracker {
public:
    const QRectF &frame() const { return m_frame; }
    void setFrame(const QRectF &frame) { m_frame = frame; }
    const platform::Color &nodeColor() const { return m_nodeColor; }
    void setNodeColor(const platform::Color &color) { m_nodeColor = color; }
    const platform::Color &lineColor() const { return m_lineColor; }
    void setLineColor(const platform::Color &color) { m_lineColor = color; }
    /// Twice what its name says: a node is this wide. It is also the area that is hit, at every zoom.
    double nodeRadius() const { return m_nodeRadius; }
    void setNodeRadius(double radius) { m_nodeRadius = radius; }
    double lineWidth() const { return m_lineWidth; }
    void setLineWidth(double width) { m_lineWidth = width; }

    /// The origin for what is no node.
    QPointF positionOfNode(int node) const;
    QRectF nodeRectAtNode(int node) const;
    int nodeAtPoint(const QPointF &point) const;
    /// Where on screen a node of an overlay turned by an angle looks to, in radians clockwise from upward.
    double angleOfNode(int node, double ownerAngle) const;

    /// The painter is already turned as the overlay is.
    void drawInContext(QPainter &context);
    void renderLine(QPainter &context, const QRectF &rect) const;
    void renderNode(QPainter &context) const;

private:
    platform::Color m_nodeColor{double(0.3f), 0.8, double(0.3f)};
    platform::Color m_lineColor = platform::Color::white();
    double m_nodeRadius = 6;
    double m_lineWidth = 0;
    QRectF m_frame;
};
