#include "platform/drawing/SvgDrawing.h"

#include <algorithm>
#include <QRect>

namespace platform {

namespace {

/// No surface of the drawing library is longer, and no honest drawing is.
constexpr int longestSide = 32767;
constexpr int partSide = 16384;

QSizeF naturalSize(RsvgHandle *handle)
{
    double width = 0;
    double height = 0;
    if (rsvg_handle_get_intrinsic_size_in_pixels(handle, &width, &height))
        return {width, height};
    gboolean hasBox = FALSE;
    RsvgRectangle box{};
    rsvg_handle_get_intrinsic_dimensions(handle, nullptr, nullptr, nullptr, nullptr, &hasBox, &box);
    if (hasBox)
        return {box.width, box.height};
    constexpr RsvgRectangle page{0, 0, 512, 512};
    RsvgRectangle ink{};
    if (!rsvg_handle_get_geometry_for_layer(handle, nullptr, &page, &ink, nullptr, nullptr))
        return {};
    return {ink.x + ink.width, ink.y + ink.height};
}

} // namespace

std::unique_ptr<SvgDrawing> SvgDrawing::fromData(const QByteArray &document)
{
    // Read from memory, the document has no address that it could name others from.
    HandlePtr handle(rsvg_handle_new_from_data(reinterpret_cast<const guint8 *>(document.constData()),
                                               gsize(document.size()), nullptr));
    if (!handle)
        return nullptr;
    constexpr double pointsPerInch = 72;
    rsvg_handle_set_dpi(handle.get(), pointsPerInch);
    const QSizeF size = naturalSize(handle.get());
    const bool isSane =
        size.width() > 0 && size.height() > 0 && size.width() <= longestSide && size.height() <= longestSide;
    return isSane ? std::unique_ptr<SvgDrawing>(new SvgDrawing(std::move(handle), size)) : nullptr;
}

QImage SvgDrawing::imageOfSize(const QSize &pixels) const
{
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {};
    image.fill(Qt::transparent);
    // A layer inside the drawing takes a surface of the whole picture for every part: there are few.
    const bool fits = std::max(pixels.width(), pixels.height()) <= longestSide;
    const int side = fits ? longestSide : partSide;
    for (int y = 0; y < pixels.height(); y += side)
        for (int x = 0; x < pixels.width(); x += side)
            if (!drawPart(image, QRect(x, y, side, side) & image.rect()))
                return {};
    return image;
}

bool SvgDrawing::drawPart(QImage &image, const QRect &part) const
{
    // The surface's pixels are laid out like the image's, so it draws straight into them.
    uchar *corner = image.bits() + part.y() * image.bytesPerLine() + part.x() * qsizetype(sizeof(QRgb));
    cairo_surface_t *surface = cairo_image_surface_create_for_data(corner, CAIRO_FORMAT_ARGB32, part.width(),
                                                                   part.height(), int(image.bytesPerLine()));
    cairo_t *context = cairo_create(surface);
    cairo_translate(context, -part.x(), -part.y());
    cairo_scale(context, image.width() / m_size.width(), image.height() / m_size.height());
    const RsvgRectangle page{0, 0, m_size.width(), m_size.height()};
    const bool isDrawn = rsvg_handle_render_document(m_handle.get(), context, &page, nullptr) &&
                         cairo_status(context) == CAIRO_STATUS_SUCCESS;
    cairo_destroy(context);
    cairo_surface_finish(surface);
    cairo_surface_destroy(surface);
    return isDrawn;
}

} // namespace platform
