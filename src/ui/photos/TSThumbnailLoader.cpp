#include "ui/photos/TSThumbnailLoader.h"

#include "controls/TSIcon.h"
#include "platform/image/ImageFile.h"
#include "platform/image/ThumbnailCache.h"

#include <algorithm>
#include <QPainter>

namespace {

constexpr qsizetype kilobytes = 64 * 1024;
/// More than fits on a screen; what was scrolled past is asked for again when it comes back.
constexpr size_t longestQueue = 200;

QImage madeThumbnail(const TSImageBrowserItem &item, int side)
{
    if (item.repType == TSRepresentationType::IKImageBrowserCGImageRepresentationType) {
        const QImage &whole = item.cgimage;
        const bool isLarge = std::max(whole.width(), whole.height()) > side;
        return isLarge ? whole.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation) : whole;
    }
    const QImage cached = platform::cachedThumbnail(item.path, side);
    return cached.isNull() ? platform::decodeThumbnail(item.path, side) : cached;
}

/// For a photo without a picture, in the light ink of the strip.
QImage warning(int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const double inset = side * 0.3;
    TSIcon::paint(painter, QRectF(image.rect()).adjusted(inset, inset, -inset, -inset), TSIconName::Warning,
                  QColor(0xe8, 0xe8, 0xe8));
    return image;
}

} // namespace

TSThumbnailLoader::TSThumbnailLoader(QObject *parent) : QObject(parent), m_images(kilobytes)
{
    m_pool.setMaxThreadCount(1);
}

TSThumbnailLoader::~TSThumbnailLoader()
{
    forget();
    m_pool.waitForDone();
}

QImage TSThumbnailLoader::thumbnail(const std::shared_ptr<TSImageBrowserItem> &item, int side)
{
    const QString key = item->imageKey();
    if (const QImage *image = m_images.object(key))
        return *image;
    if (m_asked.contains(key))
        return {};
    m_asked.insert(key);
    const std::lock_guard lock(m_lock);
    m_requests.push_front({item, side});
    if (m_requests.size() > longestQueue) {
        m_asked.remove(m_requests.back().item->imageKey());
        m_requests.pop_back();
    }
    if (!m_isServing) {
        m_isServing = true;
        m_pool.start([this] { serve(); });
    }
    return {};
}

void TSThumbnailLoader::forget()
{
    const std::lock_guard lock(m_lock);
    m_requests.clear();
    m_asked.clear();
    m_images.clear();
}

void TSThumbnailLoader::serve()
{
    for (;;) {
        Request request;
        {
            const std::lock_guard lock(m_lock);
            m_isServing = !m_requests.empty();
            if (!m_isServing)
                return;
            request = m_requests.front();
            m_requests.pop_front();
        }
        QImage image = madeThumbnail(*request.item, request.side);
        if (image.isNull())
            image = warning(request.side);
        QMetaObject::invokeMethod(
            this, [this, key = request.item->imageKey(), image] { store(key, image); }, Qt::QueuedConnection);
    }
}

void TSThumbnailLoader::store(const QString &imageKey, const QImage &image)
{
    if (!m_asked.remove(imageKey))
        return;
    m_images.insert(imageKey, new QImage(image), std::max<qsizetype>(1, image.sizeInBytes() / 1024));
    Q_EMIT thumbnailDidLoad(imageKey);
}
