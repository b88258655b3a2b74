#include "session/TSDataManager.h"

#include "platform/image/ImageFile.h"
#include "session/TSFileUtility.h"
#include "session/TSImageUtility.h"
#include "session/TSPhotoManager.h"

#include <algorithm>
#include <QFileInfo>

using enum TSRepresentationType;

namespace {

using Lock = std::lock_guard<std::recursive_mutex>;

/// The longest side of a decoded preview picture, in pixels.
constexpr double previewSide = 2000;

QSizeF storedSize(const TSImageBrowserItem &item)
{
    const auto header = platform::readImageHeader(item.path);
    return header ? QSizeF(header->size) : QSizeF(0, 0);
}

/// A frame's size is that of its picture held upright, unlike that of a plain file.
QSizeF frameSizeOfFile(const TSImageBrowserItem &item)
{
    if (!item.frameSize.isEmpty() || TSIsVectorType(TSImageType(item.resourePath)))
        return item.frameSize;
    const auto header = platform::readImageHeader(item.sourcePath(), nullptr, int(item.frameCount));
    if (!header)
        return {0, 0};
    return header->turnsSideways ? QSizeF(header->size.transposed()) : QSizeF(header->size);
}

} // namespace

TSDataManager::TSDataManager(const TSDataManager &other)
    : TSRequestedOutput(other), TSCanvas(other), TSPins(other)
{
    const Lock lock(other.m_itemsLock);
    m_itemsOfSource = other.m_itemsOfSource;
    m_items.reserve(other.m_items.size());
    for (const auto &item : other.m_items)
        m_items.push_back(std::make_shared<TSImageBrowserItem>(*item));
}

TSDataManager *TSDataManager::dataManager()
{
    return TSCurrentInstance<TSDataManager>::get();
}

qint64 TSDataManager::photoCount() const
{
    const Lock lock(m_itemsLock);
    return qint64(m_items.size());
}

std::shared_ptr<TSImageBrowserItem> TSDataManager::itemAtIndex(qint64 index) const
{
    const Lock lock(m_itemsLock);
    return index >= 0 && index < qint64(m_items.size()) ? m_items[size_t(index)] : nullptr;
}

qint64 TSDataManager::indexOfItem(const std::shared_ptr<TSImageBrowserItem> &item) const
{
    const Lock lock(m_itemsLock);
    // Those that joined last are asked for most.
    const auto found = std::find(m_items.rbegin(), m_items.rend(), item);
    return m_items.rend() - found - 1;
}

void TSDataManager::addItem(std::shared_ptr<TSImageBrowserItem> item)
{
    const Lock lock(m_itemsLock);
    if (item->repType == IKImageBrowserCGImageRepresentationType && !item->cgimage.isNull()) {
        const Lock cacheLock(m_cacheLock);
        m_cache.insert(item->imageKey(), item->cgimage);
    }
    item->title = QFileInfo(item->path).fileName();
    enterItem(m_items.end(), std::move(item));
}

void TSDataManager::insertItem(std::shared_ptr<TSImageBrowserItem> item, qint64 index)
{
    const Lock lock(m_itemsLock);
    const qint64 position = std::clamp<qint64>(index, 0, qint64(m_items.size()));
    enterItem(m_items.begin() + position, std::move(item));
}

bool TSDataManager::isHasItem(const QString &path) const
{
    const Lock lock(m_itemsLock);
    return m_itemsOfSource.contains(path);
}

void TSDataManager::enterItem(Items::iterator place, std::shared_ptr<TSImageBrowserItem> item)
{
    ++m_itemsOfSource[item->resourePath];
    m_items.insert(place, std::move(item));
}

void TSDataManager::leaveItem(Items::iterator place)
{
    const auto count = m_itemsOfSource.find((*place)->resourePath);
    if (count != m_itemsOfSource.end() && --*count == 0)
        m_itemsOfSource.erase(count);
    m_items.erase(place);
}

void TSDataManager::removeItem(const std::shared_ptr<TSImageBrowserItem> &item)
{
    const Lock lock(m_itemsLock);
    const auto found = std::find(m_items.begin(), m_items.end(), item);
    if (found == m_items.end())
        return;
    const qint64 index = found - m_items.begin();
    leaveItem(found);
    TSPhotoManager *photos = TSPhotoManager::photoManager();
    const std::shared_ptr<TSPhoto> photo = photos->photoAtIndex(index);
    removeCachedPhoto(photo);
    photos->removePhoto(photo);
    photos->renumber();
}

void TSDataManager::removePhotoAtIndex(qint64 index)
{
    const Lock lock(m_itemsLock);
    if (const auto item = itemAtIndex(index)) {
        releaseCacheOfItem(*item);
        removeItem(item);
    }
}

void TSDataManager::removePhotosWithIndexSet(const std::set<qint64> &indexes)
{
    for (auto index = indexes.rbegin(); index != indexes.rend(); ++index)
        removePhotoAtIndex(*index);
}

void TSDataManager::removeAllPhotos()
{
    for (qint64 index = photoCount() - 1; index >= 0; --index)
        removePhotoAtIndex(index);
}

void TSDataManager::removePhotoCacheAtIndexOnly(qint64 index)
{
    const Lock lock(m_itemsLock);
    if (const auto item = itemAtIndex(index))
        releaseCacheOfItem(*item);
}

void TSDataManager::releaseCacheOfItem(TSImageBrowserItem &item)
{
    const Lock lock(m_cacheLock);
    if (m_cache.remove(item.imageKey()) > 0)
        item.cgimage = QImage();
}

QImage TSDataManager::cacheAtIndex(qint64 index)
{
    const auto item = itemAtIndex(index);
    if (!item)
        return {};
    {
        const Lock lock(m_cacheLock);
        const auto hit = m_cache.constFind(item->imageKey());
        if (hit != m_cache.constEnd())
            return *hit;
    }
    QImage image;
    if (item->repType == IKImageBrowserPathRepresentationType)
        image = TSCreateThumbnail(item->path, previewSide);
    else if (item->repType == IKImageBrowserCGImageRepresentationType)
        image = item->cgimage;
    if (!image.isNull())
        storeCache(item, image);
    return image;
}

/// Not of a photo that was removed while it was being decoded: under its path the next one of that file,
/// which may have changed, would get the old picture.
void TSDataManager::storeCache(const std::shared_ptr<TSImageBrowserItem> &item, const QImage &image)
{
    const Lock lock(m_itemsLock);
    if (std::find(m_items.begin(), m_items.end(), item) == m_items.end())
        return;
    const Lock cacheLock(m_cacheLock);
    m_cache.insert(item->imageKey(), image);
}

void TSDataManager::GetPhotoSize(qint64 index)
{
    const auto photo = TSPhotoManager::photoManager()->photoAtIndex(index);
    const auto item = itemAtIndex(index);
    if (!photo || !item || isRemoveAllPhotos)
        return;
    if (photo->photoSize.width() == 0) {
        const bool isPath = item->repType == IKImageBrowserPathRepresentationType;
        const QSizeF size = isPath ? storedSize(*item) : frameSizeOfFile(*item);
        if (size.width() == 0 || isRemoveAllPhotos)
            return;
        photo->photoSize = size;
    }
    photo->ratio = photo->photoSize.height() / photo->photoSize.width();
}

bool TSDataManager::isCachedPhoto(const std::shared_ptr<TSPhoto> &photo) const
{
    const Lock lock(m_cacheLock);
    return m_cachedPhotos.count(photo) > 0;
}

void TSDataManager::addCachedPhoto(const std::shared_ptr<TSPhoto> &photo)
{
    const Lock lock(m_cacheLock);
    std::erase_if(m_cachedPhotos, [](const auto &known) { return known.expired(); });
    m_cachedPhotos.insert(photo);
}

void TSDataManager::removeCachedPhoto(const std::shared_ptr<TSPhoto> &photo)
{
    const Lock lock(m_cacheLock);
    m_cachedPhotos.erase(photo);
}
