#pragma once

#include <memory>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

class TSPhoto;
class TSPreviewView;

/// Where the photo lies on the preview. The canvas is the rectangle of the photo, sized by the zoom:
/// `photoRatioOfSize`, its width in points divided by the width of `photoOutputSize`.
///
/// The frame of the preview is in the scroll area, and the canvas in the preview, y upward in both. All that
/// others work with is in overlay space: the layers over the canvas always have the frame of the preview,
/// begin at its top left and have y downward. Main thread.
class TSCanvasLayout {
public:
    explicit TSCanvasLayout(TSPreviewView &view);

    /// The photo on the canvas, or none.
    const std::shared_ptr<TSPhoto> &photo() const { return m_photo; }
    void setPhoto(std::shared_ptr<TSPhoto> photo) { m_photo = std::move(photo); }
    const QRectF &frame() const { return m_frame; }
    void setFrame(const QRectF &frame);
    /// Empties the preview's frame first: it makes the scroll bars go, and the whole area is there to take.
    void fillSuperview();
    /// What the scroll area showed before the last change of the frame.
    const QRectF &originRect() const { return m_originRect; }
    const QRectF &canvasViewFrame() const { return m_canvasViewFrame; }
    /// The photo keeps the frame as its `previewRect`.
    void setCanvasViewFrame(const QRectF &frame);

    // Between the spaces: from the preview to the layers above it, where y turns over, and on to the pixels
    // of the photo.
    QPointF convertPointToOverlaysView(const QPointF &point) const;
    QRectF convertRectToOverlaysView(const QRectF &rect) const;
    static QPointF convertPointToPhoto(const QPointF &overlayPoint);

    /// Sizes the canvas by the photo's zoom. The zoom always measures the photo's own size: how the output is
    /// to be resized changes nothing of what is shown.
    void calculateCanvasViewFrame();
    /// Gives the photo the size that the session's resize way asks for.
    void updateOutputSize();
    /// The whole photo, never enlarged, with 40 points to spare vertically.
    void updateCanvasViewFrameByFit();
    /// A canvas of this size; the preview grows with it and is never smaller than what the scroll area shows.
    void updateCanvasViewFrameByWidth(double width, double height);
    void updateCanvasViewFrameAddPhotoFromPhotos(unsigned sizeMode);
    /// Centres the canvas.
    void updateCanvasViewFrame();
    void updateScrollView();
    /// Measures the zoom from the canvas, for the session and for the photo.
    void updateScale();
    /// Publishes the canvas and the preview in overlay space.
    void updateCanvasFrameAndPreviewFrameOfDataManager() const;

    /// Zero without a photo.
    QSizeF photoOutputSize() const;

private:
    void growFrameTo(double width, double height);
    QRectF centred(const QSizeF &canvas) const;

    TSPreviewView &m_view;
    std::shared_ptr<TSPhoto> m_photo;
    QRectF m_frame;
    QRectF m_originRect;
    QRectF m_canvasViewFrame;
};
