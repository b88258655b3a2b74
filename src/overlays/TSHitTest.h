#pragma once

#include <QPointF>
#include <QRectF>

/// What lies on an edge. A rectangle holds its left and top edges and not the other two, so that of two that
/// stand side by side one alone is hit.
bool TSRectContainsPoint(const QRectF &rect, const QPointF &point);
/// Rectangles that only touch meet, and one without width or height meets what it crosses.
bool TSRectsMeet(const QRectF &a, const QRectF &b);
