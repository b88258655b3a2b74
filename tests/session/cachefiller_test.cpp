#include "session/TSCacheFiller.h"
#include "support/Pictures.h"
#include "support/Session.h"

#include <QTest>

namespace {

class CacheFillerTest : public SessionTest {
protected:
    void addPhoto(const QString &path, TSRepresentationType type)
    {
        auto item = std::make_shared<TSImageBrowserItem>();
        item->path = item->resourePath = path;
        item->repType = type;
        if (type == TSRepresentationType::IKImageBrowserCGImageRepresentationType)
            item->cgimage = plainImage({8, 8});
        session.data.addItem(item);
        auto photo = std::make_shared<TSPhoto>();
        photo->index = session.photos.photoCount();
        photo->photoSize = {8, 8};
        session.photos.addPhoto(photo);
    }
    void addPhotos(int count)
    {
        const QByteArray picture = bytesOf(session.writePng("one.png", plainImage({8, 8})));
        for (int i = 0; i < count; ++i)
            addPhoto(session.write(QStringLiteral("%1.png").arg(i), picture),
                     TSRepresentationType::IKImageBrowserPathRepresentationType);
    }
    std::set<qint64> cached() const
    {
        std::set<qint64> indexes;
        for (qint64 i = 0; i < session.photos.photoCount(); ++i)
            if (session.data.isCachedPhoto(session.photos.photoAtIndex(i)))
                indexes.insert(i);
        return indexes;
    }
};

std::set<qint64> range(qint64 first, qint64 last)
{
    std::set<qint64> indexes;
    for (qint64 i = first; i <= last; ++i)
        indexes.insert(i);
    return indexes;
}

} // namespace

TEST_F(CacheFillerTest, NeighboursAreFilledAndFarOnesLetGo)
{
    addPhotos(150);
    {
        TSCacheFiller filler;
        session.photos.setSelectedPhoto(0);
        filler.cacheImages();
        EXPECT_TRUE(QTest::qWaitFor([this] { return cached() == range(1, 99); }, 120000));
        // What lies 100 below goes. A lower neighbour that is there already ends its round, so that above
        // only as many are filled as were missing below.
        session.photos.setSelectedPhoto(120);
        filler.cacheImages();
        std::set<qint64> expected = range(20, 119);
        expected.merge(range(121, 140));
        EXPECT_TRUE(QTest::qWaitFor([&] { return cached() == expected; }, 120000));
    }
    EXPECT_TRUE(session.data.isSelectedPhotoChanged);
}

/// A frame of a file has no other picture than the one that came with it.
TEST_F(CacheFillerTest, FramesKeepTheirPictures)
{
    for (int i = 0; i < 210; ++i)
        addPhoto(QStringLiteral("/photos/a.gif/%1").arg(i),
                 TSRepresentationType::IKImageBrowserCGImageRepresentationType);
    TSCacheFiller filler;
    session.photos.setSelectedPhoto(0);
    filler.cacheImages();
    EXPECT_TRUE(QTest::qWaitFor([this] { return cached() == range(1, 99); }, 120000));
    session.photos.setSelectedPhoto(209);
    filler.cacheImages();
    for (qint64 i = 0; i < 210; ++i)
        EXPECT_FALSE(session.data.itemAtIndex(i)->cgimage.isNull()) << i;
}

/// A change of the selection, or an emptied list, in the middle of the filling.
TEST_F(CacheFillerTest, EndsWhenTheListOrTheSelectionChanges)
{
    for (int round = 0; round < 20; ++round) {
        addPhotos(120);
        session.data.isRemoveAllPhotos = false;
        TSCacheFiller filler;
        session.photos.setSelectedPhoto(60);
        filler.cacheImages();
        if (round % 2 == 0) {
            session.data.removeAllPhotos();
            session.data.isRemoveAllPhotos = true;
        }
        filler.scheduleCacheImages();
        filler.cancelCacheImages();
        session.data.removeAllPhotos();
    }
    EXPECT_EQ(session.photos.photoCount(), 0);
}
