#include "platform/paint/StampBlend.h"

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

/// x times a / 255, rounded.
inline unsigned scaled(unsigned x, unsigned a)
{
    const unsigned t = x * a + 128;
    return (t + (t >> 8)) >> 8;
}

inline uchar over(unsigned above, unsigned opacity, uchar below, unsigned rest)
{
    return uchar(scaled(above, opacity) + scaled(below, rest));
}

void blendRow(uchar *lower, const QRgb *stamp, int width, unsigned opacity)
{
    for (int x = 0; x < width; ++x, lower += 3) {
        const QRgb pixel = stamp[x];
        // Most of a mark is empty.
        if (pixel == 0)
            continue;
        const unsigned rest = 255 - scaled(unsigned(qAlpha(pixel)), opacity);
        lower[0] = over(unsigned(qRed(pixel)), opacity, lower[0], rest);
        lower[1] = over(unsigned(qGreen(pixel)), opacity, lower[1], rest);
        lower[2] = over(unsigned(qBlue(pixel)), opacity, lower[2], rest);
    }
}

} // namespace

void blendOntoRGB888(QImage &lower, const QPoint &place, const QImage &stamp, double alpha)
{
    const QRect part = QRect(place, stamp.size()).intersected(lower.rect());
    // Archives hold any opacity, and a painter takes what is beyond the ends for them too.
    const auto opacity = unsigned(std::lround(std::clamp(alpha, 0.0, 1.0) * 255));
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(stamp.constScanLine(y - place.y()));
        blendRow(lower.scanLine(y) + part.left() * 3, row + (part.left() - place.x()), part.width(), opacity);
    }
}

} // namespace platform
