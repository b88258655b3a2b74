#pragma once

#include <QSize>

namespace platform {

/// A picture inside a block of metadata: the bytes it takes up and what may take their place, so that every
/// other byte and every offset in the block stays right.
struct PictureSlot {
    /// In the order in which slots are filled: where some overlap, a picture lies over what was blanked.
    enum class Fill { Zeros, Spaces, Pixels, Jpeg };

    /// Longer sides no thumbnail or preview has, and filling them would only cost memory.
    static constexpr int LargestSide = 8192;

    Fill fill = Fill::Zeros;
    qsizetype begin = 0;
    qsizetype length = 0;
    /// Of the picture that may stand in, in pixels; empty where only blanking is possible.
    QSize size;

    bool operator==(const PictureSlot &) const = default;
};

} // namespace platform
