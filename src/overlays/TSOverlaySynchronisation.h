#pragma once

#include "overlays/TSOverlayManager.h"

class TSPhoto;

/// Walks the working overlays and keeps three things in step: their rows, one for each photo, their live
/// placement, and their frames on the canvas that the session publishes. The preview and the export run the
/// same walks, so that one code places marks for the screen and for the file.
///
/// "All" is the manager's list in its order; the selection is told by whoever keeps it. One thread at a time.
class TSOverlaySynchronisation {
public:
    using Overlays = TSOverlayManager::Overlays;

    /// Loads the rows of a photo into all overlays that have rows; a photo that is not in the list changes
    /// nothing.
    void updateOverlaysRatioPixelAlignmentAfterPhotoChanged(const TSPhoto &photo);
    void updateOverlaysFrameByAlignmentRatio(bool isTokenName);
    void updateOverlaysFrameByOffsetPixel(bool isTokenName);
    /// Rebuilds all frames from what the user last worked in, percent or pixels.
    void updateOverlaysFrame(bool isTokenName);
    /// Resolves texts when `updateText` is set; groups are refreshed in either case.
    void updateTextContentsAndImageFrameOfGroup(bool updateText, bool isTokenName, const TSPhoto &photo);
    void updateOverlaysOfGroup();
    void updateOverlaysRenderTextImage();
    /// The whole sequence for a canvas that has just been published for a photo.
    void updateOverlaysForPhoto(const TSPhoto &photo, bool isTokenName);

    /// Puts the selection, as one block, at the anchor that the position buttons ask for.
    void updateOverlaysFrameByAlignment(const Overlays &selection);
    void updateSelectedOverlaysRatioOfFrame(const Overlays &selection);
    void updateSelectedOverlaysOffsetPixel(const Overlays &selection);
    /// Several selected overlays measure against the anchor of their union from here on.
    void updateUnionFrameAlignment(const Overlays &selection);

    /// The rectangle around the frames, turned back; the first overlay begins it.
    static QRectF unionFrame(const Overlays &overlays);
};
