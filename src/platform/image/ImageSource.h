#pragma once

#include "platform/image/DecodingReport.h"
#include "platform/image/Vips.h"

#include <memory>
#include <QSize>
#include <QString>

namespace platform {

/// Opens one frame of a picture file for reading from top to bottom, as stored, its header read and its
/// pixels not yet. The format is told from the contents. A decoder that can reduce while it decodes does so
/// as long as the picture stays at least twice as large as `wanted`; an empty `wanted` asks for the full
/// size. Nothing is answered for a file that is no picture of a known format; `takeVipsError()` tells why. A
/// file that is damaged or breaks off fails while its pixels are read; the report tells why or, where it is
/// empty, `takeVipsError()`. Several frames, which must be alike, come as one picture, one below the other.
VipsImagePtr openImageSource(const QString &path, int frame = 0, QSize wanted = {}, int frames = 1,
                             std::shared_ptr<DecodingReport> report = {});

} // namespace platform
