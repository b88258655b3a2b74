#include "preview/TSPreviewBackground.h"

#include <algorithm>
#include <QPainter>

QImage TSPreviewBackground(const QSize &bounds)
{
    const QColor bright = QColor::fromRgb(176, 187, 199);
    const QColor dark = QColor::fromRgb(71, 74, 77);
    QImage image(bounds, QImage::Format_RGB32);
    // Which the gradient leaves out around its centre.
    image.fill(bright);
    const QPointF center(bounds.width() / 2.0, bounds.height() / 2.0);
    QRadialGradient gradient(center, 2.0 * std::max(bounds.width(), bounds.height()), center, 1);
    gradient.setColorAt(0, bright);
    gradient.setColorAt(0.5, dark);
    gradient.setColorAt(1, bright);
    QPainter painter(&image);
    painter.fillRect(image.rect(), gradient);
    return image;
}
