#pragma once

#include "Rgb.h"

#include <cstdint>
#include <functional>
#include <QImage>
#include <vector>

namespace samples {

/// A picture in the making: light on twice as many pixels in each direction as the finished one has, so that
/// its edges come out smooth. Points run from 0 to `aspect()` across and from 0 to 1 downward.
class Film {
public:
    Film(int width, int height);

    int columns() const { return m_columns; }
    int rows() const { return m_rows; }
    float aspect() const { return float(m_columns) / float(m_rows); }
    Rgb &at(int column, int row)
    {
        return m_light[std::size_t(row) * std::size_t(m_columns) + std::size_t(column)];
    }

    /// The light at a point, taken from the nearest edge outside the picture.
    Rgb lightAt(float x, float y) const;
    void expose(const std::function<Rgb(float x, float y)> &light);
    /// Lets what is brighter than the threshold glow over a radius (a share of the height).
    void bloom(float threshold, float radius, float strength);
    /// Darkens the corners, adds grain, and answers the finished picture.
    QImage develop(float grain, std::uint32_t seed) const;

private:
    int m_columns;
    int m_rows;
    std::vector<Rgb> m_light;
};

} // namespace samples
