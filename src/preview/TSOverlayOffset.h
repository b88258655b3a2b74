#pragma once

#include "overlays/TSOverlayManager.h"

class TSPreviewView;
class TSSelection;

/// The distance of the selection from its anchor on the canvas, as numbers that can be set: in percent of the
/// canvas or in pixels of the photo, to the right and down. Several overlays are measured and moved as one
/// block. Main thread.
class TSOverlayOffset {
public:
    TSOverlayOffset(const TSSelection &selection, TSPreviewView &view) : m_selection(selection), m_view(view)
    {
    }

    /// With two decimals, as the controls show them; zero for nothing selected.
    QPointF offsetByPercentage() const;
    /// Cut to whole pixels.
    QPoint offsetByPixel() const;

    // The offset along one axis; the other stays.
    void changeXOffsetByPercentage(float percent);
    void changeYOffsetByPercentage(float percent);
    void changeXOffsetByPixel(int pixels);
    void changeYOffsetByPixel(int pixels);

    /// An arrow key, as a `Qt::Key`, takes a step in the session's unit; any other does nothing.
    void changeWatermarkPostion(int key);

private:
    enum class Axis { X, Y };

    QPointF offset() const;
    void changeOffset(Axis axis, double distance);
    void moveOne(TSOverlay &overlay, Axis axis, double distance);
    void moveBlock(Axis axis, double distance);
    void step(Axis axis, float step);

    const TSSelection &m_selection;
    TSPreviewView &m_view;
};
