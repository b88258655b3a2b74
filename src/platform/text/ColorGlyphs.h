#pragma once

#include <QImage>
#include <QPainter>
#include <QRectF>
#include <vector>

namespace platform {

/// A glyph that is a ready-made picture, and where it lies.
struct ColorGlyph {
    QImage picture;
    QRectF place;
};

/// Both draw with the places moved by `origin`, on painters that only scale and move.
void drawColorGlyphs(QPainter &painter, const std::vector<ColorGlyph> &glyphs, QPointF origin);
/// What the pictures cover, in one colour and wider by `margin` on every side: what an outline or a glow can
/// be made of.
void drawColorSilhouettes(QPainter &painter, const std::vector<ColorGlyph> &glyphs, QPointF origin,
                          const QColor &color, double margin);

} // namespace platform
