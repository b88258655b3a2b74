#include "platform/ImageFile.h"

#include "platform/ImageSource.h"
#include "platform/LazyImage.h"

#include <QTransform>

namespace platform {

namespace {

int frameCount(VipsImage *image)
{
    return std::max(1, vips_image_get_n_pages(image));
}

/// The picture as the orientation tag wants it seen, 1 to 8 in the numbering that cameras use.
QImage upright(const QImage &image, int orientation)
{
    const bool mirrored = orientation == 2 || orientation == 4 || orientation == 5 || orientation == 7;
    constexpr int quarterTurns[] = {0, 0, 0, 2, 2, 3, 1, 1, 3};
    const int turns = orientation >= 1 && orientation <= 8 ? quarterTurns[orientation] : 0;
    const QImage facing = mirrored ? image.mirrored(true, false) : image;
    return turns == 0 ? facing : facing.transformed(QTransform().rotate(90 * turns));
}

void tell(QString *reason, const QString &text)
{
    if (reason)
        *reason = text;
}

} // namespace

bool isDecodableImage(const QString &path)
{
    const bool decodable = openImageSource(path) != nullptr;
    vips_error_clear();
    return decodable;
}

std::optional<ImageHeader> readImageHeader(const QString &path, QString *reason, int frame)
{
    const VipsImagePtr image = openImageSource(path, frame);
    if (!image) {
        tell(reason, takeVipsError());
        return std::nullopt;
    }
    return ImageHeader{QSize(image->Xsize, image->Ysize), frameCount(image.get()),
                       vips_image_get_orientation_swap(image.get()) != 0};
}

QImage decodeImage(const QString &path, int frame)
{
    const QImage image = LazyImage::open(path, {}, frame).inSRGB().toImage();
    vips_error_clear();
    return image;
}

QImage decodeThumbnail(const QString &path, int longestSide, int frame)
{
    const VipsImagePtr header = openImageSource(path, frame);
    if (!header) {
        vips_error_clear();
        return {};
    }
    const double scale = std::min(1.0, double(longestSide) / std::max(header->Xsize, header->Ysize));
    const QSize size(std::max(1, int(VIPS_RINT(header->Xsize * scale))),
                     std::max(1, int(VIPS_RINT(header->Ysize * scale))));
    const LazyImage reduced = LazyImage::open(path, size, frame).inSRGB().resized(size);
    const QImage image = upright(reduced.toImage(), vips_image_get_orientation(header.get()));
    vips_error_clear();
    return image;
}

} // namespace platform
