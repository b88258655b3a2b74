#include "platform/image/VipsMemory.h"

#include <cstring>

namespace platform {

VipsImagePtr vipsImageFrom(const QImage &image)
{
    initializeVips();
    const bool hasAlpha = image.hasAlphaChannel();
    const QImage rows = image.convertToFormat(hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    if (rows.isNull())
        return nullptr;
    const int bands = hasAlpha ? 4 : 3;
    VipsImagePtr memory(vips_image_new_memory());
    vips_image_init_fields(memory.get(), rows.width(), rows.height(), bands, VIPS_FORMAT_UCHAR,
                           VIPS_CODING_NONE, VIPS_INTERPRETATION_sRGB, 1, 1);
    if (vips_image_write_prepare(memory.get()))
        return nullptr;
    const size_t rowLength = size_t(rows.width()) * size_t(bands);
    for (int y = 0; y < rows.height(); ++y)
        std::memcpy(VIPS_IMAGE_ADDR(memory.get(), 0, y), rows.constScanLine(y), rowLength);
    return memory;
}

} // namespace platform
