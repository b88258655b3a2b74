#include "Land.h"
#include "Noise.h"
#include "Scenes.h"

namespace samples {
namespace {

constexpr Rgb Haze = {0.93f, 0.80f, 0.66f};
/// The way to the sun: low, from the left and a little behind the dunes.
constexpr float SunX = -0.86f, SunY = 0.33f, SunZ = 0.38f;

/// Long backs with one sharp crest, the lee side steeper than the wind side.
float dune(float x, float z, float length, std::uint32_t seed)
{
    const float bend = 0.9f * clouds(x * 0.12f / length, z * 0.12f / length, 2, seed) * length;
    const float phase = (0.80f * x - 0.45f * z + 2.4f * bend) / length;
    const float t = phase - std::floor(phase);
    const float back = t < 0.72f ? t / 0.72f : (1 - t) / 0.28f;
    return std::pow(back, 1.35f);
}

float height(float x, float z)
{
    const float broad = 0.5f + clouds(x * 0.045f, z * 0.045f, 2, 11);
    const float large = 3.4f * broad * dune(x + 9, z, 19, 21);
    const float small = 0.5f * dune(x + 40, z * 1.1f, 5.2f, 31) * step(0.1f, 0.7f, broad);
    return large + small - 0.4f;
}

float ripples(float x, float z)
{
    const float bend = 1.2f * noise(x * 0.5f, z * 0.5f, 41);
    return std::sin((x * 1.4f + z * 0.7f + bend) * 34);
}

/// How much sun reaches a point past the dunes before it.
float sunlight(float x, float z, float top)
{
    float shade = 1;
    for (float way = 0.15f; way < 14 && shade > 0; way *= 1.4f) {
        const float clear = top + way * SunY - height(x + way * SunX, z + way * SunZ);
        shade = std::min(shade, step(-0.03f, 0.03f + 0.02f * way, clear));
    }
    return shade;
}

Rgb light(float x, float z, float top, float slopeX, float slopeZ)
{
    const float fine = 0.13f * ripples(x, z) * std::exp(-z * 0.11f);
    slopeX += fine;
    slopeZ += fine * 0.5f;
    const float steep = std::sqrt(1 + slopeX * slopeX + slopeZ * slopeZ);
    const float facing = std::max(0.0f, (SunY - slopeX * SunX - slopeZ * SunZ) / steep);
    const Rgb sand =
        mix({0.86f, 0.56f, 0.34f}, {0.93f, 0.66f, 0.43f}, 0.5f + clouds(x * 0.3f, z * 0.3f, 3, 51));
    const Rgb sun = Rgb{1.32f, 1.10f, 0.84f} * (facing * sunlight(x, z, top + 0.02f));
    const Rgb sky = Rgb{0.40f, 0.36f, 0.42f} * (0.5f + 0.5f / steep);
    return mix(sand * (sun + sky), Haze, 0.85f * (1 - std::exp(-z * 0.012f)));
}

Rgb sky(float x, float y)
{
    const Rgb clear = mix({0.30f, 0.49f, 0.72f}, {0.72f, 0.79f, 0.82f}, step(0.0f, 0.34f, y));
    const Rgb warm = mix(clear, Haze, step(0.12f, 0.42f, y));
    const float veil =
        step(0.05f, 0.55f, clouds(x * 1.1f + 3, y * 7 + 0.6f * x, 5, 61)) * step(0.34f, 0.05f, y);
    const float glow = std::exp(-(x * x * 1.6f + (y - 0.36f) * (y - 0.36f) * 14));
    return mix(warm, {0.96f, 0.93f, 0.89f}, 0.45f * veil) + Rgb{0.25f, 0.17f, 0.07f} * glow;
}

} // namespace

QImage dunes()
{
    Film film(2400, 800);
    film.expose(sky);
    paint(film, {height, light, 3.6f, 0.36f, 0.9f, 2.2f, 160});
    film.bloom(0.8f, 0.05f, 0.08f);
    return film.develop(5.5f, 71);
}

} // namespace samples
