#pragma once

#include "overlays/TSOverlaySynchronisation.h"
#include "preview/TSMouseEvent.h"
#include "preview/TSSnapping.h"

class TSCanvasLayout;
class TSPreviewView;
class TSSelection;
class TSText;
struct TSGesture;
struct TSTrackerState;

/// What a drag does to the overlays: by where the mouse took hold it draws a marquee, shifts the pattern of a
/// Script text, or moves, resizes or turns the selection. There is no dead zone. One overlay of the selection
/// leads, and the others do as it does. Main thread.
class TSDragging {
public:
    TSDragging(const TSCanvasLayout &layout, TSPreviewView &view, TSSelection &selection,
               TSTrackerState &trackerState, TSGesture &gesture)
        : m_layout(layout)
        , m_view(view)
        , m_selection(selection)
        , m_trackerState(trackerState)
        , m_gesture(gesture)
        , m_snapping(trackerState)
    {
    }

    void mouseDragged(const TSMouseEvent &event);
    void mouseUp();

    // Without a mouse: one step each, told like a step of a drag and its end.
    /// Each selected overlay about its own middle.
    void turnSelection(double radians);
    /// Each selected overlay as by its lower right corner, in points. A Script text has no size to drag.
    void resizeSelection(double points);
    /// The pattern of the Script text that is selected, in pitches.
    void shiftPattern(const QPointF &pitches);

    /// Points of the overlay space. The overlay that leads is pulled by what it comes near to.
    void moveOverlay(TSOverlay &overlay, float offsetX, float offsetY);
    /// By the node that is dragged; the deltas are in the overlay's own unturned sense.
    void resizeOverlay(TSOverlay &overlay, double offsetX, double offsetY);
    /// With the flag the overlay that leads shows its guide lines.
    void resizeOverlay(TSOverlay &overlay, double offsetX, double offsetY, bool absorption);
    /// The place of one of the nodes 0 to 7, or the origin.
    static QPointF pointOfOverlay(const TSOverlay &overlay, int trackerNode);

private:
    void dragMarquee();
    void dragScript(TSText &text);
    void shiftScript(TSText &text, const QPointF &delta);
    void dragMove();
    void dragResize();
    void dragRotate();
    void finishStep();
    void finishGesture();
    QPointF localDelta(const TSOverlay &overlay) const;
    template <typename Follow>
    void forEachFollower(Follow follow);
    bool isLed(const TSOverlay &overlay) const;

    const TSCanvasLayout &m_layout;
    TSPreviewView &m_view;
    TSSelection &m_selection;
    TSTrackerState &m_trackerState;
    TSGesture &m_gesture;
    TSSnapping m_snapping;
    TSOverlaySynchronisation m_synchronisation;
};
