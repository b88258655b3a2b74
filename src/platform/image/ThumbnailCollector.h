#pragma once

#include <QImage>
#include <QPoint>
#include <QSize>
#include <vector>

namespace platform {

/// Makes a small copy of a picture while the picture streams by, from a grid of samples. Strips are RGB888 or
/// RGBA8888, may come in any order, and must not overlap. One thread.
class ThumbnailCollector {
public:
    /// Collects nothing for an empty `thumbnail`.
    ThumbnailCollector(const QSize &picture, const QSize &thumbnail);

    void add(const QImage &strip, const QPoint &origin);
    /// RGB888; transparent parts are black.
    QImage thumbnail() const;

private:
    struct Sums {
        unsigned red = 0;
        unsigned green = 0;
        unsigned blue = 0;
    };

    void addRow(const uchar *row, int bytesPerPixel, const QImage &strip, int left, int sampleRow);

    QSize m_size;
    /// Where the samples lie in the picture, rising.
    std::vector<int> m_columns;
    std::vector<int> m_rows;
    std::vector<Sums> m_sums;
};

} // namespace platform
