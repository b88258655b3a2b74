#include "overlays/TSAnchor.h"
#include "overlays/TSOverlay.h"
#include "session/TSDataManager.h"
#include "session/TSDefaults.h"
#include "session/TSPhotoManager.h"

#include <algorithm>
#include <array>
#include <cmath>

// The arithmetic of `TSOverlay` between its frame and its place. Doubles take their course: on a canvas
// without size the results are infinities, and callers have a photo on show.

namespace {

constexpr unsigned anchors = 9;

const QRectF &canvas()
{
    return TSDataManager::dataManager()->canvasFrame;
}

double pointsPerPixel()
{
    return TSDataManager::dataManager()->photoRatioOfSize;
}

} // namespace

float TSOverlay::calculationOfDistanceFromPoint(const QPointF &from, const QPointF &to)
{
    const float dx = float(from.x() - to.x());
    const float dy = float(from.y() - to.y());
    return std::sqrt(dy * dy + dx * dx);
}

unsigned TSOverlay::nearestAlignment() const
{
    std::array<float, anchors> distance{};
    for (unsigned i = 0; i < anchors; ++i)
        distance[i] = calculationOfDistanceFromPoint(TSAnchorOfRect(i, canvas()), TSAnchorOfRect(i, m_frame));
    const float least = *std::min_element(distance.begin(), distance.end());
    unsigned nearest = m_wmAlignment;
    // Not the first hit but the last: of anchors that tie, the higher code wins, up to the centre.
    for (unsigned i = 0; i < anchors; ++i)
        if (double(std::fabs(distance[i] - least)) < 1e-6)
            nearest = i;
    return nearest;
}

/// Those of all photos in Batch, that of the photo on the canvas in Adjust.
template <typename Change>
void TSOverlay::changeRows(const Change &apply)
{
    if (TSIsBatchControlOverlay())
        m_rows.changeAll(apply);
    else
        m_rows.change(TSPhotoManager::photoManager()->selectedPhoto(), apply);
}

void TSOverlay::updateAlignmentAndRatio()
{
    m_wmAlignment = nearestAlignment();
    // Each pin goes over the ones before it.
    for (const unsigned pin :
         {m_wmUnionAlignment, m_offsetAlignment, TSDataManager::dataManager()->oldAlignment})
        if (pin != TSPositionCode::None)
            m_wmAlignment = pin;
    const QRectF &c = canvas();
    const QPointF offset = TSAnchorOfRect(m_wmAlignment, m_frame) - TSAnchorOfRect(m_wmAlignment, c);
    m_ratioOfFrameByAlignment = QRectF(offset.x() / c.width(), offset.y() / c.height(),
                                       m_frame.width() / c.width(), m_frame.height() / c.height());
    changeRows([this](TSRow &row) { writePlacement(row); });
}

void TSOverlay::writePlacement(TSRow &row) const
{
    if (isScript()) {
        writeTextRow(row);
    } else {
        row.ratioOfFrameByAlignment = m_ratioOfFrameByAlignment;
        row.wmAlignment = m_wmAlignment;
    }
    row.angle = float(m_angle);
}

void TSOverlay::updateOffsetPixel()
{
    if (m_wmAlignment < anchors) {
        const QPointF offset =
            TSAnchorOfRect(m_wmAlignment, m_frame) - TSAnchorOfRect(m_wmAlignment, canvas());
        m_xPixel = offset.x();
        m_yPixel = offset.y();
    }
    // Without an anchor the old values are divided all the same; it only happens ahead of the first
    // placement.
    m_xPixel /= pointsPerPixel();
    m_yPixel /= pointsPerPixel();
    if (isScript())
        return;
    changeRows([this](TSRow &row) {
        row.xPixel = float(m_xPixel);
        row.yPixel = float(m_yPixel);
    });
}

/// Only the height's share counts; the width comes from the shape of the frame, so that a text that has grown
/// longer keeps its height.
QSizeF TSOverlay::sizeByRatio() const
{
    const double height = m_ratioOfFrameByAlignment.height() * canvas().height();
    return {height * m_frame.width() / m_frame.height(), height};
}

void TSOverlay::placeByOffset(const QPointF &offset)
{
    if (isScript()) {
        m_frame = canvas();
    } else {
        const QSizeF size = sizeByRatio();
        QPointF origin = m_frame.topLeft();
        if (m_wmAlignment < anchors)
            origin = TSOriginForAnchor(m_wmAlignment, TSAnchorOfRect(m_wmAlignment, canvas()) + offset, size);
        m_frame = QRectF(origin, size);
    }
    m_tracker.setFrame(m_frame);
}

void TSOverlay::updateFrameByAlignmentRatio(bool)
{
    const QRectF &ratio = m_ratioOfFrameByAlignment;
    placeByOffset({ratio.x() * canvas().width(), ratio.y() * canvas().height()});
}

void TSOverlay::updateFrameByOffsetPixel(bool)
{
    placeByOffset({m_xPixel * pointsPerPixel(), m_yPixel * pointsPerPixel()});
}

void TSOverlay::updateFrameByAlignment()
{
    const unsigned way = TSDataManager::dataManager()->watermarkAlignmenWay;
    if (way >= anchors)
        return;
    m_frame.moveTopLeft(TSOriginForAnchor(way, TSAnchorOfRect(way, canvas()), m_frame.size()));
    m_tracker.setFrame(m_frame);
    updateAlignmentAndRatio();
    updateOffsetPixel();
}

void TSOverlay::updateOriginRatio(const QRectF &unionFrame)
{
    m_originRatio = QSizeF((m_frame.x() - unionFrame.x()) / unionFrame.width(),
                           (m_frame.y() - unionFrame.y()) / unionFrame.height());
}

void TSOverlay::updateOriginByUnionFrame(const QRectF &unionFrame)
{
    m_frame.moveTopLeft({m_originRatio.width() * unionFrame.width() + unionFrame.x(),
                         m_originRatio.height() * unionFrame.height() + unionFrame.y()});
    updateAlignmentAndRatio();
    updateOffsetPixel();
}

void TSOverlay::updateSizeRatio()
{
    const double share = m_frame.height() / canvas().height();
    m_ratioOfFrameByAlignment = QRectF(0, 0, share, share);
}

void TSOverlay::updateOverlaySize()
{
    if (isScript())
        m_frame = canvas();
    m_frame.setSize(sizeByRatio());
}
