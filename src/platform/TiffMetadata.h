#pragma once

#include "platform/CarriedMetadata.h"

class QIODevice;

namespace platform {

/// Writes an encoded TIFF file of one picture with metadata put into it. The file begins with the EXIF block
/// as it is, so that every offset in it holds, maker notes included; the encoded file follows, unchanged but
/// for where its pixels are said to be. Pictures in the metadata and tags about the pixels of the source stay
/// behind; the colour profile stays.
///
/// Answers false, with nothing written, for what is no TIFF or would grow beyond the four gigabytes of one.
/// Errors of the device are the caller's to look at.
bool writeTiffWithMetadata(const QByteArray &tiff, const CarriedMetadata &metadata, QIODevice &target);

} // namespace platform
