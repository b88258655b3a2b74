#pragma once

#include <QImage>

namespace platform {

/// Blurs of 8-bit masks (Format_Alpha8). What lies outside a mask counts as empty. No size is changed: a
/// caller leaves margins where the blur is to spread into.

/// The mean over a square of `side` pixels. Of an even side the odd pixel lies to the right and below, so
/// that the result stands where a picture grown by (side − 1) / 2 to the left and above would. A side below 2
/// changes nothing.
QImage boxBlurred(const QImage &mask, int side);

/// Close to a Gaussian of the given standard deviation in pixels: three boxes in a row.
QImage gaussianBlurred(const QImage &mask, double deviation);
/// How far such a blur reaches, in pixels.
int gaussianReach(double deviation);

/// A premultiplied picture of one colour with the mask as its coverage.
QImage tinted(const QImage &mask, const QColor &color);

} // namespace platform
