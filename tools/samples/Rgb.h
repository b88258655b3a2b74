#pragma once

#include <algorithm>
#include <cmath>

namespace samples {

/// Light of three colours, 1 being the brightest that the finished picture shows.
struct Rgb {
    float red = 0;
    float green = 0;
    float blue = 0;

    Rgb operator+(Rgb other) const { return {red + other.red, green + other.green, blue + other.blue}; }
    Rgb operator*(Rgb other) const { return {red * other.red, green * other.green, blue * other.blue}; }
    Rgb operator*(float factor) const { return {red * factor, green * factor, blue * factor}; }
    float brightness() const { return 0.3f * red + 0.59f * green + 0.11f * blue; }
};

inline Rgb mix(Rgb from, Rgb to, float share)
{
    return from * (1 - share) + to * share;
}

/// 0 below the first edge, 1 above the second, and a soft way between.
inline float step(float begin, float end, float value)
{
    const float t = std::clamp((value - begin) / (end - begin), 0.0f, 1.0f);
    return t * t * (3 - 2 * t);
}

} // namespace samples
