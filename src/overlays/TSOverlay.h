#pragma once

#include "overlays/TSRows.h"
#include "overlays/TSShadow.h"
#include "overlays/TSTracker.h"
#include "session/TSPositionCode.h"

#include <memory>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <vector>

namespace platform {
class PaintLayer;
}

/// The base of every watermark: its rectangle, turn and opacity, and its place, kept so that the rectangle
/// can be rebuilt on any canvas. A plain overlay draws nothing and serves as a calculator.
///
/// `frame` is the rectangle before rotation in points of the overlay space, y downward; `angle` is in
/// radians, clockwise, about the middle of `frame`. The place is an anchor of nine with the offset of the
/// overlay's anchor from the canvas's, in two forms at once: fractions of the canvas in
/// `ratioOfFrameByAlignment` (whose size is that of `frame` in fractions too), and pixels of the photo in
/// `xPixel` and `yPixel`. While the user edits, `frame` is the master and `updateAlignmentAndRatio`, then
/// `updateOffsetPixel`, follow it, in this order; when the canvas changes, `frame` is rebuilt from one of the
/// two forms.
///
/// Setters only store. The operations read the session's `canvasFrame` and
/// `photoRatioOfSize`; one thread at a time, main or export.
class TSOverlay : public platform::Archivable {
public:
    TSOverlay();
    explicit TSOverlay(platform::KeyedUnarchiver &coder);
    TSOverlay &operator=(const TSOverlay &) = delete;

    /// The overlay with all that belongs to it, members and rows, sharing nothing that either could change:
    /// it may be handed to another thread.
    virtual std::shared_ptr<TSOverlay> copy() const;

    double angle() const { return m_angle; }
    void setAngle(double angle) { m_angle = angle; }
    double opacity() const { return m_opacity; }
    void setOpacity(double opacity) { m_opacity = opacity; }
    TSTracker *tracker() { return &m_tracker; }
    const TSTracker *tracker() const { return &m_tracker; }
    /// Replaced as a whole, so that copies can share it.
    const std::shared_ptr<const TSShadow> &shadow() const { return m_shadow; }
    void setShadow(std::shared_ptr<const TSShadow> shadow) { m_shadow = std::move(shadow); }

    unsigned wmAlignment() const { return m_wmAlignment; }
    void setWmAlignment(unsigned code) { m_wmAlignment = code; }
    unsigned wmUnionAlignment() const { return m_wmUnionAlignment; }
    void setWmUnionAlignment(unsigned code) { m_wmUnionAlignment = code; }
    unsigned offsetAlignment() const { return m_offsetAlignment; }
    void setOffsetAlignment(unsigned code) { m_offsetAlignment = code; }

    double xPixel() const { return m_xPixel; }
    void setXPixel(double x) { m_xPixel = x; }
    double yPixel() const { return m_yPixel; }
    void setYPixel(double y) { m_yPixel = y; }
    const QSizeF &originRatio() const { return m_originRatio; }
    const QRectF &frame() const { return m_frame; }
    void setFrame(const QRectF &frame) { m_frame = frame; }
    const QRectF &ratioOfFrameByAlignment() const { return m_ratioOfFrameByAlignment; }
    void setRatioOfFrameByAlignment(const QRectF &ratio) { m_ratioOfFrameByAlignment = ratio; }
    const QRectF &centerRatioOfFrame() const { return m_centerRatioOfFrame; }
    void setCenterRatioOfFrame(const QRectF &ratio) { m_centerRatioOfFrame = ratio; }
    const QRectF &oldRatioOfFrameByAlignment() const { return m_oldRatioOfFrameByAlignment; }
    void setOldRatioOfFrameByAlignment(const QRectF &ratio) { m_oldRatioOfFrameByAlignment = ratio; }
    const QRectF &oldFrame() const { return m_oldFrame; }
    void setOldFrame(const QRectF &frame) { m_oldFrame = frame; }

    /// One row a photo, which follow the photo list.
    TSRows &rows() { return m_rows; }
    const TSRows &rows() const { return m_rows; }
    /// One more row with the present values of the plain fields.
    void appendRow();
    /// Reads a row into the plain fields; `frame` waits for a rebuild. A row that is missing changes nothing.
    void loadRow(qint64 position);

    // Between overlay space and the overlay's own, turned back about its middle. Rectangles become the box
    // around the turned one.
    QPointF convertPoint(const QPointF &point) const;
    QRectF convertRect(const QRectF &rect) const;
    QPointF convertPointToPreview(const QPointF &point) const;
    QRectF convertRectToPreview(const QRectF &rect) const;

    // Placement. The order of the first two is binding: the offset is measured from the anchor that the first
    // leaves.
    void updateAlignmentAndRatio();
    void updateOffsetPixel();
    /// The flag has no influence on the result, and is kept for the callers that tell apart what they draw
    /// for.
    void updateFrameByAlignmentRatio(bool isTokenName);
    void updateFrameByOffsetPixel(bool isTokenName);
    /// Puts the anchor asked for by the position buttons on the canvas's, with no offset.
    void updateFrameByAlignment();
    void updateOriginRatio(const QRectF &unionFrame);
    /// The tracker is left to the redraw of the selection.
    void updateOriginByUnionFrame(const QRectF &unionFrame);
    /// Turns the middle of the frame about a point, so that a turned overlay grows from its unmoved corner.
    void updateFrameByCenterPoint(const QPointF &center);
    void updateSizeRatio();
    void updateOverlaySize();
    static float calculationOfDistanceFromPoint(const QPointF &from, const QPointF &to);

    /// Draws nothing but in the derived classes.
    virtual void drawIncontext(platform::PaintLayer &context);
    /// A text that is tiled over the whole canvas. It has no place of its own: its frame is the canvas.
    virtual bool isScript() const { return false; }

    QStringList classChain() const override { return {QStringLiteral("TSOverlay")}; }
    void encodeWithCoder(platform::KeyedArchiver &coder) const override;

protected:
    TSOverlay(const TSOverlay &other);

    // What only a text has of its own on each photo.
    virtual void writeTextRow(TSRow &) const {}
    virtual void readTextRow(const TSRow &) {}

private:
    QSizeF sizeByRatio() const;
    void placeByOffset(const QPointF &offset);
    unsigned nearestAlignment() const;
    template <typename Change>
    void changeRows(const Change &apply);
    void writePlacement(TSRow &row) const;

    double m_angle = 0;
    double m_opacity = 0.8;
    TSTracker m_tracker;
    std::shared_ptr<const TSShadow> m_shadow;
    unsigned m_wmAlignment = TSPositionCode::None;
    unsigned m_wmUnionAlignment = TSPositionCode::None;
    unsigned m_offsetAlignment = TSPositionCode::None;
    double m_xPixel = 0;
    double m_yPixel = 0;
    double m_oldXPixel = 0;
    double m_oldYPixel = 0;
    QSizeF m_originRatio{0, 0};
    QRectF m_frame;
    QRectF m_ratioOfFrameByAlignment;
    QRectF m_centerRatioOfFrame;
    QRectF m_oldRatioOfFrameByAlignment;
    QRectF m_oldFrame;
    TSRows m_rows;
};
