#pragma once

#include <optional>
#include <QImage>
#include <QSize>
#include <QString>

namespace platform {

/// What the header of a picture file tells, in pixels as stored: the orientation tag is not applied.
struct ImageHeader {
    QSize size;
    int frames = 1;
    /// Whether showing the picture upright swaps its width and height.
    bool turnsSideways = false;
};

/// Reading of raster files, by content and never by name. All functions answer nothing for a file that cannot
/// be read, and put a sentence for the user into `reason` when given. They may run on any thread. Decoded
/// pictures are sRGB, 8 bits a channel, RGB32 or premultiplied ARGB32.

/// Whether the file's contents are of a format that can be decoded.
bool isDecodableImage(const QString &path);
/// Why a file is not decoded although its format is known, in a sentence for the user; empty for any other.
QString refusalOfImage(const QString &path);
std::optional<ImageHeader> readImageHeader(const QString &path, QString *reason = nullptr, int frame = 0);
/// One frame at full size, as stored.
QImage decodeImage(const QString &path, int frame = 0);
/// One frame, upright, reduced to the longest side in pixels where it is larger.
QImage decodeThumbnail(const QString &path, int longestSide, int frame = 0);

} // namespace platform
