#include "platform/text/ColorGlyphs.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace platform {

namespace {

double scaleOf(const QPainter &painter)
{
    return std::sqrt(std::fabs(painter.worldTransform().determinant()));
}

/// Painting takes four pixels of a picture into account, which loses what lies between them where it is made
/// smaller.
QImage reducedFor(const QSizeF &pixels, const QImage &picture)
{
    const QSize wanted(std::max(1, int(std::ceil(pixels.width()))),
                       std::max(1, int(std::ceil(pixels.height()))));
    const bool isReduced = wanted.width() < picture.width() && wanted.height() < picture.height();
    return isReduced ? picture.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation) : picture;
}

/// The part of the device that the glyphs and a margin around them may touch.
QRect reachOf(const QPainter &painter, const std::vector<ColorGlyph> &glyphs, QPointF origin, double margin)
{
    QRectF reach;
    for (const ColorGlyph &glyph : glyphs)
        reach |= painter.worldTransform().mapRect(glyph.place.translated(origin));
    const int spread = int(std::ceil(margin)) + 1;
    return reach.toAlignedRect().adjusted(-spread, -spread, spread, spread) &
           QRect(-spread, -spread, painter.device()->width() + 2 * spread,
                 painter.device()->height() + 2 * spread);
}

QImage silhouette(const QPainter &painter, const std::vector<ColorGlyph> &glyphs, QPointF origin,
                  const QColor &color, const QRect &area)
{
    QImage shape(area.size(), QImage::Format_ARGB32_Premultiplied);
    shape.fill(Qt::transparent);
    QPainter inside(&shape);
    inside.setRenderHint(QPainter::SmoothPixmapTransform);
    inside.translate(-area.topLeft());
    inside.setWorldTransform(painter.worldTransform(), true);
    drawColorGlyphs(inside, glyphs, origin);
    inside.resetTransform();
    inside.setCompositionMode(QPainter::CompositionMode_SourceIn);
    inside.fillRect(shape.rect(), color);
    return shape;
}

/// Where copies of a shape are to stand so that together they are the shape grown by a distance: close enough
/// on the rim that it looks round, and further inside for what is thinner than the distance.
std::vector<QPointF> copiesAround(double distance)
{
    std::vector<QPointF> places{QPointF(0, 0)};
    for (double radius = distance; radius > 0.25; radius /= 2) {
        const int count = std::max(8, int(std::ceil(std::numbers::pi * std::sqrt(2 * radius))));
        for (int i = 0; i < count; ++i) {
            const double angle = 2 * std::numbers::pi * i / count;
            places.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
        }
    }
    return places;
}

} // namespace

void drawColorGlyphs(QPainter &painter, const std::vector<ColorGlyph> &glyphs, QPointF origin)
{
    const double scale = scaleOf(painter);
    for (const ColorGlyph &glyph : glyphs)
        if (!glyph.picture.isNull())
            painter.drawImage(glyph.place.translated(origin),
                              reducedFor(glyph.place.size() * scale, glyph.picture));
}

void drawColorSilhouettes(QPainter &painter, const std::vector<ColorGlyph> &glyphs, QPointF origin,
                          const QColor &color, double margin)
{
    const double distance = margin * scaleOf(painter);
    const QRect area = reachOf(painter, glyphs, origin, distance);
    if (area.isEmpty())
        return;
    const QImage shape = silhouette(painter, glyphs, origin, color, area);
    painter.save();
    painter.resetTransform();
    for (const QPointF &place : copiesAround(distance))
        painter.drawImage(area.topLeft() + place, shape);
    painter.restore();
}

} // namespace platform
