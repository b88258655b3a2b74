#include "Noise.h"

#include <cmath>

namespace samples {
namespace {

std::uint32_t hash(int x, int y, std::uint32_t seed)
{
    std::uint32_t h = std::uint32_t(x) * 0x8da6b343u ^ std::uint32_t(y) * 0xd8163841u ^ seed * 0xcb1ab31fu;
    h = (h ^ (h >> 15)) * 0x2c1b3c6du;
    h = (h ^ (h >> 12)) * 0x297a2d39u;
    return h ^ (h >> 15);
}

/// The height at a point of the slope that passes through a lattice point.
float slope(int cellX, int cellY, float x, float y, std::uint32_t seed)
{
    const std::uint32_t bits = hash(cellX, cellY, seed);
    const float u = float(bits & 0xffff) / 32767.5f - 1;
    const float v = float(bits >> 16) / 32767.5f - 1;
    return u * (x - float(cellX)) + v * (y - float(cellY));
}

float fade(float t)
{
    return t * t * t * (t * (t * 6 - 15) + 10);
}

} // namespace

float randomOf(int x, int y, std::uint32_t seed)
{
    return float(hash(x, y, seed) >> 8) / 16777216.0f;
}

float noise(float x, float y, std::uint32_t seed)
{
    const int cellX = int(std::floor(x)), cellY = int(std::floor(y));
    const float u = fade(x - float(cellX)), v = fade(y - float(cellY));
    const float top = std::lerp(slope(cellX, cellY, x, y, seed), slope(cellX + 1, cellY, x, y, seed), u);
    const float bottom =
        std::lerp(slope(cellX, cellY + 1, x, y, seed), slope(cellX + 1, cellY + 1, x, y, seed), u);
    return 1.5f * std::lerp(top, bottom, v);
}

float clouds(float x, float y, int octaves, std::uint32_t seed)
{
    float sum = 0, strength = 0.5f;
    for (int i = 0; i < octaves; ++i) {
        sum += strength * noise(x, y, seed + std::uint32_t(i));
        const float turned = 1.6f * x - 1.2f * y;
        y = 1.2f * x + 1.6f * y;
        x = turned;
        strength *= 0.5f;
    }
    return sum;
}

float ridges(float x, float y, int octaves, std::uint32_t seed)
{
    float sum = 0, strength = 0.55f, above = 1;
    for (int i = 0; i < octaves; ++i) {
        const float crest = 1 - std::fabs(noise(x, y, seed + std::uint32_t(i)));
        // Finer crests grow where the larger ones already stand, so valleys stay smooth.
        sum += strength * crest * crest * above;
        above = std::fmin(1.0f, crest * crest * 1.2f);
        const float turned = 1.6f * x - 1.2f * y;
        y = 1.2f * x + 1.6f * y;
        x = turned;
        strength *= 0.48f;
    }
    return sum;
}

} // namespace samples
