#include "preview/TSControlPosition.h"

#include "overlays/TSHitTest.h"
#include "session/TSDataManager.h"
#include "session/TSNotificationCenter.h"

#include <algorithm>
#include <QPainter>

namespace {

QColor grey(double level)
{
    return QColor::fromRgbF(float(level), float(level), float(level));
}

} // namespace

TSControlPosition::TSControlPosition(const QSizeF &bounds, std::function<void()> redrawView)
    : m_bounds(bounds), m_redrawView(std::move(redrawView))
{
    m_circle.centerPoint = QRectF(QPointF(0, 0), bounds).center();
}

void TSControlPosition::mouseDown(const QPointF &point)
{
    if (!TSRectContainsPoint(m_circle.getFrame(), point))
        moveCircle(point);
    m_circle.selected = true;
    m_downPoint = point;
}

void TSControlPosition::mouseDragged(const QPointF &point)
{
    if (!m_circle.selected)
        return;
    moveCircle(clamped(point));
    m_downPoint = m_circle.centerPoint;
}

void TSControlPosition::moveCircle(const QPointF &center)
{
    m_circle.centerPoint = center;
    m_circle.selected = true;
    Q_EMIT TSNotificationCenter::defaultCenter()->TSCirclePositionChanged(calculatePositionRatio());
    m_redrawView();
}

QPointF TSControlPosition::clamped(const QPointF &point) const
{
    const double r = m_circle.radius;
    return {std::max(r, std::min(point.x(), m_bounds.width() - r)),
            std::max(r, std::min(point.y(), m_bounds.height() - r))};
}

QSizeF TSControlPosition::calculatePositionRatio() const
{
    const double r = m_circle.radius;
    return {(m_circle.centerPoint.x() - r) / (m_bounds.width() - 2 * r),
            (m_circle.centerPoint.y() - r) / (m_bounds.height() - 2 * r)};
}

void TSControlPosition::overlayPositionChanged(const QSizeF &positionRatio)
{
    const QSizeF circle = m_circle.getFrame().size();
    QPointF center((m_bounds.width() - circle.width()) * positionRatio.width() + m_circle.radius,
                   positionRatio.height() * (m_bounds.height() - circle.height()) + m_circle.radius);
    if (TSDataManager::dataManager()->isCenter)
        center =
            QPointF(m_bounds.width() * positionRatio.width(), m_bounds.height() * positionRatio.height());
    m_circle.centerPoint = clamped(center);
    m_redrawView();
}

void TSControlPosition::drawBackground(QPainter &context, const QRectF &rect)
{
    const QColor line = grey(0.7372549019607844);
    context.save();
    context.fillRect(rect, grey(0.9725490196078431));
    context.setBrush(Qt::NoBrush);
    context.setPen(QPen(line, 4));
    context.drawRect(rect);
    QPen dashes(line, 1, Qt::CustomDashLine, Qt::FlatCap);
    dashes.setDashPattern({2, 3});
    context.setPen(dashes);
    const QPointF middle = rect.center();
    context.drawLine(QPointF(0, middle.y()), QPointF(rect.width(), middle.y()));
    // It ends at the middle of the other axis: plumb on a square, which the control is, and nowhere else.
    context.drawLine(QPointF(middle.x(), 0), QPointF(middle.y(), rect.height()));
    context.restore();
}
