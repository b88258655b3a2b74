#include "platform/image/JpegStrips.h"

#include "platform/image/JpegDecoder.h"

#include <cstring>
#include <vector>

namespace platform {

namespace {

/// The header is read again with the first strip, and not by those who ask for no pixels.
struct Strips {
    JpegDecoder decoder;
    std::shared_ptr<DecodingReport> report;
    bool isOpen = false;
    /// Of the decoder, where its rows are longer than the picture's.
    std::vector<uchar> row;
};

/// Blocks at the lower and right edge that are not full give a reduced pixel of their own, which would shift
/// the others.
int reduced(int length, int shrink)
{
    return length / shrink;
}

bool open(Strips &strips, const VipsImage *image)
{
    if (!strips.isOpen && !strips.decoder.open())
        return false;
    strips.isOpen = true;
    const QSize size = strips.decoder.size();
    strips.row.resize(size_t(size.width()) * 4);
    return size.width() >= image->Xsize && size.height() >= image->Ysize &&
           strips.decoder.bands() == image->Bands;
}

bool readRow(Strips &strips, const VipsImage *image, uchar *to)
{
    if (strips.decoder.size().width() == image->Xsize)
        return strips.decoder.readRow(to);
    const bool isRead = strips.decoder.readRow(strips.row.data());
    std::memcpy(to, strips.row.data(), VIPS_IMAGE_SIZEOF_LINE(image));
    return isRead;
}

bool readRest(Strips &strips)
{
    bool isRead = true;
    while (isRead && strips.decoder.nextRow() < strips.decoder.size().height())
        isRead = strips.decoder.readRow(strips.row.data());
    return isRead;
}

int decodeStrip(VipsRegion *out, void *, void *data, void *, gboolean *)
{
    auto &strips = *static_cast<Strips *>(data);
    const VipsRect &area = out->valid;
    if (!open(strips, out->im))
        return -1;
    if (area.width != out->im->Xsize || area.top != strips.decoder.nextRow()) {
        strips.report->fail(QStringLiteral("the picture was not read from top to bottom"));
        return -1;
    }
    for (int y = area.top; y < VIPS_RECT_BOTTOM(&area); ++y)
        if (!readRow(strips, out->im, VIPS_REGION_ADDR(out, 0, y)))
            return -1;
    return VIPS_RECT_BOTTOM(&area) < out->im->Ysize || readRest(strips) ? 0 : -1;
}

void deleteStrips(VipsImage *, void *strips)
{
    delete static_cast<Strips *>(strips);
}

bool isKnownKind(const VipsImage *image)
{
    return (image->Type == VIPS_INTERPRETATION_B_W && image->Bands == 1) ||
           (image->Type == VIPS_INTERPRETATION_sRGB && image->Bands == 3) ||
           (image->Type == VIPS_INTERPRETATION_CMYK && image->Bands == 4);
}

} // namespace

VipsImagePtr openJpegStrips(const QString &path, VipsImage *header, int shrink, bool buffered,
                            std::shared_ptr<DecodingReport> report)
{
    if (!isKnownKind(header))
        return nullptr;
    VipsImagePtr out(vips_image_new());
    if (vips_image_pipelinev(out.get(), VIPS_DEMAND_STYLE_THINSTRIP, header, nullptr))
        return nullptr;
    out->Xsize = reduced(header->Xsize, shrink);
    out->Ysize = reduced(header->Ysize, shrink);
    // They live as long as the picture that they decode.
    auto *strips = new Strips{{path, shrink, report}, report, false, {}};
    g_signal_connect(out.get(), "close", G_CALLBACK(deleteStrips), strips);
    if (vips_image_generate(out.get(), nullptr, decodeStrip, nullptr, strips, nullptr))
        return nullptr;
    if (!buffered)
        return out;
    VipsImage *lines = nullptr;
    return VipsImagePtr(vips_sequential(out.get(), &lines, "tile_height", 8, nullptr) ? nullptr : lines);
}

} // namespace platform
