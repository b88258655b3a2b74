#include "overlays/TSTextRenderer.h"

#include "platform/paint/BoxBlur.h"
#include "session/TSImageUtility.h"

#include <algorithm>
#include <cmath>

namespace {

/// Texts up to here have all their pixels. A larger one is made smaller than it is seen, and stretched: few
/// photos show as much of it, and it could be larger than there is memory. What is stretched must not be
/// longer than painters can count on.
constexpr double largestBitmap = 4e8;
constexpr double largestReduced = 1e8;
constexpr double longestReduced = 32000;

QSizeF pixelsFor(const TSTextPicture &picture)
{
    return (picture.frameSize + QSizeF(picture.phase.x(), picture.phase.y())) * picture.factor;
}

double shareFor(const TSTextPicture &picture)
{
    const QSizeF wanted = pixelsFor(picture);
    const double area = wanted.width() * wanted.height();
    if (!(area > largestBitmap))
        return 1;
    return std::min({std::sqrt(largestReduced / area), longestReduced / wanted.width(),
                     longestReduced / wanted.height()});
}

QImage newBitmap(const TSTextPicture &picture, double share)
{
    const QSizeF pixels = pixelsFor(picture) * share;
    const bool hasSize = picture.frameSize.width() > 0 && picture.frameSize.height() > 0;
    if (!hasSize || !(pixels.width() * pixels.height() <= largestBitmap))
        return {};
    // The phase can leave a sliver of the last pixel uncovered in single precision.
    return TSCreateBitmapContext(std::ceil(float(pixels.width())), std::ceil(float(pixels.height())));
}

} // namespace

QSizeF TSTextRenderer::naturalSize(const platform::AttributedString &text)
{
    return layoutOf(text).size();
}

const platform::TextLayout &TSTextRenderer::layoutOf(const platform::AttributedString &text)
{
    if (!m_layout || m_laidOutText != text) {
        m_layout = std::make_unique<platform::TextLayout>(text);
        m_laidOutText = text;
    }
    return *m_layout;
}

void TSTextRenderer::render(const TSTextPicture &wanted)
{
    if (!m_image.isNull() && m_picture == wanted)
        return;
    m_picture = wanted;
    m_share = shareFor(wanted);
    m_image = newBitmap(wanted, m_share);
    if (m_image.isNull())
        return;
    QPainter painter(&m_image);
    const TSTextLook &look = m_picture.look;
    if (look.isGlowEnable)
        drawGlow(painter);
    painter.scale(pixelsPerPoint(), pixelsPerPoint());
    painter.translate(wanted.phase);
    if (look.isStrokeEnable)
        drawStroke(painter, look.strokeWidth, look.strokeColor.withAlpha(1));
    drawText(painter, {});
}

void TSTextRenderer::drawText(QPainter &painter, const platform::TextAttributes &over)
{
    const platform::TextLayout &layout = layoutOf(m_picture.text);
    const float scale = float(m_picture.glyphHeight / layout.size().height());
    painter.save();
    painter.scale(double(scale), double(scale));
    layout.draw(painter, over);
    painter.restore();
}

/// A quarter percent of the font size for a unit of width, so that the outline grows with the text.
void TSTextRenderer::drawStroke(QPainter &painter, double strokeWidth, const platform::Color &color)
{
    platform::TextAttributes over;
    over.strokeWidth = double(float(strokeWidth * 0.25));
    over.strokeColor = color;
    over.underlineColor = color;
    over.strikethroughColor = color;
    drawText(painter, over);
}

/// The glow is one colour, so its coverage alone is blurred. It is made at factor 1, or at the target's where
/// that is smaller, and enlarged with the target.
void TSTextRenderer::drawGlow(QPainter &painter)
{
    TSTextPicture single = m_picture;
    single.factor = 1;
    const double scale = std::min(1.0, pixelsPerPoint());
    QImage mask = newBitmap(single, scale).convertToFormat(QImage::Format_Alpha8);
    QPainter inside(&mask);
    inside.scale(scale, scale);
    inside.translate(m_picture.phase);
    const auto width = double(float(m_picture.look.glowWidth / 3.0));
    drawStroke(inside, width, platform::Color::black());
    inside.end();
    // An outline of no width is no outline: the glyphs are filled, and glow in the colour that the text has.
    const auto fill = m_picture.text.attributesAt(0).foregroundColor.value_or(platform::Color::black());
    const platform::Color color = width == 0 ? fill : m_picture.look.glowColor;
    const QImage blurred = platform::boxBlurred(mask, int(m_picture.look.glowBlur * scale));
    painter.save();
    painter.scale(pixelsPerPoint() / scale, pixelsPerPoint() / scale);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(0, 0, platform::tinted(blurred, color.withAlpha(1).toQColor()));
    painter.restore();
}

QRectF TSTextRenderer::placeInFrame(const QRectF &frame) const
{
    const double across = frame.width() / m_picture.frameSize.width();
    const double down = frame.height() / m_picture.frameSize.height();
    return {frame.x() - m_picture.phase.x() * across, frame.y() - m_picture.phase.y() * down,
            pictureSize().width() * across, pictureSize().height() * down};
}
