#include "ui/preview/TSPreviewCursors.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int side = 24;

QPainterPath turningArrow()
{
    QPainterPath path;
    const QRectF circle(5, 5, 14, 14);
    path.arcMoveTo(circle, 50);
    path.arcTo(circle, 50, 280);
    path.moveTo(13, 2.5);
    path.lineTo(17.5, 6);
    path.lineTo(13.5, 9.5);
    return path;
}

/// Dark on a light rim, to be seen on any photo.
QCursor rotateCursor(double scale)
{
    QPixmap picture(QSize(side, side) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const auto &[color, width] : {std::pair(Qt::white, 4.5), std::pair(Qt::black, 2.0)})
        painter.strokePath(turningArrow(), QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.end();
    if (QGuiApplication::platformName() != u"xcb")
        return QCursor(picture, side / 2, side / 2);
    // X11 shows the pixels as they are, and the toolkit gives it the hot spot as it is.
    picture.setDevicePixelRatio(1);
    return QCursor(picture, picture.width() / 2, picture.height() / 2);
}

} // namespace

QCursor TSPreviewCursor(TSCursor cursor, double scale)
{
    switch (cursor) {
    case TSCursor::arrowCursor:
        return Qt::ArrowCursor;
    case TSCursor::openHandCursor:
        return Qt::OpenHandCursor;
    case TSCursor::closedHandCursor:
        return Qt::ClosedHandCursor;
    case TSCursor::resizeUpDownCursor:
        return Qt::SizeVerCursor;
    case TSCursor::resizeLeftRightCursor:
        return Qt::SizeHorCursor;
    case TSCursor::tl2brCursor:
        return Qt::SizeFDiagCursor;
    case TSCursor::tl2blCursor:
        return Qt::SizeBDiagCursor;
    case TSCursor::rotateCursor:
        return rotateCursor(scale);
    }
    return Qt::ArrowCursor;
}
