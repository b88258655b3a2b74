#include "platform/image/ColorProfile.h"
#include "platform/image/ImageFile.h"
#include "platform/image/LazyImage.h"
#include "platform/image/ThumbnailCollector.h"
#include "platform/image/TiffDirectoryWriter.h"
#include "platform/image/TiffStructure.h"
#include "platform/image/TiffTags.h"
#include "support/Folder.h"
#include "support/Pictures.h"

namespace {

using platform::LazyImage;
namespace tifftag = platform::tifftag;

class LazyImageTest : public testing::Test, protected Folder {};

/// A picture of one value in any kind of pixels.
platform::VipsImagePtr flat(const std::vector<double> &values, VipsBandFormat format, VipsInterpretation kind)
{
    platform::initializeVips();
    std::vector<double> pixels;
    for (int pixel = 0; pixel < 16 * 16; ++pixel)
        pixels.insert(pixels.end(), values.begin(), values.end());
    const platform::VipsImagePtr image(vips_image_new_from_memory_copy(
        pixels.data(), pixels.size() * sizeof(double), 16, 16, int(values.size()), VIPS_FORMAT_DOUBLE));
    VipsImage *cast = nullptr;
    EXPECT_EQ(vips_cast(image.get(), &cast, format, nullptr), 0);
    cast->Type = kind;
    return platform::VipsImagePtr(cast);
}

void expectColor(const QColor &color, const QColor &expected, int tolerance)
{
    EXPECT_NEAR(color.red(), expected.red(), tolerance);
    EXPECT_NEAR(color.green(), expected.green(), tolerance);
    EXPECT_NEAR(color.blue(), expected.blue(), tolerance);
    EXPECT_NEAR(color.alpha(), expected.alpha(), tolerance);
}

} // namespace

TEST_F(LazyImageTest, ResizesToTheVeryPixel)
{
    const QSize sources[] = {{400, 300}, {1001, 667}, {17, 9}, {640, 1}};
    const QSize targets[] = {{133, 100}, {1, 1}, {999, 3}, {33, 799}, {17, 9}, {639, 2}, {1002, 668}};
    for (const QColor &color : {QColor(10, 200, 30), QColor(10, 200, 30, 128)})
        for (const QSize &source : sources) {
            const LazyImage image = LazyImage::fromImage(plainImage(source, color));
            for (const QSize &target : targets) {
                const LazyImage resized = image.resized(target);
                EXPECT_EQ(resized.size(), target)
                    << source.width() << " to " << target.width() << 'x' << target.height();
                const QImage pixels = resized.toImage();
                expectColor(pixels.pixelColor(target.width() - 1, target.height() / 2), color, 1);
            }
        }
}

TEST_F(LazyImageTest, DecodersReduceButNeverTooFar)
{
    const QString jpeg =
        write(QStringLiteral("a.jpg"), LazyImage::fromImage(plainImage({1001, 667}, Qt::red)).encodeJpeg({}));
    const QString png =
        write(QStringLiteral("a.png"), LazyImage::fromImage(plainImage({1001, 667}, Qt::red)).encodePng());
    const std::tuple<QString, QSize, QSize> cases[] = {
        {jpeg, {}, {1001, 667}},         {jpeg, {500, 333}, {1001, 667}}, {jpeg, {251, 166}, {1001, 667}},
        {jpeg, {250, 167}, {1001, 667}}, {jpeg, {250, 166}, {500, 333}},  {jpeg, {125, 83}, {250, 166}},
        {jpeg, {62, 41}, {125, 83}},     {jpeg, {1, 1}, {125, 83}},       {png, {125, 83}, {1001, 667}},
    };
    for (const auto &[path, wanted, opened] : cases) {
        const LazyImage image = LazyImage::open(path, wanted);
        EXPECT_EQ(image.size(), opened) << wanted.width();
        expectColor(image.inSRGB().resized({10, 7}).toImage().pixelColor(5, 3), Qt::red, 3);
    }
}

/// Rings that are finer the farther out: what the smaller picture cannot show has to come out flat.
TEST_F(LazyImageTest, WhatIsTooFineForAReducedPictureIsFlat)
{
    constexpr int side = 1200;
    QImage rings({side, side}, QImage::Format_Grayscale8);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const double square = std::pow(x - side / 2, 2) + std::pow(y - side / 2, 2);
            rings.scanLine(y)[x] = uchar(std::lround(127.5 + 127.5 * std::cos(square * M_PI / side)));
        }
    const QString file = write("rings.jpg", LazyImage::fromImage(rings).encodeJpeg({95, {1, 1}}));
    for (const int reducedSide : {600, 550, 300}) {
        const QSize size(reducedSide, reducedSide);
        const QImage image = LazyImage::open(file, size).inSRGB().resized(size).toImage();
        double sum = 0;
        int count = 0;
        for (int y = 0; y < reducedSide; ++y)
            for (int x = 0; x < reducedSide; ++x) {
                const double radius = std::hypot(x - reducedSide / 2, y - reducedSide / 2);
                const double finest = reducedSide / 2.0 * reducedSide / side;
                if (radius < 1.25 * finest || radius > 0.49 * reducedSide)
                    continue;
                sum += std::pow(qGreen(image.pixel(x, y)) - 127.5, 2);
                ++count;
            }
        EXPECT_LT(std::sqrt(sum / count), 9) << reducedSide;
    }
}

TEST_F(LazyImageTest, EveryKindOfPixelsBecomesEightBitRGB)
{
    constexpr VipsBandFormat narrow = VIPS_FORMAT_UCHAR;
    constexpr VipsBandFormat wide = VIPS_FORMAT_USHORT;
    const struct {
        const char16_t *name;
        platform::VipsImagePtr image;
        QColor color;
        int tolerance;
    } cases[] = {
        {u"grey.png", flat({100}, narrow, VIPS_INTERPRETATION_B_W), {100, 100, 100}, 0},
        {u"grey.jpg", flat({100}, narrow, VIPS_INTERPRETATION_B_W), {100, 100, 100}, 1},
        {u"wide.png", flat({25700}, wide, VIPS_INTERPRETATION_GREY16), {100, 100, 100}, 1},
        {u"wide.tif", flat({2570, 51400, 23130}, wide, VIPS_INTERPRETATION_RGB16), {10, 200, 90}, 1},
        {u"clear.png", flat({10, 200, 90, 51}, narrow, VIPS_INTERPRETATION_sRGB), {10, 200, 90, 51}, 2},
        {u"greyclear.png", flat({80, 128}, narrow, VIPS_INTERPRETATION_B_W), {80, 80, 80, 128}, 2},
        {u"paper.jpg", flat({0, 0, 0, 0}, narrow, VIPS_INTERPRETATION_CMYK), {255, 255, 255}, 3},
        {u"ink.jpg", flat({0, 0, 0, 255}, narrow, VIPS_INTERPRETATION_CMYK), {18, 4, 23}, 3},
        {u"cyan.tif", flat({255, 0, 0, 0}, narrow, VIPS_INTERPRETATION_CMYK), {0, 160, 230}, 30},
    };
    for (const auto &[name, image, color, tolerance] : cases) {
        SCOPED_TRACE(QString::fromUtf16(name).toStdString());
        const LazyImage opened =
            LazyImage::open(writePixels(QString::fromUtf16(name), image.get()), {}).inSRGB();
        ASSERT_FALSE(opened.isEmpty());
        EXPECT_EQ(opened.vips()->BandFmt, VIPS_FORMAT_UCHAR);
        EXPECT_EQ(opened.vips()->Bands, color.alpha() == 255 ? 3 : 4);
        expectColor(opened.toImage().pixelColor(8, 8), color, tolerance);
    }
}

TEST_F(LazyImageTest, EmbeddedProfilesAreHonoured)
{
    // By the matrices of Display P3 and sRGB, whose curves are the same.
    const platform::VipsImagePtr image = flat({100, 150, 50}, VIPS_FORMAT_UCHAR, VIPS_INTERPRETATION_sRGB);
    VipsBlob *blob = nullptr;
    ASSERT_EQ(vips_profile_load("p3", &blob, nullptr), 0);
    size_t length = 0;
    const void *profile = vips_blob_get(blob, &length);
    vips_image_set_blob_copy(image.get(), VIPS_META_ICC_NAME, profile, length);
    vips_area_unref(VIPS_AREA(blob));
    const QColor moved(83, 152, 23);
    for (const char16_t *name : {u"p3.jpg", u"p3.png", u"p3.tif"}) {
        const LazyImage opened = LazyImage::open(writePixels(QString::fromUtf16(name), image.get()), {});
        expectColor(opened.inSRGB().toImage().pixelColor(8, 8), moved, 2);
    }
    const QByteArray srgb = platform::sRGBProfile();
    vips_image_set_blob_copy(image.get(), VIPS_META_ICC_NAME, srgb.constData(), size_t(srgb.size()));
    EXPECT_EQ(platform::toSRGBByProfile(image.get()), nullptr) << "sRGB needs no conversion";
    vips_image_set_blob_copy(image.get(), VIPS_META_ICC_NAME, "no profile", 10);
    EXPECT_EQ(platform::toSRGBByProfile(image.get()), nullptr);
    expectColor(LazyImage::open(writePixels(QStringLiteral("bad.png"), image.get()), {})
                    .inSRGB()
                    .toImage()
                    .pixelColor(8, 8),
                QColor(100, 150, 50), 0);
}

TEST_F(LazyImageTest, ProfilesMeetTheKindOfPixelsThatTheyStandBy)
{
    const auto withProfile = [](platform::VipsImagePtr image, const char *name) {
        VipsBlob *blob = nullptr;
        EXPECT_EQ(vips_profile_load(name, &blob, nullptr), 0);
        size_t length = 0;
        const void *profile = vips_blob_get(blob, &length);
        vips_image_set_blob_copy(image.get(), VIPS_META_ICC_NAME, profile, length);
        vips_area_unref(VIPS_AREA(blob));
        return image;
    };
    constexpr VipsBandFormat narrow = VIPS_FORMAT_UCHAR;
    constexpr VipsBandFormat wide = VIPS_FORMAT_USHORT;
    auto greyed = flat({200, 100, 50}, narrow, VIPS_INTERPRETATION_sRGB);
    QByteArray grey = platform::sRGBProfile();
    grey.replace(16, 4, "GRAY");
    vips_image_set_blob_copy(greyed.get(), VIPS_META_ICC_NAME, grey.constData(), size_t(grey.size()));
    const struct {
        const char *name;
        platform::VipsImagePtr image;
        QColor color;
        int tolerance;
    } cases[] = {
        {"wide.png",
         withProfile(flat({25700, 38550, 12850, 16448}, wide, VIPS_INTERPRETATION_RGB16), "p3"),
         {83, 152, 23, 64},
         2},
        {"wide.tif",
         withProfile(flat({25700, 38550, 12850, 65278}, wide, VIPS_INTERPRETATION_RGB16), "p3"),
         {83, 152, 23, 254},
         2},
        {"narrow.png",
         withProfile(flat({100, 150, 50, 64}, narrow, VIPS_INTERPRETATION_sRGB), "p3"),
         {83, 152, 23, 64},
         2},
        {"plain.png",
         flat({25700, 38550, 12850, 16448}, wide, VIPS_INTERPRETATION_RGB16),
         {100, 150, 50, 64},
         2},
        {"grey.png", std::move(greyed), {200, 100, 50}, 0},
        {"ink.tif",
         withProfile(flat({0, 0, 0, 255}, narrow, VIPS_INTERPRETATION_CMYK), "cmyk"),
         {18, 4, 23},
         3},
        {"told.tif", flat({0, 0, 0, 255}, narrow, VIPS_INTERPRETATION_CMYK), {18, 4, 23}, 3},
        {"full.tif", flat({255, 255, 255, 255}, narrow, VIPS_INTERPRETATION_CMYK), {0, 0, 24}, 3},
    };
    for (const auto &[name, image, color, tolerance] : cases) {
        SCOPED_TRACE(name);
        const LazyImage opened = LazyImage::open(writePixels(name, image.get()), {}).inSRGB();
        expectColor(opened.toImage().convertToFormat(QImage::Format_ARGB32).pixelColor(8, 8), color,
                    tolerance);
    }
}

TEST_F(LazyImageTest, TransparencyStaysOrBecomesBlack)
{
    const LazyImage clear = LazyImage::fromImage(plainImage({20, 20}, QColor(200, 100, 0, 128)));
    const QImage png = QImage::fromData(clear.encodePng());
    expectColor(png.pixelColor(5, 5), QColor(200, 100, 0, 128), 1);
    const QImage jpeg = QImage::fromData(clear.encodeJpeg({100, {1, 1}}));
    expectColor(jpeg.pixelColor(5, 5), QColor(100, 50, 0), 2);
    EXPECT_FALSE(clear.flattened().hasAlpha());
    QImage edge = plainImage({40, 40}, QColor(0, 255, 0, 0));
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 20; ++x)
            edge.setPixelColor(x, y, QColor(255, 0, 0));
    const QColor middle = LazyImage::fromImage(edge).resized({5, 5}).toImage().pixelColor(2, 2);
    EXPECT_LT(middle.green(), 20) << "the colour of what is invisible stays so";
}

TEST_F(LazyImageTest, FilesThatBreakOffFail)
{
    const LazyImage image = LazyImage::fromImage(noise({200, 200}));
    const std::pair<const char16_t *, QByteArray> files[] = {
        {u"a.jpg", image.encodeJpeg({})}, {u"a.png", image.encodePng()}, {u"a.tif", image.encodeTiff()}};
    for (const auto &[name, bytes] : files) {
        const QString whole = write(QString::fromUtf16(name), bytes);
        EXPECT_EQ(platform::decodeImage(whole).size(), QSize(200, 200));
        const LazyImage opened = LazyImage::open(
            write(QStringLiteral("cut_") + QString::fromUtf16(name), bytes.first(bytes.size() / 2)), {});
        EXPECT_TRUE(opened.inSRGB().encodePng().isEmpty()) << QString::fromUtf16(name).toStdString();
    }
    EXPECT_TRUE(LazyImage::open(write(QStringLiteral("words.jpg"), QByteArray("words")), {}).isEmpty());
    EXPECT_TRUE(LazyImage::open(path(QStringLiteral("missing.jpg")), {}).isEmpty());
    EXPECT_TRUE(LazyImage::open(path(QString()), {}).isEmpty());
}

/// Asked for in its own size, a JPEG comes by a shorter way than a reduced one or one of no size.
TEST_F(LazyImageTest, BothWaysToAJpegShowTheSame)
{
    QImage image(133, 71, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, QColor::fromHsv((7 * x + 3 * y) % 360, 200, 255 - y));
    for (const QSize &sampling : {QSize(1, 1), QSize(2, 1), QSize(2, 2)}) {
        const QByteArray bytes = LazyImage::fromImage(image).encodeJpeg({90, sampling});
        const QString file = write("a.jpg", bytes);
        EXPECT_EQ(LazyImage::open(file, image.size()).toImage(), LazyImage::open(file, {}).toImage());
        // Within its data, every bit set: a code that no table holds.
        QByteArray spoilt = bytes;
        spoilt.replace(bytes.size() * 3 / 4, 24, QByteArray("\xFF\0", 2).repeated(12));
        const LazyImage opened = LazyImage::open(write("b.jpg", spoilt), image.size());
        EXPECT_TRUE(opened.toImage().isNull());
        const QString told = opened.decoderFailure();
        EXPECT_TRUE(told.contains(u"Corrupt JPEG data")) << told.toStdString() << bytes.size();
    }
}

TEST_F(LazyImageTest, ThumbnailsHoldMeansOfWhatStreamedBy)
{
    QImage picture(64, 32, QImage::Format_RGBA8888);
    picture.fill(QColor(200, 100, 40));
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x)
            picture.setPixelColor(x, y, x % 2 ? QColor(0, 0, 0) : QColor(200, 0, 0, 255));
    for (int y = 16; y < 32; ++y)
        for (int x = 32; x < 64; ++x)
            picture.setPixelColor(x, y, QColor(200, 100, 40, 51));
    platform::ThumbnailCollector collector({64, 32}, {4, 2});
    for (const int y : {20, 0, 7})
        for (const int x : {0, 24})
            collector.add(picture.copy(x, y, x == 0 ? 24 : 40, y == 0 ? 7 : y == 7 ? 13 : 12), {x, y});
    const QImage thumbnail = collector.thumbnail();
    ASSERT_EQ(thumbnail.size(), QSize(4, 2));
    expectColor(thumbnail.pixelColor(3, 0), QColor(200, 100, 40), 0);
    expectColor(thumbnail.pixelColor(3, 1), QColor(40, 20, 8), 0);
    EXPECT_EQ(thumbnail.pixelColor(0, 1).green(), 0);
    EXPECT_TRUE(platform::ThumbnailCollector({64, 32}, {}).thumbnail().isNull());
    EXPECT_TRUE(platform::ThumbnailCollector({}, {4, 2}).thumbnail().isNull());
}

TEST_F(LazyImageTest, BitmapsThatBreakOffAreNoPictures)
{
    for (const auto format : {QImage::Format_RGB32, QImage::Format_Indexed8, QImage::Format_Mono}) {
        const QString whole = path("whole.bmp");
        ASSERT_TRUE(plainImage({33, 20}, Qt::white).convertToFormat(format).save(whole, "BMP"));
        EXPECT_EQ(platform::decodeImage(whole).pixelColor(32, 19), QColor(Qt::white));
        QFile file(whole);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_FALSE(platform::isDecodableImage(write("cut.bmp", file.readAll().chopped(1)))) << format;
    }
}

TEST_F(LazyImageTest, TheCameraTellsOfAdobeRGBWhereNoProfileDoes)
{
    const struct {
        const char *rules;
        const char *colorSpace;
        bool isAdobe;
    } cases[] = {{"R03", "65535", true}, {"R98", "65535", false}, {"R03", "1", false}};
    // By the matrices and curves of Adobe RGB and sRGB.
    const QColor plainly(100, 150, 50);
    const QColor moved(66, 151, 34);
    const platform::VipsImagePtr image = flat({100, 150, 50}, VIPS_FORMAT_UCHAR, VIPS_INTERPRETATION_sRGB);
    for (const auto &[rules, colorSpace, isAdobe] : cases) {
        vips_image_set_string(image.get(), "exif-ifd4-InteroperabilityIndex", rules);
        vips_image_set_string(image.get(), "exif-ifd2-ColorSpace", colorSpace);
        const LazyImage opened = LazyImage::open(writePixels("camera.jpg", image.get()), {});
        expectColor(opened.inSRGB().toImage().pixelColor(8, 8), isAdobe ? moved : plainly, 2);
    }
}

/// A card that is pulled, or a program that writes the file anew.
TEST_F(LazyImageTest, FilesThatShrinkWhileTheyAreReadFail)
{
    const LazyImage picture = LazyImage::fromImage(noise({400, 300}));
    for (const char *name : {"a.gif", "a.webp", "a.png", "a.tif", "a.jpg", "a.bmp"}) {
        QString file = path(name);
        if (file.endsWith(".bmp"))
            ASSERT_TRUE(noise({400, 300}).save(file, "BMP"));
        else
            file = writePixels(name, picture.vips());
        const LazyImage opened = LazyImage::open(file, {});
        ASSERT_EQ(opened.size(), QSize(400, 300)) << name;
        ASSERT_TRUE(QFile(file).resize(100));
        // Of some formats the file is in memory once it is open.
        const bool isKept = file.endsWith(".gif") || file.endsWith(".webp");
        EXPECT_EQ(opened.inSRGB().toImage().isNull(), !isKept) << name;
    }
}

TEST_F(LazyImageTest, HeadersTellOfPicturesOutOfReach)
{
    const auto words = [](std::initializer_list<int> numbers) {
        QByteArray bytes;
        for (const int number : numbers)
            bytes.append(char(number)).append(char(number >> 8));
        return bytes;
    };
    const QByteArray screen = words({40000, 40000});
    const QByteArray gif = "GIF89a" + screen + QByteArray("\x80\0\0\0\0\0\xFF\xFF\xFF,\0\0\0\0", 14) +
                           screen + QByteArray("\0\2\1\x44\0;", 6);
    const QByteArray bits = words({60000, 0, 60000, 0, 1, 24, 1, 0, 54, 0}) + QByteArray(16, '\0');
    const QByteArray bitmap = "BM" + words({54, 0, 0, 0, 54, 0, 40, 0}) + bits;
    for (const auto &[name, bytes] : {std::pair("a.gif", gif), std::pair("a.bmp", bitmap)}) {
        const QString file = write(name, bytes);
        EXPECT_TRUE(LazyImage::open(file, {}).isEmpty()) << name;
        EXPECT_TRUE(platform::refusalOfImage(file).startsWith(u"The picture has")) << name;
    }
    EXPECT_TRUE(platform::refusalOfImage(write("text.gif", "Dear diary")).isEmpty());
}

TEST_F(LazyImageTest, LargeAndOddBitmapsShowWhatTheToolkitShows)
{
    const QImage image = noise({61, 40});
    for (const auto format : {QImage::Format_RGB888, QImage::Format_RGB32, QImage::Format_Indexed8}) {
        ASSERT_TRUE(image.convertToFormat(format).save(path("a.bmp"), "BMP"));
        const QImage expected = QImage(path("a.bmp")).convertToFormat(QImage::Format_RGB32);
        EXPECT_EQ(platform::decodeImage(path("a.bmp")), expected) << format;
        QByteArray turned = bytesOf(path("a.bmp"));
        turned.replace(22, 4, QByteArray("\xD8\xFF\xFF\xFF", 4));
        EXPECT_EQ(platform::decodeImage(write("b.bmp", turned)), expected.mirrored()) << format;
    }
    // Above what the toolkit reads unasked, and of no bytes on the disk.
    QByteArray head = bytesOf(path("a.bmp")).first(54);
    head.replace(10, 4, QByteArray("\x36\0\0\0", 4))
        .replace(18, 8, QByteArray("\x70\x17\0\0\x70\x17\0\0", 8));
    head.replace(28, 2, QByteArray("\x18\0", 2));
    const QString large = write("large.bmp", head);
    ASSERT_TRUE(QFile(large).resize(54 + 6000LL * 3 * 6000));
    EXPECT_EQ(platform::decodeThumbnail(large, 100).size(), QSize(100, 100));
}

TEST_F(LazyImageTest, CameraRawsAreRefusedAndOtherTiffsRead)
{
    struct Case {
        quint32 reduced;
        quint32 kindBelow;
        quint32 reducedBelow;
        bool isRefused;
    };
    const Case cases[] = {
        {1, 32803, 0, true}, {0, 34892, 0, true}, {1, 2, 0, true}, {0, 2, 1, false}, {0, 2, 0, false}};
    for (const auto &[reduced, kindBelow, reducedBelow, isRefused] : cases) {
        const auto number = [](platform::TiffDirectoryWriter &writer, quint16 tag, quint32 value) {
            writer.set(tag, platform::TiffStructure::Long, 1, writer.number(value));
        };
        const auto directory = [&](quint32 type, quint32 kind) {
            platform::TiffDirectoryWriter writer(false);
            for (const auto &[tag, value] :
                 std::initializer_list<std::pair<quint16, quint32>>{{tifftag::NewSubfileType, type},
                                                                    {tifftag::Width, 2},
                                                                    {tifftag::Height, 1},
                                                                    {tifftag::BitsPerSample, 8},
                                                                    {tifftag::Compression, 1},
                                                                    {tifftag::Photometric, kind},
                                                                    {tifftag::StripOffsets, 8},
                                                                    {tifftag::SamplesPerPixel, 1},
                                                                    {tifftag::StripByteCounts, 2}})
                number(writer, tag, value);
            return writer;
        };
        constexpr quint32 first = 10;
        constexpr quint32 second = 300;
        platform::TiffDirectoryWriter preview = directory(reduced, 1);
        number(preview, tifftag::SubDirectories, second);
        QByteArray file = QByteArray("II*\0", 4) + preview.number(first) + "ab" + preview.bytes(first);
        file = file.leftJustified(second, '\0') + directory(reducedBelow, kindBelow).bytes(second);
        const QString tiff = write("a.tif", file);
        EXPECT_EQ(LazyImage::open(tiff, {}).isEmpty(), isRefused) << kindBelow;
        EXPECT_EQ(platform::refusalOfImage(tiff).contains(u"raw data"), isRefused) << kindBelow;
    }
}
