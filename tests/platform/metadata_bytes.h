#pragma once

#include "platform/image/TiffDirectoryWriter.h"
#include "platform/image/TiffStructure.h"
#include "platform/metadata/CarriedMetadata.h"
#include "platform/metadata/JpegFile.h"
#include "platform/metadata/StandInPicture.h"

#include <QCryptographicHash>

/// Small files and blocks of metadata, put together byte by byte.
namespace bytes {

inline QByteArray bigEndian(quint32 value, int length)
{
    QByteArray result;
    while (length-- > 0)
        result += char(value >> (8 * length));
    return result;
}

inline QByteArray segment(quint8 marker, const QByteArray &payload)
{
    return QByteArray("\xFF") + char(marker) + bigEndian(quint32(payload.size() + 2), 2) + payload;
}

/// A JPEG picture of one colour.
inline QByteArray jpeg(QSize size, QColor color = Qt::white)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return platform::StandInPicture(image).jpeg(size, 1 << 20);
}

inline QByteArray withSegments(const QByteArray &jpeg, const QByteArray &segments)
{
    return jpeg.first(2) + segments + jpeg.sliced(2);
}

/// Two directories behind a header and some bytes of no meaning in between, the tags of the second being a
/// thumbnail's. `note` is the maker note, and offsets of the thumbnail and the note are odd.
struct Exif {
    bool bigEndian = false;
    QByteArray note = {};
    QByteArray thumbnail = {};
    /// What the tag tells where it is not the truth.
    qsizetype toldOffset = -1;
    qsizetype toldLength = -1;

    qsizetype notePosition = 0;
    qsizetype thumbnailPosition = 0;

    QByteArray block()
    {
        using platform::TiffStructure;
        notePosition = 1025;
        thumbnailPosition = (notePosition + note.size()) | 1;
        platform::TiffDirectoryWriter first(bigEndian);
        first.set(0x0110, 2, 8, "Camera1");
        first.set(0x0112, TiffStructure::Short, 1, shortNumber(6));
        first.set(0x8769, TiffStructure::Long, 1, first.number(512));
        platform::TiffDirectoryWriter exif(bigEndian);
        exif.set(0x829A, 5, 1, exif.number(1) + exif.number(250));
        exif.setReference(0x927C, 7, quint32(note.size()), quint32(notePosition));
        platform::TiffDirectoryWriter second(bigEndian);
        second.set(0x0201, TiffStructure::Long, 1, number(toldOffset < 0 ? thumbnailPosition : toldOffset));
        second.set(0x0202, TiffStructure::Long, 1, number(toldLength < 0 ? thumbnail.size() : toldLength));
        QByteArray result(thumbnailPosition, '\x11');
        put(result, 0, (bigEndian ? QByteArray("MM\0*", 4) : QByteArray("II*\0", 4)) + number(8));
        put(result, 8, linked(first.bytes(8), 3, 768));
        put(result, 512, exif.bytes(512));
        put(result, 768, second.bytes(768));
        put(result, notePosition, note);
        return result + thumbnail + "the end";
    }

    QByteArray number(qsizetype value) const
    {
        return platform::TiffDirectoryWriter(bigEndian).number(quint32(value));
    }
    QByteArray shortNumber(int value) const
    {
        return bigEndian ? number(value).last(2) : number(value).first(2);
    }
    static void put(QByteArray &into, qsizetype at, const QByteArray &part)
    {
        into.replace(at, part.size(), part);
    }

private:
    QByteArray linked(QByteArray directory, int entries, qsizetype next) const
    {
        put(directory, 2 + entries * 12, number(next));
        return directory;
    }
};

inline QByteArray exifSegment(const QByteArray &block)
{
    return segment(0xE1, QByteArray("Exif\0\0", 6) + block);
}

inline QByteArray xmpSegment(const QByteArray &packet)
{
    return segment(0xE1, QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + packet);
}

inline QByteArray md5(const QByteArray &text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex().toUpper();
}

/// A part of an extension, by its signature.
inline QByteArray xmpExtension(const QByteArray &signature, const QByteArray &whole, qsizetype begin = 0,
                               qsizetype length = -1)
{
    return segment(0xE1, QByteArray("http://ns.adobe.com/xmp/extension/\0", 35) + signature +
                             bigEndian(quint32(whole.size()), 4) + bigEndian(quint32(begin), 4) +
                             whole.mid(begin, length));
}

inline QByteArray photoshopSegment(const QByteArray &part)
{
    return segment(0xED, QByteArray("Photoshop 3.0\0", 14) + part);
}

inline QByteArray resource(quint16 id, const QByteArray &data)
{
    const QByteArray name = QByteArray("\4name\0", 6);
    return "8BIM" + bigEndian(id, 2) + name + bigEndian(quint32(data.size()), 4) + data +
           QByteArray(data.size() % 2, '\0');
}

inline platform::CarriedMetadata carried(const QByteArray &segments)
{
    return platform::CarriedMetadata::ofJpeg(
        *platform::JpegFile::fromBytes(withSegments("\xFF\xD8\xFF\xD9", segments)));
}

} // namespace bytes
