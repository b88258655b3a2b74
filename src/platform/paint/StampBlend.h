#pragma once

#include <QImage>
#include <QPoint>

namespace platform {

/// Lays a premultiplied picture over an RGB888 one, pixel on pixel, its corner at `place` in the lower
/// picture's pixels; `alpha` is 0 to 1. The painter of the toolkit would convert every pixel of the lower
/// picture there and back, which for marks that cover a whole photo takes longer than decoding it.
void blendOntoRGB888(QImage &lower, const QPoint &place, const QImage &stamp, double alpha);

} // namespace platform
