#pragma once

#include "platform/image/DecodingReport.h"
#include "platform/image/Vips.h"

#include <memory>
#include <QString>

namespace platform {

/// The picture of a JPEG file, with what libvips has read in its header, decoded straight into the strips
/// that are asked for, and reduced by 1, 2, 4 or 8. libvips' own loader hands each strip on through two
/// buffers, which costs a fifth of the decoding, and of the decoder's warnings it hears no more than their
/// number. Strips have to be asked for from top to bottom, unless `buffered`.
///
/// Reading fails where any part of the picture is damaged or missing, and the report tells why. Nothing is
/// answered for kinds of colour that the decoder does not name.
VipsImagePtr openJpegStrips(const QString &path, VipsImage *header, int shrink, bool buffered,
                            std::shared_ptr<DecodingReport> report);

} // namespace platform
