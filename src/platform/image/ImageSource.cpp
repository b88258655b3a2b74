#include "platform/image/ImageSource.h"

#include "platform/image/BitmapFile.h"
#include "platform/image/FileSource.h"
#include "platform/image/JpegStrips.h"
#include "platform/image/TiffChain.h"
#include "platform/image/TiffFile.h"

#include <array>
#include <cstring>
#include <QFileInfo>

namespace platform {

namespace {

enum class Format { None, Tiff, Gif, Whole, Strips };

/// The decoders that photos are trusted to. The rest of the library's list reads scientific tables, slides or
/// plain text, and would take almost any file for a picture.
Format formatOfLoader(const char *loader)
{
    struct Entry {
        const char *part;
        Format format;
    };
    static constexpr std::array<Entry, 10> known = {{{"Png", Format::Strips},
                                                     {"Tiff", Format::Tiff},
                                                     {"Nsgif", Format::Gif},
                                                     {"Webp", Format::Whole},
                                                     {"Heif", Format::Whole},
                                                     {"Jp2k", Format::Whole},
                                                     {"Jxl", Format::Whole},
                                                     {"Ppm", Format::Strips},
                                                     {"Pbm", Format::Strips},
                                                     {"Pgm", Format::Strips}}};
    for (const Entry &entry : known)
        if (std::strstr(loader, entry.part))
            return entry.format;
    return Format::None;
}

/// A decoder reduces by leaving out, which aliases: the last halving is left to a filter.
int jpegShrinkFor(QSize stored, QSize wanted)
{
    constexpr int leftToFilter = 2;
    if (wanted.isEmpty())
        return 1;
    for (const int shrink : {8, 4, 2})
        if (stored.width() >= wanted.width() * shrink * leftToFilter &&
            stored.height() >= wanted.height() * shrink * leftToFilter)
            return shrink;
    return 1;
}

bool isJpeg(const VipsSourcePtr &source)
{
    constexpr size_t markLength = 3;
    const unsigned char *head = source ? vips_source_sniff(source.get(), markLength) : nullptr;
    return head && std::memcmp(head, "\xFF\xD8\xFF", markLength) == 0;
}

/// Asked which decoder it takes, libvips lets each of them look at the file, which costs more than a header.
/// Of kinds that it is left to decode, any warning is a failure: it does not tell which it was.
VipsImagePtr loadJpeg(VipsSource *source)
{
    VipsImage *out = nullptr;
    const int failed = vips_jpegload_source(source, &out, "access", VIPS_ACCESS_SEQUENTIAL, "fail_on",
                                            VIPS_FAIL_ON_WARNING, nullptr);
    return VipsImagePtr(failed ? nullptr : out);
}

VipsImagePtr load(VipsSource *source, const QByteArray &options)
{
    return VipsImagePtr(vips_image_new_from_source(source, options.constData(), "access",
                                                   VIPS_ACCESS_SEQUENTIAL, "fail_on", VIPS_FAIL_ON_TRUNCATED,
                                                   nullptr));
}

bool isMarked(VipsImage *image, const char *field)
{
    int value = 0;
    return vips_image_get_typeof(image, field) && !vips_image_get_int(image, field, &value) && value;
}

void refuse(DecodingReport &report, const QString &sentence)
{
    report.refuse(sentence);
    vips_error("Tessaro", "%s", qUtf8Printable(sentence));
}

/// No picture is decoded before its header was asked: some decoders hold it whole, however large a few bytes
/// say that it is, and the others would be at it for minutes.
bool isWithinReach(const QSize &size, bool isHeld, DecodingReport &report)
{
    constexpr double largestHeld = 20000.0 * 20000.0;
    constexpr double largestStreamed = 40000.0 * 40000.0;
    if (double(size.width()) * size.height() <= (isHeld ? largestHeld : largestStreamed))
        return true;
    refuse(report, qtTrId("The picture has %1 × %2 pixels, which is more than can be read.")
                       .arg(size.width())
                       .arg(size.height()));
    return false;
}

VipsImagePtr withinReach(VipsImagePtr image, bool isHeldWhole, DecodingReport &report)
{
    if (!image)
        return nullptr;
    const QSize page(image->Xsize, vips_image_get_page_height(image.get()));
    const bool isHeld =
        isHeldWhole || isMarked(image.get(), "interlaced") || isMarked(image.get(), "jpeg-multiscan");
    return isWithinReach(page, isHeld, report) ? std::move(image) : nullptr;
}

VipsImagePtr openJpeg(const QString &path, VipsSource *source, QSize wanted,
                      std::shared_ptr<DecodingReport> report)
{
    VipsImagePtr header = withinReach(loadJpeg(source), false, *report);
    if (!header)
        return nullptr;
    const QSize stored(header->Xsize, header->Ysize);
    VipsImagePtr strips = openJpegStrips(path, header.get(), jpegShrinkFor(stored, wanted), wanted != stored,
                                         std::move(report));
    return strips ? std::move(strips) : std::move(header);
}

VipsImagePtr openBitmap(const QString &path, DecodingReport &report)
{
    const std::optional<BitmapLayout> layout = readBitmapLayout(path);
    const bool isReadable = layout && isWithinReach(layout->size(), !layout->isReadInStrips(), report);
    VipsImagePtr bitmap = isReadable ? openBitmapFile(path, *layout) : nullptr;
    if (bitmap)
        vips_error_clear();
    return bitmap;
}

VipsImagePtr openPages(const QString &path, const TiffChain &chain, int first, int pages,
                       DecodingReport &report)
{
    if (first + pages > chain.count()) {
        vips_error("Tessaro", "no such page");
        return nullptr;
    }
    const VipsSourcePtr source = openFileSource(path, chain.only(first, pages));
    VipsImagePtr image = source ? load(source.get(), "n=" + QByteArray::number(pages)) : nullptr;
    if (image)
        vips_image_set_int(image.get(), VIPS_META_N_PAGES, chain.count());
    return withinReach(std::move(image), false, report);
}

VipsImagePtr openFrames(const QString &path, VipsSource *source, Format format, int frame, int frames,
                        DecodingReport &report)
{
    if (format == Format::Tiff && holdsSensorData(path)) {
        refuse(report, qtTrId("The file holds the raw data of a camera's sensor, which is not read yet."));
        return nullptr;
    }
    const TiffChain chain = format == Format::Tiff ? TiffChain::ofFile(path) : TiffChain();
    if (chain.count() > 1)
        return openPages(path, chain, frame, frames, report);
    const QByteArray options = "page=" + QByteArray::number(frame) + ",n=" + QByteArray::number(frames);
    return withinReach(load(source, options), format == Format::Gif, report);
}

} // namespace

VipsImagePtr openImageSource(const QString &path, int frame, QSize wanted, int frames,
                             std::shared_ptr<DecodingReport> report)
{
    initializeVips();
    vips_error_clear();
    if (!report)
        report = std::make_shared<DecodingReport>();
    // A folder opens like a file and then fails in ways that tell nobody anything; a pipe would wait for
    // ever.
    if (!QFileInfo(path).isFile()) {
        vips_error("Tessaro", "not a file");
        return nullptr;
    }
    const VipsSourcePtr source = openFileSource(path);
    if (isJpeg(source))
        return openJpeg(path, source.get(), wanted, std::move(report));
    const char *loader = source ? vips_foreign_find_load_source(source.get()) : nullptr;
    const Format format = loader ? formatOfLoader(loader) : Format::None;
    switch (format) {
    case Format::None:
        return openBitmap(path, *report);
    case Format::Tiff:
    case Format::Gif:
        return openFrames(path, source.get(), format, frame, frames, *report);
    default:
        return withinReach(load(source.get(), {}), format == Format::Whole, *report);
    }
}

} // namespace platform
