#pragma once

#include "overlays/TSOverlayManager.h"
#include "platform/image/LazyImage.h"
#include "platform/system/UserDefaults.h"
#include "session/TSCacheManager.h"
#include "session/TSDataManager.h"
#include "session/TSDefaults.h"
#include "session/TSNotificationCenter.h"
#include "session/TSPhotoManager.h"
#include "support/Folder.h"
#include "support/Pictures.h"

/// What every test of the session starts from: fresh managers, settings that are gone with them, and an empty
/// folder. While it lives its instances are the current ones.
class Session : public Folder {
public:
    std::unique_ptr<platform::UserDefaults> defaults = platform::UserDefaults::inMemory();
    TSNotificationCenter center;
    TSDataManager data;
    TSPhotoManager photos;
    TSCacheManager cache;
    TSOverlayManager overlays;
    /// Photos that are records alone, with no file behind them.
    void addPhotos(int count, const QSizeF &size = {100, 100})
    {
        for (int i = 0; i < count; ++i) {
            auto item = std::make_shared<TSImageBrowserItem>();
            item->path = item->resourePath = QStringLiteral("/photos/%1.jpg").arg(photos.photoCount());
            item->repType = TSRepresentationType::IKImageBrowserPathRepresentationType;
            data.addItem(item);
            auto photo = std::make_shared<TSPhoto>();
            photo->index = photos.photoCount();
            photo->path = photo->resourcePath = item->path;
            photo->photoSize = photo->photoOutputSize = size;
            photos.addPhoto(photo);
        }
    }

    /// The first letters of the photos' names in the order of the list; photos, items and indexes must agree.
    std::string order() const
    {
        std::string names;
        const auto list = photos.photos();
        for (size_t i = 0; i < list.size(); ++i) {
            EXPECT_EQ(list[i]->index, qint64(i));
            EXPECT_EQ(data.itemAtIndex(qint64(i))->path, list[i]->path);
            names += list[i]->path.section(u'/', -1).at(0).toLatin1();
        }
        EXPECT_EQ(data.photoCount(), qint64(list.size()));
        return names;
    }

    /// A canvas at its usual place in the tests: points, and points a photo pixel.
    void setCanvas(const QRectF &canvas, double pointsPerPixel = 1)
    {
        data.canvasFrame = canvas;
        data.previewFrame = QRectF(0, 0, canvas.right(), canvas.bottom());
        data.photoRatioOfSize = pointsPerPixel;
    }

    QString writeJpeg(const QString &name, const QImage &image, int quality = 95) const
    {
        return write(name, platform::LazyImage::fromImage(image).encodeJpeg({quality, {1, 1}}));
    }
    QString writePng(const QString &name, const QImage &image) const
    {
        return write(name, platform::LazyImage::fromImage(image).encodePng());
    }
    QString writeTiff(const QString &name, const QImage &image) const
    {
        return write(name, platform::LazyImage::fromImage(image).encodeTiff());
    }
};

/// One value of all rows of an overlay.
template <typename T>
std::vector<T> valuesOf(const TSOverlay &overlay, T TSRow::*field)
{
    std::vector<T> values;
    for (qint64 i = 0; i < overlay.rows().count(); ++i)
        values.push_back(overlay.rows().at(i)->*field);
    return values;
}

class SessionTest : public testing::Test {
protected:
    Session session;
};

inline void expectNear(const QPointF &point, const QPointF &expected, double tolerance = 1e-9)
{
    EXPECT_NEAR(point.x(), expected.x(), tolerance);
    EXPECT_NEAR(point.y(), expected.y(), tolerance);
}

inline void expectRect(const QRectF &rect, double x, double y, double w, double h)
{
    EXPECT_DOUBLE_EQ(rect.x(), x);
    EXPECT_DOUBLE_EQ(rect.y(), y);
    EXPECT_DOUBLE_EQ(rect.width(), w);
    EXPECT_DOUBLE_EQ(rect.height(), h);
}

inline void expectRect(const QRectF &rect, const QRectF &expected)
{
    expectRect(rect, expected.x(), expected.y(), expected.width(), expected.height());
}
