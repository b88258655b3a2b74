#include "preview/TSOverlayOffset.h"

#include "overlays/TSAnchor.h"
#include "overlays/TSGroup.h"
#include "preview/TSPreviewView.h"
#include "preview/TSSelection.h"
#include "session/TSDataManager.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float arrowStep = 0.25f;
constexpr float farthest = 100;

QRectF unionOfFrames(const TSOverlayManager::Overlays &overlays)
{
    QRectF block = overlays.front()->frame();
    for (const auto &overlay : overlays)
        block |= overlay->frame();
    return block;
}

/// What a block of overlays is measured from: what the controls have pinned, or else the nearest anchor.
unsigned anchorOfBlock(const QRectF &frame)
{
    const unsigned pinned = TSDataManager::dataManager()->offsetAlignment;
    if (pinned != TSPositionCode::None)
        return pinned;
    TSOverlay block;
    block.setFrame(frame);
    block.updateAlignmentAndRatio();
    return block.wmAlignment();
}

/// What the controls show, and so what the next step starts from.
double roundedPercent(double share)
{
    return std::round(double(float(share) * 100) * 100) / 100;
}

void updateMembers(TSOverlay &overlay)
{
    if (auto *group = dynamic_cast<TSGroup *>(&overlay))
        group->updateOverlayFrameOfGroup();
}

/// The frame with one coordinate set so that it lies at a distance from an anchor of the canvas.
QRectF placed(QRectF frame, unsigned anchor, bool isAlongX, double distance)
{
    const QPointF from = TSAnchorOfRect(anchor, TSDataManager::dataManager()->canvasFrame);
    const QPointF corner = TSOriginForAnchor(anchor, from + QPointF(distance, distance), frame.size());
    if (isAlongX)
        frame.moveLeft(corner.x());
    else
        frame.moveTop(corner.y());
    return frame;
}

} // namespace

QPointF TSOverlayOffset::offset() const
{
    const auto &selected = m_selection.editingOverlaysArray();
    if (selected.empty())
        return {};
    const QRectF frame = unionOfFrames(selected);
    const unsigned anchor = selected.size() > 1 ? anchorOfBlock(frame) : selected.front()->wmAlignment();
    if (anchor == TSPositionCode::None)
        return {};
    return TSAnchorOfRect(anchor, frame) - TSAnchorOfRect(anchor, TSDataManager::dataManager()->canvasFrame);
}

QPointF TSOverlayOffset::offsetByPercentage() const
{
    const QRectF &canvas = TSDataManager::dataManager()->canvasFrame;
    const QPointF distance = offset();
    return {roundedPercent(distance.x() / canvas.width()), roundedPercent(distance.y() / canvas.height())};
}

QPoint TSOverlayOffset::offsetByPixel() const
{
    const QPointF pixels = offset() / TSDataManager::dataManager()->photoRatioOfSize;
    return {int(pixels.x()), int(pixels.y())};
}

void TSOverlayOffset::changeXOffsetByPercentage(float percent)
{
    changeOffset(Axis::X, double(percent / 100) * TSDataManager::dataManager()->canvasFrame.width());
}

void TSOverlayOffset::changeYOffsetByPercentage(float percent)
{
    changeOffset(Axis::Y, double(percent / 100) * TSDataManager::dataManager()->canvasFrame.height());
}

void TSOverlayOffset::changeXOffsetByPixel(int pixels)
{
    changeOffset(Axis::X, pixels * TSDataManager::dataManager()->photoRatioOfSize);
}

void TSOverlayOffset::changeYOffsetByPixel(int pixels)
{
    changeOffset(Axis::Y, pixels * TSDataManager::dataManager()->photoRatioOfSize);
}

void TSOverlayOffset::changeOffset(Axis axis, double distance)
{
    const auto &selected = m_selection.editingOverlaysArray();
    if (selected.empty())
        return;
    if (selected.size() == 1)
        moveOne(*selected.front(), axis, distance);
    else
        moveBlock(axis, distance);
    m_view.redrawOverlaysView();
    m_view.redrawTrackerView();
}

void TSOverlayOffset::moveOne(TSOverlay &overlay, Axis axis, double distance)
{
    if (overlay.offsetAlignment() == TSPositionCode::None)
        overlay.setOffsetAlignment(overlay.wmAlignment());
    overlay.setFrame(placed(overlay.frame(), overlay.offsetAlignment(), axis == Axis::X, distance));
    overlay.updateAlignmentAndRatio();
    overlay.updateOffsetPixel();
    updateMembers(overlay);
}

void TSOverlayOffset::moveBlock(Axis axis, double distance)
{
    const auto &selected = m_selection.editingOverlaysArray();
    QRectF block = unionOfFrames(selected);
    for (const auto &overlay : selected)
        overlay->updateOriginRatio(block);
    TSDataManager *data = TSDataManager::dataManager();
    data->offsetAlignment = anchorOfBlock(block);
    for (const auto &overlay : selected) {
        overlay->setWmAlignment(data->offsetAlignment);
        overlay->setOffsetAlignment(data->offsetAlignment);
    }
    block = placed(block, data->offsetAlignment, axis == Axis::X, distance);
    for (const auto &overlay : selected) {
        overlay->updateOriginByUnionFrame(block);
        updateMembers(*overlay);
    }
}

void TSOverlayOffset::changeWatermarkPostion(int key)
{
    if (key == Qt::Key_Left || key == Qt::Key_Right)
        step(Axis::X, key == Qt::Key_Left ? -arrowStep : arrowStep);
    else if (key == Qt::Key_Up || key == Qt::Key_Down)
        step(Axis::Y, key == Qt::Key_Up ? -arrowStep : arrowStep);
}

void TSOverlayOffset::step(Axis axis, float step)
{
    const bool isAlongX = axis == Axis::X;
    if (TSDataManager::dataManager()->pUnit == TSOffsetUnit::Percentage) {
        const QPointF percent = offsetByPercentage();
        const float next =
            std::clamp(float(isAlongX ? percent.x() : percent.y()) + step, -farthest, farthest);
        isAlongX ? changeXOffsetByPercentage(next) : changeYOffsetByPercentage(next);
        return;
    }
    // Cut toward zero: a step toward zero is a whole pixel, one away from it is none. Layouts count on it.
    const QPoint pixels = offsetByPixel();
    const int next = int(float(isAlongX ? pixels.x() : pixels.y()) + step);
    isAlongX ? changeXOffsetByPixel(next) : changeYOffsetByPixel(next);
}
