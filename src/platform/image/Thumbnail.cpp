#include "platform/image/Thumbnail.h"

#include <algorithm>
#include <cmath>
#include <QTransform>

namespace platform {

QSize thumbnailSize(QSize size, int longestSide)
{
    const double scale = std::min(1.0, double(longestSide) / std::max(size.width(), size.height()));
    return {std::max(1, int(std::rint(size.width() * scale))),
            std::max(1, int(std::rint(size.height() * scale)))};
}

QImage upright(const QImage &image, int orientation)
{
    const bool mirrored = orientation == 2 || orientation == 4 || orientation == 5 || orientation == 7;
    constexpr int quarterTurns[] = {0, 0, 0, 2, 2, 3, 1, 1, 3};
    const int turns = orientation >= 1 && orientation <= 8 ? quarterTurns[orientation] : 0;
    const QImage facing = mirrored ? image.mirrored(true, false) : image;
    return turns == 0 ? facing : facing.transformed(QTransform().rotate(90 * turns));
}

} // namespace platform
