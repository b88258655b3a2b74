#pragma once

#include "preview/TSCircle.h"

#include <functional>
#include <QSizeF>

/// A pad with a circle to drag, which gives a place as fractions of the area that the circle's middle can
/// reach. Points of the pad, y downward. Main thread.
class TSControlPosition {
public:
    TSControlPosition(const QSizeF &bounds, std::function<void()> redrawView);

    const TSCircle &circle() const { return m_circle; }
    /// Where the mouse was last taken up.
    const QPointF &downPoint() const { return m_downPoint; }

    /// A press beside the circle brings it there, partly over the edge when it is near one.
    void mouseDown(const QPointF &point);
    void mouseDragged(const QPointF &point);
    void mouseUp() { m_circle.selected = false; }
    /// Puts the circle where two fractions tell.
    void overlayPositionChanged(const QSizeF &positionRatio);
    /// Each from 0 to 1.
    QSizeF calculatePositionRatio() const;

    void drawRect(QPainter &context) const { m_circle.drawInContext(context); }
    /// The plate behind the circle, with its dashed cross.
    static void drawBackground(QPainter &context, const QRectF &rect);

private:
    QPointF clamped(const QPointF &point) const;
    void moveCircle(const QPointF &center);

    QSizeF m_bounds;
    std::function<void()> m_redrawView;
    TSCircle m_circle;
    QPointF m_downPoint;
};
