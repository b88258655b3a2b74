#include "preview/TSOverlaysLayer.h"

#include "overlays/TSHitTest.h"
#include "overlays/TSImageScreen.h"
#include "overlays/TSOverlayManager.h"
#include "platform/paint/PaintLayer.h"
#include "session/TSDataManager.h"

#include <cmath>

void TSOverlaysLayer::drawRect(QPainter &context, const QRectF &dirtyRect) const
{
    const TSDataManager *data = TSDataManager::dataManager();
    if (data->photoCount() == 0)
        return;
    platform::PaintLayer layer(
        QSize(int(std::ceil(data->previewFrame.width())), int(std::ceil(data->previewFrame.height()))));
    const TSImageScreen screen(context.device()->devicePixelRatioF());
    const auto overlays = TSOverlayManager::overlayManager()->overlays();
    // Also those whose frames lie elsewhere: a turn or a shadow reaches out of the frame, and the layer
    // itself leaves out what does not meet the rectangle.
    for (auto overlay = overlays.rbegin(); overlay != overlays.rend(); ++overlay)
        (*overlay)->drawIncontext(layer);
    context.save();
    context.setClipRect(data->canvasFrame, Qt::IntersectClip);
    layer.paint(context, dirtyRect.toAlignedRect());
    context.restore();
}

std::shared_ptr<TSOverlay> TSOverlaysLayer::selectOverlayAtPoint(const QPointF &point) const
{
    for (const auto &overlay : TSOverlayManager::overlayManager()->overlays()) {
        if (overlay->isScript())
            return TSRectContainsPoint(TSDataManager::dataManager()->canvasFrame, point) ? overlay : nullptr;
        if (TSRectContainsPoint(overlay->frame(), overlay->convertPoint(point)))
            return overlay;
    }
    return nullptr;
}
