#pragma once

#include <memory>
#include <mutex>
#include <QImage>
#include <QSizeF>
#include <QString>

namespace platform {

/// A picture that marks are made of: read once, drawn at any size. May be used from any thread.
class Picture {
public:
    /// Reads a picture file, upright; nothing when it cannot be read.
    static std::shared_ptr<Picture> load(const QString &path);

    explicit Picture(const QImage &image) : m_image(image) {}

    /// The natural size in points.
    QSizeF size() const { return m_image.size(); }
    /// The picture at a size in pixels, scaled with a good kernel; premultiplied. The last size asked for is
    /// kept.
    QImage imageOfSize(const QSize &pixels) const;

private:
    QImage m_image;
    mutable std::mutex m_lock;
    mutable QImage m_scaled;
};

} // namespace platform
