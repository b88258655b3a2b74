#pragma once

#include "session/TSOutputCodes.h"
#include "session/TSPositionCode.h"

/// Where the position controls stand, in position codes, and the unit that offsets are counted in.
struct TSPins {
    unsigned watermarkAlignmenWay = TSPositionCode::None;
    unsigned offsetAlignment = TSPositionCode::None;
    unsigned oldAlignment = TSPositionCode::None;
    /// Reads as the top left until a selection has been measured; nobody reads it with fewer than two
    /// selected.
    unsigned unionFrameAlignment = TSPositionCode::LeftTop;
    unsigned pUnit = TSOffsetUnit::Percentage;
};
