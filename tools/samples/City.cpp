#include "Film.h"
#include "Noise.h"
#include "Scenes.h"

namespace samples {
namespace {

constexpr float Quay = 0.66f;

struct Street {
    float wide, low, high, window, lit;
    Rgb wall;
    float haze;
    std::uint32_t seed;
};

Rgb sky(float x, float y)
{
    const float up = (Quay - y) / Quay;
    Rgb light = mix({0.95f, 0.52f, 0.30f}, {0.62f, 0.36f, 0.42f}, step(0.02f, 0.34f, up));
    light = mix(light, {0.20f, 0.24f, 0.44f}, step(0.20f, 0.62f, up));
    light = mix(light, {0.06f, 0.10f, 0.24f}, step(0.50f, 1.05f, up));
    const float body = clouds(x * 1.4f + 2, y * 6.5f + 0.5f * x, 6, 401);
    const Rgb cloud = mix({0.70f, 0.36f, 0.34f}, {0.16f, 0.17f, 0.30f}, step(0.15f, 0.7f, up));
    return mix(light, cloud, 0.55f * step(0.0f, 0.5f, body));
}

/// The colour of a lit window: lamps, screens, and now and then a cool tube.
Rgb lamp(float chance)
{
    if (chance < 0.72f)
        return mix({1.0f, 0.62f, 0.28f}, {1.0f, 0.80f, 0.50f}, chance / 0.72f);
    return chance < 0.9f ? Rgb{0.95f, 0.90f, 0.80f} : Rgb{0.62f, 0.78f, 1.0f};
}

Rgb windows(const Street &street, int house, float x, float above, Rgb wall)
{
    const float wide = street.window * (0.7f + 0.6f * randomOf(house, 5, street.seed));
    const float tall = wide * (1.2f + 0.5f * randomOf(house, 6, street.seed));
    const int column = int(std::floor(x / wide)), floor = int(std::floor(above / tall));
    const float u = x / wide - float(column), v = above / tall - float(floor);
    const float frame = 0.16f + 0.14f * randomOf(house, 7, street.seed);
    if (u < frame || u > 1 - frame || v < 0.25f || v > 0.80f)
        return wall;
    const std::uint32_t seed = street.seed + 31 * std::uint32_t(house);
    // Whole floors of an office stay lit; homes go by chance.
    const float busy = street.lit * (0.5f + randomOf(house, 8, street.seed)) +
                       (randomOf(floor, 77, seed) > 0.86f ? 0.35f : 0.0f);
    if (randomOf(column, floor, seed) > busy)
        return wall * 1.25f + Rgb{0.012f, 0.016f, 0.03f};
    const float strength = 0.45f + 0.95f * randomOf(column, floor, seed + 1);
    return lamp(randomOf(column, floor, seed + 2)) * (strength * (0.75f + 0.5f * v));
}

/// A house of the street in that cell, its step back and its spire, or what stands behind.
Rgb house(const Street &street, int cell, Rgb behind, float x, float y)
{
    const float left = (float(cell) + 0.25f * randomOf(cell, 0, street.seed)) * street.wide;
    const float wide = street.wide * (0.70f + 0.55f * randomOf(cell, 1, street.seed));
    const float centre = std::exp(-std::pow((left - 0.82f) / 0.42f, 2.0f));
    const float chance = randomOf(cell, 2, street.seed);
    const float tall =
        street.low + (street.high - street.low) * (0.25f + 0.75f * centre) * chance * (0.6f + 0.4f * chance);
    const float above = Quay - y, across = (x - left) / wide;
    const bool stepped = randomOf(cell, 3, street.seed) > 0.45f;
    const float upper = stepped ? 0.78f * tall : tall;
    const float mast = std::fabs(across - 0.5f) * wide;
    if (chance > 0.72f && mast < 0.0011f && above < tall * 1.16f && above > tall)
        return above > tall * 1.15f ? Rgb{1.4f, 0.15f, 0.10f} : street.wall * 0.6f;
    const float inset = above > upper ? 0.20f : 0.0f;
    if (above > tall || across < inset || across > 1 - inset)
        return behind;
    // The west side of each front still holds some of the sky.
    const float west = 0.75f + 0.5f * step(0.9f, 0.0f, across);
    const Rgb wall = street.wall * (west * (0.7f + 0.6f * randomOf(cell, 4, street.seed)));
    const Rgb front = windows(street, cell, x - left, above, wall);
    const Rgb haze = mix({0.52f, 0.33f, 0.34f}, {0.24f, 0.22f, 0.34f}, step(0.0f, 0.4f, above));
    return mix(front, haze, street.haze + (1 - street.haze) * 0.30f * std::exp(-above * 16));
}

Rgb shoreView(float x, float y)
{
    static const Street Streets[] = {
        {0.060f, 0.05f, 0.46f, 0.0045f, 0.12f, {0.16f, 0.14f, 0.22f}, 0.62f, 411},
        {0.085f, 0.06f, 0.43f, 0.0060f, 0.26f, {0.075f, 0.075f, 0.13f}, 0.26f, 427},
        {0.105f, 0.05f, 0.24f, 0.0085f, 0.34f, {0.040f, 0.042f, 0.075f}, 0.06f, 433},
    };
    Rgb light = sky(x, y);
    for (const Street &street : Streets) {
        const int middle = int(std::floor(x / street.wide));
        for (int cell = middle - 2; cell <= middle; ++cell)
            light = house(street, cell, light, x, y);
    }
    const float above = Quay - y;
    if (above < 0.016f)
        light = Rgb{0.030f, 0.028f, 0.040f};
    // Lamps stand along the quay at even steps.
    const float along = x / 0.0375f - std::floor(x / 0.0375f) - 0.5f;
    const float lampX = along * 0.0375f, lampY = above - 0.021f;
    return light + Rgb{1.0f, 0.68f, 0.34f} * (1.6f * std::exp(-(lampX * lampX + lampY * lampY) / 0.0000032f));
}

Rgb water(const Film &shore, float x, float y)
{
    const float below = y - Quay;
    const float depth = 0.06f / (below + 0.015f);
    // A disturbed river draws each light out into a column: the mirrored light of many heights at once.
    Rgb sum;
    constexpr int Taps = 9;
    for (int i = 0; i < Taps; ++i) {
        const float spread = (float(i) / (Taps - 1) - 0.5f) * (0.03f + 0.55f * below);
        const float wave = clouds(x * depth * 6 + float(i) * 0.05f, depth * 46 + float(i) * 0.02f, 3, 443);
        const float side = 0.0035f * clouds(x * 30 * depth, depth * 90, 2, 449) * (1 + 12 * below);
        const float from = Quay - below * 0.95f + spread + wave * (0.012f + 0.16f * below);
        sum = sum + shore.lightAt(x + side, std::clamp(from, 0.0f, Quay - 0.004f));
    }
    const float crest = 1 + 0.35f * clouds(x * depth * 8, depth * 60, 4, 457);
    const Rgb mirrored = sum * (1.25f * crest / Taps) * Rgb{0.80f, 0.82f, 0.95f};
    return mix(mirrored, {0.020f, 0.028f, 0.055f}, 0.22f + 0.5f * step(0.0f, 0.36f, below));
}

} // namespace

QImage cityAtDusk()
{
    Film film(1800, 1200);
    film.expose([](float x, float y) { return y < Quay ? shoreView(x, y) : Rgb{}; });
    const Film shore = film;
    film.expose([&](float x, float y) { return y < Quay ? shore.lightAt(x, y) : water(shore, x, y); });
    film.bloom(0.55f, 0.006f, 0.45f);
    film.bloom(0.70f, 0.035f, 0.30f);
    return film.develop(7.0f, 461);
}

} // namespace samples
