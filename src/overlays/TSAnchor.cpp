#include "overlays/TSAnchor.h"

#include <array>

namespace {

struct Place {
    int column;
    int row;
};

/// Column and row of each code: 0 for left or top, 1 for the middle, 2 for right or bottom.
constexpr std::array<Place, 9> places = {
    {{0, 0}, {1, 0}, {2, 0}, {2, 1}, {2, 2}, {1, 2}, {0, 2}, {0, 1}, {1, 1}}};

double along(double origin, double length, int third)
{
    switch (third) {
    case 0:
        return origin;
    case 1:
        return origin + length / 2;
    default:
        return origin + length;
    }
}

double back(double anchor, double length, int third)
{
    switch (third) {
    case 0:
        return anchor;
    case 1:
        return anchor - length / 2;
    default:
        return anchor - length;
    }
}

const Place &placeOf(unsigned code)
{
    return places[code < places.size() ? code : places.size() - 1];
}

} // namespace

QPointF TSAnchorOfRect(unsigned code, const QRectF &rect)
{
    const Place &place = placeOf(code);
    return {along(rect.x(), rect.width(), place.column), along(rect.y(), rect.height(), place.row)};
}

QPointF TSOriginForAnchor(unsigned code, const QPointF &anchor, const QSizeF &size)
{
    const Place &place = placeOf(code);
    return {back(anchor.x(), size.width(), place.column), back(anchor.y(), size.height(), place.row)};
}
