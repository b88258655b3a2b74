#pragma once

#include "controls/TSIconName.h"

#include <QPainterPath>

/// The outlines behind the icons: lines of one width on a square grid, y downward.
class TSIconShapes {
public:
    static constexpr double grid = 20;
    static constexpr double lineWidth = 1.5;

    static QPainterPath lines(TSIconName name);
};
