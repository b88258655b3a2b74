#include "platform/image/ThumbnailCollector.h"

#include <algorithm>

namespace platform {

namespace {

/// Samples across and down in each pixel of the thumbnail.
constexpr int samples = 4;

std::vector<int> samplePositions(int length, int pixels)
{
    std::vector<int> positions(size_t(pixels) * samples);
    for (size_t i = 0; i < positions.size(); ++i)
        positions[i] = int((double(i) + 0.5) * length / double(positions.size()));
    return positions;
}

} // namespace

ThumbnailCollector::ThumbnailCollector(const QSize &picture, const QSize &thumbnail)
    : m_size(picture.isEmpty() ? QSize() : thumbnail)
{
    if (m_size.isEmpty())
        return;
    m_columns = samplePositions(picture.width(), m_size.width());
    m_rows = samplePositions(picture.height(), m_size.height());
    m_sums.resize(size_t(m_size.width()) * size_t(m_size.height()));
}

void ThumbnailCollector::add(const QImage &strip, const QPoint &origin)
{
    const int bytesPerPixel = strip.depth() / 8;
    auto row = std::lower_bound(m_rows.begin(), m_rows.end(), origin.y());
    for (; row != m_rows.end() && *row < origin.y() + strip.height(); ++row)
        addRow(strip.constScanLine(*row - origin.y()), bytesPerPixel, strip, origin.x(),
               int(row - m_rows.begin()));
}

void ThumbnailCollector::addRow(const uchar *row, int bytesPerPixel, const QImage &strip, int left,
                                int sampleRow)
{
    Sums *sums = m_sums.data() + size_t(sampleRow / samples) * size_t(m_size.width());
    auto column = std::lower_bound(m_columns.begin(), m_columns.end(), left);
    for (; column != m_columns.end() && *column < left + strip.width(); ++column) {
        const uchar *pixel = row + (*column - left) * bytesPerPixel;
        const unsigned alpha = bytesPerPixel == 4 ? pixel[3] : 255;
        Sums &sum = sums[(column - m_columns.begin()) / samples];
        sum.red += pixel[0] * alpha / 255;
        sum.green += pixel[1] * alpha / 255;
        sum.blue += pixel[2] * alpha / 255;
    }
}

QImage ThumbnailCollector::thumbnail() const
{
    if (m_size.isEmpty())
        return {};
    constexpr unsigned count = samples * samples;
    QImage image(m_size, QImage::Format_RGB888);
    auto sum = m_sums.begin();
    for (int y = 0; y < image.height(); ++y) {
        uchar *pixel = image.scanLine(y);
        for (int x = 0; x < image.width(); ++x, ++sum) {
            *pixel++ = uchar(sum->red / count);
            *pixel++ = uchar(sum->green / count);
            *pixel++ = uchar(sum->blue / count);
        }
    }
    return image;
}

} // namespace platform
