#include "platform/metadata/TiffMetadata.h"

#include "platform/image/Vips.h"
#include "platform/metadata/Exiv2Library.h"
#include "platform/metadata_bytes.h"

#include <gtest/gtest.h>
#include <QBuffer>

using bytes::carried;
using platform::CarriedMetadata;
using platform::VipsImagePtr;

namespace {

/// A picture in which no two columns are alike, in tiles and with a profile.
QByteArray tiff()
{
    platform::initializeVips();
    VipsImage *slope = nullptr;
    vips_grey(&slope, 301, 300, "uchar", TRUE, nullptr);
    const VipsImagePtr image(slope);
    void *data = nullptr;
    size_t length = 0;
    vips_tiffsave_buffer(image.get(), &data, &length, "profile", "srgb", "compression",
                         VIPS_FOREIGN_TIFF_COMPRESSION_LZW, "tile", TRUE, nullptr);
    const QByteArray result(static_cast<const char *>(data), qsizetype(length));
    g_free(data);
    return result;
}

VipsImagePtr decoded(const QByteArray &file)
{
    return VipsImagePtr(vips_image_new_from_buffer(file.constData(), size_t(file.size()), "", nullptr));
}

QByteArray field(const QByteArray &file, const char *name)
{
    const void *data = nullptr;
    size_t length = 0;
    const VipsImagePtr image = decoded(file);
    EXPECT_EQ(vips_image_get_blob(image.get(), name, &data, &length), 0) << name;
    return {static_cast<const char *>(data), qsizetype(length)};
}

QByteArray pixels(const QByteArray &file)
{
    size_t length = 0;
    void *data = vips_image_write_to_memory(decoded(file).get(), &length);
    const QByteArray result(static_cast<const char *>(data), qsizetype(length));
    g_free(data);
    return result;
}

QByteArray written(const QByteArray &tiff, const CarriedMetadata &carried)
{
    const platform::TiffMetadata metadata(carried);
    const auto target = std::make_shared<QBuffer>();
    target->open(QIODevice::ReadWrite);
    target->write(metadata.head() + tiff);
    EXPECT_TRUE(metadata.finish(target, *target));
    return target->data();
}

std::unique_ptr<Exiv2::Image> opened(const QByteArray &file)
{
    platform::initializeExiv2();
    auto image =
        Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte *>(file.constData()), long(file.size()));
    image->readMetadata();
    return std::unique_ptr<Exiv2::Image>(image.release());
}

QByteArray packet(const QByteArray &properties)
{
    return "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
           "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
           "<rdf:Description rdf:about=\"\" xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\" "
           "xmlns:xmpNote=\"http://ns.adobe.com/xmp/note/\" " +
           properties + "/></rdf:RDF></x:xmpmeta>";
}

} // namespace

TEST(TiffMetadata, PutsTheExifBlockWhereItsOffsetsHold)
{
    const QByteArray plain = tiff();
    for (const bool bigEndian : {false, true}) {
        bytes::Exif exif{
            .bigEndian = bigEndian, .note = "NOTE of a maker", .thumbnail = bytes::jpeg({40, 30})};
        const QByteArray file = written(plain, carried(bytes::exifSegment(exif.block())));
        EXPECT_EQ(pixels(file), pixels(plain));
        EXPECT_EQ(field(file, "icc-profile-data"), field(plain, "icc-profile-data"));
        EXPECT_EQ(file.mid(exif.notePosition, exif.note.size()), exif.note);
        EXPECT_FALSE(file.contains(exif.thumbnail.first(20)));
        const auto image = opened(file);
        EXPECT_EQ(image->exifData()["Exif.Image.Model"].toString(), "Camera1");
        EXPECT_EQ(image->exifData()["Exif.Image.Orientation"].toLong(), 6);
        EXPECT_EQ(image->exifData()["Exif.Photo.ExposureTime"].toString(), "1/250");
        EXPECT_EQ(image->exifData()["Exif.Photo.MakerNote"].size(), exif.note.size());
        EXPECT_EQ(image->exifData()["Exif.Image.ImageWidth"].toLong(), 301);
        EXPECT_EQ(image->exifData().findKey(Exiv2::ExifKey("Exif.Thumbnail.JPEGInterchangeFormat")),
                  image->exifData().end());
    }
}

TEST(TiffMetadata, WritesXmpAndIptcAsReadersExpectThem)
{
    const QByteArray extension = packet("xmp:Label=\"red\"");
    const QByteArray guid = bytes::md5(extension);
    const QByteArray main =
        bytes::xmpSegment(packet("xmp:Rating=\"4\" xmpNote:HasExtendedXMP=\"" + guid + "\""));
    const QByteArray extended = bytes::xmpExtension(guid, extension);
    const QByteArray caption = QByteArray("\x1C\x02\x78") + bytes::bigEndian(5, 2) + "hello";
    const QByteArray keyword = QByteArray("\x1C\x02\x19") + bytes::bigEndian(5, 2) + "world";
    const QByteArray photoshop =
        bytes::photoshopSegment(bytes::resource(0x03ED, "first") + bytes::resource(0x0404, caption)) +
        bytes::photoshopSegment(bytes::resource(0x0404, keyword));
    const QByteArray plain = tiff();
    const QByteArray file = written(plain, carried(main + extended + photoshop));
    EXPECT_EQ(field(file, "iptc-data"), caption + keyword);
    const auto image = opened(file);
    EXPECT_EQ(image->xmpData()["Xmp.xmp.Rating"].toString(), "4");
    EXPECT_EQ(image->xmpData()["Xmp.xmp.Label"].toString(), "red");
    EXPECT_EQ(image->xmpData().findKey(Exiv2::XmpKey("Xmp.xmpNote.HasExtendedXMP")), image->xmpData().end());
    EXPECT_EQ(image->iptcData()["Iptc.Application2.Caption"].toString(), "hello");
    EXPECT_EQ(image->iptcData()["Iptc.Application2.Keywords"].toString(), "world");
    EXPECT_EQ(field(written(plain, carried(main)), "xmp-data"), main.sliced(4 + 29))
        << "a single packet stays as it is";
    EXPECT_EQ(pixels(written(plain, CarriedMetadata())), pixels(plain));
}
