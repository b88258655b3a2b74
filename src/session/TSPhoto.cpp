#include "session/TSPhoto.h"

#include "session/TSQuartzUtility.h"

#include <QImage>
#include <QPainter>

void TSPhoto::drawInContext(QPainter &context, const QImage &image) const
{
    if (image.isNull())
        return;
    const QRectF source(QPointF(0, 0), QSizeF(image.size()));
    context.setRenderHint(QPainter::SmoothPixmapTransform);
    context.drawImage(TSAspectFitRect(source, QRectF(QPointF(0, 0), previewRect.size())), image);
}
