#include "Target.h"
#include "vector/TSSVGImage.h"

#include <QPainter>

/// Reads a drawing and draws it.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto drawing = TSSVGImage::imageWithSVGData(bytesOf(data, size));
    if (!drawing)
        return 0;
    QImage surface(32, 32, QImage::Format_ARGB32_Premultiplied);
    surface.fill(0);
    QPainter painter(&surface);
    drawing->drawInRect(painter, surface.rect());
    return 0;
}
