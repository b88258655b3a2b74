#pragma once

#include <QByteArray>
#include <QImage>

namespace platform {

/// A small picture that takes the place of others of any size and shape: fitted into each, centred on black.
/// Made from no image it stands in for nothing, and answers no bytes.
class StandInPicture {
public:
    explicit StandInPicture(const QImage &image) : m_image(image) {}

    /// A bare JPEG of exactly this size in pixels, of the best quality that fits the bytes; none where no
    /// quality does.
    QByteArray jpeg(QSize size, qsizetype mostBytes) const;
    /// Rows of 8-bit RGB without gaps.
    QByteArray pixels(QSize size) const;

private:
    QImage m_image;
};

} // namespace platform
