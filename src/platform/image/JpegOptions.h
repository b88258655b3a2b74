#pragma once

#include <QSize>

namespace platform {

/// How a JPEG is encoded. `quality` is 1 to 100.
struct JpegOptions {
    int quality = 75;
    /// Luma samples for one chroma sample, across and down: (2, 2) is 4:2:0.
    QSize chromaSampling = {2, 2};
};

} // namespace platform
