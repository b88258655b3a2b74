#include "platform/text/GlyphCollector.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace platform {

namespace {

/// Stands where no font has the letter: a frame, as fonts draw it that have one for the purpose.
QPainterPath emptyBox(double fontSize)
{
    const QRectF outside(0.1 * fontSize, -0.75 * fontSize, 0.6 * fontSize, 0.75 * fontSize);
    const double line = 0.05 * fontSize;
    QPainterPath hole;
    hole.addRect(outside.adjusted(line, line, -line, -line));
    QPainterPath box;
    box.addRect(outside);
    box.addPath(hole.toReversed());
    return box;
}

bool hangs(const QGlyphRun &glyphs)
{
    const auto source = GlyphSource::of(glyphs.rawFont());
    return source && source->hasCursiveAttachment();
}

bool areAlike(const QGlyphRun &a, const QGlyphRun &b)
{
    return a.rawFont() == b.rawFont() && a.isRightToLeft() == b.isRightToLeft();
}

} // namespace

std::vector<GlyphPiece> GlyphCollector::pieces(qsizetype from, qsizetype to, double fontSize)
{
    m_pieces.clear();
    m_fontSize = fontSize;
    qsizetype begin = from;
    for (const EmojiSequence &sequence : m_emoji) {
        if (!sequence.isKeycap || sequence.from < from || sequence.from >= to)
            continue;
        add(begin, sequence.from);
        addKeycap(sequence);
        begin = sequence.from + sequence.length;
    }
    add(begin, to);
    return std::exchange(m_pieces, {});
}

QList<QGlyphRun> GlyphCollector::runs(qsizetype from, qsizetype to) const
{
    return m_layout.glyphRuns(int(from), int(to - from));
}

void GlyphCollector::add(qsizetype from, qsizetype to)
{
    if (from >= to)
        return;
    bool isAnyHanging = false;
    for (const QGlyphRun &glyphs : runs(from, to)) {
        const auto source = GlyphSource::of(glyphs.rawFont());
        if (!source)
            addBoxes(glyphs);
        else if (source->hasColorPictures())
            addPictures(glyphs, *source);
        else if (source->hasCursiveAttachment())
            isAnyHanging = true;
        else
            addOutlines(glyphs);
    }
    if (isAnyHanging)
        addHangingWords(from, to);
}

/// The line has been laid out with another emoji in its place. Its marks may come from other fonts, and the
/// toolkit tells of the fonts in any order.
void GlyphCollector::addKeycap(const EmojiSequence &sequence)
{
    const QList<QGlyphRun> placed = runs(sequence.from, sequence.from + sequence.length);
    const auto found = std::find_if(placed.begin(), placed.end(), [](const QGlyphRun &glyphs) {
        const auto source = GlyphSource::of(glyphs.rawFont());
        return source && source->hasColorPictures() && !glyphs.positions().isEmpty();
    });
    if (found == placed.end())
        return;
    QGlyphRun key = *found;
    const auto source = GlyphSource::of(key.rawFont());
    const GlyphSource::Shaped shaped = source->shape(m_text, sequence.from, sequence.from + sequence.length,
                                                     false, key.rawFont().pixelSize());
    if (shaped.glyphs.empty())
        return;
    key.setGlyphIndexes({shaped.glyphs.front().glyph});
    key.setPositions({key.positions().first()});
    addPictures(key, *source);
}

/// The toolkit does not tell which characters a run of glyphs comes from; asked for one character at a time,
/// it does. Marks and second halves of characters have no glyphs of their own then.
void GlyphCollector::addHangingWords(qsizetype from, qsizetype to)
{
    std::optional<QGlyphRun> word;
    qsizetype begin = from;
    const auto end = [&](qsizetype at) {
        if (word)
            addHangingWord(begin, at, *word);
        word.reset();
    };
    for (qsizetype i = from; i < to; ++i) {
        if (m_text[i].isSpace()) {
            end(i);
            continue;
        }
        const QList<QGlyphRun> here = runs(i, i + 1);
        if (here.isEmpty() || (word && areAlike(*word, here.first())))
            continue;
        end(i);
        begin = i;
        if (hangs(here.first()))
            word = here.first();
    }
    end(to);
}

void GlyphCollector::addHangingWord(qsizetype from, qsizetype to, const QGlyphRun &glyphs)
{
    const QRawFont font = glyphs.rawFont();
    const GlyphSource::Shaped shaped =
        GlyphSource::of(font)->shape(m_text, from, to, glyphs.isRightToLeft(), font.pixelSize());
    const QTextLine line = m_layout.lineAt(0);
    const double start = line.cursorToX(int(from));
    const QPointF corner(glyphs.isRightToLeft() ? start - shaped.width : start, line.ascent());
    GlyphPiece piece;
    for (const GlyphSource::Placed &placed : shaped.glyphs)
        piece.outlines.push_back({outline(font, placed.glyph), placed.position + corner});
    m_pieces.push_back(std::move(piece));
}

void GlyphCollector::addOutlines(const QGlyphRun &glyphs)
{
    const QList<quint32> indexes = glyphs.glyphIndexes();
    const QList<QPointF> positions = glyphs.positions();
    GlyphPiece piece;
    for (qsizetype i = 0; i < indexes.size(); ++i)
        piece.outlines.push_back({outline(glyphs.rawFont(), indexes[i]), positions[i]});
    m_pieces.push_back(std::move(piece));
}

void GlyphCollector::addPictures(const QGlyphRun &glyphs, const GlyphSource &source)
{
    const QList<quint32> indexes = glyphs.glyphIndexes();
    const QList<QPointF> positions = glyphs.positions();
    GlyphPiece piece;
    for (qsizetype i = 0; i < indexes.size(); ++i)
        piece.pictures.push_back(
            {source.picture(indexes[i]), glyphs.rawFont().boundingRect(indexes[i]).translated(positions[i])});
    m_pieces.push_back(std::move(piece));
}

void GlyphCollector::addBoxes(const QGlyphRun &glyphs)
{
    const QPainterPath box = emptyBox(m_fontSize);
    GlyphPiece piece;
    for (const QPointF &position : glyphs.positions())
        piece.outlines.push_back({box, position});
    m_pieces.push_back(std::move(piece));
}

QPainterPath GlyphCollector::outline(const QRawFont &font, quint32 glyph)
{
    QHash<quint32, QPainterPath> &known = m_outlines[font];
    const auto answer = known.constFind(glyph);
    return answer != known.constEnd() ? *answer : *known.insert(glyph, font.pathForGlyph(glyph));
}

} // namespace platform
