#pragma once

#include "platform/Vips.h"

namespace platform {

/// The picture of a JPEG file, with what libvips has read in its header, decoded straight into the strips
/// that are asked for: libvips' own loader hands each one on through two buffers, which costs a fifth of the
/// decoding. It has to be asked for from top to bottom; an error, damage and a file that breaks off are told
/// in the loader's words. Nothing for pictures that are not stored as 8-bit colour in a single pass; these
/// are the loader's.
VipsImagePtr openJpegStrips(const QString &path, VipsImage *header);

} // namespace platform
