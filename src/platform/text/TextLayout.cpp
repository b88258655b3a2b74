#include "platform/text/TextLayout.h"

#include "platform/text/EmojiSequences.h"
#include "platform/text/FontChoice.h"
#include "platform/text/GlyphCollector.h"

#include <algorithm>
#include <cmath>
#include <QFontMetricsF>
#include <QRegularExpression>
#include <QTextLayout>

namespace platform {

namespace {

constexpr double unlimitedWidth = 1e6;

FontDescription fontOf(const TextAttributes &attributes)
{
    return attributes.font.value_or(FontDescription{QStringLiteral("Helvetica"), {}, 36});
}

/// Where the lines of a text begin, and how long they are. A break that Qt's layout would find itself ends
/// its line for good, and what follows would be lost.
std::vector<std::pair<qsizetype, qsizetype>> linesOf(const QString &text)
{
    static const QRegularExpression separator(QStringLiteral("\r\n|[\n\r\u2028\u2029]"));
    std::vector<std::pair<qsizetype, qsizetype>> lines;
    qsizetype start = 0;
    for (auto breaks = separator.globalMatch(text); breaks.hasNext();) {
        const QRegularExpressionMatch found = breaks.next();
        lines.emplace_back(start, found.capturedStart() - start);
        start = found.capturedEnd();
    }
    lines.emplace_back(start, text.size() - start);
    return lines;
}

QTextOption lineOption()
{
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setUseDesignMetrics(true);
    option.setTextDirection(Qt::LayoutDirectionAuto);
    // Every line begins at 0, right-to-left ones too: their place in the longest line is found afterwards.
    option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    return option;
}

/// The outlines of a piece, each glyph by itself or all in one. One outline costs more the longer it is, but
/// where glyphs overlap only it keeps a colour that shows through from showing double.
std::vector<QPainterPath> outlinesOf(const GlyphPiece &piece, bool inOne)
{
    std::vector<QPainterPath> outlines(inOne ? 1 : 0);
    for (const GlyphOutline &glyph : piece.outlines) {
        const QPainterPath path = glyph.path.translated(glyph.position);
        if (inOne)
            outlines.front().addPath(path);
        else
            outlines.push_back(path);
        outlines.back().setFillRule(Qt::WindingFill);
    }
    return outlines;
}

/// In the units of the font size.
double penWidth(const TextAttributes &look)
{
    return std::fabs(look.strokeWidth.value_or(0)) / 100 * fontOf(look).size;
}

void drawOutlines(QPainter &painter, const GlyphPiece &piece, const TextAttributes &look)
{
    const QColor fill = look.foregroundColor.value_or(Color::black()).toQColor();
    const double width = look.strokeWidth.value_or(0);
    const QColor stroke = look.strokeColor ? look.strokeColor->toQColor() : fill;
    const QPen pen(stroke, penWidth(look), Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    const bool isOpaque = fill.alpha() == 255 && stroke.alpha() == 255;
    painter.save();
    painter.translate(piece.origin);
    for (const QPainterPath &path : outlinesOf(piece, !isOpaque)) {
        // A positive width is an outline without a filling, a negative one an outline around it.
        if (width <= 0)
            painter.fillPath(path, fill);
        if (width != 0)
            painter.strokePath(path, pen);
    }
    painter.restore();
}

void drawPictures(QPainter &painter, const GlyphPiece &piece, const TextAttributes &look)
{
    const double width = look.strokeWidth.value_or(0);
    const Color fill = look.foregroundColor.value_or(Color::black());
    if (width != 0)
        drawColorSilhouettes(painter, piece.pictures, piece.origin,
                             look.strokeColor.value_or(fill).toQColor(), penWidth(look) / 2);
    if (width <= 0)
        drawColorGlyphs(painter, piece.pictures, piece.origin);
}

/// The toolkit takes a keycap apart. In the line its place is held by an emoji of one character, the rest of
/// it being selectors that nothing is seen of.
QString withoutKeycaps(QString words, const std::vector<EmojiSequence> &emoji)
{
    for (const EmojiSequence &sequence : emoji) {
        if (!sequence.isKeycap || !hasEmojiFont())
            continue;
        words[sequence.from] = QChar(0x2B1C);
        for (qsizetype i = 1; i < sequence.length; ++i)
            words[sequence.from + i] = QChar(0xFE0F);
    }
    return words;
}

QTextLayout::FormatRange formatRange(qsizetype from, qsizetype to, const QFont &font)
{
    QTextCharFormat format;
    format.setFont(font);
    return {int(from), int(to - from), format};
}

/// The fonts of a part of a line. A font of letters that has some characters of an emoji would take it apart.
void addFormats(QList<QTextLayout::FormatRange> &formats, qsizetype from, qsizetype to, const QFont &font,
                const std::vector<EmojiSequence> &emoji)
{
    for (const EmojiSequence &sequence : emoji) {
        const qsizetype begin = std::clamp(sequence.from, from, to);
        const qsizetype end = std::clamp(sequence.from + sequence.length, from, to);
        if (begin == end || !hasEmojiFont())
            continue;
        if (from < begin)
            formats.append(formatRange(from, begin, font));
        formats.append(formatRange(begin, end, inEmojiFont(font)));
        from = end;
    }
    if (from < to)
        formats.append(formatRange(from, to, font));
}

double shareOfAlignment(TextAlignment alignment)
{
    switch (alignment) {
    case TextAlignment::Right:
        return 1;
    case TextAlignment::Center:
        return 0.5;
    default:
        return 0;
    }
}

} // namespace

/// One paragraph on its line. `start` is its position in the whole text.
struct TextLayout::Paragraph {
    qsizetype start = 0;
    qsizetype length = 0;
    double top = 0;
    QString words;
    std::vector<EmojiSequence> emoji;
    std::unique_ptr<QTextLayout> layout;
    QTextLine line;
};

TextLayout::TextLayout(const AttributedString &text) : m_text(text)
{
    std::vector<Paragraph> paragraphs;
    double top = 0;
    double width = 0;
    for (const auto &[start, length] : linesOf(text.string())) {
        Paragraph paragraph;
        paragraph.start = start;
        paragraph.length = length;
        paragraph.top = top;
        layOut(paragraph);
        top += paragraph.line.height();
        width = std::max(width, paragraph.line.naturalTextWidth());
        paragraphs.push_back(std::move(paragraph));
    }
    m_size = QSizeF(width + 2 * sideMargin, top);
    for (const Paragraph &paragraph : paragraphs)
        place(paragraph, width);
}

void TextLayout::layOut(Paragraph &paragraph)
{
    const QString &words = paragraph.words = m_text.string().mid(paragraph.start, paragraph.length);
    paragraph.emoji = emojiSequencesIn(words);
    // An empty line is as high as its line feed, or as the character before it.
    const qsizetype styled = std::min(paragraph.start, std::max<qsizetype>(0, m_text.length() - 1));
    paragraph.layout = std::make_unique<QTextLayout>(withoutKeycaps(words, paragraph.emoji),
                                                     fontFor(fontOf(m_text.attributesAt(styled))));
    QList<QTextLayout::FormatRange> formats;
    qsizetype position = -paragraph.start;
    for (const AttributedString::Run &run : m_text.runs()) {
        const qsizetype from = std::clamp<qsizetype>(position, 0, words.size());
        const qsizetype to = std::clamp<qsizetype>(position + run.length, 0, words.size());
        addFormats(formats, from, to, fontFor(fontOf(run.attributes)), paragraph.emoji);
        position += run.length;
    }
    paragraph.layout->setFormats(formats);
    paragraph.layout->setTextOption(lineOption());
    paragraph.layout->beginLayout();
    paragraph.line = paragraph.layout->createLine();
    paragraph.line.setLineWidth(unlimitedWidth);
    paragraph.layout->endLayout();
}

void TextLayout::place(const Paragraph &paragraph, double width)
{
    const TextAlignment alignment =
        m_text.attributesAt(paragraph.start).alignment.value_or(TextAlignment::Left);
    const double left =
        sideMargin + (width - paragraph.line.naturalTextWidth()) * shareOfAlignment(alignment);
    qsizetype position = -paragraph.start;
    const std::vector<AttributedString::Run> &runs = m_text.runs();
    GlyphCollector collector(*paragraph.layout, paragraph.words, paragraph.emoji);
    for (size_t run = 0; run < runs.size(); ++run) {
        const qsizetype from = std::clamp<qsizetype>(position, 0, paragraph.length);
        const qsizetype to = std::clamp<qsizetype>(position + runs[run].length, 0, paragraph.length);
        for (GlyphPiece &piece : collector.pieces(from, to, fontOf(runs[run].attributes).size)) {
            piece.origin = QPointF(left, paragraph.top);
            piece.run = run;
            m_glyphs.push_back(std::move(piece));
        }
        if (from < to)
            collectLines(paragraph, from, to, run, QPointF(left, paragraph.top));
        position += runs[run].length;
    }
}

void TextLayout::collectLines(const Paragraph &paragraph, qsizetype from, qsizetype to, size_t run,
                              QPointF origin)
{
    const TextAttributes &attributes = m_text.runs()[run].attributes;
    const bool underlined = attributes.underlineStyle.value_or(0) != 0;
    const bool struck = attributes.strikethroughStyle.value_or(0) != 0;
    if (!underlined && !struck)
        return;
    const QFontMetricsF metrics(fontFor(fontOf(attributes)));
    const double begin = paragraph.line.cursorToX(int(from));
    const double end = paragraph.line.cursorToX(int(to));
    const double baseline = paragraph.line.ascent();
    const auto bar = [&](double middle) {
        return QRectF(std::min(begin, end), baseline + middle - metrics.lineWidth() / 2,
                      std::fabs(end - begin), metrics.lineWidth())
            .translated(origin);
    };
    m_lines.push_back({underlined ? bar(metrics.underlinePos()) : QRectF(),
                       struck ? bar(-metrics.strikeOutPos()) : QRectF(), run});
}

void TextLayout::draw(QPainter &painter, const TextAttributes &over) const
{
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    std::vector<TextAttributes> looks;
    for (const AttributedString::Run &run : m_text.runs()) {
        looks.push_back(run.attributes);
        looks.back().merge(over);
    }
    for (const LinePiece &line : m_lines) {
        const TextAttributes &look = looks[line.run];
        const Color text = look.foregroundColor.value_or(Color::black());
        painter.fillRect(line.underline, look.underlineColor.value_or(text).toQColor());
    }
    for (const GlyphPiece &piece : m_glyphs) {
        drawOutlines(painter, piece, looks[piece.run]);
        drawPictures(painter, piece, looks[piece.run]);
    }
    for (const LinePiece &line : m_lines) {
        const TextAttributes &look = looks[line.run];
        const Color text = look.foregroundColor.value_or(Color::black());
        painter.fillRect(line.strikethrough, look.strikethroughColor.value_or(text).toQColor());
    }
    painter.restore();
}

} // namespace platform
