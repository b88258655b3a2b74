#include "platform/drawing/PdfDrawing.h"

#include "platform/image/LazyImage.h"

#include <algorithm>

namespace platform {

namespace {

/// The page without its paper, at a number of pixels a point.
VipsImagePtr openPage(const QByteArray &document, double scale)
{
    initializeVips();
    VipsImage *page = nullptr;
    constexpr double nothing[] = {0, 0, 0, 0};
    VipsArrayDouble *paper = vips_array_double_new(nothing, 4);
    vips_pdfload_buffer(const_cast<char *>(document.constData()), size_t(document.size()), &page, "n", 1,
                        "scale", scale, "background", paper, nullptr);
    vips_area_unref(VIPS_AREA(paper));
    return VipsImagePtr(page);
}

} // namespace

std::unique_ptr<PdfDrawing> PdfDrawing::fromData(const QByteArray &document)
{
    const VipsImagePtr page = openPage(document, 1);
    vips_error_clear();
    return page ? std::unique_ptr<PdfDrawing>(new PdfDrawing(document, QSizeF(page->Xsize, page->Ysize)))
                : nullptr;
}

QImage PdfDrawing::imageOfSize(const QSize &pixels) const
{
    // The page keeps its shape: it is drawn at the finer of both scales, and the other axis is reduced.
    VipsImagePtr page =
        openPage(m_document, std::max(pixels.width() / m_size.width(), pixels.height() / m_size.height()));
    const LazyImage drawn = page ? LazyImage::fromVips(std::move(page)).inSRGB() : LazyImage();
    const QImage image = drawn.resized(pixels).toImage();
    vips_error_clear();
    return image;
}

} // namespace platform
