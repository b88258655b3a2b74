#include "platform/TextLayout.h"

#include "platform/FontChoice.h"

#include <algorithm>
#include <cmath>
#include <QFontMetricsF>
#include <QHash>
#include <QPainterPath>
#include <QRawFont>
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

/// Fonts of ready-made colour pictures have no outlines to scale or to trace. Asking one copies its pictures,
/// ten megabytes of them, so it is asked once.
bool hasColorPictures(const QRawFont &font)
{
    thread_local QHash<QString, bool> known;
    const QString name = font.familyName() + u'-' + font.styleName();
    const auto answer = known.constFind(name);
    if (answer != known.constEnd())
        return *answer;
    return *known.insert(name, !font.fontTable("CBDT").isEmpty() || !font.fontTable("sbix").isEmpty());
}

/// The outlines of a run, each glyph by itself or all in one. One outline costs more the longer it is, but
/// where glyphs overlap only it keeps a colour that shows through from showing double.
std::vector<QPainterPath> outlinesOf(const QGlyphRun &glyphs, bool inOne)
{
    const QList<quint32> indexes = glyphs.glyphIndexes();
    const QList<QPointF> positions = glyphs.positions();
    std::vector<QPainterPath> outlines(inOne ? 1 : 0);
    for (qsizetype i = 0; i < indexes.size(); ++i) {
        const QPainterPath glyph = glyphs.rawFont().pathForGlyph(indexes[i]).translated(positions[i]);
        if (inOne)
            outlines.front().addPath(glyph);
        else
            outlines.push_back(glyph);
        outlines.back().setFillRule(Qt::WindingFill);
    }
    return outlines;
}

/// Draws pictures of glyphs at the size that the painter's scale asks for, from the font's own pictures.
void drawPictures(QPainter &painter, const QGlyphRun &glyphs, QPointF origin)
{
    const QTransform transform = painter.worldTransform();
    const double scale = std::sqrt(std::fabs(transform.determinant()));
    QRawFont font = glyphs.rawFont();
    font.setPixelSize(font.pixelSize() * scale);
    QList<QPointF> positions = glyphs.positions();
    for (QPointF &position : positions)
        position = transform.map(position + origin);
    QGlyphRun scaled = glyphs;
    scaled.setRawFont(font);
    scaled.setPositions(positions);
    painter.save();
    painter.resetTransform();
    painter.drawGlyphRun(QPointF(0, 0), scaled);
    painter.restore();
}

/// The shape of such pictures in one colour: what an outline or a glow can be made of.
void drawSilhouettes(QPainter &painter, const QGlyphRun &glyphs, QPointF origin, const QColor &color)
{
    const QSize size(painter.device()->width(), painter.device()->height());
    QImage shape(size, QImage::Format_ARGB32_Premultiplied);
    shape.fill(Qt::transparent);
    QPainter inside(&shape);
    inside.setWorldTransform(painter.worldTransform());
    drawPictures(inside, glyphs, origin);
    inside.resetTransform();
    inside.setCompositionMode(QPainter::CompositionMode_SourceIn);
    inside.fillRect(QRect(QPoint(0, 0), size), color);
    inside.end();
    painter.save();
    painter.resetTransform();
    painter.drawImage(0, 0, shape);
    painter.restore();
}

void drawPlainGlyphs(QPainter &painter, const QGlyphRun &glyphs, const TextAttributes &look)
{
    const QColor fill = look.foregroundColor.value_or(Color::black()).toQColor();
    const double width = look.strokeWidth.value_or(0);
    const QColor stroke = look.strokeColor ? look.strokeColor->toQColor() : fill;
    const QPen pen(stroke, std::fabs(width) / 100 * fontOf(look).size, Qt::SolidLine, Qt::FlatCap,
                   Qt::RoundJoin);
    const bool isOpaque = fill.alpha() == 255 && stroke.alpha() == 255;
    for (const QPainterPath &path : outlinesOf(glyphs, !isOpaque)) {
        // A positive width is an outline without a filling, a negative one an outline around it.
        if (width <= 0)
            painter.fillPath(path, fill);
        if (width != 0)
            painter.strokePath(path, pen);
    }
}

void drawGlyphs(QPainter &painter, const QGlyphRun &glyphs, QPointF origin, const TextAttributes &look)
{
    if (!hasColorPictures(glyphs.rawFont())) {
        painter.save();
        painter.translate(origin);
        drawPlainGlyphs(painter, glyphs, look);
        painter.restore();
    } else if (look.strokeWidth.value_or(0) > 0) {
        const Color fill = look.foregroundColor.value_or(Color::black());
        drawSilhouettes(painter, glyphs, origin, look.strokeColor.value_or(fill).toQColor());
    } else {
        drawPictures(painter, glyphs, origin);
    }
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
    const QString words = m_text.string().mid(paragraph.start, paragraph.length);
    // An empty line is as high as its line feed, or as the character before it.
    const qsizetype styled = std::min(paragraph.start, std::max<qsizetype>(0, m_text.length() - 1));
    paragraph.layout = std::make_unique<QTextLayout>(words, fontFor(fontOf(m_text.attributesAt(styled))));
    QList<QTextLayout::FormatRange> formats;
    qsizetype position = -paragraph.start;
    for (const AttributedString::Run &run : m_text.runs()) {
        const qsizetype from = std::clamp<qsizetype>(position, 0, words.size());
        const qsizetype to = std::clamp<qsizetype>(position + run.length, 0, words.size());
        if (from < to) {
            QTextCharFormat format;
            format.setFont(fontFor(fontOf(run.attributes)));
            formats.append({int(from), int(to - from), format});
        }
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
    for (size_t run = 0; run < runs.size(); ++run) {
        const qsizetype from = std::clamp<qsizetype>(position, 0, paragraph.length);
        const qsizetype to = std::clamp<qsizetype>(position + runs[run].length, 0, paragraph.length);
        if (from < to)
            collect(paragraph, from, to, run, QPointF(left, paragraph.top));
        position += runs[run].length;
    }
}

void TextLayout::collect(const Paragraph &paragraph, qsizetype from, qsizetype to, size_t run, QPointF origin)
{
    for (const QGlyphRun &glyphs : paragraph.layout->glyphRuns(int(from), int(to - from)))
        m_glyphs.push_back({glyphs, origin, run});
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
    for (const GlyphPiece &piece : m_glyphs)
        drawGlyphs(painter, piece.glyphs, piece.origin, looks[piece.run]);
    for (const LinePiece &line : m_lines) {
        const TextAttributes &look = looks[line.run];
        const Color text = look.foregroundColor.value_or(Color::black());
        painter.fillRect(line.strikethrough, look.strikethroughColor.value_or(text).toQColor());
    }
    painter.restore();
}

} // namespace platform
