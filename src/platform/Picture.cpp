#include "platform/Picture.h"

#include "platform/ImageFile.h"
#include "platform/LazyImage.h"

#include <limits>

namespace platform {

std::shared_ptr<Picture> Picture::load(const QString &path)
{
    const QImage image = decodeThumbnail(path, std::numeric_limits<int>::max());
    return image.isNull() ? nullptr : std::make_shared<Picture>(image);
}

QImage Picture::imageOfSize(const QSize &pixels) const
{
    if (pixels.isEmpty())
        return {};
    const std::lock_guard lock(m_lock);
    if (m_scaled.size() != pixels) {
        const QImage scaled = LazyImage::fromImage(m_image).resized(pixels).toImage();
        m_scaled = scaled.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
    return m_scaled;
}

} // namespace platform
