#include "platform/image/ImageFile.h"

#include "platform/image/ImageSource.h"
#include "platform/image/LazyImage.h"
#include "platform/image/Thumbnail.h"

namespace platform {

namespace {

int frameCount(VipsImage *image)
{
    return std::max(1, vips_image_get_n_pages(image));
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

QString refusalOfImage(const QString &path)
{
    const auto report = std::make_shared<DecodingReport>();
    openImageSource(path, 0, {}, 1, report);
    vips_error_clear();
    return report->refusal();
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
    const QSize size = thumbnailSize({header->Xsize, header->Ysize}, longestSide);
    const LazyImage reduced = LazyImage::open(path, size, frame).inSRGB().resized(size);
    const QImage image = upright(reduced.toImage(), vips_image_get_orientation(header.get()));
    vips_error_clear();
    return image;
}

} // namespace platform
