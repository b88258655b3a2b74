#include "Film.h"

#include "Noise.h"

namespace samples {
namespace {

/// Averages a line of pixels over a window, in place: three passes come close to a soft lens.
void blurLine(Rgb *first, int count, int stride, int radius)
{
    std::vector<Rgb> line(std::size_t(count + 2 * radius + 1));
    for (int i = 0; i < int(line.size()); ++i)
        line[std::size_t(i)] = first[std::clamp(i - radius, 0, count - 1) * stride];
    Rgb sum;
    for (int i = 0; i < 2 * radius; ++i)
        sum = sum + line[std::size_t(i)];
    for (int i = 0; i < count; ++i) {
        sum = sum + line[std::size_t(i + 2 * radius)];
        first[i * stride] = sum * (1.0f / float(2 * radius + 1));
        sum = sum + line[std::size_t(i)] * -1;
    }
}

void blur(std::vector<Rgb> &light, int columns, int rows, int radius)
{
    for (int pass = 0; pass < 3; ++pass) {
        for (int row = 0; row < rows; ++row)
            blurLine(&light[std::size_t(row) * std::size_t(columns)], columns, 1, radius);
        for (int column = 0; column < columns; ++column)
            blurLine(&light[std::size_t(column)], rows, columns, radius);
    }
}

/// Bends the highlights over instead of cutting them, and answers 0 to 255.
float toned(float light)
{
    const float curved = light < 0.75f ? light : 0.75f + 0.25f * (1 - std::exp((0.75f - light) * 4));
    return 255 * std::clamp(curved, 0.0f, 1.0f);
}

} // namespace

Film::Film(int width, int height)
    : m_columns(2 * width), m_rows(2 * height), m_light(std::size_t(m_columns) * std::size_t(m_rows))
{
}

Rgb Film::lightAt(float x, float y) const
{
    const float column = std::clamp(x * float(m_rows) - 0.5f, 0.0f, float(m_columns - 2));
    const float row = std::clamp(y * float(m_rows) - 0.5f, 0.0f, float(m_rows - 2));
    const Rgb *corner = &m_light[std::size_t(row) * std::size_t(m_columns) + std::size_t(column)];
    const float u = column - std::floor(column), v = row - std::floor(row);
    return mix(mix(corner[0], corner[1], u), mix(corner[m_columns], corner[m_columns + 1], u), v);
}

void Film::expose(const std::function<Rgb(float x, float y)> &light)
{
    for (int row = 0; row < m_rows; ++row) {
        for (int column = 0; column < m_columns; ++column)
            at(column, row) =
                light((float(column) + 0.5f) / float(m_rows), (float(row) + 0.5f) / float(m_rows));
    }
}

void Film::bloom(float threshold, float radius, float strength)
{
    std::vector<Rgb> bright = m_light;
    for (Rgb &light : bright)
        light = light * step(threshold, threshold + 0.2f, light.brightness());
    blur(bright, m_columns, m_rows, std::max(1, int(radius * float(m_rows))));
    for (std::size_t i = 0; i < m_light.size(); ++i)
        m_light[i] = m_light[i] + bright[i] * strength;
}

QImage Film::develop(float grain, std::uint32_t seed) const
{
    QImage image(m_columns / 2, m_rows / 2, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const Rgb *corner = &m_light[std::size_t(2 * y) * std::size_t(m_columns) + std::size_t(2 * x)];
            const Rgb light = (corner[0] + corner[1] + corner[m_columns] + corner[m_columns + 1]) * 0.25f;
            const float u = float(x) / float(image.width()) - 0.5f,
                        v = float(y) / float(image.height()) - 0.5f;
            const float lens = 1 - 0.5f * (u * u + v * v);
            const float fine =
                randomOf(x, y, seed) + randomOf(x, y, seed + 1) + randomOf(x, y, seed + 2) - 1.5f;
            const float dust = grain * (fine + noise(float(x) * 0.4f, float(y) * 0.4f, seed + 3));
            const auto level = [&](float value) {
                return int(std::clamp(toned(value * lens) + dust, 0.0f, 255.0f));
            };
            image.setPixel(x, y, qRgb(level(light.red), level(light.green), level(light.blue)));
        }
    }
    return image;
}

} // namespace samples
