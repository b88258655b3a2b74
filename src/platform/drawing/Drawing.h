#pragma once

#include <QImage>
#include <QSizeF>

namespace platform {

/// A picture made of shapes, which can be drawn at any size without losing sharpness. One thread at a time.
class Drawing {
public:
    virtual ~Drawing() = default;
    /// The natural size in points; never empty.
    virtual QSizeF size() const = 0;
    /// Drawn on nothing, each axis stretched on its own; premultiplied. Null when it cannot be drawn.
    virtual QImage imageOfSize(const QSize &pixels) const = 0;
};

} // namespace platform
