#include "platform/metadata/TiffMetadata.h"

#include "platform/image/TiffDirectoryWriter.h"
#include "platform/image/TiffFile.h"
#include "platform/image/TiffStructure.h"
#include "platform/image/TiffTags.h"
#include "platform/metadata/Exiv2Library.h"
#include "platform/metadata/PhotoshopResources.h"

#include <algorithm>
#include <limits>

namespace platform {

namespace {

/// Of the tags of TIFF itself, those that tell of the photo and not of how its pixels are stored.
constexpr quint16 CarriedBaselineTags[] = {
    tifftag::DocumentName, tifftag::ImageDescription, tifftag::Make,           tifftag::Model,
    tifftag::Orientation,  tifftag::XResolution,      tifftag::YResolution,    tifftag::PageName,
    tifftag::Software,     tifftag::DateTime,         tifftag::ResolutionUnit, tifftag::Artist,
    tifftag::HostComputer};

bool isCarried(quint16 tag)
{
    constexpr quint16 firstOtherTag = 0x1000;
    if (tag >= firstOtherTag)
        return tag != tifftag::IptcRecord && tag != tifftag::ResourcesOfPhotoshop &&
               tag != tifftag::ColorProfile;
    return std::find(std::begin(CarriedBaselineTags), std::end(CarriedBaselineTags), tag) !=
           std::end(CarriedBaselineTags);
}

qsizetype even(qsizetype length)
{
    return length + length % 2;
}

QByteArray padded(QByteArray bytes)
{
    return bytes.append(even(bytes.size()) - bytes.size(), '\0');
}

QByteArray turned(QByteArray value, qsizetype unit)
{
    for (qsizetype at = 0; at + unit <= value.size(); at += unit)
        std::reverse(value.begin() + at, value.begin() + at + unit);
    return value;
}

/// The entries of the encoded file, whose bytes stand at `origin`.
void addPixelEntries(TiffDirectoryWriter &writer, const TiffFile &tiff, const TiffFile::Directory &directory,
                     quint32 origin)
{
    for (const TiffFile::Entry &entry : directory.entries) {
        QByteArray value = entry.value;
        if (entry.tag == tifftag::StripOffsets || entry.tag == tifftag::TileOffsets) {
            value.clear();
            for (const quint32 position : tiff.numbers(directory, entry.tag))
                value += writer.number(origin + position);
            writer.set(entry.tag, TiffStructure::Long, entry.count, value);
            continue;
        }
        if (tiff.isBigEndian() != writer.isBigEndian())
            value = turned(value, TiffStructure::unitLength(entry.type));
        writer.set(entry.tag, entry.type, entry.count, value);
    }
}

/// The entries of the EXIF block's first directory, which leads on to the others.
void addExifEntries(TiffDirectoryWriter &writer, QByteArrayView bytes, const TiffStructure &exif)
{
    const auto directory = exif.directoryAt(exif.firstDirectory());
    if (!directory)
        return;
    for (const TiffStructure::Entry &entry : directory->entries) {
        if (!isCarried(entry.tag))
            continue;
        if (entry.length > 4)
            writer.setReference(entry.tag, entry.type, entry.count, quint32(entry.position));
        else
            writer.set(entry.tag, entry.type, entry.count,
                       bytes.sliced(entry.position, entry.length).toByteArray());
    }
}

/// One packet of all: where JPEG needs extensions, TIFF has room, and nothing reads extensions there.
QByteArray joinedXmp(const std::vector<QByteArray> &packets)
try {
    if (packets.size() < 2)
        return packets.empty() ? QByteArray() : packets.front();
    initializeExiv2();
    Exiv2::XmpData whole;
    for (const QByteArray &packet : packets) {
        Exiv2::XmpData part;
        Exiv2::XmpParser::decode(part, packet.toStdString());
        for (const Exiv2::Xmpdatum &datum : part) {
            if (datum.key() != "Xmp.xmpNote.HasExtendedXMP")
                whole.add(datum);
        }
    }
    std::string result;
    Exiv2::XmpParser::encode(result, whole);
    return QByteArray::fromStdString(result);
} catch (const std::exception &) {
    return packets.front();
}

QByteArray iptcRecord(const QByteArray &resources)
{
    // Some programs add a record of their own beside another's; they go on in one another.
    QByteArray record;
    for (const PhotoshopResource &resource : readPhotoshopResources(resources)) {
        if (resource.id == PhotoshopResource::Iptc)
            record += resources.sliced(resource.begin, resource.length);
    }
    return record;
}

void addBytes(TiffDirectoryWriter &writer, quint16 tag, const QByteArray &value)
{
    if (!value.isEmpty())
        writer.set(tag, TiffStructure::Byte, quint32(value.size()), value);
}

/// Readers expect the record as long numbers, though its bytes keep their order.
void addIptc(TiffDirectoryWriter &writer, QByteArray record)
{
    constexpr qsizetype unit = 4;
    record.append((unit - record.size() % unit) % unit, '\0');
    if (!record.isEmpty())
        writer.set(tifftag::IptcRecord, TiffStructure::Long, quint32(record.size() / unit), record);
}

} // namespace

TiffMetadata::TiffMetadata(const CarriedMetadata &metadata)
    : m_head(padded(metadata.exif()))
    , m_xmp(joinedXmp(metadata.xmpPackets()))
    , m_resources(metadata.photoshopResources())
{
    if (!TiffStructure::read(m_head))
        m_head = QByteArray("II*\0\0\0\0\0", 8);
}

qsizetype TiffMetadata::length() const
{
    // Room for the directory and, a second time, what Photoshop's resources hold.
    constexpr qsizetype directory = 1 << 20;
    return m_head.size() + m_xmp.size() + 2 * m_resources.size() + directory;
}

bool TiffMetadata::finish(std::shared_ptr<QIODevice> written, QIODevice &target) const
{
    constexpr qint64 firstDirectoryField = 4;
    const qint64 length = written->size();
    std::optional<TiffFile> pixels = TiffFile::read(std::move(written), m_head.size());
    const auto pixelDirectory = pixels ? pixels->directoryAt(pixels->firstDirectory()) : std::nullopt;
    if (!pixelDirectory)
        return false;
    const TiffStructure exif = *TiffStructure::read(m_head);
    TiffDirectoryWriter writer(exif.isBigEndian());
    addPixelEntries(writer, *pixels, *pixelDirectory, quint32(m_head.size()));
    addExifEntries(writer, m_head, exif);
    addBytes(writer, tifftag::XmpPacket, m_xmp);
    addBytes(writer, tifftag::ResourcesOfPhotoshop, m_resources);
    addIptc(writer, iptcRecord(m_resources));

    const qint64 position = even(length);
    const QByteArray directory = writer.bytes(quint32(position));
    if (position + directory.size() > qint64(std::numeric_limits<quint32>::max()))
        return false;
    target.seek(length);
    target.write(QByteArray(position - length, '\0') + directory);
    target.seek(firstDirectoryField);
    target.write(writer.number(quint32(position)));
    return true;
}

} // namespace platform
