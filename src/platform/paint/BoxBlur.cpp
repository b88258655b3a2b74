#include "platform/paint/BoxBlur.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <QColor>
#include <vector>

namespace platform {

namespace {

/// Means of `before` pixels to the left of each one, itself, and `after` to its right.
void blurRow(const uchar *in, uchar *out, int width, int before, int after)
{
    const unsigned side = unsigned(before + after + 1);
    // A fixed-point reciprocal: the sums stay far below its range.
    const unsigned reciprocal = ((1u << 23) + side / 2) / side;
    unsigned sum = 0;
    for (int x = 0; x < std::min(after, width); ++x)
        sum += in[x];
    for (int x = 0; x < width; ++x) {
        if (x + after < width)
            sum += in[x + after];
        if (x - before > 0)
            sum -= in[x - before - 1];
        out[x] = uchar((quint64(sum) * reciprocal + (1u << 22)) >> 23);
    }
}

QImage blurredAcross(const QImage &mask, int before, int after)
{
    QImage result(mask.size(), QImage::Format_Alpha8);
    for (int y = 0; y < mask.height(); ++y)
        blurRow(mask.constScanLine(y), result.scanLine(y), mask.width(), before, after);
    return result;
}

/// The same down the columns, all columns of a row together: the memory is then read in its order.
QImage blurredDown(const QImage &mask, int before, int after)
{
    const int width = mask.width();
    const int height = mask.height();
    const unsigned side = unsigned(before + after + 1);
    const unsigned reciprocal = ((1u << 23) + side / 2) / side;
    QImage result(mask.size(), QImage::Format_Alpha8);
    std::vector<unsigned> sums(size_t(width), 0);
    const auto add = [&](int y, unsigned sign) {
        const uchar *row = mask.constScanLine(y);
        for (int x = 0; x < width; ++x)
            sums[size_t(x)] += sign * row[x];
    };
    for (int y = 0; y < std::min(after, height); ++y)
        add(y, 1);
    for (int y = 0; y < height; ++y) {
        if (y + after < height)
            add(y + after, 1);
        if (y - before > 0)
            add(y - before - 1, ~0u);
        uchar *row = result.scanLine(y);
        for (int x = 0; x < width; ++x)
            row[x] = uchar((quint64(sums[size_t(x)]) * reciprocal + (1u << 22)) >> 23);
    }
    return result;
}

/// The sides of three boxes whose variances add up to the wanted one, as nearly as whole odd sides can.
std::array<int, 3> boxesForGaussian(double deviation)
{
    const double ideal = std::sqrt(12 * deviation * deviation / 3 + 1);
    int lower = int(std::floor(ideal));
    if (lower % 2 == 0)
        --lower;
    lower = std::max(lower, 1);
    const double narrow =
        (12 * deviation * deviation - 3.0 * lower * lower - 12.0 * lower - 9) / (-4.0 * lower - 4);
    std::array<int, 3> sides{};
    for (int i = 0; i < 3; ++i)
        sides[size_t(i)] = i < int(std::lround(narrow)) ? lower : lower + 2;
    return sides;
}

} // namespace

QImage boxBlurred(const QImage &mask, int side)
{
    if (side < 2 || mask.isNull())
        return mask;
    const int small = (side - 1) / 2;
    const int large = side - 1 - small;
    return blurredDown(blurredAcross(mask, large, small), large, small);
}

QImage gaussianBlurred(const QImage &mask, double deviation)
{
    QImage result = mask;
    if (deviation > 0)
        for (const int side : boxesForGaussian(deviation))
            result = boxBlurred(result, side);
    return result;
}

int gaussianReach(double deviation)
{
    int reach = 0;
    if (deviation > 0)
        for (const int side : boxesForGaussian(deviation))
            reach += side / 2;
    return reach;
}

QImage tinted(const QImage &mask, const QColor &color)
{
    std::array<QRgb, 256> table{};
    for (int coverage = 0; coverage < 256; ++coverage) {
        QColor entry = color;
        entry.setAlphaF(color.alphaF() * float(coverage) / 255);
        table[size_t(coverage)] = qPremultiply(entry.rgba());
    }
    QImage result(mask.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < mask.height(); ++y) {
        const uchar *from = mask.constScanLine(y);
        auto *to = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < mask.width(); ++x)
            to[x] = table[from[x]];
    }
    return result;
}

} // namespace platform
