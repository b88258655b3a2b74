#pragma once

#include "overlays/TSOverlaySynchronisation.h"

#include <optional>

class TSCanvasLayout;
class TSPreviewView;
class TSZoomList;
struct TSTrackerState;

/// Puts a photo on the canvas and follows zoom, window and output settings: lays the canvas out, publishes it
/// and has all overlays placed on it anew, in this order. Only another photo makes texts resolve their
/// wildcards again, which is costly. Main thread, and never while an export has the canvas.
class TSCanvasPresenter {
public:
    TSCanvasPresenter(TSCanvasLayout &layout, TSPreviewView &view, TSZoomList &zoomList,
                      TSTrackerState &trackerState)
        : m_layout(layout), m_view(view), m_zoomList(zoomList), m_trackerState(trackerState)
    {
    }

    /// −1 clears the preview; any other index without a photo leaves it as it was. A fixed zoom stays in
    /// force from photo to photo.
    void showFrameAtIndex(qint64 index);
    /// The full rebuild for another photo.
    void updateInterface();
    void redrawAfterWindowChangeOrZooming();
    void resizingPhotoView();
    void updateCanvasViewFrameFromResizing();
    /// A pinch, by the part that the canvas grows by; from 5 % to 400 %.
    void magnifyWithEvent(double magnification);
    /// A title of the zoom list, and the entry of the menu when it was chosen there.
    void zoomingTheSize(const QString &title, std::optional<size_t> menuItem = {});

private:
    void clear();
    void placeOverlays();
    void refreshOverlays();
    void redrawAll();

    TSCanvasLayout &m_layout;
    TSPreviewView &m_view;
    TSZoomList &m_zoomList;
    TSTrackerState &m_trackerState;
    TSOverlaySynchronisation m_synchronisation;
};
