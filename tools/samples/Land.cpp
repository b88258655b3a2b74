#include "Land.h"

namespace samples {
namespace {

Rgb lightOf(const Land &land, float x, float z, float height)
{
    const float gap = 0.0008f * z + 0.0005f;
    const float slopeX = (land.height(x + gap, z) - land.height(x - gap, z)) / (2 * gap);
    const float slopeZ = (land.height(x, z + gap) - land.height(x, z - gap)) / (2 * gap);
    return land.light(x, z, height, slopeX, slopeZ);
}

void paintColumn(Film &film, const Land &land, int column)
{
    const float pixel = 1.0f / float(film.rows());
    const float across = (float(column) + 0.5f) * pixel - film.aspect() / 2;
    int unpainted = film.rows();
    for (float z = land.near; z < land.far && unpainted > 0;) {
        const float x = across / land.focal * z;
        const float height = land.height(x, z);
        const float y = land.horizon - (height - land.eye) * land.focal / z;
        const int row = std::max(0, int(std::ceil(y * float(film.rows()))));
        if (row < unpainted) {
            const Rgb light = lightOf(land, x, z, height);
            while (unpainted > row)
                film.at(column, --unpainted) = light;
        }
        // About a pixel of level ground a step, and fewer where that would be thinner than a slope shows.
        z += std::clamp(z * z * pixel / (land.focal * land.eye), z * 0.0004f, z * 0.001f);
    }
}

} // namespace

void paint(Film &film, const Land &land)
{
    for (int column = 0; column < film.columns(); ++column)
        paintColumn(film, land, column);
}

} // namespace samples
