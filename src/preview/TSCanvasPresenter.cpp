#include "preview/TSCanvasPresenter.h"

#include "preview/TSCanvasLayout.h"
#include "preview/TSPreviewView.h"
#include "preview/TSTrackerState.h"
#include "preview/TSZoomList.h"
#include "session/TSDataManager.h"
#include "session/TSNotificationCenter.h"
#include "session/TSPhotoManager.h"
#include "session/TSQuartzUtility.h"

namespace {

constexpr double leastZoom = 0.05;
constexpr double greatestZoom = 4;

} // namespace

void TSCanvasPresenter::showFrameAtIndex(qint64 index)
{
    if (index < 0) {
        clear();
        return;
    }
    TSPhotoManager *photos = TSPhotoManager::photoManager();
    TSDataManager *data = TSDataManager::dataManager();
    photos->setSelectedPhoto(index);
    const auto photo = photos->photoAtIndex(index);
    if (!photo)
        return;
    if (photo->photoSize.width() == 0)
        data->GetPhotoSize(index);
    m_trackerState.alignmentLines.clear();
    m_layout.setPhoto(photo);
    m_layout.setCanvasViewFrame(
        TSAspectFitRect(QRectF(QPointF(0, 0), photo->photoSize), m_layout.originRect()));
    m_layout.setFrame(m_view.superviewFrame());
    if (data->sizeMode != TSSizeMode::Fit)
        photo->photoRatioOfSize = data->photoRatioOfSize;
    updateInterface();
    TSNotificationCenter *center = TSNotificationCenter::defaultCenter();
    Q_EMIT center->TSOutputSizeOrNameChanged();
    Q_EMIT center->TSUpdateWaterAlignment();
    Q_EMIT center->TSUpdateOffset();
}

void TSCanvasPresenter::clear()
{
    m_layout.setPhoto(nullptr);
    m_trackerState.tracker.reset();
    m_layout.fillSuperview();
    m_view.redrawCanvasView();
}

void TSCanvasPresenter::updateInterface()
{
    if (!m_layout.photo())
        return;
    // What the first step works out the second sets back to the photo's own size, which is what is shown.
    m_layout.updateOutputSize();
    m_layout.calculateCanvasViewFrame();
    m_layout.updateCanvasViewFrameAddPhotoFromPhotos(TSDataManager::dataManager()->sizeMode);
    m_layout.updateScale();
    m_layout.updateCanvasFrameAndPreviewFrameOfDataManager();
    m_synchronisation.updateOverlaysForPhoto(*m_layout.photo(), false);
    m_synchronisation.updateOverlaysRenderTextImage();
    redrawAll();
}

void TSCanvasPresenter::redrawAfterWindowChangeOrZooming()
{
    const auto photo = m_layout.photo();
    if (!photo)
        return;
    const unsigned mode = TSDataManager::dataManager()->sizeMode;
    m_layout.calculateCanvasViewFrame();
    m_layout.updateCanvasViewFrameAddPhotoFromPhotos(mode);
    m_layout.updateScale();
    m_layout.updateCanvasFrameAndPreviewFrameOfDataManager();
    placeOverlays();
    refreshOverlays();
    if (mode != TSSizeMode::Fit)
        return;
    m_zoomList.showPercentage(photo->photoRatioOfSize);
    m_zoomList.setFitMarked(true);
    m_view.zoomListDidChange();
}

void TSCanvasPresenter::placeOverlays()
{
    m_synchronisation.updateOverlaysFrame(false);
}

/// After a placement that has left the words as they are.
void TSCanvasPresenter::refreshOverlays()
{
    m_synchronisation.updateTextContentsAndImageFrameOfGroup(false, false, *m_layout.photo());
    m_synchronisation.updateOverlaysRenderTextImage();
    m_trackerState.alignmentLines.clear();
    m_synchronisation.updateOverlaysOfGroup();
    redrawAll();
}

void TSCanvasPresenter::redrawAll()
{
    m_view.redrawTrackerView();
    m_view.redrawOverlaysView();
    m_view.redrawCanvasView();
}

void TSCanvasPresenter::resizingPhotoView()
{
    if (TSPhotoManager::photoManager()->photoCount() == 0)
        return;
    m_layout.calculateCanvasViewFrame();
    updateCanvasViewFrameFromResizing();
    Q_EMIT TSNotificationCenter::defaultCenter()->TSOutputSizeOrNameChanged();
    redrawAfterWindowChangeOrZooming();
}

void TSCanvasPresenter::updateCanvasViewFrameFromResizing()
{
    m_layout.updateCanvasViewFrameAddPhotoFromPhotos(TSDataManager::dataManager()->sizeMode);
    const QSizeF canvas = m_layout.canvasViewFrame().size();
    m_layout.updateCanvasViewFrameByWidth(canvas.width(), canvas.height());
    m_layout.updateScale();
    m_layout.updateCanvasFrameAndPreviewFrameOfDataManager();
    placeOverlays();
    redrawAll();
}

void TSCanvasPresenter::magnifyWithEvent(double magnification)
{
    const auto photo = m_layout.photo();
    if (!photo)
        return;
    TSDataManager *data = TSDataManager::dataManager();
    const double out = photo->photoOutputSize.width();
    double width = (magnification + 1.0) * m_layout.canvasViewFrame().width();
    if (width < leastZoom * out)
        width = leastZoom * out;
    else if (width > greatestZoom * out)
        width = greatestZoom * out;
    else
        m_layout.updateCanvasViewFrameByWidth(width, photo->ratio * width);
    data->sizeMode = TSSizeMode::FixedZoom;
    // Within the limits for the second time: the first one has brought the scroll bars, and with them another
    // least size of the preview.
    m_layout.updateCanvasViewFrameByWidth(width, photo->ratio * width);
    m_layout.updateScale();
    m_layout.calculateCanvasViewFrame();
    m_layout.updateCanvasViewFrame();
    m_layout.updateCanvasFrameAndPreviewFrameOfDataManager();
    placeOverlays();
    refreshOverlays();
    m_zoomList.showPercentage(data->photoRatioOfSize);
    m_zoomList.setFitMarked(false);
    m_zoomList.unmarkMenuItems();
    m_view.zoomListDidChange();
}

void TSCanvasPresenter::zoomingTheSize(const QString &title, std::optional<size_t> menuItem)
{
    if (menuItem)
        m_zoomList.selectMenuItem(*menuItem, title);
    else
        m_zoomList.selectTitle(title);
    TSDataManager *data = TSDataManager::dataManager();
    const bool isFit = title == TSZoomList::fitTitle();
    if (isFit) {
        m_layout.updateCanvasViewFrameByFit();
        data->sizeMode = TSSizeMode::Fit;
    } else {
        const double scale = double(title.left(title.size() - 1).toFloat()) / 100;
        const QSizeF canvas = m_layout.photoOutputSize() * scale;
        m_layout.updateCanvasViewFrameByWidth(canvas.width(), canvas.height());
        data->sizeMode = TSSizeMode::FixedZoom;
        data->photoRatioOfSize = scale;
    }
    if (m_layout.photo())
        m_layout.photo()->sizeMode = data->sizeMode;
    m_zoomList.setFitMarked(isFit);
    m_layout.updateScale();
    m_view.zoomListDidChange();
    Q_EMIT TSNotificationCenter::defaultCenter()->TSWindowWillResizeOrZooming();
}
