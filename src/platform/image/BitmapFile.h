#pragma once

#include "platform/image/Vips.h"

#include <optional>
#include <QSize>
#include <QString>

namespace platform {

/// What the header of a Windows bitmap tells: the rows stand from the bottom up as a rule.
struct BitmapLayout {
    qint64 width = 0;
    qint64 height = 0;
    bool isFromTop = false;
    int bits = 0;
    bool isCompressed = false;
    /// Without masks of its own.
    bool isPlainHeader = false;
    qint64 pixels = 0;
    /// How long compressed pixels are shows when they are read; the header tells it, too.
    qint64 toldLength = 0;

    QSize size() const { return {int(width), int(height)}; }
    qint64 rowLength() const { return (width * bits + 31) / 32 * 4; }
    bool isWholeIn(qint64 fileLength) const;
    /// The common kinds, 24 and 32 bits without compression, are; the toolkit reads the others, whole.
    bool isReadInStrips() const { return isPlainHeader && !isCompressed && (bits == 24 || bits == 32); }
};

/// Nothing for what is no bitmap, or breaks off.
std::optional<BitmapLayout> readBitmapLayout(const QString &path);
/// The picture of a bitmap file, which libvips reads only through a library that would also read hundreds of
/// other things.
VipsImagePtr openBitmapFile(const QString &path, const BitmapLayout &layout);

} // namespace platform
