#include "preview/TSLine.h"

#include <algorithm>

namespace {

/// Whether an end of the one span lies in the other.
bool reachesInto(float min, float max, float otherMin, float otherMax)
{
    return (otherMin >= min && otherMin <= max) || (otherMax >= min && otherMax <= max);
}

} // namespace

bool TSLine::isEqualToLine(const TSLine &line) const
{
    return beginX == line.beginX && beginY == line.beginY && endX == line.endX && endY == line.endY;
}

bool TSLine::mergeWithLine(const TSLine &line)
{
    if (isVertical() && line.isVertical() && beginX == line.beginX &&
        reachesInto(minY(), maxY(), line.minY(), line.maxY())) {
        *this = {beginX, std::min(minY(), line.minY()), beginX, std::max(maxY(), line.maxY())};
        return true;
    }
    if (isHorizon() && line.isHorizon() && beginY == line.beginY &&
        reachesInto(minX(), maxX(), line.minX(), line.maxX())) {
        *this = {std::min(minX(), line.minX()), beginY, std::max(maxX(), line.maxX()), beginY};
        return true;
    }
    return false;
}
