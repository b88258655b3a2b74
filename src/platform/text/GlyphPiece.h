#pragma once

#include "platform/text/ColorGlyphs.h"

#include <QPainterPath>
#include <vector>

namespace platform {

/// The outline of a glyph, which the glyphs that look the same share, and where it lies.
struct GlyphOutline {
    QPainterPath path;
    QPointF position;
};

/// Glyphs that are drawn in one look. Where glyphs overlap in a colour that shows through, those of one piece
/// do not show double.
struct GlyphPiece {
    std::vector<GlyphOutline> outlines;
    std::vector<ColorGlyph> pictures;
    /// The corner of the line that the positions count from.
    QPointF origin;
    /// Of the text's runs, which tells the look.
    size_t run = 0;
};

} // namespace platform
