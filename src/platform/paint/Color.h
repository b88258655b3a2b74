#pragma once

#include <QColor>

namespace platform {

/// A colour in sRGB, its components 0 to 1 and not premultiplied. Kept in doubles, where QColor would round
/// to 16 bits: packing truncates, and a rounded component would then lose a whole step.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    bool operator==(const Color &) const = default;

    Color withAlpha(double value) const { return {red, green, blue, value}; }
    QColor toQColor() const { return QColor::fromRgbF(float(red), float(green), float(blue), float(alpha)); }

    static constexpr Color black() { return {0, 0, 0, 1}; }
    static constexpr Color white() { return {1, 1, 1, 1}; }
};

} // namespace platform
