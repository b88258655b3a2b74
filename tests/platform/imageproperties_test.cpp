#include "platform/metadata/ImageProperties.h"

#include "platform/metadata/MetadataBlobs.h"
#include "platform/metadata_bytes.h"
#include "support/Folder.h"

using platform::imageProperties;
using platform::TiffStructure;

namespace {

class ImageProperties : public testing::Test, protected Folder {
protected:
    QVariantMap propertiesOf(const QByteArray &bytes) const
    {
        return imageProperties(write("picture.jpg", bytes));
    }
    QVariantMap propertiesWith(const QByteArray &segments) const
    {
        return propertiesOf(bytes::withSegments(bytes::jpeg({64, 48}), segments));
    }
};

/// A block whose EXIF directory holds what `fill` puts there.
QByteArray exifBlock(const std::function<void(platform::TiffDirectoryWriter &)> &fill)
{
    bytes::Exif exif;
    QByteArray block = exif.block();
    platform::TiffDirectoryWriter directory(false);
    fill(directory);
    bytes::Exif::put(block, 512, directory.bytes(512));
    return block;
}

QVariantMap exifOf(const QVariantMap &properties)
{
    return properties.value("{Exif}").toMap();
}

} // namespace

TEST_F(ImageProperties, ReadsWhatTheCameraTells)
{
    const QByteArray block = exifBlock([](platform::TiffDirectoryWriter &exif) {
        const auto fraction = [&](quint32 a, quint32 b) { return exif.number(a) + exif.number(b); };
        exif.set(0x829A, 5, 1, fraction(1, 250));
        exif.set(0x829D, 5, 1, fraction(28, 10));
        exif.set(0x8827, TiffStructure::Short, 2, QByteArray("\x90\1\x20\3", 4));
        exif.set(0x9003, 2, 20, "2024:03:31 01:05:09");
        exif.set(0x920A, 5, 1, fraction(50, 1));
    });
    const QVariantMap properties = propertiesWith(bytes::exifSegment(block));
    EXPECT_EQ(properties,
              (QVariantMap{{"PixelWidth", 64},
                           {"PixelHeight", 48},
                           {"{TIFF}", QVariantMap{{"Model", "Camera1"}, {"Orientation", 6}}},
                           {"{Exif}", QVariantMap{{"ExposureTime", 1.0 / 250},
                                                  {"FNumber", 2.8},
                                                  {"FocalLength", 50.0},
                                                  {"ISOSpeedRatings", QVariantList{400, 800}},
                                                  {"DateTimeOriginal", "2024:03:31 01:05:09"}}}}));
}

TEST_F(ImageProperties, LeavesOutWhatMakesNoSense)
{
    const QByteArray block = exifBlock([](platform::TiffDirectoryWriter &exif) {
        exif.set(0x829A, 5, 1, exif.number(1) + exif.number(0));
        exif.set(0x829D, 5, 1, exif.number(0) + exif.number(0));
        exif.set(0x9003, 2, 1, QByteArray(1, '\0'));
        exif.set(0x920A, 5, 1, exif.number(3000000000U) + exif.number(1000000000));
    });
    EXPECT_EQ(exifOf(propertiesWith(bytes::exifSegment(block))), (QVariantMap{{"FocalLength", 3.0}}));
    const QVariantMap sizes{{"PixelWidth", 64}, {"PixelHeight", 48}};
    for (const QByteArray &broken :
         {bytes::exifSegment("II*\0garbage"), bytes::exifSegment(block.first(20)), QByteArray()})
        EXPECT_EQ(propertiesWith(broken), sizes);
    EXPECT_EQ(propertiesOf("no picture"), QVariantMap());
    EXPECT_EQ(imageProperties(path("absent")), QVariantMap());
}

/// The formats that hand their blocks out through the decoder, with an orientation tag of 6.
TEST_F(ImageProperties, AndBlobsOfOtherFormats)
{
    platform::initializeVips();
    const QByteArray block = bytes::Exif{}.block();
    const QByteArray xmp = "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\" tiff:Orientation=\"6\"/>";
    const std::tuple<const char *, int> cases[] = {{"picture.webp", 6}, {"picture.avif", 1}};
    for (const auto &[name, orientation] : cases) {
        VipsImage *black = nullptr;
        ASSERT_EQ(vips_black(&black, 64, 48, "bands", 3, nullptr), 0);
        const platform::VipsImagePtr image(black);
        image->Type = VIPS_INTERPRETATION_sRGB;
        const QByteArray prefixed = "Exif" + QByteArray(2, '\0') + block;
        vips_image_set_blob_copy(image.get(), "exif-data", prefixed.constData(), size_t(prefixed.size()));
        vips_image_set_blob_copy(image.get(), "xmp-data", xmp.constData(), size_t(xmp.size()));
        if (vips_image_write_to_file(image.get(), path(name).toUtf8().constData(), nullptr) != 0)
            continue; // An encoder that this machine lacks.
        const QVariantMap properties = imageProperties(path(name));
        EXPECT_EQ(properties.value("PixelWidth"), 64) << name;
        EXPECT_EQ(exifOf(properties).value("ExposureTime"), 1.0 / 250) << name;
        const platform::MetadataBlobs blobs = platform::readMetadataBlobs(path(name));
        const auto tiff = TiffStructure::read(blobs.exif);
        ASSERT_TRUE(tiff) << name;
        EXPECT_EQ(tiff->number(tiff->chain().front(), 0x0112), quint32(orientation)) << name;
        EXPECT_EQ(blobs.xmp, QByteArray(xmp).replace('6', QByteArray::number(orientation))) << name;
    }
    EXPECT_TRUE(platform::readMetadataBlobs(path("absent")).exif.isEmpty());
}
