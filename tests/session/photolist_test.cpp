#include "platform/image/Vips.h"
#include "support/Session.h"

#include <future>
#include <QThread>

using enum TSRepresentationType;

namespace {

class PhotoListTest : public SessionTest {
protected:
    /// An item and its photo at once, at the place of an only photo.
    TSPhoto &addOnly(TSImageBrowserItem item)
    {
        session.data.removeAllPhotos();
        session.data.insertItem(std::make_shared<TSImageBrowserItem>(std::move(item)), 0);
        session.photos.insertPhoto(std::make_shared<TSPhoto>(), 0);
        return *session.photos.photoAtIndex(0);
    }
};

TSImageBrowserItem itemOf(const QString &path, TSRepresentationType type)
{
    TSImageBrowserItem item;
    item.path = item.resourePath = path;
    item.repType = type;
    return item;
}

/// Puts an orientation tag into a picture and writes it.
QString withOrientation(const Session &session, const QString &name, const QImage &image, int orientation)
{
    const platform::LazyImage lazy = platform::LazyImage::fromImage(image);
    vips_image_set_int(lazy.vips(), VIPS_META_ORIENTATION, orientation);
    return session.writePixels(name, lazy.vips());
}

} // namespace

TEST_F(PhotoListTest, OutOfRangeIsNothing)
{
    session.addPhotos(3);
    for (const qint64 index : {qint64(-1), qint64(3)}) {
        EXPECT_EQ(session.data.itemAtIndex(index), nullptr);
        EXPECT_EQ(session.photos.photoAtIndex(index), nullptr);
        EXPECT_TRUE(session.data.cacheAtIndex(index).isNull());
        session.data.removePhotoAtIndex(index);
        session.data.removePhotoCacheAtIndexOnly(index);
        session.data.GetPhotoSize(index);
    }
    EXPECT_EQ(session.order(), "012");
}

TEST_F(PhotoListTest, RemovalRenumbers)
{
    session.addPhotos(6);
    const auto kept = session.photos.photoAtIndex(5);
    const auto cached = session.photos.photoAtIndex(1);
    session.data.addCachedPhoto(cached);
    session.data.addCachedPhoto(kept);
    session.data.removePhotosWithIndexSet({1, 4});
    EXPECT_EQ(session.order(), "0235");
    EXPECT_EQ(kept->index, 3);
    EXPECT_FALSE(session.data.isCachedPhoto(cached));
    EXPECT_TRUE(session.data.isCachedPhoto(kept));
    EXPECT_TRUE(session.data.isHasItem(QStringLiteral("/photos/3.jpg")));
    EXPECT_FALSE(session.data.isHasItem(QStringLiteral("/photos/1.jpg")));
}

/// Of a photo that is taken off the list while it is decoded nothing stays behind, neither its picture nor
/// the word that it has one.
TEST_F(PhotoListTest, APhotoRemovedMeanwhileLeavesNothing)
{
    const QString path = session.path("slow.png");
    const auto add = [&] {
        auto item = std::make_shared<TSImageBrowserItem>();
        item->path = item->resourePath = path;
        item->repType = TSRepresentationType::IKImageBrowserPathRepresentationType;
        session.data.addItem(item);
        session.photos.addPhoto(std::make_shared<TSPhoto>());
        session.photos.renumber();
    };
    const QByteArray slow = bytesOf(session.writePng("slow.png", plainImage({4000, 4000}, Qt::red)));
    bool wasMeanwhile = false;
    for (int wait = 5; wait < 100 && !wasMeanwhile; wait += 5) {
        session.write("slow.png", slow);
        add();
        auto decoded = std::async(std::launch::async, [this] { return session.data.cacheAtIndex(0); });
        QThread::msleep(ulong(wait));
        wasMeanwhile = decoded.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
        session.data.removePhotoAtIndex(0);
        wasMeanwhile = wasMeanwhile && !decoded.get().isNull();
        session.writePng("slow.png", plainImage({40, 40}, Qt::blue));
        add();
        EXPECT_EQ(session.data.cacheAtIndex(0).pixelColor(0, 0), QColor(Qt::blue));
        session.data.removePhotoAtIndex(0);
    }
    EXPECT_TRUE(wasMeanwhile);

    // The background filling may come to its end after the photo has. Another one lies where it lay before
    // long.
    auto gone = std::make_shared<TSPhoto>();
    const auto *place = gone.get();
    session.data.addCachedPhoto(gone);
    gone.reset();
    std::vector<std::shared_ptr<TSPhoto>> next(1);
    while (next.back().get() != place && next.size() < 1000)
        next.push_back(std::make_shared<TSPhoto>());
    EXPECT_FALSE(session.data.isCachedPhoto(next.back()));
}

TEST_F(PhotoListTest, DroppedPhotosLeaveTheSelectionOnItsPicture)
{
    for (const auto &[position, selected] : {std::pair{0, 3}, {2, 3}, {3, 2}, {4, 2}}) {
        session.data.removeAllPhotos();
        session.addPhotos(4);
        session.photos.setSelectedPhoto(2);
        const auto picture = session.photos.photoAtIndex(2);
        session.photos.insertDraggingPhoto(std::make_shared<TSPhoto>(), position);
        EXPECT_EQ(session.photos.selectedPhoto(), selected) << position;
        EXPECT_EQ(session.photos.photoAtIndex(selected), picture);
    }
}

TEST_F(PhotoListTest, PicturesOfFramesLiveInTheCache)
{
    auto item = std::make_shared<TSImageBrowserItem>(
        itemOf(QStringLiteral("/a.gif/a_frame01"), IKImageBrowserCGImageRepresentationType));
    item->cgimage = plainImage({4, 4}, Qt::red);
    session.data.addItem(item);
    EXPECT_EQ(item->title, QStringLiteral("a_frame01"));
    EXPECT_EQ(item->sourcePath(), QStringLiteral("/a.gif"));
    session.photos.addPhoto(std::make_shared<TSPhoto>());
    EXPECT_EQ(session.data.cacheAtIndex(0).size(), QSize(4, 4));
    session.data.removePhotoCacheAtIndexOnly(0);
    EXPECT_TRUE(item->cgimage.isNull()) << "released through the cache entry";
    EXPECT_TRUE(session.data.cacheAtIndex(0).isNull());

    auto inserted = std::make_shared<TSImageBrowserItem>(
        itemOf(QStringLiteral("/b.c.gif/b.c_frame01"), IKImageBrowserCGImageRepresentationType));
    inserted->cgimage = plainImage({4, 4});
    session.data.insertItem(inserted, 0);
    EXPECT_EQ(inserted->title, QString());
    EXPECT_EQ(inserted->imageTitle(), QStringLiteral("b"));
    session.data.removePhotoCacheAtIndexOnly(0);
    EXPECT_FALSE(inserted->cgimage.isNull()) << "there was no entry";
}

TEST_F(PhotoListTest, PreviewPicturesAreLimitedAndUpright)
{
    const QString wide = session.writeJpeg(QStringLiteral("wide.jpg"), plainImage({4001, 1000}));
    const QString turned = withOrientation(session, QStringLiteral("turned.jpg"), plainImage({60, 30}), 6);
    const std::pair<QString, QSize> cases[] = {{wide, {2000, 500}}, {turned, {30, 60}}};
    for (const auto &[path, size] : cases) {
        addOnly(itemOf(path, IKImageBrowserPathRepresentationType));
        EXPECT_EQ(session.data.cacheAtIndex(0).size(), size);
        QFile::remove(path);
        EXPECT_EQ(session.data.cacheAtIndex(0).size(), size) << "the second time it is cached";
        session.data.removePhotoCacheAtIndexOnly(0);
        EXPECT_TRUE(session.data.cacheAtIndex(0).isNull());
    }
}

TEST_F(PhotoListTest, SizesAreStoredForFilesAndUprightForFrames)
{
    const QString jpeg = withOrientation(session, QStringLiteral("a.jpg"), plainImage({60, 30}), 6);
    const QString tiff = withOrientation(session, QStringLiteral("a.tif"), plainImage({60, 30}), 8);
    const QString named = session.writeTiff(QStringLiteral("scan.pdf.tif"), plainImage({50, 40}));
    TSImageBrowserItem vector = itemOf(QStringLiteral("/x/a.svg"), IKImageBrowserCGImageRepresentationType);
    vector.frameSize = QSizeF(2000, 1000);
    TSImageBrowserItem frame = itemOf(tiff, IKImageBrowserCGImageRepresentationType);
    frame.path += QStringLiteral("/a");
    TSImageBrowserItem namedFrame = itemOf(named, IKImageBrowserCGImageRepresentationType);
    namedFrame.path += QStringLiteral("/scan.pdf");
    const std::tuple<TSImageBrowserItem, QSizeF, double> cases[] = {
        {itemOf(jpeg, IKImageBrowserPathRepresentationType), {60, 30}, 0.5},
        {frame, {30, 60}, 2.0},
        {namedFrame, {50, 40}, 0.8},
        {vector, {2000, 1000}, 0.5},
        {itemOf(QStringLiteral("/missing.jpg"), IKImageBrowserPathRepresentationType), {0, 0}, 0.0},
    };
    for (const auto &[item, size, ratio] : cases) {
        TSPhoto &photo = addOnly(item);
        session.data.isRemoveAllPhotos = true;
        session.data.GetPhotoSize(0);
        EXPECT_EQ(photo.photoSize, QSizeF(0, 0));
        session.data.isRemoveAllPhotos = false;
        session.data.GetPhotoSize(0);
        EXPECT_EQ(photo.photoSize, size) << item.path.toStdString();
        EXPECT_EQ(photo.ratio, ratio);
        photo.photoSize = QSizeF(10, 5);
        session.data.GetPhotoSize(0);
        EXPECT_EQ(photo.photoSize, QSizeF(10, 5)) << "a known size is not read again";
    }
}
