#include "session/TSPhotoListEditor.h"

#include "session/TSDataManager.h"
#include "session/TSFileUtility.h"
#include "session/TSNotificationCenter.h"
#include "session/TSPhotoManager.h"

#include <algorithm>
#include <QCoreApplication>
#include <vector>

namespace {

std::vector<qint64> indexesWithoutSource()
{
    const TSDataManager *data = TSDataManager::dataManager();
    std::vector<qint64> indexes;
    for (qint64 index = 0; index < data->photoCount(); ++index)
        if (!TSFileExists(data->itemAtIndex(index)->sourcePath()))
            indexes.push_back(index);
    return indexes;
}

} // namespace

void TSPhotoListEditor::removePhotoAction()
{
    if (TSDataManager::dataManager()->photoCount() == 1 && !confirmRemoval())
        return;
    if (m_isLock)
        return;
    m_isLock = true;
    const std::set<qint64> indexes = m_strip.selectionIndexes();
    if (!indexes.empty())
        removeSelection(indexes);
    if (TSDataManager::dataManager()->photoCount() == 0) {
        m_strip.setRemoveEnabled(false);
        m_host.hideOverlayList();
        m_rows.allPhotosWereRemoved();
        m_host.emptyEditingOverlaysArray();
        m_strip.reloadData();
        m_host.clearEditingOverlay();
        m_host.updateOverlayListViewUI();
    }
    stopFilling();
    Q_EMIT TSNotificationCenter::defaultCenter()->overlaysChanged();
    m_strip.updateStartView();
    m_host.selectOverlays();
    m_isLock = false;
}

bool TSPhotoListEditor::confirmRemoval()
{
    return m_host.confirm(qtTrId("RemoveAllPhotosTitle"), qtTrId("RemoveAllPhotos"));
}

void TSPhotoListEditor::removeSelection(const std::set<qint64> &indexes)
{
    TSDataManager *data = TSDataManager::dataManager();
    data->removePhotosWithIndexSet(indexes);
    // The strip selects one photo at a time, and only the row of one is looked after.
    const qint64 first = *indexes.begin();
    m_rows.photoWasRemoved(first);
    m_strip.reloadData();
    const qint64 next = std::min(first, data->photoCount() - 1);
    if (next >= 0)
        m_strip.setSelectionIndex(next);
}

void TSPhotoListEditor::stopFilling()
{
    TSDataManager::dataManager()->isSelectedPhotoChanged = true;
    m_strip.cancelCacheImages();
}

void TSPhotoListEditor::removeAllPhotosAction()
{
    if (!confirmRemoval())
        return;
    TSDataManager *data = TSDataManager::dataManager();
    data->removeAllPhotos();
    data->isRemoveAllPhotos = true;
    stopFilling();
    m_rows.allPhotosWereRemoved();
    m_host.emptyEditingOverlaysArray();
    m_strip.reloadData();
    m_strip.setRemoveEnabled(false);
    m_host.clearEditingOverlay();
    m_host.hideOverlayList();
    m_host.updateOverlayListViewUI();
    Q_EMIT TSNotificationCenter::defaultCenter()->overlaysChanged();
    m_strip.updateStartView();
}

bool TSPhotoListEditor::moveItemsAtIndexes(const std::set<qint64> &indexes, qint64 target)
{
    TSDataManager *data = TSDataManager::dataManager();
    TSPhotoManager *photos = TSPhotoManager::photoManager();
    struct Moved {
        std::shared_ptr<TSImageBrowserItem> item;
        std::shared_ptr<TSPhoto> photo;
    };
    std::vector<Moved> moved;
    qint64 place = std::clamp<qint64>(target, 0, data->photoCount());
    const qint64 rowTarget = place;
    for (auto index = indexes.rbegin(); index != indexes.rend(); ++index) {
        Moved entry{data->itemAtIndex(*index), photos->photoAtIndex(*index)};
        if (!entry.item || !entry.photo)
            continue;
        if (*index < place)
            --place;
        data->removeItem(entry.item);
        moved.push_back(std::move(entry));
    }
    for (const Moved &entry : moved) {
        data->insertItem(entry.item, place);
        photos->insertPhoto(entry.photo, place);
    }
    // As with removal, the rows of one photo are looked after.
    if (!moved.empty())
        m_rows.photoWasMoved(*indexes.rbegin(), rowTarget);
    return true;
}

QStringList TSPhotoListEditor::writeItemsAtIndexes(const std::set<qint64> &indexes) const
{
    QStringList paths;
    for (const qint64 index : indexes)
        if (const auto item = TSDataManager::dataManager()->itemAtIndex(index))
            paths.append(item->resourePath);
    return paths;
}

void TSPhotoListEditor::removeItemsWithoutSource()
{
    TSDataManager *data = TSDataManager::dataManager();
    const std::set<qint64> selection = m_strip.selectionIndexes();
    if (selection.empty())
        return;
    const std::vector<qint64> gone = indexesWithoutSource();
    qint64 removed = 0;
    for (const qint64 index : gone) {
        if (index == *selection.begin())
            m_host.releaseShownPhoto();
        // Not to be mended: the overlays keep their rows, so that those of the photos behind lie one place
        // off from here on.
        data->removePhotoAtIndex(index - removed++);
    }
    if (gone.empty())
        return;
    if (data->photoCount() == 0) {
        removeAllPhotosAction();
    } else {
        m_strip.reloadData();
        m_strip.setSelectionIndex(data->photoCount() - 1);
    }
    m_host.showAlert(qtTrId("Source don't exist"), qtTrId("delete no source file image"));
}
