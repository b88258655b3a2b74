#include "preview/TSDragging.h"

#include "overlays/TSAnchor.h"
#include "overlays/TSHitTest.h"
#include "preview/TSAngle.h"
#include "preview/TSCanvasLayout.h"
#include "preview/TSGesture.h"
#include "preview/TSPreviewView.h"
#include "preview/TSProportionalResize.h"
#include "preview/TSSelection.h"
#include "preview/TSTrackerState.h"
#include "session/TSDataManager.h"
#include "session/TSNotificationCenter.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// How near things must come for a guide line, in points: to lie on one another after a move, and nearly so
// during a resize, which snaps to nothing.
constexpr double moveGuideDistance = 0.001;
constexpr double resizeGuideDistance = 0.5;
/// What the keys size by.
constexpr int lowerRightNode = 4;

QRectF rectBetween(const QPointF &a, const QPointF &b)
{
    return {std::min(a.x(), b.x()), std::min(a.y(), b.y()), std::fabs(a.x() - b.x()),
            std::fabs(a.y() - b.y())};
}

QPointF narrowed(const QPointF &point)
{
    return {double(float(point.x())), double(float(point.y()))};
}

/// A hand on the overlay ends what the controls have pinned.
void releasePins(TSOverlay &overlay)
{
    overlay.setWmUnionAlignment(TSPositionCode::None);
    overlay.setOffsetAlignment(TSPositionCode::None);
}

bool isAnySnap()
{
    return TSSnapping::isSnapToPhoto() || TSSnapping::isSnapToObjects();
}

QRectF boxOnScreen(const TSOverlay &overlay)
{
    return overlay.convertRectToPreview(overlay.frame());
}

/// A shift of a pattern, in pitches. One without a size cannot be shifted.
double shiftedOrigin(double origin, double delta, double pitch)
{
    return pitch == 0 ? origin : std::clamp(origin + double(float(delta / pitch)), -1.0, 1.0);
}

} // namespace

void TSDragging::mouseDragged(const TSMouseEvent &event)
{
    if (!m_layout.photo())
        return;
    m_gesture.curPoint = event.point;
    m_trackerState.alignmentLines.clear();
    if (event.isShiftOrCommand()) {
        m_view.redrawTrackerView();
        return;
    }
    if (!m_gesture.isInOverlay) {
        dragMarquee();
        return;
    }
    m_trackerState.isMultipleChoice = false;
    m_trackerState.boundsRect = QRectF();
    if (m_selection.editingOverlaysArray().empty())
        return;
    if (const auto script = m_selection.scriptObject()) {
        dragScript(*script);
        return;
    }
    m_gesture.isUpdateDownPointX = m_gesture.isUpdateDownPointY = true;
    if (m_gesture.draggingNode == TSTrackerNode::None)
        dragMove();
    else if (m_gesture.draggingNode == TSTrackerNode::Rotate)
        dragRotate();
    else
        dragResize();
    finishStep();
}

/// The test is made in each overlay's own sense, against the box around the turned marquee.
void TSDragging::dragMarquee()
{
    const QRectF marquee = rectBetween(m_gesture.startPoint, m_gesture.curPoint);
    m_selection.setEditingOverlaysArray({});
    for (const auto &overlay : TSOverlayManager::overlayManager()->overlays())
        if (TSRectsMeet(overlay->convertRect(marquee), overlay->frame()) && !overlay->isScript())
            m_selection.editingOverlaysArrayAddobject(overlay);
    m_trackerState.boundsRect = marquee;
    m_trackerState.isMultipleChoice = true;
    m_view.redrawTrackerView();
}

void TSDragging::dragScript(TSText &text)
{
    m_selection.setEditingText(m_selection.scriptObject());
    m_selection.setEditingOverlay(m_selection.scriptObject());
    shiftScript(text, localDelta(text));
    m_gesture.downPoint = m_gesture.curPoint;
}

void TSDragging::shiftScript(TSText &text, const QPointF &delta)
{
    const QSizeF &pitch = text.textSizeOfScript();
    text.setScriptOrigin({shiftedOrigin(text.scriptOrigin().x(), delta.x(), pitch.width()),
                          shiftedOrigin(text.scriptOrigin().y(), delta.y(), pitch.height())});
    text.updateAlignmentAndRatio();
    text.updateRenderTextImage();
    m_view.redrawOverlaysView();
    m_view.redrawTrackerView();
}

/// How far the mouse went, seen by an overlay that is turned.
QPointF TSDragging::localDelta(const TSOverlay &overlay) const
{
    return narrowed(overlay.convertPoint(m_gesture.curPoint) - overlay.convertPoint(m_gesture.downPoint));
}

bool TSDragging::isLed(const TSOverlay &overlay) const
{
    return m_selection.guideOverlay().get() == &overlay;
}

template <typename Follow>
void TSDragging::forEachFollower(Follow follow)
{
    for (const auto &overlay : m_selection.editingOverlaysArray())
        if (!isLed(*overlay))
            follow(*overlay);
}

void TSDragging::dragMove()
{
    QPointF moved;
    if (const auto guide = m_selection.guideOverlay()) {
        releasePins(*guide);
        const QPointF delta = m_gesture.curPoint - m_gesture.downPoint;
        const QPointF before = guide->frame().topLeft();
        moveOverlay(*guide, float(delta.x()), float(delta.y()));
        moved = guide->frame().topLeft() - before;
    }
    m_view.changeCursor(TSCursor::closedHandCursor);
    forEachFollower([&](TSOverlay &follower) {
        releasePins(follower);
        moveOverlay(follower, float(moved.x()), float(moved.y()));
    });
}

void TSDragging::moveOverlay(TSOverlay &overlay, float offsetX, float offsetY)
{
    overlay.setFrame(overlay.frame().translated(double(offsetX), double(offsetY)));
    if (!isAnySnap() || !isLed(overlay))
        return;
    const auto others = m_selection.otherOverlays();
    float snapX = 0;
    float snapY = 0;
    m_snapping.alignLineOfRect(boxOnScreen(overlay), snapX, snapY, others, TSAlignmentLine::All);
    overlay.setFrame(overlay.frame().translated(double(snapX), double(snapY)));
    // The next step is measured from where the hand took hold, and so takes the snap off again: within reach
    // the overlay stays on the line, beyond it it jumps back under the pointer.
    if (snapX != 0) {
        m_gesture.isUpdateDownPointX = false;
        m_gesture.downPoint.rx() += double(offsetX + snapX);
    }
    if (snapY != 0) {
        m_gesture.isUpdateDownPointY = false;
        m_gesture.downPoint.ry() += double(offsetY + snapY);
    }
    m_snapping.updateLinesForRect(boxOnScreen(overlay), others, moveGuideDistance);
}

void TSDragging::dragResize()
{
    QPointF delta;
    if (const auto guide = m_selection.guideOverlay()) {
        releasePins(*guide);
        delta = localDelta(*guide);
        resizeOverlay(*guide, delta.x(), delta.y(), true);
    }
    // The followers take the delta as it is, not turned to their own angles.
    forEachFollower([&](TSOverlay &follower) {
        releasePins(follower);
        resizeOverlay(follower, delta.x(), delta.y(), true);
    });
}

void TSDragging::resizeOverlay(TSOverlay &overlay, double offsetX, double offsetY)
{
    if (offsetX == 0 && offsetY == 0)
        return;
    const QPointF center = overlay.frame().center();
    overlay.setFrame(TSProportionallyResizedFrame(overlay.frame(), m_gesture.draggingNode, offsetX, offsetY));
    overlay.updateFrameByCenterPoint(center);
}

void TSDragging::resizeOverlay(TSOverlay &overlay, double offsetX, double offsetY, bool absorption)
{
    resizeOverlay(overlay, offsetX, offsetY);
    if (absorption && isAnySnap() && isLed(overlay))
        m_snapping.updateLinesForRect(boxOnScreen(overlay), m_selection.otherOverlays(), resizeGuideDistance);
}

QPointF TSDragging::pointOfOverlay(const TSOverlay &overlay, int trackerNode)
{
    const bool isEdgeNode = trackerNode >= 0 && trackerNode < TSTrackerNode::Rotate;
    return isEdgeNode ? TSAnchorOfRect(unsigned(trackerNode), overlay.frame()) : QPointF();
}

/// Each overlay turns about its own middle. Only the one that leads is kept within a turn.
void TSDragging::dragRotate()
{
    if (const auto guide = m_selection.guideOverlay()) {
        const QPointF center = guide->frame().center();
        const auto angleOf = [&](const QPointF &point) {
            return TSAngleOfPoint(point.x(), point.y(), center.x(), center.y(), 0.0);
        };
        const double old = guide->angle();
        const double raw = TSWrappedAngle(old + (angleOf(m_gesture.downPoint) - angleOf(m_gesture.curPoint)));
        const double snapped = TSSnappedAngle(raw);
        guide->setAngle(snapped);
        // While the angle sticks, the mouse is measured from where it was when it began to.
        if (snapped != raw)
            m_gesture.curPoint = m_gesture.downPoint;
        forEachFollower([&](TSOverlay &follower) { follower.setAngle(follower.angle() + snapped - old); });
    }
    Q_EMIT TSNotificationCenter::defaultCenter()->TSUpdateRotateAngle();
    m_trackerState.isRotate = true;
}

void TSDragging::finishStep()
{
    const TSSelection::Overlays selected = m_selection.editingOverlaysArray();
    if (selected.size() == 1) {
        m_selection.setEditingOverlay(selected.front());
        if (auto text = std::dynamic_pointer_cast<TSText>(selected.front()))
            m_selection.setEditingText(std::move(text));
    } else {
        m_selection.setEditingOverlay(nullptr);
        m_selection.setEditingText(nullptr);
    }
    if (m_gesture.isUpdateDownPointX)
        m_gesture.downPoint.setX(m_gesture.curPoint.x());
    if (m_gesture.isUpdateDownPointY)
        m_gesture.downPoint.setY(m_gesture.curPoint.y());
    m_view.redrawOverlaysView();
    m_view.redrawTrackerView();
    TSDataManager *data = TSDataManager::dataManager();
    data->watermarkAlignmenWay = data->offsetAlignment = data->oldAlignment = TSPositionCode::None;
    data->isDragging = true;
    m_synchronisation.updateUnionFrameAlignment(selected);
    m_synchronisation.updateSelectedOverlaysRatioOfFrame(selected);
    m_synchronisation.updateSelectedOverlaysOffsetPixel(selected);
    m_synchronisation.updateOverlaysOfGroup();
    TSNotificationCenter *center = TSNotificationCenter::defaultCenter();
    Q_EMIT center->TSUpdateWaterAlignment();
    Q_EMIT center->TSUpdateOffset();
    Q_EMIT center->overlaysChanged(true);
}

void TSDragging::mouseUp()
{
    if (!m_layout.photo())
        return;
    m_trackerState.alignmentLines.clear();
    m_trackerState.isMultipleChoice = false;
    m_trackerState.isRotate = false;
    // After a move the hand stays closed until the mouse moves on: only what resized goes through here.
    if (m_gesture.draggingNode < TSTrackerNode::Rotate) {
        // Texts have followed the resize as pictures; now they are drawn for their new size.
        m_synchronisation.updateOverlaysRenderTextImage();
        m_view.makeFirstResponder(TSResponder::TrackerView);
        m_view.redrawOverlaysView();
        if (m_view.currentCursor() == TSCursor::closedHandCursor)
            m_view.changeCursor(TSCursor::openHandCursor);
    }
    finishGesture();
}

void TSDragging::finishGesture()
{
    m_view.redrawTrackerView();
    TSDataManager::dataManager()->isDragging = false;
    m_selection.setEditingOverlays(false);
}

void TSDragging::turnSelection(double radians)
{
    if (!m_layout.photo() || m_selection.editingOverlaysArray().empty())
        return;
    for (const auto &overlay : m_selection.editingOverlaysArray())
        overlay->setAngle(TSWrappedAngle(overlay->angle() + radians));
    Q_EMIT TSNotificationCenter::defaultCenter()->TSUpdateRotateAngle();
    // A Script text has an angle, and a place only in its pattern.
    if (const auto script = m_selection.scriptObject())
        shiftScript(*script, {});
    else
        finishStep();
    finishGesture();
}

void TSDragging::resizeSelection(double points)
{
    if (!m_layout.photo() || m_selection.editingOverlaysArray().empty() ||
        m_selection.isContainScriptObject())
        return;
    const int node = std::exchange(m_gesture.draggingNode, lowerRightNode);
    for (const auto &overlay : m_selection.editingOverlaysArray()) {
        releasePins(*overlay);
        resizeOverlay(*overlay, points, 0);
    }
    m_gesture.draggingNode = node;
    finishStep();
    m_synchronisation.updateOverlaysRenderTextImage();
    finishGesture();
}

void TSDragging::shiftPattern(const QPointF &pitches)
{
    const auto script = m_selection.scriptObject();
    if (!m_layout.photo() || !script)
        return;
    const QSizeF &pitch = script->textSizeOfScript();
    shiftScript(*script, {pitches.x() * pitch.width(), pitches.y() * pitch.height()});
    finishGesture();
}
