#include "preview/TSPointing.h"

#include "overlays/TSHitTest.h"
#include "preview/TSCanvasLayout.h"
#include "preview/TSGesture.h"
#include "preview/TSOverlaysLayer.h"
#include "preview/TSPreviewView.h"
#include "preview/TSSelection.h"
#include "preview/TSTrackerState.h"
#include "session/TSDataManager.h"

#include <algorithm>
#include <numbers>

using enum TSCursor;

namespace {

constexpr double sector = std::numbers::pi / 8;

bool contains(const TSOverlay &overlay, const QPointF &point)
{
    return TSRectContainsPoint(overlay.frame(), overlay.convertPoint(point));
}

bool isScript(const std::shared_ptr<TSOverlay> &overlay)
{
    return overlay && overlay->isScript();
}

bool canvasContains(const QPointF &point)
{
    return TSRectContainsPoint(TSDataManager::dataManager()->canvasFrame, point);
}

} // namespace

void TSPointing::mouseMoved(const TSMouseEvent &event)
{
    if (!m_layout.photo())
        return;
    const auto &selected = m_selection.editingOverlaysArray();
    if (selected.empty()) {
        m_gesture.isInOverlay = false;
        return;
    }
    if (event.isShiftOrCommand()) {
        m_view.changeCursor(arrowCursor);
        return;
    }
    if (m_selection.isContainScriptObject()) {
        m_gesture.isInOverlay = canvasContains(event.point);
        m_gesture.draggingNode = TSTrackerNode::None;
        return;
    }
    bool isFound = false;
    for (const auto &overlay : selected) {
        const Hover place = hover(*overlay, event.point);
        if (place == Hover::Outside)
            continue;
        m_selection.setGuideOverlay(overlay);
        if (place == Hover::OnNode)
            return;
        isFound = true;
    }
    if (isFound)
        leadWithTopmost(event.point);
}

TSPointing::Hover TSPointing::hover(TSOverlay &overlay, const QPointF &point)
{
    const QPointF local = overlay.convertPoint(point);
    TSTracker *tracker = overlay.tracker();
    tracker->setFrame(overlay.frame());
    const int node = tracker->nodeAtPoint(local);
    m_gesture.draggingNode = node;
    const bool isOnNode = node != TSTrackerNode::None;
    m_gesture.isInOverlay = isOnNode || TSRectContainsPoint(overlay.frame(), local);
    if (isOnNode) {
        m_view.changeCursor(getCursorByTrackerNode(node, overlay));
        return Hover::OnNode;
    }
    m_view.changeCursor(m_gesture.isInOverlay ? openHandCursor : arrowCursor);
    return m_gesture.isInOverlay ? Hover::Inside : Hover::Outside;
}

/// Of selected overlays that lie over one another the top one leads.
void TSPointing::leadWithTopmost(const QPointF &point)
{
    m_gesture.isInOverlay = true;
    m_view.changeCursor(openHandCursor);
    const auto top = m_overlaysLayer.selectOverlayAtPoint(point);
    if (top && m_selection.contains(top))
        m_selection.setGuideOverlay(top);
}

std::optional<TSCursor> TSPointing::getCursorByTrackerNode(int node, const TSOverlay &overlay)
{
    if (node == TSTrackerNode::Rotate)
        return rotateCursor;
    const double a = overlay.tracker()->angleOfNode(node, overlay.angle());
    const auto isBetween = [a](int from, int to) { return a > from * sector && a < to * sector; };
    const auto isFromTo = [a](int from, int to) { return a >= from * sector && a <= to * sector; };
    if ((a >= 0 && a < sector) || a > 15 * sector || isBetween(7, 9))
        return resizeUpDownCursor;
    if (isBetween(3, 5) || isBetween(11, 13))
        return resizeLeftRightCursor;
    if (isFromTo(13, 15) || isFromTo(5, 7))
        return tl2brCursor;
    if (isFromTo(1, 3) || isFromTo(9, 11))
        return tl2blCursor;
    return std::nullopt;
}

void TSPointing::mouseDown(const TSMouseEvent &event)
{
    if (!m_layout.photo())
        return;
    m_gesture.startPoint = m_gesture.downPoint = event.point;
    if (m_gesture.draggingNode != TSTrackerNode::None)
        return;
    if (m_selection.editingOverlaysArray().size() >= 2)
        m_selection.setEditingText(nullptr);
    if (holdsSelection(event.point) || holdsScript(event.point)) {
        m_gesture.isInOverlay = true;
        return;
    }
    const auto hit = m_overlaysLayer.selectOverlayAtPoint(event.point);
    if (event.isShiftOrCommand()) {
        addToSelection(hit);
    } else if (isScript(hit) && event.clickCount == 2) {
        // It is selected and not yet taken hold of: a drag out of the second click still draws a marquee.
        m_selection.setEditingOverlaysArray({hit});
        m_selection.setEditingOverlays(false);
    } else {
        select(overlayToSelect(hit, event.clickCount), event.clickCount);
    }
}

bool TSPointing::holdsSelection(const QPointF &point) const
{
    const auto &selected = m_selection.editingOverlaysArray();
    return selected.size() >= 2 && std::any_of(selected.begin(), selected.end(), [&](const auto &overlay) {
               return contains(*overlay, point);
           });
}

bool TSPointing::holdsScript(const QPointF &point) const
{
    const auto script = m_selection.scriptObject();
    return script && isScript(m_overlaysLayer.selectOverlayAtPoint(point)) &&
           canvasContains(script->convertPoint(point));
}

/// A press adds and never takes away. A Script text never joins others.
void TSPointing::addToSelection(const std::shared_ptr<TSOverlay> &hit)
{
    if (isScript(hit))
        return;
    m_selection.editingOverlaysArrayAddobject(hit);
    m_selection.setEditingOverlays(false);
}

/// A single click on a Script text, which lies under every point of the canvas, is one on empty ground.
std::shared_ptr<TSOverlay> TSPointing::overlayToSelect(const std::shared_ptr<TSOverlay> &hit,
                                                       int clickCount) const
{
    if (isScript(hit) && clickCount == 1 && m_selection.scriptObject() != hit)
        return nullptr;
    return hit;
}

void TSPointing::select(const std::shared_ptr<TSOverlay> &overlay, int clickCount)
{
    m_selection.setEditingOverlaysArray({});
    m_selection.editingOverlaysArrayAddobject(overlay);
    m_selection.setGuideOverlay(overlay);
    if (!overlay) {
        deselect();
        return;
    }
    m_gesture.isInOverlay = true;
    m_selection.setEditingOverlays(false);
    const bool isTextToEdit = clickCount >= 2 && dynamic_cast<const TSText *>(overlay.get());
    if (!isTextToEdit)
        m_view.changeCursor(openHandCursor);
    m_view.redrawOverlaysView();
    m_view.redrawTrackerView();
}

void TSPointing::deselect()
{
    m_trackerState.alignmentLines.clear();
    m_selection.setEditingOverlay(nullptr);
    m_selection.setEditingText(nullptr);
    m_trackerState.tracker.reset();
    m_view.redrawOverlaysView();
    m_view.redrawTrackerView();
    m_view.changeCursor(arrowCursor);
}
