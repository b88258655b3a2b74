#pragma once

#include "platform/image/JpegOptions.h"
#include "platform/image/Vips.h"

#include <QByteArray>

class QIODevice;

namespace platform {

/// Runs a three-band 8-bit sRGB picture through the JPEG encoder. The file holds an sRGB profile, and the
/// density of the picture in its JFIF header. Answers no bytes when the picture could not be computed;
/// `takeVipsError()` tells why.
QByteArray encodeJpeg(VipsImage *image, const JpegOptions &options);
/// The same straight into a device, from where it stands; answers whether it worked.
bool encodeJpeg(VipsImage *image, const JpegOptions &options, QIODevice &to);

} // namespace platform
