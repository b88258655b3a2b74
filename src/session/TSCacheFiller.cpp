#include "session/TSCacheFiller.h"

#include "session/TSDataManager.h"
#include "session/TSPhotoManager.h"

#include <algorithm>

namespace {

constexpr qint64 reach = 100;

bool isStopped()
{
    return TSDataManager::dataManager()->isSelectedPhotoChanged;
}

} // namespace

TSCacheFiller::TSCacheFiller(QObject *parent) : QObject(parent)
{
    using namespace std::chrono_literals;
    m_queue.setMaxThreadCount(1);
    m_delay.setSingleShot(true);
    m_delay.setInterval(1s);
    connect(&m_delay, &QTimer::timeout, this, &TSCacheFiller::cacheImages);
}

TSCacheFiller::~TSCacheFiller()
{
    TSDataManager::dataManager()->isSelectedPhotoChanged = true;
    m_queue.waitForDone();
}

void TSCacheFiller::scheduleCacheImages()
{
    TSDataManager::dataManager()->isSelectedPhotoChanged = true;
    m_delay.start();
}

void TSCacheFiller::cacheImages()
{
    TSDataManager *data = TSDataManager::dataManager();
    Range range;
    range.count = data->photoCount();
    if (range.count == 0)
        return;
    // The one before sees the flag and ends; this one must not find it cleared again.
    m_queue.waitForDone();
    range.selected = TSPhotoManager::photoManager()->selectedPhoto();
    range.low = std::max<qint64>(range.selected - reach, 0);
    range.high = range.selected + reach < range.count ? range.selected + reach : range.count - 1;
    data->isSelectedPhotoChanged = false;
    if (evict(range))
        m_queue.start([range] { fill(range); });
}

/// False when the selection has changed meanwhile.
bool TSCacheFiller::evict(const Range &range)
{
    for (qint64 index = 0; index < range.low; ++index)
        if (!evictPhoto(index))
            return false;
    // From `high` itself on, which the filling takes back: neighbours at the very edge come and go.
    for (qint64 index = range.high; range.high < range.count - 1 && index < range.count; ++index)
        if (!evictPhoto(index))
            return false;
    return true;
}

/// Also of a photo that only the preview has decoded. The picture of a frame or a drawing stays: it is the
/// only one there is, and an export needs it.
bool TSCacheFiller::evictPhoto(qint64 index)
{
    if (isStopped())
        return false;
    TSDataManager *data = TSDataManager::dataManager();
    const auto item = data->itemAtIndex(index);
    if (item && item->repType == TSRepresentationType::IKImageBrowserPathRepresentationType) {
        data->removePhotoCacheAtIndexOnly(index);
        if (const auto photo = TSPhotoManager::photoManager()->photoAtIndex(index))
            data->removeCachedPhoto(photo);
    }
    return !isStopped();
}

void TSCacheFiller::fill(const Range &range)
{
    const auto isInside = [&range](qint64 index) { return index >= range.low && index <= range.high; };
    for (qint64 step = 1; step < reach; ++step) {
        if (TSDataManager::dataManager()->photoCount() != range.count || isStopped())
            return;
        // A lower neighbour that needs nothing takes the upper one of its round along: a strip that was
        // filled once is gone through quickly. Not to be mended.
        if (isInside(range.selected - step) && !takePosition(range.selected - step))
            continue;
        if (isInside(range.selected + step))
            takePosition(range.selected + step);
    }
}

/// False for a position that is passed over.
bool TSCacheFiller::takePosition(qint64 index)
{
    TSDataManager *data = TSDataManager::dataManager();
    const auto photo = TSPhotoManager::photoManager()->photoAtIndex(index);
    if (!photo || !data->itemAtIndex(index) || data->isCachedPhoto(photo))
        return false;
    if (!isStopped())
        data->cacheAtIndex(index);
    if (!isStopped())
        data->GetPhotoSize(index);
    if (!isStopped())
        data->addCachedPhoto(photo);
    return true;
}
