#pragma once

#include "platform/drawing/Drawing.h"

#include <memory>
#include <mutex>
#include <QImage>
#include <QSizeF>
#include <QString>

namespace platform {

/// A picture that marks are made of: read once, drawn at any size. Drawings made of shapes are drawn anew for
/// each size, and so are always sharp. May be used from any thread.
class Picture {
public:
    /// Reads a picture file by its contents: a raster picture, upright, or an SVG, PDF, Illustrator or
    /// PostScript drawing. Nothing when it cannot be read.
    static std::shared_ptr<Picture> load(const QString &path);

    explicit Picture(const QImage &image) : m_image(image) {}
    explicit Picture(std::unique_ptr<Drawing> drawing) : m_drawing(std::move(drawing)) {}

    /// Made of shapes, against made of pixels. PostScript counts as pixels, being drawn only once.
    bool isDrawing() const { return bool(m_drawing); }
    /// The natural size in points.
    QSizeF size() const { return m_drawing ? m_drawing->size() : QSizeF(m_image.size()); }
    /// The picture at a size in pixels, each axis stretched on its own; premultiplied. Null when it is empty
    /// or cannot be had. The last size asked for is kept.
    QImage imageOfSize(const QSize &pixels) const;

private:
    QImage rendered(const QSize &pixels) const;

    QImage m_image;
    std::unique_ptr<Drawing> m_drawing;
    mutable std::mutex m_lock;
    mutable QImage m_scaled;
};

} // namespace platform
