#include "platform/ImageSource.h"

#include "platform/VipsMemory.h"

#include <array>
#include <cstring>
#include <memory>
#include <QFile>
#include <QFileInfo>
#include <QImage>

namespace platform {

namespace {

struct SourceUnref {
    void operator()(VipsSource *source) const { g_object_unref(source); }
};
using SourcePtr = std::unique_ptr<VipsSource, SourceUnref>;

enum class Format { None, Jpeg, Paged, Other };

/// The decoders that photos are trusted to. The rest of the library's list reads scientific tables, slides or
/// plain text, and would take almost any file for a picture.
Format formatOfLoader(const char *loader)
{
    struct Entry {
        const char *part;
        Format format;
    };
    static constexpr std::array<Entry, 11> known = {{{"Jpeg", Format::Jpeg},
                                                     {"Png", Format::Other},
                                                     {"Tiff", Format::Paged},
                                                     {"Nsgif", Format::Paged},
                                                     {"Webp", Format::Other},
                                                     {"Heif", Format::Other},
                                                     {"Jp2k", Format::Other},
                                                     {"Jxl", Format::Other},
                                                     {"Ppm", Format::Other},
                                                     {"Pbm", Format::Other},
                                                     {"Pgm", Format::Other}}};
    for (const Entry &entry : known)
        if (std::strstr(loader, entry.part))
            return entry.format;
    return Format::None;
}

/// libvips reads Windows bitmaps only through a library that would also read hundreds of other things.
VipsImagePtr openBitmap(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.peek(2) != "BM")
        return nullptr;
    return vipsImageFrom(QImage(path, "BMP"));
}

SourcePtr newSource(const QString &path)
{
    return SourcePtr(vips_source_new_from_file(QFile::encodeName(path).constData()));
}

int jpegShrinkFor(QSize stored, QSize wanted)
{
    if (wanted.isEmpty())
        return 1;
    for (const int shrink : {8, 4, 2})
        if (stored.width() >= wanted.width() * shrink && stored.height() >= wanted.height() * shrink)
            return shrink;
    return 1;
}

VipsImagePtr load(const QString &path, const QByteArray &options)
{
    const SourcePtr source = newSource(path);
    if (!source)
        return nullptr;
    return VipsImagePtr(vips_image_new_from_source(source.get(), options.constData(), "access",
                                                   VIPS_ACCESS_SEQUENTIAL, "fail_on", VIPS_FAIL_ON_TRUNCATED,
                                                   nullptr));
}

} // namespace

VipsImagePtr openImageSource(const QString &path, int frame, QSize wanted, int frames)
{
    initializeVips();
    vips_error_clear();
    // A folder opens like a file and then fails in ways that tell nobody anything; a pipe would wait for
    // ever.
    if (!QFileInfo(path).isFile()) {
        vips_error("Tessaro", "not a file");
        return nullptr;
    }
    const SourcePtr source = newSource(path);
    const char *loader = source ? vips_foreign_find_load_source(source.get()) : nullptr;
    const Format format = loader ? formatOfLoader(loader) : Format::None;
    switch (format) {
    case Format::None:
        if (VipsImagePtr bitmap = openBitmap(path)) {
            vips_error_clear();
            return bitmap;
        }
        return nullptr;
    case Format::Paged:
        return load(path, "page=" + QByteArray::number(frame) + ",n=" + QByteArray::number(frames));
    case Format::Other:
        return load(path, {});
    case Format::Jpeg:
        break;
    }
    VipsImagePtr full = load(path, {});
    const int shrink = full ? jpegShrinkFor({full->Xsize, full->Ysize}, wanted) : 1;
    return shrink == 1 ? std::move(full) : load(path, "shrink=" + QByteArray::number(shrink));
}

} // namespace platform
