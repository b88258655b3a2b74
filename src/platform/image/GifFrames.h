#pragma once

#include <QString>

namespace platform {

/// How many frames a GIF file holds, counted by their headers, as far as the file goes; 0 for any other file.
/// Decoders stop counting at some thousands.
int gifFrameCount(const QString &path);

} // namespace platform
