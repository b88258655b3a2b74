#pragma once

#include "platform/image/Vips.h"

#include <QImage>

namespace platform {

/// A copy of a picture in libvips' memory: sRGB, three bands, or four when it has transparency, not
/// premultiplied. Nothing for a null picture.
VipsImagePtr vipsImageFrom(const QImage &image);

} // namespace platform
