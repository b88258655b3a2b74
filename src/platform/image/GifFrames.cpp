#include "platform/image/GifFrames.h"

#include <QFile>

namespace platform {

namespace {

/// The colours behind a block of flags that tells of them.
bool skipColors(QIODevice &file, uchar flags)
{
    const qint64 length = flags & 0x80 ? 3 * (qint64(2) << (flags & 7)) : 0;
    return file.skip(length) == length;
}

bool skipSubBlocks(QIODevice &file)
{
    for (char length = 0; file.getChar(&length);) {
        if (length == 0)
            return true;
        if (file.skip(uchar(length)) != uchar(length))
            return false;
    }
    return false;
}

bool skipFrame(QIODevice &file)
{
    constexpr qint64 placeAndSize = 8;
    char flags = 0;
    return file.skip(placeAndSize) == placeAndSize && file.getChar(&flags) &&
           skipColors(file, uchar(flags)) && file.skip(1) == 1 && skipSubBlocks(file);
}

} // namespace

int gifFrameCount(const QString &path)
{
    constexpr char frame = 0x2C;
    constexpr char extension = 0x21;
    QFile file(path);
    const QByteArray head = file.open(QIODevice::ReadOnly) ? file.read(13) : QByteArray();
    if (!head.startsWith("GIF8") || head.size() < 13 || !skipColors(file, uchar(head[10])))
        return 0;
    int count = 0;
    for (char kind = 0; file.getChar(&kind);) {
        if (kind == extension ? file.skip(1) != 1 || !skipSubBlocks(file) : kind != frame || !skipFrame(file))
            break;
        count += kind == frame;
    }
    return count;
}

} // namespace platform
