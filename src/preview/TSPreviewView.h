#pragma once

#include "preview/TSCursor.h"

#include <optional>
#include <QPointF>
#include <QRectF>

/// Who gets the keys.
enum class TSResponder { Preview, TrackerView };

/// What the preview asks of the view that shows it: the scroll area around it, redrawing, the pointer, the
/// keyboard. Lengths are points. Main thread.
class TSPreviewView {
public:
    virtual ~TSPreviewView() = default;

    // The part of the scroll area that holds the preview: as it lies in the area, and as it is scrolled.
    // Asked anew after each change of the preview's frame, since scroll bars come and go with it.
    virtual QRectF superviewFrame() const = 0;
    virtual QRectF superviewBounds() const = 0;
    virtual void previewFrameDidChange(const QRectF &frame) = 0;
    virtual void scrollToPoint(const QPointF &point) = 0;

    // Marks one layer for drawing.
    virtual void redrawCanvasView() = 0;
    virtual void redrawOverlaysView() = 0;
    virtual void redrawTrackerView() = 0;

    virtual TSCursor currentCursor() const = 0;
    virtual void setCursor(TSCursor cursor) = 0;
    virtual void makeFirstResponder(TSResponder responder) = 0;
    /// Titles or check marks of the zoom list are others now.
    virtual void zoomListDidChange() = 0;

    /// Sets it unless it is the current one already.
    void changeCursor(std::optional<TSCursor> cursor)
    {
        if (cursor && *cursor != currentCursor())
            setCursor(*cursor);
    }
};
