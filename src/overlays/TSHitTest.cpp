#include "overlays/TSHitTest.h"

bool TSRectContainsPoint(const QRectF &rect, const QPointF &point)
{
    return point.x() >= rect.left() && point.x() < rect.right() && point.y() >= rect.top() &&
           point.y() < rect.bottom();
}

bool TSRectsMeet(const QRectF &a, const QRectF &b)
{
    return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() && b.top() <= a.bottom();
}
