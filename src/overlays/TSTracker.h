#pragma once

#include <QRectF>

/// The frame by which an overlay is taken hold of, in overlay space. Kept equal to the overlay's own frame.
class TSTracker {
public:
    const QRectF &frame() const { return m_frame; }
    void setFrame(const QRectF &frame) { m_frame = frame; }

private:
    QRectF m_frame;
};
