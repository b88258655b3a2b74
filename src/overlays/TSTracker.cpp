#include "overlays/TSTracker.h"

#include "overlays/TSAnchor.h"
#include "overlays/TSHitTest.h"

#include <array>
#include <numbers>
#include <QPainter>

namespace {

constexpr int edgeNodes = 8;
constexpr double rotateHandleDistance = 16;
constexpr double eighth = std::numbers::pi / 4;

/// Where the nodes of an unturned overlay look to, in eighths of a turn.
constexpr std::array<int, edgeNodes> directions = {7, 0, 1, 2, 3, 4, 5, 6};

bool isEdgeNode(int node)
{
    return node >= 0 && node < edgeNodes;
}

} // namespace

QPointF TSTracker::positionOfNode(int node) const
{
    if (isEdgeNode(node))
        return TSAnchorOfRect(unsigned(node), m_frame);
    if (node == TSTrackerNode::Rotate)
        return {m_frame.x() + m_frame.width() / 2, m_frame.y() - rotateHandleDistance};
    return {};
}

QRectF TSTracker::nodeRectAtNode(int node) const
{
    const QPointF half(m_nodeRadius / 2, m_nodeRadius / 2);
    return {positionOfNode(node) - half, QSizeF(m_nodeRadius, m_nodeRadius)};
}

int TSTracker::nodeAtPoint(const QPointF &point) const
{
    for (int node = 0; node <= TSTrackerNode::Rotate; ++node)
        if (TSRectContainsPoint(nodeRectAtNode(node), point))
            return node;
    return TSTrackerNode::None;
}

double TSTracker::angleOfNode(int node, double ownerAngle) const
{
    const double angle = isEdgeNode(node) ? ownerAngle + directions[size_t(node)] * eighth : ownerAngle;
    return angle > 2 * std::numbers::pi ? angle - 2 * std::numbers::pi : angle;
}

void TSTracker::drawInContext(QPainter &context)
{
    m_nodeRadius = 6;
    m_lineWidth = 1;
    renderLine(context, m_frame);
    renderNode(context);
}

void TSTracker::renderLine(QPainter &context, const QRectF &rect) const
{
    context.save();
    context.setPen(QPen(Qt::white, m_lineWidth));
    context.setBrush(Qt::NoBrush);
    context.drawRect(rect);
    context.drawLine(positionOfNode(1), positionOfNode(TSTrackerNode::Rotate));
    context.restore();
}

void TSTracker::renderNode(QPainter &context) const
{
    context.save();
    context.setPen(Qt::NoPen);
    context.setBrush(m_nodeColor.toQColor());
    for (int node = 0; node <= TSTrackerNode::Rotate; ++node)
        context.drawEllipse(nodeRectAtNode(node));
    context.setPen(QPen(m_lineColor.toQColor(), m_lineWidth));
    context.setBrush(Qt::NoBrush);
    for (int node = 0; node <= TSTrackerNode::Rotate; ++node)
        context.drawEllipse(nodeRectAtNode(node));
    context.restore();
}
