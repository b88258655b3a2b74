#include "platform/metadata/MetadataBlobs.h"

#include "platform/image/ImageSource.h"
#include "platform/image/TiffStructure.h"
#include "platform/image/TiffTags.h"
#include "platform/metadata/Exiv2Library.h"

#include <QFile>
#include <QRegularExpression>
#include <QtEndian>

namespace platform {

namespace {

QByteArray xmpPacket(VipsImage *image)
{
    QByteArray packet = attachedBytes(image, VIPS_META_XMP_NAME).toByteArray();
    gchar **fields = vips_image_get_fields(image);
    // The HEIF loader knows the type of the block and not what it is for.
    for (gchar **field = fields; packet.isEmpty() && *field; ++field) {
        const QByteArrayView data =
            QByteArrayView(*field).startsWith("heif-mime-") ? attachedBytes(image, *field) : QByteArrayView();
        if (data.contains("adobe:ns:meta/"))
            packet = data.toByteArray();
    }
    g_strfreev(fields);
    return packet;
}

/// Decoders put the identifier of a JPEG segment before the header, or leave the one that stood in the file.
QByteArray fromTiffHeader(QByteArrayView exif)
{
    constexpr qsizetype longestPrefix = 16;
    for (qsizetype at = 0; at < std::min(longestPrefix, exif.size()); ++at) {
        if (TiffStructure::read(exif.sliced(at)))
            return exif.sliced(at).toByteArray();
    }
    return {};
}

bool turnsPixels(VipsImage *image)
{
    const char *loader = nullptr;
    if (vips_image_get_typeof(image, VIPS_META_LOADER) == 0 ||
        vips_image_get_string(image, VIPS_META_LOADER, &loader) != 0)
        return false;
    const QByteArrayView name(loader);
    return name.startsWith("heifload") || name.startsWith("jxlload");
}

QByteArray uprightExif(QByteArray exif)
{
    const std::optional<TiffStructure> tiff = TiffStructure::read(exif);
    if (!tiff)
        return exif;
    const bool bigEndian = tiff->isBigEndian();
    for (const TiffStructure::Directory &directory : tiff->chain()) {
        const TiffStructure::Entry *entry = directory.find(tifftag::Orientation);
        if (!entry || entry->type != TiffStructure::Short)
            continue;
        const quint16 upright = bigEndian ? qToBigEndian<quint16>(1) : qToLittleEndian<quint16>(1);
        exif.replace(entry->position, sizeof upright, reinterpret_cast<const char *>(&upright),
                     sizeof upright);
    }
    return exif;
}

QByteArray uprightXmp(QByteArray xmp)
{
    // Latin-1 keeps positions in characters and bytes the same.
    static const QRegularExpression orientation(
        QStringLiteral("tiff:Orientation(?:\\s*=\\s*[\"']|\\s*>)\\s*([2-8])\\s*[\"'<]"));
    QRegularExpressionMatchIterator matches = orientation.globalMatch(QString::fromLatin1(xmp));
    while (matches.hasNext())
        xmp[matches.next().capturedStart(1)] = '1';
    return xmp;
}

QByteArray encoded(Exiv2::ExifData &exif)
{
    Exiv2::Blob result;
    if (!exif.empty())
        Exiv2::ExifParser::encode(result, Exiv2::littleEndian, exif);
    return {reinterpret_cast<const char *>(result.data()), qsizetype(result.size())};
}

QByteArray encoded(const Exiv2::XmpData &xmp)
{
    std::string packet;
    if (!xmp.empty())
        Exiv2::XmpParser::encode(packet, xmp);
    return QByteArray::fromStdString(packet);
}

QByteArray encoded(const Exiv2::IptcData &iptc)
{
    if (iptc.empty())
        return {};
    const Exiv2::DataBuf resources = Exiv2::Photoshop::setIptcIrb(nullptr, 0, iptc);
    return {reinterpret_cast<const char *>(resources.pData_), qsizetype(resources.size_)};
}

MetadataBlobs parsedMetadata(const QString &path)
try {
    initializeExiv2();
    const auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
    image->readMetadata();
    return {encoded(image->exifData()), encoded(image->xmpData()), encoded(image->iptcData())};
} catch (const std::exception &) {
    return {};
}

} // namespace

MetadataBlobs metadataOfDecoder(VipsImage *image)
{
    return {fromTiffHeader(attachedBytes(image, VIPS_META_EXIF_NAME)), xmpPacket(image), {}};
}

MetadataBlobs readMetadataBlobs(const QString &path)
{
    const VipsImagePtr image = openImageSource(path);
    MetadataBlobs blobs = image ? metadataOfDecoder(image.get()) : MetadataBlobs();
    if (!image)
        takeVipsError();
    if (blobs.exif.isEmpty()) {
        const MetadataBlobs parsed = parsedMetadata(path);
        blobs.exif = parsed.exif;
        blobs.photoshop = parsed.photoshop;
        if (blobs.xmp.isEmpty())
            blobs.xmp = parsed.xmp;
    }
    if (image && turnsPixels(image.get())) {
        blobs.exif = uprightExif(blobs.exif);
        blobs.xmp = uprightXmp(blobs.xmp);
    }
    return blobs;
}

QByteArray reducedExif(const QByteArray &exif)
try {
    initializeExiv2();
    Exiv2::ExifData data;
    Exiv2::ExifParser::decode(data, reinterpret_cast<const Exiv2::byte *>(exif.constData()),
                              uint32_t(exif.size()));
    return encoded(data);
} catch (const std::exception &) {
    return {};
}

} // namespace platform
