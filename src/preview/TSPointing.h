#pragma once

#include "preview/TSCursor.h"
#include "preview/TSMouseEvent.h"

#include <memory>
#include <optional>

class TSCanvasLayout;
class TSOverlay;
class TSOverlaysLayer;
class TSPreviewView;
class TSSelection;
struct TSGesture;
struct TSTrackerState;

/// What the mouse points at: the node, the overlay that leads and the pointer's shape while it moves freely,
/// and the selection when it is pressed. Main thread.
class TSPointing {
public:
    TSPointing(const TSCanvasLayout &layout, TSPreviewView &view, const TSOverlaysLayer &overlaysLayer,
               TSSelection &selection, TSTrackerState &trackerState, TSGesture &gesture)
        : m_layout(layout)
        , m_view(view)
        , m_overlaysLayer(overlaysLayer)
        , m_selection(selection)
        , m_trackerState(trackerState)
        , m_gesture(gesture)
    {
    }

    void mouseMoved(const TSMouseEvent &event);
    void mouseDown(const TSMouseEvent &event);
    static std::optional<TSCursor> getCursorByTrackerNode(int node, const TSOverlay &overlay);

private:
    enum class Hover { Outside, Inside, OnNode };

    Hover hover(TSOverlay &overlay, const QPointF &point);
    void leadWithTopmost(const QPointF &point);
    bool holdsSelection(const QPointF &point) const;
    bool holdsScript(const QPointF &point) const;
    std::shared_ptr<TSOverlay> overlayToSelect(const std::shared_ptr<TSOverlay> &hit, int clickCount) const;
    void addToSelection(const std::shared_ptr<TSOverlay> &hit);
    void select(const std::shared_ptr<TSOverlay> &overlay, int clickCount);
    void deselect();

    const TSCanvasLayout &m_layout;
    TSPreviewView &m_view;
    const TSOverlaysLayer &m_overlaysLayer;
    TSSelection &m_selection;
    TSTrackerState &m_trackerState;
    TSGesture &m_gesture;
};
