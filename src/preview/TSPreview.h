#pragma once

#include "preview/TSCanvasLayout.h"
#include "preview/TSCanvasPresenter.h"
#include "preview/TSDragging.h"
#include "preview/TSGesture.h"
#include "preview/TSOverlayCreation.h"
#include "preview/TSOverlayOffset.h"
#include "preview/TSOverlaysLayer.h"
#include "preview/TSPointing.h"
#include "preview/TSSelection.h"
#include "preview/TSTrackerLayer.h"
#include "preview/TSTrackerState.h"
#include "preview/TSZoomList.h"

#include <QObject>

/// The editing surface over the selected photo: the canvas, the overlays above it, the trackers on top. It
/// owns the parts and ties them to the notifications, and knows no widget: a view maps its events to overlay
/// space, hands them in, and does what `TSPreviewView` asks. The view outlives it. Main thread.
class TSPreview {
public:
    explicit TSPreview(TSPreviewView &view);
    TSPreview(const TSPreview &) = delete;
    TSPreview &operator=(const TSPreview &) = delete;

    TSCanvasLayout &layout() { return m_layout; }
    TSCanvasPresenter &presenter() { return m_presenter; }
    TSZoomList &zoomList() { return m_zoomList; }
    TSSelection &selection() { return m_selection; }
    TSOverlayCreation &creation() { return m_creation; }
    TSOverlayOffset &offset() { return m_offset; }
    TSOverlaysLayer &overlaysLayer() { return m_overlaysLayer; }
    TSTrackerLayer &trackerLayer() { return m_trackerLayer; }
    TSTrackerState &trackerState() { return m_trackerState; }
    TSGesture &gesture() { return m_gesture; }
    TSDragging &dragging() { return m_dragging; }

    void mouseMoved(const TSMouseEvent &event) { m_pointing.mouseMoved(event); }
    void mouseDown(const TSMouseEvent &event) { m_pointing.mouseDown(event); }
    void mouseDragged(const TSMouseEvent &event) { m_dragging.mouseDragged(event); }
    void mouseUp() { m_dragging.mouseUp(); }

    /// False when there is a photo, and no picture of it that can be read.
    bool drawCanvas(QPainter &context) const;
    /// Follows the position control. Nobody reads the rectangle yet.
    void circlePositionChanged(const QSizeF &positionRatio);
    const QRectF &overlayRect() const { return m_overlayRect; }

private:
    void observe();
    void moveByKey(int key);

    TSPreviewView &m_view;
    TSTrackerState m_trackerState;
    TSGesture m_gesture;
    TSZoomList m_zoomList;
    TSCanvasLayout m_layout;
    TSOverlaysLayer m_overlaysLayer;
    TSSelection m_selection;
    TSOverlayCreation m_creation;
    TSOverlayOffset m_offset;
    TSTrackerLayer m_trackerLayer;
    TSPointing m_pointing;
    TSDragging m_dragging;
    TSCanvasPresenter m_presenter;
    QRectF m_overlayRect;
    /// Goes first, and takes its connections along.
    QObject m_listener;
};
