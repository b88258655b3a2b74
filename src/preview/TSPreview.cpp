#include "preview/TSPreview.h"

#include "preview/TSPreviewView.h"
#include "session/TSDataManager.h"
#include "session/TSNotificationCenter.h"
#include "session/TSPhoto.h"

TSPreview::TSPreview(TSPreviewView &view)
    : m_view(view)
    , m_layout(view)
    , m_selection(view, m_trackerState, m_gesture)
    , m_creation(m_layout, view, m_selection, m_trackerState)
    , m_offset(m_selection, view)
    , m_trackerLayer(m_trackerState, m_selection, m_creation)
    , m_pointing(m_layout, view, m_overlaysLayer, m_selection, m_trackerState, m_gesture)
    , m_dragging(m_layout, view, m_selection, m_trackerState, m_gesture)
    , m_presenter(m_layout, view, m_zoomList, m_trackerState)
{
    m_layout.updateCanvasFrameAndPreviewFrameOfDataManager();
    observe();
}

void TSPreview::observe()
{
    using Center = TSNotificationCenter;
    const Center *center = Center::defaultCenter();
    QObject::connect(center, &Center::TSWindowWillResizeOrZooming, &m_listener,
                     [this] { m_presenter.redrawAfterWindowChangeOrZooming(); });
    QObject::connect(center, &Center::TSCirclePositionChanged, &m_listener,
                     [this](const QSizeF &positionRatio) { circlePositionChanged(positionRatio); });
    QObject::connect(center, &Center::TSChangeWatermarkPostion, &m_listener,
                     [this] { moveByKey(m_trackerLayer.currentKey()); });
    QObject::connect(center, &Center::TSResizingPhotoView, &m_listener,
                     [this] { m_presenter.resizingPhotoView(); });
    QObject::connect(center, &Center::TSHoverTableViewDeleteKeyDown, &m_listener,
                     [this] { m_creation.deleteEditingOverlay(); });
}

/// A Script text covers the canvas at any place: of it the pattern moves.
void TSPreview::moveByKey(int key)
{
    constexpr double step = 0.05;
    if (!m_selection.isContainScriptObject())
        m_offset.changeWatermarkPostion(key);
    else if (key == Qt::Key_Left || key == Qt::Key_Right)
        m_dragging.shiftPattern({key == Qt::Key_Left ? -step : step, 0});
    else if (key == Qt::Key_Up || key == Qt::Key_Down)
        m_dragging.shiftPattern({0, key == Qt::Key_Up ? -step : step});
}

bool TSPreview::drawCanvas(QPainter &context) const
{
    const auto &photo = m_layout.photo();
    if (!photo)
        return true;
    const QImage picture = TSDataManager::dataManager()->cacheAtIndex(photo->index);
    photo->drawInContext(context, picture);
    return !picture.isNull();
}

void TSPreview::circlePositionChanged(const QSizeF &positionRatio)
{
    if (m_selection.editingOverlaysArray().empty())
        return;
    const QRectF canvas = TSDataManager::dataManager()->canvasFrame;
    m_overlayRect.moveTopLeft(
        {positionRatio.width() * (canvas.width() - m_overlayRect.width()) + canvas.x(),
         positionRatio.height() * (canvas.height() - m_overlayRect.height()) + canvas.y()});
    m_view.redrawOverlaysView();
}
