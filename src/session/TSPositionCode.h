#pragma once

/// The nine places of an anchor, clockwise from the top left with the centre last. The numbers stand in
/// archives and rows, and index the buttons of the position picker. y grows downward: the top is the smallest
/// y.
namespace TSPositionCode {
constexpr unsigned LeftTop = 0;
constexpr unsigned MiddleTop = 1;
constexpr unsigned RightTop = 2;
constexpr unsigned RightMiddle = 3;
constexpr unsigned RightBottom = 4;
constexpr unsigned MiddleBottom = 5;
constexpr unsigned LeftBottom = 6;
constexpr unsigned LeftMiddle = 7;
constexpr unsigned Center = 8;
/// No place asked for, or none known.
constexpr unsigned None = 9;
} // namespace TSPositionCode
