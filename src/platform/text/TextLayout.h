#pragma once

#include "platform/text/AttributedString.h"
#include "platform/text/GlyphPiece.h"

#include <memory>
#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <vector>

namespace platform {

/// An attributed text laid out on lines of any length, broken only where the text says so. Lengths are the
/// font sizes' units, y downward. Characters that a font lacks come from fonts that have them, scripts are
/// shaped and ordered as their languages want it, and lines stand aligned within the longest.
///
/// Needs an application object for its fonts. A layout that is made holds outlines and pictures alone: fonts
/// belong to the thread that asked for them and go with it, a layout may be drawn on any.
class TextLayout {
public:
    explicit TextLayout(const AttributedString &text);

    /// The area that the lines use, with a margin at both sides of `sideMargin`. Never less than one line
    /// high.
    QSizeF size() const { return m_size; }
    /// Draws at the painter's origin. Outlines are computed for the painter's scale, so that text is sharp at
    /// any size.
    void draw(QPainter &painter) const { draw(painter, {}); }
    /// The same with attributes put over those of every run. They change the drawing and never the layout.
    void draw(QPainter &painter, const TextAttributes &over) const;

    /// Room at the line ends for what leans or glows past the glyphs.
    static constexpr double sideMargin = 5;

private:
    struct LinePiece {
        QRectF underline;
        QRectF strikethrough;
        size_t run = 0;
    };
    struct Paragraph;

    void layOut(Paragraph &paragraph);
    void place(const Paragraph &paragraph, double width);
    void collectLines(const Paragraph &paragraph, qsizetype from, qsizetype to, size_t run, QPointF origin);

    AttributedString m_text;
    QSizeF m_size;
    std::vector<GlyphPiece> m_glyphs;
    std::vector<LinePiece> m_lines;
};

} // namespace platform
