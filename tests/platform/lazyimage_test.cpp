#include "platform/ColorProfile.h"
#include "platform/ImageFile.h"
#include "platform/LazyImage.h"
#include "platform/ThumbnailCollector.h"
#include "support/Folder.h"
#include "support/Pictures.h"

namespace {

using platform::LazyImage;

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
        EXPECT_FALSE(opened.takeDecoderMessage().isEmpty());
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
        const QString told = opened.takeDecoderMessage();
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
