#pragma once

#include <QImage>
#include <QSize>

namespace platform {

/// The steps from a decoded picture to a small upright one. Pure.

/// The size that a picture is reduced to so that its longest side is no longer than `longestSide`; never 0.
QSize thumbnailSize(QSize size, int longestSide);
/// The picture as the orientation tag wants it seen, 1 to 8 in the numbering that cameras use.
QImage upright(const QImage &image, int orientation);

} // namespace platform
