#pragma once

#include <QPointF>
#include <QRectF>

/// The anchor of a rectangle for a position code of 0 to 8; its middle for any other.
QPointF TSAnchorOfRect(unsigned code, const QRectF &rect);
/// Where a rectangle of a size begins when its anchor lies on a point.
QPointF TSOriginForAnchor(unsigned code, const QPointF &anchor, const QSizeF &size);
