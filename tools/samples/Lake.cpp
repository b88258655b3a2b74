#include "Land.h"
#include "Noise.h"
#include "Scenes.h"

namespace samples {
namespace {

constexpr float Shore = 0.60f;
constexpr float SunAt = 0.98f;
constexpr Rgb Glow = {1.00f, 0.66f, 0.38f};

Rgb sky(float x, float y)
{
    const float up = std::clamp((Shore - y) / Shore, 0.0f, 1.0f);
    Rgb light = mix({1.00f, 0.70f, 0.43f}, {0.84f, 0.50f, 0.47f}, step(0.0f, 0.34f, up));
    light = mix(light, {0.42f, 0.38f, 0.55f}, step(0.18f, 0.62f, up));
    light = mix(light, {0.15f, 0.21f, 0.40f}, step(0.45f, 1.05f, up));
    const float awayX = (x - SunAt) * 0.8f, awayY = y - Shore + 0.13f;
    light = light + Glow * (0.55f * std::exp(-9 * (awayX * awayX + 2.2f * awayY * awayY)));

    // Clouds lie in sheets that draw together toward the horizon, and the sun lights them from below.
    const float depth = 0.16f / (up + 0.10f);
    const float body = clouds((x - SunAt) * 2.6f * depth + 5, depth * 5.2f, 7, 101);
    const float thick = step(0.02f, 0.55f, body + 0.10f) * step(0.02f, 0.18f, up);
    const float below = clouds((x - SunAt) * 2.6f * depth + 5, depth * 5.2f + 0.16f, 5, 101);
    const Rgb lit = mix({1.05f, 0.58f, 0.40f}, {0.62f, 0.42f, 0.52f}, step(0.1f, 0.75f, up));
    const Rgb dark = mix({0.60f, 0.38f, 0.42f}, {0.20f, 0.21f, 0.34f}, step(0.1f, 0.75f, up));
    return mix(light, mix(dark, lit, step(-0.25f, 0.3f, body - below + 0.08f)), 0.85f * thick);
}

struct Range {
    float depth, tallest, wide;
    Rgb ground, haze;
    float hazy;
    std::uint32_t seed;
};

float mountain(const Range &range, float x)
{
    const float crest = ridges(x * range.wide, 0.37f * range.depth, 7, range.seed);
    const float valley = 0.55f + 0.45f * noise(x * 0.9f + range.depth, 2.1f, range.seed + 9);
    return range.tallest * crest * std::clamp(valley + 0.25f, 0.15f, 1.2f);
}

/// Trees along the near shore: narrow cones of differing height.
float trees(float x)
{
    float top = 0;
    for (int i = -1; i <= 1; ++i) {
        const int cell = int(std::floor(x * 190)) + i;
        const float middle = (float(cell) + 0.2f + 0.6f * randomOf(cell, 0, 201)) / 190;
        const float tall =
            (0.010f + 0.022f * randomOf(cell, 1, 201)) * (0.4f + step(-0.5f, 0.4f, noise(x * 3, 0, 203)));
        const float jag = 0.0015f * noise(x * 900, float(cell), 205);
        top = std::max(top, tall - std::fabs(x - middle) * 6.5f + jag);
    }
    return top;
}

Rgb slope(const Range &range, float x, float above, float share)
{
    // The folds of the slopes run down from the crests; those toward the sun are brighter.
    const float fold =
        ridges(x * range.wide * 2.1f + above * 1.3f, above * 3.2f + range.depth, 6, range.seed + 20) -
        ridges(x * range.wide * 2.1f + above * 1.3f + 0.035f, above * 3.2f + range.depth, 6, range.seed + 20);
    const float lit = std::clamp(0.5f + 3.2f * fold * (x < SunAt ? -1.0f : 1.0f), 0.0f, 1.0f);
    const Rgb rock = mix(range.ground * 0.7f, range.ground * 1.35f + Glow * 0.05f, lit);
    return mix(rock, range.haze, range.hazy + (1 - range.hazy) * 0.6f * (1 - share) * (1 - share));
}

Rgb shoreView(float x, float y)
{
    static const Range Ranges[] = {
        {1.0f, 0.34f, 1.7f, {0.20f, 0.18f, 0.26f}, {0.84f, 0.52f, 0.49f}, 0.66f, 111},
        {2.0f, 0.30f, 2.1f, {0.15f, 0.14f, 0.22f}, {0.74f, 0.46f, 0.43f}, 0.52f, 121},
        {3.0f, 0.19f, 2.7f, {0.09f, 0.09f, 0.15f}, {0.47f, 0.32f, 0.36f}, 0.34f, 137},
    };
    Rgb light = sky(x, y);
    const float above = Shore - y;
    for (const Range &range : Ranges) {
        const float crest = mountain(range, x);
        if (above < crest)
            light = slope(range, x, above, above / std::max(crest, 0.001f));
    }
    const float bank = 0.010f + 0.012f * noise(x * 2.2f, 1, 207) + trees(x);
    if (above < bank)
        light = mix({0.035f, 0.035f, 0.055f}, {0.17f, 0.12f, 0.14f}, 0.4f * step(0.02f, 0.0f, above));
    const float mist =
        std::exp(-std::pow((above - 0.012f) / 0.016f, 2.0f)) * (0.5f + clouds(x * 3, y * 30, 4, 209));
    return mix(light, {0.88f, 0.60f, 0.50f}, std::clamp(0.5f * mist, 0.0f, 0.6f));
}

Rgb water(const Film &film, float x, float y)
{
    const float below = y - Shore;
    const float depth = 0.05f / (below + 0.012f);
    // Ripples widen toward the viewer, and still patches lie between them.
    const float breeze = 0.25f + 0.9f * step(-0.25f, 0.45f, clouds(x * depth * 0.7f, depth * 2.5f, 3, 211));
    const float swell =
        clouds(x * depth * 9, depth * 60, 4, 213) + 0.5f * noise(x * depth * 30, depth * 170, 217);
    const float lift = breeze * swell * (0.006f + 0.11f * below);
    const float side = breeze * noise(x * depth * 8, depth * 50, 219) * 0.02f * below;
    const Rgb mirrored =
        film.lightAt(x + side, std::clamp(Shore - below * 1.02f + lift, 0.0f, Shore - 0.002f));
    const float steep = step(0.0f, 0.5f, below);
    return mix(mirrored * Rgb{0.86f, 0.86f, 0.92f}, Rgb{0.04f, 0.07f, 0.12f}, 0.14f + 0.45f * steep);
}

} // namespace

QImage eveningLake()
{
    Film film(1800, 1200);
    film.expose([](float x, float y) { return y < Shore ? shoreView(x, y) : Rgb{}; });
    const Film shore = film;
    film.expose([&](float x, float y) { return y < Shore ? shore.lightAt(x, y) : water(shore, x, y); });
    film.bloom(0.85f, 0.03f, 0.25f);
    return film.develop(5.5f, 221);
}

} // namespace samples
