#include "platform/metadata/PictureFiles.h"

#include <algorithm>
#include <QtEndian>

namespace platform {

namespace {

/// A length and the four letters of a type; boxes and the chunks of PNG files begin with both.
constexpr qsizetype HeadLength = 8;

bool holds(QByteArrayView bytes, qsizetype at, qsizetype length)
{
    return at >= 0 && length <= bytes.size() - at;
}

quint32 bigEndian(QByteArrayView bytes, qsizetype at)
{
    return qFromBigEndian<quint32>(bytes.data() + at);
}

bool isType(QByteArrayView type)
{
    return std::all_of(type.begin(), type.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

// The end of a file that begins at a position, which may lie behind the last byte; -1 when none does. What
// stands behind the file is no part of it, so nothing is taken for one that does not look it.

qsizetype endOfPng(QByteArrayView bytes, qsizetype begin)
{
    constexpr qsizetype signatureLength = 8;
    constexpr qsizetype checksumLength = 4;
    qsizetype at = begin + signatureLength;
    while (holds(bytes, at, HeadLength) && isType(bytes.sliced(at + 4, 4))) {
        const bool isLast = bytes.sliced(at + 4, 4) == "IEND";
        at += HeadLength + qsizetype(bigEndian(bytes, at)) + checksumLength;
        if (isLast)
            break;
    }
    return at;
}

qsizetype endOfWebP(QByteArrayView bytes, qsizetype begin)
{
    if (!holds(bytes, begin, 12) || bytes.sliced(begin + 8, 4) != "WEBP")
        return -1;
    return begin + HeadLength + qsizetype(qFromLittleEndian<quint32>(bytes.data() + begin + 4));
}

/// Behind a chain of short blocks, each with its length before it, which ends with one of no length.
qsizetype endOfSubBlocks(QByteArrayView bytes, qsizetype at)
{
    while (holds(bytes, at, 1) && bytes[at] != 0)
        at += 1 + quint8(bytes[at]);
    return at + 1;
}

qsizetype tableLength(char flags)
{
    return flags & 0x80 ? qsizetype(3) << ((flags & 7) + 1) : 0;
}

qsizetype endOfGif(QByteArrayView bytes, qsizetype begin)
{
    constexpr qsizetype headerLength = 13;
    constexpr qsizetype imageHeaderLength = 10;
    if (!holds(bytes, begin, headerLength))
        return -1;
    const qsizetype first = begin + headerLength + tableLength(bytes[begin + 10]);
    qsizetype at = first;
    while (holds(bytes, at, imageHeaderLength)) {
        if (bytes[at] == '!')
            at = endOfSubBlocks(bytes, at + 2);
        else if (bytes[at] == ',')
            at = endOfSubBlocks(bytes, at + imageHeaderLength + tableLength(bytes[at + 9]) + 1);
        else
            break;
    }
    return at == first ? -1 : at + 1;
}

/// The boxes that pixels stand in. They alone are so long that a file may break off inside of one.
bool holdsPixels(QByteArrayView type)
{
    return type == "mdat" || type == "jp2c" || type == "jxlc" || type == "jxlp";
}

/// Boxes follow each other, and nothing tells which is the last but that no other begins behind it.
qsizetype endOfBoxes(QByteArrayView bytes, qsizetype begin)
{
    constexpr quint32 longestFirst = 4096;
    qsizetype at = begin;
    while (holds(bytes, at, HeadLength)) {
        const QByteArrayView type = bytes.sliced(at + 4, 4);
        const quint32 length = bigEndian(bytes, at);
        // Such a length stands for another of eight bytes, or for all that is left.
        if (length <= 1 && holdsPixels(type))
            return bytes.size();
        const bool fits = length >= HeadLength && (holds(bytes, at, length) || holdsPixels(type));
        if (!fits || !isType(type) || (at == begin && length > longestFirst))
            break;
        at += length;
    }
    return at;
}

struct Format {
    QByteArrayView mark;
    /// Where in the file the mark stands.
    qsizetype offset;
    qsizetype (*end)(QByteArrayView bytes, qsizetype begin);
};

constexpr Format Formats[] = {
    {QByteArrayView("\x89PNG\r\n\x1A\n", 8), 0, endOfPng},
    {QByteArrayView("RIFF", 4), 0, endOfWebP},
    {QByteArrayView("GIF87a", 6), 0, endOfGif},
    {QByteArrayView("GIF89a", 6), 0, endOfGif},
    {QByteArrayView("ftyp", 4), 4, endOfBoxes},
    {QByteArrayView("\0\0\0\x0CjP  \r\n", 10), 0, endOfBoxes},
    {QByteArrayView("\0\0\0\x0CJXL \r\n", 10), 0, endOfBoxes},
};

} // namespace

std::vector<ByteRange> findPictureFiles(QByteArrayView bytes)
{
    std::vector<ByteRange> found;
    for (const Format &format : Formats) {
        qsizetype at = bytes.indexOf(format.mark);
        while (at >= 0) {
            const qsizetype begin = at - format.offset;
            const qsizetype end = begin < 0 ? -1 : std::min(format.end(bytes, begin), bytes.size());
            if (end > begin)
                found.push_back({begin, end - begin});
            at = bytes.indexOf(format.mark, std::max(at + 1, end));
        }
    }
    return found;
}

} // namespace platform
