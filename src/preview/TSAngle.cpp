#include "preview/TSAngle.h"

#include <cmath>
#include <numbers>

namespace {

constexpr double pi = std::numbers::pi;
constexpr double snapReach = 0.1;

double angleOf(float dx, float dy)
{
    if (dy == 0)
        return dx > 0 ? pi / 2 : 3 * pi / 2;
    const double angle = double(std::atan(dx / dy));
    if (dy < 0)
        return angle + pi;
    return dx < 0 ? angle + 2 * pi : angle;
}

} // namespace

double TSAngleOfPoint(double x1, double y1, double x2, double y2, double tolerance)
{
    const float dx = float(x1 - x2);
    const float dy = float(y1 - y2);
    const double angle = angleOf(dx, dy);
    if (dy == 0)
        return angle;
    for (int quarter = 0; quarter <= 4; ++quarter)
        if (std::fabs(angle - quarter * pi / 2) <= tolerance)
            return quarter % 4 * pi / 2;
    return angle;
}

double TSWrappedAngle(double angle)
{
    if (angle > 2 * pi)
        return angle - 2 * pi;
    return angle < 0 ? angle + 2 * pi : angle;
}

double TSSnappedAngle(double angle)
{
    for (int eighth = 0; eighth <= 8; ++eighth)
        if (std::fabs(angle - eighth * pi / 4) < snapReach)
            return eighth % 8 * pi / 4;
    return angle;
}
