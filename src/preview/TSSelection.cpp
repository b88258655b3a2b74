#include "preview/TSSelection.h"

#include "preview/TSGesture.h"
#include "preview/TSPreviewView.h"
#include "preview/TSTrackerState.h"
#include "session/TSDataManager.h"
#include "session/TSNotificationCenter.h"

#include <algorithm>

void TSSelection::clear()
{
    m_editingOverlaysArray.clear();
    m_editingOverlay = nullptr;
    m_editingText = nullptr;
    m_guideOverlay = nullptr;
    m_trackerState.tracker.reset();
    // A press on what is no longer there would take hold of nothing, and no move of the mouse looks again.
    m_gesture.draggingNode = TSTrackerNode::None;
}

void TSSelection::editingOverlaysArrayAddobject(const std::shared_ptr<TSOverlay> &overlay)
{
    if (overlay && !contains(overlay))
        m_editingOverlaysArray.push_back(overlay);
}

bool TSSelection::contains(const std::shared_ptr<TSOverlay> &overlay) const
{
    const Overlays &selected = m_editingOverlaysArray;
    return std::find(selected.begin(), selected.end(), overlay) != selected.end();
}

TSSelection::Overlays TSSelection::otherOverlays() const
{
    Overlays others = TSOverlayManager::overlayManager()->overlays();
    std::erase_if(others, [this](const auto &overlay) { return contains(overlay); });
    return others;
}

std::shared_ptr<TSText> TSSelection::scriptObject() const
{
    if (m_editingOverlaysArray.size() != 1 || !m_editingOverlaysArray.front()->isScript())
        return nullptr;
    return std::dynamic_pointer_cast<TSText>(m_editingOverlaysArray.front());
}

void TSSelection::setEditingOverlays(bool isNew)
{
    if (isNew) {
        m_synchronisation.updateSelectedOverlaysRatioOfFrame(m_editingOverlaysArray);
        m_synchronisation.updateSelectedOverlaysOffsetPixel(m_editingOverlaysArray);
    }
    m_synchronisation.updateUnionFrameAlignment(m_editingOverlaysArray);
    updateEditingTextAndEditingOverlay();
    TSNotificationCenter *center = TSNotificationCenter::defaultCenter();
    Q_EMIT center->overlaysChanged();
    Q_EMIT center->TSUpdateRotateAngle();
    TSDataManager *data = TSDataManager::dataManager();
    data->watermarkAlignmenWay = data->offsetAlignment = data->oldAlignment = TSPositionCode::None;
    m_view.makeFirstResponder(TSResponder::TrackerView);
    Q_EMIT center->TSUpdateWaterAlignment();
    Q_EMIT center->TSUpdateOffset();
    Q_EMIT center->TSUpdateOverlayListViewUI();
}

void TSSelection::updateEditingTextAndEditingOverlay()
{
    if (m_editingOverlaysArray.size() != 1) {
        m_editingText = nullptr;
        m_editingOverlay = nullptr;
        return;
    }
    const std::shared_ptr<TSOverlay> overlay = m_editingOverlaysArray.front();
    m_trackerState.tracker = std::shared_ptr<TSTracker>(overlay, overlay->tracker());
    m_editingText = std::dynamic_pointer_cast<TSText>(overlay);
    m_editingOverlay = overlay;
    m_view.makeFirstResponder(TSResponder::Preview);
}

void TSSelection::selectOverlay(const std::shared_ptr<TSOverlay> &overlay)
{
    if (m_editingOverlaysArray == Overlays{overlay})
        return;
    clear();
    editingOverlaysArrayAddobject(overlay);
    setEditingOverlays(false);
}

void TSSelection::selectAllOverlays()
{
    const Overlays all = TSOverlayManager::overlayManager()->overlays();
    if (all.empty())
        return;
    for (const auto &overlay : all)
        editingOverlaysArrayAddobject(overlay);
    setEditingOverlays(false);
    m_view.makeFirstResponder(TSResponder::TrackerView);
}

bool TSSelection::containsIndex(qint64 index) const
{
    const auto overlay = TSOverlayManager::overlayManager()->overlayAtIndex(index);
    return overlay && contains(overlay);
}

bool TSSelection::isUpEnabled() const
{
    const qint64 top = isContainScriptObject() ? TSOverlayManager::overlayManager()->notScriptsCount() : 0;
    return !m_editingOverlaysArray.empty() && !containsIndex(top);
}

bool TSSelection::isDownEnabled() const
{
    const TSOverlayManager *manager = TSOverlayManager::overlayManager();
    const qint64 end = isContainScriptObject() ? manager->overlayCount() : manager->notScriptsCount();
    return !m_editingOverlaysArray.empty() && !containsIndex(end - 1);
}

void TSSelection::up()
{
    TSOverlayManager::overlayManager()->upOverlay(m_editingOverlaysArray);
    orderDidChange();
}

void TSSelection::down()
{
    TSOverlayManager::overlayManager()->downOverlay(m_editingOverlaysArray);
    orderDidChange();
}

void TSSelection::orderDidChange()
{
    TSDataManager::dataManager()->isUpdate = false;
    m_view.redrawOverlaysView();
    m_view.redrawTrackerView();
    Q_EMIT TSNotificationCenter::defaultCenter()->TSUpdateOverlayListViewUI();
}
