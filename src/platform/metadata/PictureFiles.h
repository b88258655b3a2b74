#pragma once

#include <QByteArrayView>
#include <vector>

namespace platform {

/// A part of a run of bytes, by its position there.
struct ByteRange {
    qsizetype begin = 0;
    qsizetype length = 0;
};

/// Whole picture files among other bytes, by the marks that they begin with and the lengths that they tell of
/// themselves: PNG, GIF, WebP, and what is made of boxes, which is HEIF, AVIF, JPEG 2000 and JPEG XL. One
/// that breaks off ends with the run. Garbage is answered with few or none.
std::vector<ByteRange> findPictureFiles(QByteArrayView bytes);

} // namespace platform
