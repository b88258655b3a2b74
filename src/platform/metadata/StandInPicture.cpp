#include "platform/metadata/StandInPicture.h"

#include "platform/image/Vips.h"

#include <QPainter>

namespace platform {

namespace {

QByteArray encode(VipsImage *image, int quality)
{
    void *bytes = nullptr;
    size_t length = 0;
    if (vips_jpegsave_buffer(image, &bytes, &length, "Q", quality, "strip", TRUE, "optimize_coding", TRUE,
                             nullptr) != 0)
        return {};
    const QByteArray result(static_cast<const char *>(bytes), qsizetype(length));
    g_free(bytes);
    return result;
}

} // namespace

QByteArray StandInPicture::pixels(QSize size) const
{
    if (m_image.isNull() || size.isEmpty())
        return {};
    QImage fitted(size, QImage::Format_RGB32);
    fitted.fill(Qt::black);
    const QImage scaled = m_image.scaled(m_image.size().scaled(size, Qt::KeepAspectRatio).expandedTo({1, 1}),
                                         Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPainter(&fitted).drawImage((size.width() - scaled.width()) / 2, (size.height() - scaled.height()) / 2,
                                scaled);
    const QImage rgb = fitted.convertToFormat(QImage::Format_RGB888);
    QByteArray result;
    result.reserve(qsizetype(size.width()) * size.height() * 3);
    for (int row = 0; row < size.height(); ++row)
        result.append(reinterpret_cast<const char *>(rgb.constScanLine(row)), qsizetype(size.width()) * 3);
    return result;
}

QByteArray StandInPicture::jpeg(QSize size, qsizetype mostBytes) const
{
    constexpr int bestQuality = 85;
    constexpr int worstQuality = 5;
    constexpr int step = 10;
    const QByteArray rgb = pixels(size);
    if (rgb.isEmpty())
        return {};
    initializeVips();
    const VipsImagePtr image(vips_image_new_from_memory(rgb.constData(), size_t(rgb.size()), size.width(),
                                                        size.height(), 3, VIPS_FORMAT_UCHAR));
    if (!image)
        return {};
    image->Type = VIPS_INTERPRETATION_sRGB;
    for (int quality = bestQuality; quality >= worstQuality; quality -= step) {
        const QByteArray bytes = encode(image.get(), quality);
        if (!bytes.isEmpty() && bytes.size() <= mostBytes)
            return bytes;
    }
    return {};
}

} // namespace platform
