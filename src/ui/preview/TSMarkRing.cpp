#include "ui/preview/TSMarkRing.h"

#include "overlays/TSOverlay.h"

#include <QPainter>
#include <QPalette>
#include <QTransform>

void TSDrawMarkRing(QPainter &painter, const TSOverlay &overlay, const QPalette &palette)
{
    painter.save();
    painter.setBrush(Qt::NoBrush);
    const QPointF center = overlay.frame().center();
    painter.translate(center);
    painter.setTransform(QTransform().rotateRadians(overlay.angle()), true);
    painter.translate(-center);
    // On a rim, to be seen on any photo.
    for (const auto &[color, width] : {std::pair(QPalette::Window, 4), std::pair(QPalette::Highlight, 2)}) {
        painter.setPen(QPen(palette.color(color), width));
        painter.drawRoundedRect(overlay.frame().adjusted(-5, -5, 5, 5), 4, 4);
    }
    painter.restore();
}
