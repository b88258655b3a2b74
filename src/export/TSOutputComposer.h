#pragma once

#include "export/TSOutputImage.h"
#include "overlays/TSOverlaySynchronisation.h"

#include <optional>

class TSPhoto;

/// Where a mark came to stand on an output. The frame is before rotation, in output pixels; the angle in
/// degrees.
struct TSMarkPlacement {
    QString type;
    QString text;
    QRectF frame;
    unsigned anchor = 0;
    double angle = 0;
};

/// Turns a photo and the session's overlays into an output. For the length of one photo it makes the session
/// believe that the canvas is the output, has the overlays place themselves as they do on the screen, records
/// what they draw, and puts everything back for the photo on the canvas. So a mark is placed by one code on
/// the screen and in the file.
///
/// Works on the session that is current on the thread, while nobody else uses it.
class TSOutputComposer {
public:
    /// The overlays to draw, the topmost first; emptied by `drawOverlay`.
    TSOverlayManager::Overlays overlayArrays;

    /// Nothing for an output without size, or when the photo cannot be opened; `reason()` then says why.
    /// `frame` is in output pixels. The scale is accepted and ignored: the effective one follows from the
    /// canvas.
    std::optional<TSOutputImage> createOutputImage(const QString &path, const QRectF &frame,
                                                   const TSPhoto &photo, qint64 index, double scale);
    /// Draws `overlayArrays` for a photo on a canvas of the given size.
    void drawOverlay(platform::PaintLayer &target, const QSizeF &frameSize, double scale,
                     const TSPhoto &photo, bool isTokenName);
    /// Places the session's overlays as for an output, draws nothing, and tells where they stand, the topmost
    /// first.
    std::vector<TSMarkPlacement> placements(const QSizeF &frameSize, const TSPhoto &photo);

    const QString &reason() const { return m_reason; }
    /// The picture files of the session's marks that cannot be read, each once.
    QStringList missingPictures() const;

private:
    class BorrowedCanvas;

    platform::LazyImage openSource(const QString &path, qint64 index, const QSize &size);
    void restoreCanvas();

    TSOverlaySynchronisation m_synchronisation;
    QString m_reason;
};
