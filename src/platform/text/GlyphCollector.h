#pragma once

#include "platform/text/EmojiSequences.h"
#include "platform/text/GlyphPiece.h"
#include "platform/text/GlyphSource.h"

#include <QGlyphRun>
#include <QHash>
#include <QTextLayout>

namespace platform {

/// Takes the glyphs out of a line that the toolkit has laid out, as outlines and pictures that need no font
/// any more. What the toolkit shapes wrongly is shaped anew: the words of hanging scripts, and keycaps.
class GlyphCollector {
public:
    /// `text` is what the line means, where the layout may have been given something of equal length that it
    /// understands. All three have to outlive the collector.
    GlyphCollector(const QTextLayout &layout, const QString &text, const std::vector<EmojiSequence> &emoji)
        : m_layout(layout), m_text(text), m_emoji(emoji)
    {
    }

    /// Of a part of the line, which is laid out in one font size; positions count from the line's upper left
    /// corner.
    std::vector<GlyphPiece> pieces(qsizetype from, qsizetype to, double fontSize);

private:
    QList<QGlyphRun> runs(qsizetype from, qsizetype to) const;
    void add(qsizetype from, qsizetype to);
    void addKeycap(const EmojiSequence &sequence);
    void addHangingWords(qsizetype from, qsizetype to);
    void addHangingWord(qsizetype from, qsizetype to, const QGlyphRun &glyphs);
    void addOutlines(const QGlyphRun &glyphs);
    void addPictures(const QGlyphRun &glyphs, const GlyphSource &source);
    void addBoxes(const QGlyphRun &glyphs);
    QPainterPath outline(const QRawFont &font, quint32 glyph);

    const QTextLayout &m_layout;
    const QString &m_text;
    const std::vector<EmojiSequence> &m_emoji;
    QHash<QRawFont, QHash<quint32, QPainterPath>> m_outlines;
    double m_fontSize = 0;
    std::vector<GlyphPiece> m_pieces;
};

} // namespace platform
