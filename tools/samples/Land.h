#pragma once

#include "Film.h"

namespace samples {

/// A landscape of heights seen from one point. Land coordinates: x to the right, z into the depth, the eye at
/// x 0, z 0.
struct Land {
    std::function<float(float x, float z)> height;
    /// The light that comes from a point of the land; the slopes are the height's rise to the right and into
    /// the depth.
    std::function<Rgb(float x, float z, float height, float slopeX, float slopeZ)> light;
    float eye = 1;
    /// Where the horizon stands in the picture, 0 to 1 downward, and how far the view narrows.
    float horizon = 0.5f;
    float focal = 1;
    float near = 0.5f;
    float far = 100;
};

/// Paints the land over the film, front to back, column by column, and leaves alone what stands above it.
void paint(Film &film, const Land &land);

} // namespace samples
