#pragma once

#include "session/TSCanvas.h"
#include "session/TSCurrentInstance.h"
#include "session/TSImageBrowserItem.h"
#include "session/TSPins.h"
#include "session/TSRequestedOutput.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <QHash>
#include <set>
#include <vector>

class TSPhoto;

/// The one record of the running session: what output is asked for, how the canvas lies over the selected
/// photo, where the position controls stand, and the items of the strip with their decoded pictures. Whoever
/// needs one of these values alone takes that.
///
/// The plain fields belong to the thread that the record is current on; the flags may be polled from any
/// thread. The list and the cache are locked inside, the list before the cache.
class TSDataManager : public TSRequestedOutput, public TSCanvas, public TSPins {
public:
    TSDataManager() : m_current(this) {}
    /// The values and the items as they are now, for one thread to work on: items of its own, no decoded
    /// pictures, no flag set.
    TSDataManager(const TSDataManager &other);
    TSDataManager &operator=(const TSDataManager &) = delete;

    /// The current instance: the calling thread's own, the one made last that still lives, or else one made
    /// at the first use.
    static TSDataManager *dataManager();

    std::atomic<bool> isExitExport = false;
    std::atomic<bool> isSelectedPhotoChanged = false;
    std::atomic<bool> isRemoveAllPhotos = false;
    bool isDragging = false;
    bool isUpdate = false;

    // The list of items. Out of range answers nothing, or changes nothing. The `resourePath` of an item does
    // not change while the item is in the list.
    qint64 photoCount() const;
    std::shared_ptr<TSImageBrowserItem> itemAtIndex(qint64 index) const;
    /// −1 for one that is not in the list.
    qint64 indexOfItem(const std::shared_ptr<TSImageBrowserItem> &item) const;
    /// Appends, gives the item its title, and puts a picture that it brings into the cache.
    void addItem(std::shared_ptr<TSImageBrowserItem> item);
    /// Only inserts: no title and no cache entry.
    void insertItem(std::shared_ptr<TSImageBrowserItem> item, qint64 index);
    /// Whether a photo of this file is in the list.
    bool isHasItem(const QString &path) const;
    /// Removes the item and its photo, and renumbers the photos. The cache is left alone.
    void removeItem(const std::shared_ptr<TSImageBrowserItem> &item);
    void removePhotoAtIndex(qint64 index);
    /// From the highest index to the lowest.
    void removePhotosWithIndexSet(const std::set<qint64> &indexes);
    void removeAllPhotos();
    /// Drops the decoded picture, and keeps the photo.
    void removePhotoCacheAtIndexOnly(qint64 index);

    /// The decoded picture of a photo, no more than 2000 pixels on its long side; decodes it when it is not
    /// cached.
    QImage cacheAtIndex(qint64 index);
    /// Fills `photoSize` and `ratio` of a photo whose size is not yet known.
    void GetPhotoSize(qint64 index);

    /// The photos that the background filling has handled. The main thread and the worker take turns on it.
    bool isCachedPhoto(const std::shared_ptr<TSPhoto> &photo) const;
    void addCachedPhoto(const std::shared_ptr<TSPhoto> &photo);
    void removeCachedPhoto(const std::shared_ptr<TSPhoto> &photo);

private:
    using Items = std::vector<std::shared_ptr<TSImageBrowserItem>>;

    void enterItem(Items::iterator place, std::shared_ptr<TSImageBrowserItem> item);
    void leaveItem(Items::iterator place);
    void releaseCacheOfItem(TSImageBrowserItem &item);
    void storeCache(const std::shared_ptr<TSImageBrowserItem> &item, const QImage &image);

    TSCurrentInstance<TSDataManager> m_current;
    mutable std::recursive_mutex m_itemsLock;
    mutable std::recursive_mutex m_cacheLock;
    Items m_items;
    /// How many items each file has in the list.
    QHash<QString, qint64> m_itemsOfSource;
    QHash<QString, QImage> m_cache;
    /// By their owners: another photo may come to lie where one that has gone was.
    std::set<std::weak_ptr<TSPhoto>, std::owner_less<>> m_cachedPhotos;
};
