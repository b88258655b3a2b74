#include "preview/TSCanvasLayout.h"

#include "preview/TSPreviewView.h"
#include "session/TSDataManager.h"
#include "session/TSPhoto.h"
#include "session/TSQuartzUtility.h"

#include <algorithm>

namespace {

constexpr double verticalMargin = 40;

QRectF atOrigin(const QSizeF &size)
{
    return {QPointF(0, 0), size};
}

} // namespace

TSCanvasLayout::TSCanvasLayout(TSPreviewView &view)
    : m_view(view)
    , m_frame(view.superviewFrame())
    , m_originRect(view.superviewBounds())
    , m_canvasViewFrame(atOrigin(m_frame.size()))
{
}

void TSCanvasLayout::setFrame(const QRectF &frame)
{
    m_originRect = m_view.superviewBounds();
    m_frame = frame;
    m_view.previewFrameDidChange(frame);
}

void TSCanvasLayout::fillSuperview()
{
    setFrame(QRectF());
    setFrame(m_view.superviewFrame());
}

void TSCanvasLayout::setCanvasViewFrame(const QRectF &frame)
{
    m_canvasViewFrame = frame;
    if (m_photo)
        m_photo->previewRect = frame;
}

QPointF TSCanvasLayout::convertPointToOverlaysView(const QPointF &point) const
{
    return {point.x() - m_frame.x(), m_frame.height() - (point.y() - m_frame.y())};
}

QRectF TSCanvasLayout::convertRectToOverlaysView(const QRectF &rect) const
{
    return {convertPointToOverlaysView(QPointF(rect.x(), rect.y() + rect.height())), rect.size()};
}

QPointF TSCanvasLayout::convertPointToPhoto(const QPointF &overlayPoint)
{
    const TSDataManager *data = TSDataManager::dataManager();
    return (overlayPoint - data->canvasFrame.topLeft()) / data->photoRatioOfSize;
}

QSizeF TSCanvasLayout::photoOutputSize() const
{
    return m_photo ? m_photo->photoOutputSize : QSizeF(0, 0);
}

void TSCanvasLayout::calculateCanvasViewFrame()
{
    if (!m_photo)
        return;
    m_photo->photoOutputSize = m_photo->photoSize;
    setCanvasViewFrame({m_canvasViewFrame.topLeft(), m_photo->photoOutputSize * m_photo->photoRatioOfSize});
}

void TSCanvasLayout::updateOutputSize()
{
    if (!m_photo)
        return;
    const TSDataManager *data = TSDataManager::dataManager();
    const bool fitsNothing =
        data->resizeWay == TSResizeWay::FitSize && !(data->outputWidth > 0 && data->outputHeight > 0);
    if (data->resizeWay <= TSResizeWay::FitSize && !fitsNothing)
        m_photo->photoOutputSize = data->sizeFor(m_photo->photoSize);
}

void TSCanvasLayout::updateCanvasViewFrameByFit()
{
    setFrame(QRectF());
    setFrame(m_originRect);
    setFrame(m_view.superviewFrame());
    const QSizeF out = photoOutputSize();
    QRectF canvas(m_canvasViewFrame.topLeft(), out);
    if (!(m_frame.width() > out.width() && m_frame.height() > out.height()))
        canvas = TSAspectFitRect(atOrigin(out), m_frame);
    if (m_photo && canvas.height() + verticalMargin > m_frame.height()) {
        canvas.setHeight(m_frame.height() - verticalMargin);
        canvas.setWidth(canvas.height() / m_photo->ratio);
    }
    setCanvasViewFrame(canvas);
    updateCanvasViewFrame();
}

void TSCanvasLayout::updateCanvasViewFrameByWidth(double width, double height)
{
    // The bars of another size, and the area before the window changed, are nothing to go by.
    setFrame({m_frame.topLeft(), QSizeF(0, 0)});
    growFrameTo(width, height);
    // A bar in one direction has narrowed the other, which is not to get one of its own for that.
    growFrameTo(width, height);
    updateScrollView();
    setCanvasViewFrame(centred(QSizeF(width, height)));
}

void TSCanvasLayout::growFrameTo(double width, double height)
{
    const QSizeF least = m_view.superviewBounds().size();
    setFrame({m_frame.x(), m_frame.y(), std::max(width, least.width()), std::max(height, least.height())});
}

void TSCanvasLayout::updateCanvasViewFrameAddPhotoFromPhotos(unsigned sizeMode)
{
    if (sizeMode == TSSizeMode::Fit)
        updateCanvasViewFrameByFit();
    else
        updateCanvasViewFrameByWidth(m_canvasViewFrame.width(), m_canvasViewFrame.height());
}

void TSCanvasLayout::updateCanvasViewFrame()
{
    setCanvasViewFrame(centred(m_canvasViewFrame.size()));
}

QRectF TSCanvasLayout::centred(const QSizeF &canvas) const
{
    return {(m_frame.width() - canvas.width()) * 0.5, (m_frame.height() - canvas.height()) * 0.5,
            canvas.width(), canvas.height()};
}

void TSCanvasLayout::updateScrollView()
{
    const QRectF visible = m_view.superviewBounds();
    m_view.scrollToPoint({(m_frame.x() + m_frame.width() - visible.width()) * 0.5,
                          (m_frame.y() + m_frame.height() - visible.height()) * 0.5});
}

void TSCanvasLayout::updateScale()
{
    if (!m_photo || !(m_photo->photoSize.width() > 0 && m_photo->photoOutputSize.width() > 0))
        return;
    m_photo->photoRatioOfSize = m_canvasViewFrame.width() / m_photo->photoOutputSize.width();
    TSDataManager::dataManager()->photoRatioOfSize = m_photo->photoRatioOfSize;
}

void TSCanvasLayout::updateCanvasFrameAndPreviewFrameOfDataManager() const
{
    TSDataManager *data = TSDataManager::dataManager();
    data->canvasFrame = convertRectToOverlaysView(m_canvasViewFrame);
    data->previewFrame = convertRectToOverlaysView(m_frame);
}
