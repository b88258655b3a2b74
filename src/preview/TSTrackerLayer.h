#pragma once

#include <QRectF>

class QPainter;
class TSOverlayCreation;
class TSSelection;
struct TSTrackerState;

/// The top layer of the preview: the trackers of the selected overlays, the marquee and the guide lines, all
/// in overlay space at a fixed size on screen. It also has the keys. Main thread.
class TSTrackerLayer {
public:
    TSTrackerLayer(TSTrackerState &state, const TSSelection &selection, TSOverlayCreation &creation)
        : m_state(state), m_selection(selection), m_creation(creation)
    {
    }

    void drawRect(QPainter &context);
    void drawBoundsRect(QPainter &context) const;
    void drawTrackers(QPainter &context);
    void drawAligmentLines(QPainter &context) const;
    /// From the canvas's anchor to the overlay's, while an overlay is dragged.
    void drawAuxiliaryLine(QPainter &context) const;

    /// A key of `Qt::Key`. The delete keys delete the selection; all others move it, by whoever listens to
    /// `TSChangeWatermarkPostion`.
    void keyDown(int key);
    /// The key that is being handled, for those listeners; 0 outside of it.
    int currentKey() const { return m_currentKey; }

private:
    TSTrackerState &m_state;
    const TSSelection &m_selection;
    TSOverlayCreation &m_creation;
    int m_currentKey = 0;
};
