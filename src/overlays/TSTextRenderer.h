#pragma once

#include "platform/text/AttributedString.h"
#include "platform/text/TextLayout.h"

#include <memory>
#include <QImage>
#include <QRectF>

/// The effects of a text that its picture holds. Widths are in the units of the controls, the blur in points.
struct TSTextLook {
    bool isStrokeEnable = false;
    double strokeWidth = 1;
    platform::Color strokeColor = platform::Color::black();
    bool isGlowEnable = false;
    double glowBlur = 11;
    double glowWidth = 30;
    platform::Color glowColor = platform::Color::black();

    bool operator==(const TSTextLook &) const = default;
};

/// All that the picture of a text follows from. `frameSize` is in points. `glyphHeight` is the height that
/// the laid-out text is scaled to, lower than the frame where a gap is to stay. `phase` is how far the frame
/// begins behind a whole pixel: a picture made for its place is laid on the photo without being resampled.
/// `factor` is pixels a point.
struct TSTextPicture {
    platform::AttributedString text;
    TSTextLook look;
    QSizeF frameSize;
    double glyphHeight = 0;
    QPointF phase;
    int factor = 1;

    bool operator==(const TSTextPicture &) const = default;
};

/// Lays a text out and renders it into a bitmap, glow below stroke below fill. Keeps the last layout and the
/// last picture, which in a batch of equal photos serve again and again. One thread at a time.
class TSTextRenderer {
public:
    TSTextRenderer() = default;
    /// Fonts belong to the thread that a layout was made on, so a copy begins with nothing laid out.
    TSTextRenderer(const TSTextRenderer &) {}
    TSTextRenderer &operator=(const TSTextRenderer &) = delete;

    QSizeF naturalSize(const platform::AttributedString &text);
    void render(const TSTextPicture &wanted);
    /// Premultiplied; null when there is nothing to draw on.
    const QImage &image() const { return m_image; }
    /// The picture's size in points; a fraction of a pixel larger than the frame it was made for. A picture
    /// that there is no memory for has fewer pixels than were wanted, and is stretched.
    QSizeF pictureSize() const { return QSizeF(m_image.size()) / pixelsPerPoint(); }
    /// Where the picture lies for a frame, which may have been moved or stretched since the picture was made.
    QRectF placeInFrame(const QRectF &frame) const;

private:
    const platform::TextLayout &layoutOf(const platform::AttributedString &text);
    double pixelsPerPoint() const { return m_picture.factor * m_share; }
    void drawGlow(QPainter &painter);
    void drawStroke(QPainter &painter, double strokeWidth, const platform::Color &color);
    void drawText(QPainter &painter, const platform::TextAttributes &over);

    platform::AttributedString m_laidOutText;
    std::unique_ptr<platform::TextLayout> m_layout;
    TSTextPicture m_picture;
    QImage m_image;
    /// Of the wanted pixels, along each side.
    double m_share = 1;
};
