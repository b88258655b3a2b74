#include "Film.h"
#include "Noise.h"
#include "Scenes.h"

namespace samples {
namespace {

constexpr float SunX = 0.43f, SunY = 0.235f;

struct Row {
    float crest, relief, wide, tree, fog;
    std::uint32_t seed;
};

Rgb sky(float x, float y)
{
    const float awayX = x - SunX, awayY = y - SunY;
    const float away = std::sqrt(awayX * awayX + awayY * awayY);
    Rgb light = mix({0.40f, 0.53f, 0.66f}, {0.86f, 0.76f, 0.66f}, step(0.0f, 0.42f, y));
    light = mix(light, {1.0f, 0.83f, 0.60f}, 0.85f * std::exp(-away * away * 11));
    const float veil = step(-0.1f, 0.5f, clouds(x * 2.1f + 7, y * 8, 6, 301)) * step(0.36f, 0.08f, y);
    light = mix(light, mix({0.92f, 0.80f, 0.70f}, {0.62f, 0.66f, 0.72f}, step(0.2f, 0.0f, y)), 0.5f * veil);
    return light + Rgb{1.0f, 0.85f, 0.6f} * (step(0.0205f, 0.0190f, away) + 0.25f * std::exp(-away * 14));
}

/// The fog that fills the valleys: grey-blue, and golden under the sun.
Rgb fog(float x, float y)
{
    const float awayX = x - SunX, awayY = (y - SunY) * 0.7f;
    return mix({0.60f, 0.66f, 0.71f}, {0.99f, 0.82f, 0.63f}, std::exp(-6 * (awayX * awayX + awayY * awayY)));
}

/// Crowns along a crest: narrow cones of their own height, with ragged sides.
float crowns(const Row &row, float x)
{
    float top = 0;
    for (int i = -3; i <= 3; ++i) {
        const int cell = int(std::floor(x / row.tree * 5.5f)) + i;
        const float middle = (float(cell) + randomOf(cell, 0, row.seed)) * row.tree / 5.5f;
        const float grove = 0.55f + 0.45f * noise(float(cell) * 0.13f, 1, row.seed);
        const float tall = row.tree * grove * (0.55f + 0.75f * randomOf(cell, 1, row.seed));
        const float ragged = 0.16f * row.tree * noise(x / row.tree * 19, float(cell), row.seed + 1);
        top = std::max(top, tall - 5.4f * std::fabs(x - middle) + ragged);
    }
    return top;
}

float crest(const Row &row, float x)
{
    return row.crest - row.relief * (clouds(x * row.wide, float(row.seed), 5, row.seed) +
                                     0.25f * std::sin(x * row.wide * 2));
}

Rgb rowLight(const Row &row, Rgb behind, float x, float y)
{
    const float top = crest(row, x);
    const float below = y - top;
    if (below < -crowns(row, x))
        return behind;
    // Further crowns cover the slope, each row of them lit at its tips.
    const float line =
        below / row.tree * 1.4f + 0.8f * noise(x / row.tree * 0.8f, below / row.tree, row.seed + 3);
    const float tip = 1 - (line - std::floor(line));
    const float needles = clouds(x / row.tree * 3.2f, y / row.tree * 1.3f, 4, row.seed + 5);
    const float shine = std::clamp(0.30f + 0.35f * tip + 0.9f * needles, 0.0f, 1.0f);
    const Rgb firs = mix({0.020f, 0.042f, 0.050f}, {0.10f, 0.15f, 0.13f}, shine);
    const float drift = clouds(x * 1.7f + float(row.seed), y * 6.5f, 5, row.seed + 7);
    const float pool = step(0.015f, 0.05f + 0.55f * row.relief, below + 0.11f * drift);
    const float share = std::clamp(row.fog + (1 - row.fog) * 0.93f * pool, 0.0f, 1.0f);
    return mix(firs, fog(x, y) * (1 + 0.07f * drift), share);
}

Rgb light(float x, float y)
{
    static const Row Rows[] = {
        {0.33f, 0.10f, 2.2f, 0.004f, 0.84f, 311}, {0.40f, 0.11f, 1.9f, 0.007f, 0.70f, 323},
        {0.49f, 0.15f, 1.9f, 0.011f, 0.55f, 331}, {0.60f, 0.17f, 1.4f, 0.017f, 0.38f, 347},
        {0.74f, 0.20f, 2.0f, 0.025f, 0.20f, 351}, {0.92f, 0.24f, 1.6f, 0.040f, 0.03f, 367},
    };
    Rgb light = sky(x, y);
    for (const Row &row : Rows)
        light = rowLight(row, light, x, y);
    return light;
}

} // namespace

QImage hillsInFog()
{
    Film film(1200, 1800);
    film.expose(light);
    film.bloom(0.9f, 0.02f, 0.3f);
    return film.develop(6.0f, 371);
}

} // namespace samples
