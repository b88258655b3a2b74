#pragma once

#include <QImage>
#include <QString>

namespace platform {

/// A file's picture from the desktop's shared thumbnail cache, at least as long as the side in pixels; null
/// when there is none that is as new as the file. Reads only. Any thread.
QImage cachedThumbnail(const QString &path, int side);

} // namespace platform
