#pragma once

#include <QString>

class TSCanvasLayout;
class TSOverlay;
class TSPreviewView;
class TSSelection;
struct TSTrackerState;

/// How overlays enter the working list, with a first place and a row for every photo, and how they leave it.
/// Each new one is shifted by 2 points more than the one before, until one would leave the canvas or the list
/// is emptied. Main thread.
class TSOverlayCreation {
public:
    TSOverlayCreation(const TSCanvasLayout &layout, TSPreviewView &view, TSSelection &selection,
                      TSTrackerState &trackerState)
        : m_layout(layout), m_view(view), m_selection(selection), m_trackerState(trackerState)
    {
    }

    /// A text on top, selected. Nothing without a photo.
    void createNewText();
    /// A picture on top, selected, in the middle, at most 30 % of the canvas in each direction. One that
    /// cannot be read joins all the same, without a place.
    void addStickerWithPath(const QString &path, bool isFromFinder);
    /// Takes the selected overlays out of the working list.
    void deleteEditingOverlay();

private:
    void clearSelection();
    void fitStickerInto(TSOverlay &sticker, const QString &path);
    void stagger(TSOverlay &overlay);
    void announce(TSOverlay &overlay);

    const TSCanvasLayout &m_layout;
    TSPreviewView &m_view;
    TSSelection &m_selection;
    TSTrackerState &m_trackerState;
    double m_xOffset = 0;
    double m_yOffset = 0;
};
