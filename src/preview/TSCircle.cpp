#include "preview/TSCircle.h"

#include <QPainter>

QRectF TSCircle::getFrame() const
{
    return {centerPoint.x() - radius, centerPoint.y() - radius, 2 * radius, 2 * radius};
}

void TSCircle::drawInContext(QPainter &context) const
{
    context.save();
    context.setBrush(Qt::NoBrush);
    context.setPen(QPen(Qt::gray, 1));
    context.drawEllipse(getFrame());
    context.setPen(Qt::NoPen);
    context.setBrush(Qt::lightGray);
    context.drawEllipse(getFrame().adjusted(1, 1, -1, -1));
    context.restore();
}
