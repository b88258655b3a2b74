#include "export/TSOutputComposer.h"
#include "export/TSOutputWriter.h"
#include "platform/image/ColorProfile.h"
#include "platform/metadata/CarriedMetadata.h"
#include "platform/metadata/ImageProperties.h"
#include "platform/metadata/JpegFile.h"
#include "platform/metadata/MetadataBlobs.h"
#include "platform/metadata_bytes.h"
#include "support/ExportSession.h"

#include <QDir>
#include <sys/resource.h>

namespace {

QByteArray jpegOf(const QImage &image, const QSize &sampling = {1, 1}, int quality = 90)
{
    return platform::LazyImage::fromImage(image).encodeJpeg({quality, sampling});
}

/// The first bands of a picture by libvips' encoder, with options of it such as "[interlace]".
QByteArray jpegByVips(const QImage &image, const char *options, int bands = 3)
{
    VipsImage *part = nullptr;
    EXPECT_EQ(vips_extract_band(platform::LazyImage::fromImage(image).vips(), &part, 0, "n", bands, nullptr),
              0);
    void *data = nullptr;
    size_t length = 0;
    EXPECT_EQ(
        vips_image_write_to_buffer(part, (QByteArray(".jpg") + options).constData(), &data, &length, nullptr),
        0);
    const QByteArray bytes(static_cast<const char *>(data), qsizetype(length));
    g_free(data);
    g_object_unref(part);
    return bytes;
}

/// Within the data, bits that no table holds a code for.
QByteArray spoilt(QByteArray jpeg)
{
    return jpeg.replace(jpeg.size() * 3 / 4, 24, QByteArray("\xFF\0", 2).repeated(12));
}

/// Bytes between two segments that belong to neither.
QByteArray withStrayBytes(QByteArray jpeg)
{
    return jpeg.insert(jpeg.indexOf("\xFF\xC4"), "abc");
}

class WriterTest : public ExportTest {
protected:
    /// Writes the photo at an index with its marks; answers the file's path.
    QString write(unsigned type, const QString &name, const QSize &size, qint64 index = 0)
    {
        const auto photo = session.photos.photoAtIndex(index);
        TSOutputComposer composer;
        composer.overlayArrays = session.overlays.overlays();
        auto image = composer.createOutputImage(photo->path, QRectF(QPointF(0, 0), size), *photo, index, 1);
        m_result = TSWriteResult();
        if (!image)
            return {};
        TSOutputWriter writer;
        writer.isCancelled = m_isCancelled;
        const TSOutputRequest request{session.path(name), type, session.data.quality, photo->path,
                                      photo->propertiesDic};
        m_result = writer.write(writer.encode(*image, request), request);
        EXPECT_EQ(m_result.isWritten, m_result.reason.isEmpty());
        return session.path(name);
    }

    TSWriteResult m_result;
    std::function<bool()> m_isCancelled;
};

const QList<QPair<unsigned, QString>> types = {{TSFileType::JPG, "o.jpg"},
                                               {TSFileType::PNG, "o.png"},
                                               {TSFileType::TIFF, "o.tiff"},
                                               {TSFileType::BMP, "o.bmp"}};

} // namespace

TEST_F(WriterTest, EveryTypeHoldsWhatItSaysButBMP)
{
    addPhoto("a.png", {60, 40}, QColor(0, 0, 0, 0));
    addMark({30, 20, 30, 15});
    const QByteArray begins[] = {"\xFF\xD8\xFF", "\x89PNG\r\n", QByteArray("II*\0", 4),
                                 QByteArray("II*\0", 4)};
    for (qsizetype i = 0; i < types.size(); ++i) {
        const QString path = write(types[i].first, types[i].second, {60, 40});
        EXPECT_TRUE(bytesOf(path).startsWith(begins[i])) << path.toStdString();
        const auto file = platform::LazyImage::open(path, {});
        ASSERT_EQ(file.size(), QSize(60, 40)) << path.toStdString();
        const void *profile = nullptr;
        size_t length = 0;
        ASSERT_EQ(vips_image_get_blob(file.vips(), VIPS_META_ICC_NAME, &profile, &length), 0);
        EXPECT_EQ(QByteArray(static_cast<const char *>(profile), qsizetype(length)), platform::sRGBProfile());
        const bool isJpeg = types[i].first == TSFileType::JPG;
        const QImage image = file.toImage();
        EXPECT_EQ(image.pixelColor(2, 2).alpha(), isJpeg ? 255 : 0);
        EXPECT_LE(image.pixelColor(2, 2).red(), 3) << "what shows nothing is black in a JPEG";
        EXPECT_EQ(extentOf(image, Qt::red, isJpeg ? 20 : 0).contains(QRect(32, 22, 26, 11)), true);
        EXPECT_EQ(image.pixelColor(45, 27).alpha(), 255);
    }
}

TEST_F(WriterTest, QualityCountsForPhotosThatCameWithProperties)
{
    takeIn(session.writeJpeg("a.jpg", noise({64, 64})));
    takeIn(session.writePng("b.png", noise({64, 64})));
    ASSERT_FALSE(session.photos.photoAtIndex(0)->propertiesDic.isEmpty());
    QByteArray files[2][2];
    for (const int high : {0, 1}) {
        session.data.quality = high ? 0.95 : 0.3;
        for (const int photo : {0, 1})
            files[photo][high] = bytesOf(write(TSFileType::JPG, "o.jpg", {64, 64}, photo));
    }
    EXPECT_GT(files[0][1].size(), 2 * files[0][0].size());
    EXPECT_EQ(files[1][1], files[1][0]);
    const auto plain = platform::LazyImage::fromImage(noise({64, 64})).encodeJpeg({75, {2, 2}});
    EXPECT_NEAR(double(files[1][0].size()), double(plain.size()), 4);
}

TEST_F(WriterTest, ChromaFollowsTheSourceAtHighQuality)
{
    const QImage image = noise({64, 64});
    takeIn(session.write("444.jpg", jpegOf(image, {1, 1})));
    takeIn(session.write("422.jpg", jpegOf(image, {2, 1})));
    takeIn(session.write("420.jpg", jpegOf(image, {2, 2})));
    takeIn(session.writePng("none.png", image));
    const std::tuple<qint64, double, QSize> cases[] = {
        {0, 0.90, {1, 1}}, {1, 0.90, {2, 1}}, {2, 0.90, {2, 2}}, {0, 0.89, {2, 2}},
        {1, 0.89, {2, 2}}, {2, 1.00, {2, 2}}, {3, 1.00, {2, 2}}};
    for (const auto &[photo, quality, sampling] : cases) {
        session.data.quality = quality;
        const auto file = platform::JpegFile::open(write(TSFileType::JPG, "o.jpg", {64, 64}, photo));
        ASSERT_TRUE(file);
        EXPECT_EQ(file->chromaSampling(), sampling) << photo << " at " << quality;
    }
}

TEST_F(WriterTest, MetadataGoesAlongAndItsThumbnailShowsTheMark)
{
    const QByteArray thumbnail = jpegOf(plainImage({160, 120}, Qt::gray));
    const platform::MetadataBlobs blobs{
        {}, "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"/>", QByteArray("8BIM\x04\x04\0\0\0\0\0\3\x1C\2\5\0", 16)};
    const auto metadata = platform::CarriedMetadata::ofBlobs(blobs);
    QByteArray photo = metadata.insertedInto(jpegOf(plainImage({400, 300})), {});
    constexpr qsizetype behindJfif = 20;
    const QByteArray block = bytes::Exif{.thumbnail = thumbnail}.block();
    photo.insert(behindJfif, bytes::exifSegment(block));
    takeIn(session.write("a.jpg", photo));
    addMark({200, 150, 200, 150});

    const auto source = platform::CarriedMetadata::ofFile(session.path("a.jpg"));
    const QString path = write(TSFileType::JPG, "o.jpg", {800, 600});
    const auto carried = platform::CarriedMetadata::ofFile(path);
    EXPECT_EQ(carried.exif().size(), block.size());
    EXPECT_EQ(carried.exif(), source.exif()) << "both blanked, so the thumbnail alone may differ";
    EXPECT_EQ(carried.xmpPackets(), source.xmpPackets());
    EXPECT_EQ(carried.photoshopResources(), blobs.photoshop);
    const QByteArray exif = bytesOf(path).mid(bytesOf(path).indexOf("II*"), block.size());
    const QImage shown = QImage::fromData(exif.mid(exif.indexOf("\xFF\xD8")));
    ASSERT_EQ(shown.size(), QSize(160, 120));
    EXPECT_GT(shown.pixelColor(120, 90).red(), 200);
    EXPECT_LT(shown.pixelColor(120, 90).green(), 60);
    EXPECT_NEAR(shown.pixelColor(40, 30).red(), 160, 8);

    const QString tiff = write(TSFileType::TIFF, "o.tiff", {400, 300});
    const QVariantMap named = platform::imageProperties(tiff).value("{TIFF}").toMap();
    EXPECT_EQ(named.value("Model").toString(), "Camera1");
    EXPECT_FALSE(bytesOf(tiff).contains(thumbnail));
    EXPECT_EQ(extentOf(platform::LazyImage::open(tiff, {}).toImage(), Qt::red), QRect(200, 150, 200, 150));
    for (const auto &[type, name] : {types[1], types[3]})
        EXPECT_FALSE(bytesOf(write(type, name, {400, 300})).contains("Camera1")) << name.toStdString();
}

TEST_F(WriterTest, FurtherPicturesStayBehindAndAreNamed)
{
    const QByteArray photo = jpegOf(plainImage({80, 60}));
    takeIn(session.write("a.jpg", photo + jpegOf(noise({80, 60}))));
    takeIn(session.write("b.jpg", photo));
    const auto file = platform::JpegFile::open(write(TSFileType::JPG, "o.jpg", {80, 60}));
    ASSERT_TRUE(file);
    EXPECT_TRUE(m_result.note.contains(u"further pictures"));
    EXPECT_TRUE(file->remainder().isEmpty());
    write(TSFileType::JPG, "o.jpg", {80, 60}, 1);
    EXPECT_TRUE(m_result.isWritten);
    EXPECT_TRUE(m_result.note.isEmpty());
}

/// A green photo under a mark of another colour that covers it, with a green picture wherever one can stand:
/// whatever looks like a picture in an output, under the metadata as well, is not green.
TEST_F(WriterTest, NoPictureInAnyOutputShowsThePhotoUnmarked)
{
    const QByteArray view = jpegOf(plainImage({160, 80}, Qt::green));
    const QByteArray bare = bytes::segment(0xE2, QByteArray("FPXR\0", 5) + view) +
                            bytes::segment(0xE1, QByteArray("FLIR\0", 5) + view);
    const QByteArray segments =
        bytes::exifSegment(bytes::Exif{.note = view, .thumbnail = view}.block()) +
        bytes::photoshopSegment(bytes::resource(0x040C, QByteArray(28, '\0') + view)) +
        bytes::xmpSegment("<x:xmpmeta><xmpGImg:image>" + view.toBase64() + "</xmpGImg:image></x:xmpmeta>") +
        bare;
    takeIn(session.write("a.jpg",
                         bytes::withSegments(jpegOf(plainImage({400, 200}, Qt::green)), segments) + view));
    addMark({0, 0, 400, 200}, Qt::magenta);
    for (const auto &[type, name] : types) {
        const QByteArray file = bytesOf(write(type, name, {400, 200}));
        int pictures = 0;
        const auto look = [&, name = name](const QImage &image) {
            pictures += !image.isNull();
            EXPECT_TRUE(extentOf(image, Qt::green, 60).isEmpty()) << name.toStdString();
        };
        for (const QByteArray &begin : {QByteArray("\xFF\xD8\xFF"), QByteArray("\x89PNG\r\n"),
                                        QByteArray("II*\0", 4), QByteArray("MM\0*", 4)})
            for (qsizetype at = file.indexOf(begin); at >= 0; at = file.indexOf(begin, at + 1))
                look(QImage::fromData(file.sliced(at)));
        for (qsizetype at = file.indexOf("/9j/"); at >= 0; at = file.indexOf("/9j/", at + 1))
            look(QImage::fromData(QByteArray::fromBase64(file.sliced(at))));
        look(platform::LazyImage::open(session.path(name), {}).inSRGB().toImage());
        EXPECT_FALSE(file.contains(QByteArray("\0\xFF\0", 3).repeated(40))) << "bare pixels";
        EXPECT_GE(pictures, type == TSFileType::JPG ? 3 : 1) << name.toStdString();
        const bool isNamed = m_result.note.contains("FLIR") && m_result.note.contains("FPXR");
        EXPECT_EQ(isNamed, type == TSFileType::JPG || type == TSFileType::TIFF);
    }
}

TEST_F(WriterTest, TheDensityOfAPhotoStaysWhateverItsSize)
{
    constexpr qsizetype units = 13;
    QByteArray photo = jpegOf(noise({640, 480}));
    ASSERT_EQ(photo.mid(6, 4), "JFIF");
    photo.replace(units, 5, QByteArray("\1\1\x2C\1\x2C", 5));
    takeIn(session.write("a.jpg", photo));
    addPhoto("b.png", {640, 480});
    for (const QSize size : {QSize(640, 480), QSize(160, 120), QSize(100, 30), QSize(1000, 750)}) {
        const QByteArray file = bytesOf(write(TSFileType::JPG, "o.jpg", size));
        EXPECT_EQ(file.mid(units, 5), QByteArray("\1\1\x2C\1\x2C", 5)) << size.width();
    }
    const auto inTiff = [this](qint64 index) {
        const auto tiff = platform::LazyImage::open(write(TSFileType::TIFF, "o.tiff", {160, 120}, index), {});
        return std::lround(tiff.vips()->Xres * 25.4);
    };
    EXPECT_EQ(inTiff(0), 300);
    EXPECT_EQ(inTiff(1), 72);
    const QByteArray file = bytesOf(write(TSFileType::JPG, "o.jpg", {640, 480}, 1));
    EXPECT_EQ(file.mid(units, 5), QByteArray("\1\0\x48\0\x48", 5)) << "72 to the inch says nothing";
}

TEST_F(WriterTest, WhatIsGivenUpOrDamagedLeavesNothing)
{
    const QByteArray photo = jpegOf(noise({1000, 800}));
    takeIn(session.write("a.jpg", photo));
    takeIn(session.write("b.jpg", photo.first(photo.size() / 2)));
    QByteArray damaged = photo;
    damaged.replace(damaged.size() / 2, 2, "\xFF\xD9");
    takeIn(session.write("c.jpg", damaged));
    const QStringList before = filesIn(session.folder.path());
    for (const auto &[type, name] : types) {
        for (const int asked : {0, 1, 3}) {
            int count = 0;
            m_isCancelled = [&] { return count++ >= asked; };
            write(type, name, {1000, 800});
            EXPECT_EQ(m_result.reason.toStdString(), "The export was cancelled.") << name.toStdString();
        }
        m_isCancelled = {};
        for (const qint64 index : {1, 2}) {
            write(type, name, {1000, 800}, index);
            EXPECT_TRUE(m_result.reason.startsWith(u"The file is damaged")) << m_result.reason.toStdString();
        }
    }
    write(TSFileType::JPG, "long.jpg", {65501, 2});
    EXPECT_TRUE(m_result.reason.startsWith(u"A JPEG picture has at most 65500"))
        << m_result.reason.toStdString();
    EXPECT_EQ(filesIn(session.folder.path()), before);
}

TEST_F(WriterTest, DamageIsJudgedByEveryWarning)
{
    const QImage image = noise({400, 320});
    const QByteArray color = jpegOf(image);
    const QByteArray scans = jpegByVips(image, "[interlace]");
    const QByteArray grey = jpegByVips(image, "", 1);
    enum Fate { Whole, WholeButEnd, Damaged };
    const std::pair<QByteArray, Fate> cases[] = {
        {color, Whole},
        {withStrayBytes(color), Whole},
        {color.chopped(2), WholeButEnd},
        {color.chopped(1), WholeButEnd},
        {scans.chopped(2), WholeButEnd},
        {grey.chopped(2), WholeButEnd},
        {color.chopped(3), Damaged},
        {spoilt(color), Damaged},
        {withStrayBytes(spoilt(color)), Damaged},
        {withStrayBytes(spoilt(grey)), Damaged},
        {withStrayBytes(spoilt(scans)), Damaged},
        {scans.first(scans.lastIndexOf("\xFF\xDA")), Damaged},
        {scans.first(scans.lastIndexOf("\xFF\xDA")) + "\xFF\xD9", Whole},
    };
    for (size_t i = 0; i < std::size(cases); ++i)
        takeIn(session.write(QStringLiteral("%1.jpg").arg(i), cases[i].first));
    ASSERT_EQ(session.photos.photoCount(), std::size(cases));
    for (size_t i = 0; i < std::size(cases); ++i)
        for (const QSize size : {image.size(), QSize(90, 70)}) {
            write(TSFileType::JPG, "o.jpg", size, qint64(i));
            const auto reason = m_result.reason.toStdString();
            EXPECT_EQ(m_result.isWritten, cases[i].second != Damaged) << i << ' ' << size.width() << reason;
            EXPECT_EQ(m_result.reason.startsWith(u"The file is damaged"), !m_result.isWritten) << i << reason;
            EXPECT_EQ(!m_result.note.isEmpty(), cases[i].second == WholeButEnd) << i;
        }
}

TEST_F(WriterTest, AFileThatMayNotGrowIsNamed)
{
    takeIn(session.writePng("a.png", noise({700, 500})));
    struct rlimit before {};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const struct rlimit little {
        1 << 16, before.rlim_max
    };
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &little), 0);
    QStringList reasons;
    for (const auto &[type, name] : types) {
        write(type, name, {700, 500});
        reasons.append(m_result.reason);
    }
    setrlimit(RLIMIT_FSIZE, &before);
    for (const QString &reason : reasons)
        EXPECT_TRUE(reason.startsWith(u"The file could not be written")) << reason.toStdString();
    EXPECT_EQ(filesIn(session.folder.path()), words("a.png"));
}
