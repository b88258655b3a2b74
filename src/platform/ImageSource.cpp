#include "platform/ImageSource.h"

#include "platform/JpegStrips.h"
#include "platform/VipsMemory.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QtEndian>

namespace platform {

namespace {

struct SourceUnref {
    void operator()(VipsSource *source) const { g_object_unref(source); }
};
using SourcePtr = std::unique_ptr<VipsSource, SourceUnref>;

enum class Format { None, Paged, Other };

/// The decoders that photos are trusted to. The rest of the library's list reads scientific tables, slides or
/// plain text, and would take almost any file for a picture.
Format formatOfLoader(const char *loader)
{
    struct Entry {
        const char *part;
        Format format;
    };
    static constexpr std::array<Entry, 10> known = {{{"Png", Format::Other},
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

/// Whether a Windows bitmap's file is as long as its header asks for. The toolkit's reader takes one that
/// breaks off for whole, and what then stands in the missing rows is whatever the memory held before.
bool isWholeBitmap(QFile &file)
{
    constexpr qsizetype fullHeader = 34;
    constexpr quint32 oldHeader = 12;
    const QByteArray head = file.peek(fullHeader);
    if (head.size() < fullHeader)
        return false;
    const auto number = [&](qsizetype at) { return qFromLittleEndian<quint32>(head.constData() + at); };
    const auto shortNumber = [&](qsizetype at) { return qFromLittleEndian<quint16>(head.constData() + at); };
    const bool isOld = number(14) == oldHeader;
    const bool isCompressed = !isOld && number(30) != 0 && number(30) != 3;
    const qint64 width = isOld ? shortNumber(18) : qint32(number(18));
    const qint64 height = isOld ? shortNumber(22) : std::abs(qint64(qint32(number(22))));
    const qint64 rowLength = (width * shortNumber(isOld ? 24 : 28) + 31) / 32 * 4;
    // How long compressed pixels are shows when they are read; the header tells it, too.
    const double end =
        isCompressed ? double(number(2)) : double(number(10)) + double(rowLength) * double(height);
    return double(file.size()) >= end;
}

/// libvips reads Windows bitmaps only through a library that would also read hundreds of other things.
VipsImagePtr openBitmap(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.peek(2) != "BM" || !isWholeBitmap(file))
        return nullptr;
    return vipsImageFrom(QImage(path, "BMP"));
}

SourcePtr newSource(const QString &path)
{
    return SourcePtr(vips_source_new_from_file(QFile::encodeName(path).constData()));
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

bool isJpeg(const SourcePtr &source)
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

VipsImagePtr openJpeg(const QString &path, VipsSource *source, QSize wanted,
                      std::shared_ptr<DecodingReport> report)
{
    VipsImagePtr header = loadJpeg(source);
    if (!header)
        return nullptr;
    const QSize stored(header->Xsize, header->Ysize);
    VipsImagePtr strips = openJpegStrips(path, header.get(), jpegShrinkFor(stored, wanted), wanted != stored,
                                         std::move(report));
    return strips ? std::move(strips) : std::move(header);
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

VipsImagePtr openImageSource(const QString &path, int frame, QSize wanted, int frames,
                             std::shared_ptr<DecodingReport> report)
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
    if (isJpeg(source))
        return openJpeg(path, source.get(), wanted,
                        report ? std::move(report) : std::make_shared<DecodingReport>());
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
        break;
    }
    return load(path, {});
}

} // namespace platform
