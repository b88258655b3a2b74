#pragma once

#include <QPointF>
#include <QRectF>

class QPainter;

/// The handle of the position control, in the control's coordinates.
class TSCircle {
public:
    QPointF centerPoint;
    double radius = 8;
    /// It is being dragged.
    bool selected = false;

    QRectF getFrame() const;
    void drawInContext(QPainter &context) const;
};
