#include "Noise.h"
#include "Rgb.h"
#include "Scenes.h"

namespace samples {
namespace {

constexpr int Side = 760;
constexpr float Radius = 0.86f;

/// Rings of one size, strewn over the plane: a raised rim, a hollow, and in some a peak in the middle.
float craters(float x, float y, float size, std::uint32_t seed)
{
    float height = 0;
    const int cellX = int(std::floor(x / size)), cellY = int(std::floor(y / size));
    for (int j = cellY - 1; j <= cellY + 1; ++j) {
        for (int i = cellX - 1; i <= cellX + 1; ++i) {
            if (randomOf(i, j, seed) > 0.38f)
                continue;
            const float wide = size * (0.18f + 0.30f * randomOf(i, j, seed + 1));
            const float awayX = x - (float(i) + randomOf(i, j, seed + 2)) * size;
            const float awayY = y - (float(j) + randomOf(i, j, seed + 3)) * size;
            const float away = std::sqrt(awayX * awayX + awayY * awayY) / wide;
            const float bowl = away < 1 ? 0.9f * (away * away - 1) + 0.35f * std::exp(-away * away * 24) : 0;
            height += wide * (0.22f * bowl + 0.10f * std::exp(-(away - 1) * (away - 1) * 30));
        }
    }
    return height;
}

float seas(float x, float y)
{
    return step(-0.06f, 0.22f, clouds(x * 1.25f + 0.9f, y * 1.25f + 2.2f, 6, 501));
}

float height(float x, float y)
{
    const float rough = 1 - 0.75f * seas(x, y);
    const float rings = craters(x, y, 0.34f, 511) + craters(x, y, 0.17f, 521) + craters(x, y, 0.085f, 531) +
                        craters(x, y, 0.04f, 541);
    return rough * rings + 0.006f * clouds(x * 9, y * 9, 5, 551);
}

/// The disc lit from the left, so that the craters along the shadow stand out.
float brightness(float x, float y)
{
    const float z = std::sqrt(std::max(0.0f, 1 - x * x - y * y));
    // The surface is laid out so that rings narrow toward the rim, as on a ball.
    const float u = std::asin(std::clamp(x, -1.0f, 1.0f)), v = std::asin(std::clamp(y, -1.0f, 1.0f));
    constexpr float Gap = 0.003f;
    const float slopeX = (height(u + Gap, v) - height(u - Gap, v)) / (2 * Gap);
    const float slopeY = (height(u, v + Gap) - height(u, v - Gap)) / (2 * Gap);
    const float sun = -0.80f * (x - 0.75f * slopeX) - 0.22f * (y - 0.75f * slopeY) + 0.56f * z;
    const float ground = 0.92f - 0.42f * seas(u, v) + 0.22f * clouds(u * 5, v * 5, 6, 561);
    return 0.012f + ground * std::pow(std::clamp(sun, 0.0f, 1.0f), 0.75f);
}

struct Sample {
    float light = 0;
    float cover = 0;
};

Sample sampleAt(float x, float y)
{
    const float away = std::sqrt(x * x + y * y) / Radius;
    if (away < 1)
        return {brightness(x / Radius, y / Radius), 1};
    const float halo = 0.22f * std::exp(-(away - 1) * 22) * step(0.9f, -0.9f, x);
    return {0.9f, halo * step(1.155f, 1.05f, away)};
}

QRgb pixelAt(int column, int row)
{
    Sample sum;
    for (int i = 0; i < 4; ++i) {
        const float x = (float(column) + 0.25f + 0.5f * float(i % 2)) / (Side / 2) - 1;
        const float y = (float(row) + 0.25f + 0.5f * float(i / 2)) / (Side / 2) - 1;
        const Sample sample = sampleAt(x, y);
        sum.light += sample.light * sample.cover / 4;
        sum.cover += sample.cover / 4;
    }
    if (sum.cover <= 0)
        return 0;
    const float light = std::min(1.0f, sum.light / sum.cover);
    return qRgba(int(255 * light), int(250 * light), int(238 * light), int(255 * std::min(1.0f, sum.cover)));
}

} // namespace

QImage moon()
{
    QImage image(Side, Side, QImage::Format_ARGB32);
    for (int row = 0; row < Side; ++row) {
        for (int column = 0; column < Side; ++column)
            image.setPixel(column, row, pixelAt(column, row));
    }
    return image;
}

} // namespace samples
