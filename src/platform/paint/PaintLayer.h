#pragma once

#include "platform/paint/Color.h"

#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QTransform>
#include <vector>

namespace platform {

/// What is drawn on a canvas, recorded: pictures with their place, opacity and shadow. Once recorded it owes
/// nothing to the objects that drew it, and paints any part of the canvas at any time. Lengths are canvas
/// pixels, y downward.
///
/// The drawing state works like that of the platform's contexts: `save` and `restore` pair up, transforms
/// apply to what is drawn after them. Recording is for one thread; painting a finished layer may go on in
/// several.
class PaintLayer {
public:
    /// Nothing outside the canvas is kept.
    explicit PaintLayer(const QSize &canvas);

    void save() { m_stack.push_back(m_state); }
    void restore();
    void translate(double dx, double dy) { m_state.transform.translate(dx, dy); }
    /// In radians, clockwise.
    void rotate(double angle) { m_state.transform.rotateRadians(angle); }
    void setAlpha(double alpha) { m_state.alpha = alpha; }
    /// A shadow for all that is drawn from here on. The offset and the blur are in canvas pixels whatever the
    /// transform; half the blur is the deviation.
    void setShadow(const QPointF &offset, double blur, const Color &color);

    /// A premultiplied picture, stretched into the rectangle.
    void drawImage(const QRectF &rect, const QImage &image);
    /// The picture at the corner of every tile of a grid that covers the whole canvas, one of its tiles being
    /// `tile`; the rest of a tile is empty. Each copy stands on whole pixels, so that it is as sharp as the
    /// picture, and casts its shadow below all of them.
    void drawTiledImage(const QRectF &tile, const QSizeF &pictureSize, const QImage &image);

    const QSize &canvas() const { return m_canvas; }
    bool isEmpty() const { return m_stamps.empty(); }
    /// Whether anything recorded is more than transparent.
    bool shows() const;
    bool meets(const QRect &rect) const;
    /// Paints everything; the painter's coordinates are those of the canvas.
    void paint(QPainter &painter, const QRect &part) const;
    /// Paints the part of the canvas that a picture shows whose corner lies at `origin`.
    void paintOnto(QImage &picture, const QPoint &origin) const;

private:
    struct Shadow {
        QPointF offset;
        double blur = 0;
        Color color;
    };
    struct State {
        QTransform transform;
        double alpha = 1;
        bool hasShadow = false;
        Shadow shadow;
    };
    struct Stamp {
        QImage image;
        QTransform transform;
        QRectF rect;
        double alpha = 1;
        /// Of one copy. Where there are `places`, it is copied to each of them, from the top down.
        QRect bounds;
        std::vector<QPoint> places;
    };

    void record(Stamp stamp);
    void recordShadow(const Stamp &caster);
    Stamp shadowOf(const Stamp &caster, const QRect &area) const;
    std::vector<QPoint> tilePlaces(const QRectF &tile, const QRect &bounds) const;
    static bool stampMeets(const Stamp &stamp, const QRect &rect);
    static void paintStamp(QPainter &painter, const Stamp &stamp);
    template <typename Paint>
    static void forEachCopy(const Stamp &stamp, const QRect &part, Paint paint);

    QSize m_canvas;
    State m_state;
    std::vector<State> m_stack;
    std::vector<Stamp> m_stamps;
};

} // namespace platform
