#include "controls/TSImageBrowserCell.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr double titleSpace = 15, imageInset = 8;

QPainterPath rounded(const QRectF &rect, double radius)
{
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return path;
}

} // namespace

QRectF TSImageBrowserCell::imageContainerFrame() const
{
    return m_frame.adjusted(0, 0, 0, -titleSpace);
}

QRectF TSImageBrowserCell::imageFrame(const QSizeF &picture) const
{
    const QRectF inside = imageContainerFrame().adjusted(imageInset, imageInset, -imageInset, -imageInset);
    if (picture.isEmpty())
        return inside;
    QRectF frame({}, picture.scaled(inside.size(), Qt::KeepAspectRatio));
    frame.moveCenter(inside.center());
    return frame;
}

QRectF TSImageBrowserCell::titleFrame() const
{
    constexpr double left = 7, above = 4;
    return {m_frame.left() + left, m_frame.bottom() - above - titleSpace, m_frame.width() - 2 * left,
            titleSpace};
}

QRectF TSImageBrowserCell::selectionFrame() const
{
    constexpr double outset = 5, lift = 7;
    return m_frame.adjusted(-outset, -outset, outset, outset - lift);
}

void TSImageBrowserCell::paint(QPainter &painter, const Look &look, const QPixmap &picture) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    if (look.isSelected || look.isCurrent)
        paintSelection(painter, look);
    if (picture.isNull())
        paintPlaceholder(painter);
    else
        paintPicture(painter, picture);
    if (!look.title.isEmpty())
        paintTitle(painter, look);
}

void TSImageBrowserCell::paintSelection(QPainter &painter, const Look &look) const
{
    constexpr double width = 2, radius = 6;
    painter.setPen(QPen(look.selectionStroke, width));
    painter.setBrush(look.isSelected ? QBrush(look.selectionFill) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(selectionFrame().adjusted(1, 1, -1, -1), radius, radius);
}

void TSImageBrowserCell::paintPlaceholder(QPainter &painter) const
{
    constexpr double width = 2, radius = 10, fill = 0.3, border = 0.9;
    painter.setPen(QPen(QColor::fromRgbF(1, 1, 1, border), width));
    painter.setBrush(QColor::fromRgbF(1, 1, 1, fill));
    painter.drawRoundedRect(imageFrame({}).adjusted(1, 1, -1, -1), radius, radius);
}

void TSImageBrowserCell::paintPicture(QPainter &painter, const QPixmap &picture) const
{
    constexpr double radius = 3, shadowOpacity = 0.5;
    constexpr int shadowSteps = 4;
    const QRectF frame = imageFrame(picture.deviceIndependentSize());
    if (picture.hasAlphaChannel())
        // Cut-out shapes want no frame around their square.
        return painter.drawPixmap(frame, picture, QRectF(QPointF(), picture.size()));
    painter.setPen(Qt::NoPen);
    for (int step = shadowSteps; step > 0; --step) {
        painter.setBrush(QColor::fromRgbF(0, 0, 0, float(shadowOpacity / shadowSteps / 2)));
        painter.drawRoundedRect(frame.adjusted(-step, 1 - step, step, 1 + step), radius + step,
                                radius + step);
    }
    painter.save();
    painter.setClipPath(rounded(frame, radius), Qt::IntersectClip);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.drawPixmap(frame, picture, QRectF(QPointF(), picture.size()));
    painter.restore();
    painter.setPen(QPen(QColor::fromRgbF(0, 0, 0, 0.3f), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(frame.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

void TSImageBrowserCell::paintTitle(QPainter &painter, const Look &look) const
{
    const QRectF frame = titleFrame();
    painter.setFont(look.titleFont);
    painter.setPen(look.titleColor);
    // The end of a file's name tells photos of one series apart, so the middle goes.
    const QString title =
        QFontMetricsF(look.titleFont).elidedText(look.title, Qt::ElideMiddle, frame.width());
    painter.drawText(frame, Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextSingleLine, title);
}
