#include "platform/image/LazyImage.h"

#include "platform/image/ColorProfile.h"
#include "platform/image/DeviceTarget.h"
#include "platform/image/ImageSource.h"
#include "platform/image/JpegEncoder.h"
#include "platform/image/VipsMemory.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace platform {

namespace {

/// Hands the result of a libvips operation on, or nothing when it failed. By reference, since the operation
/// that fills it in stands among the arguments.
VipsImagePtr taken(int failed, VipsImage *const &out)
{
    return VipsImagePtr(failed ? nullptr : out);
}

VipsImagePtr toEightBitRGB(VipsImage *in)
{
    VipsImage *out = nullptr;
    VipsImagePtr rgb = taken(vips_colourspace(in, &out, VIPS_INTERPRETATION_sRGB, nullptr), out);
    if (!rgb)
        return nullptr;
    VipsImagePtr bytes = taken(vips_cast_uchar(rgb.get(), &out, nullptr), out);
    if (!bytes || bytes->Bands <= 4)
        return bytes;
    return taken(vips_extract_band(bytes.get(), &out, 0, "n", 3, nullptr), out);
}

VipsImagePtr resizedPlain(VipsImage *in, QSize size)
{
    VipsImage *out = nullptr;
    const double across = double(size.width()) / in->Xsize;
    const double down = double(size.height()) / in->Ysize;
    return taken(vips_resize(in, &out, across, "vscale", down, nullptr), out);
}

/// Scaling colours that are not weighted by their alpha would draw the colour of invisible pixels into the
/// edges.
VipsImagePtr resizedWithAlpha(VipsImage *in, QSize size)
{
    VipsImage *out = nullptr;
    VipsImagePtr weighted = taken(vips_premultiply(in, &out, nullptr), out);
    VipsImagePtr scaled = weighted ? resizedPlain(weighted.get(), size) : nullptr;
    VipsImagePtr plain = scaled ? taken(vips_unpremultiply(scaled.get(), &out, nullptr), out) : nullptr;
    return plain ? taken(vips_cast_uchar(plain.get(), &out, nullptr), out) : nullptr;
}

/// One picture being painted. libvips computes it with a single worker, so that the strips come one at a
/// time.
struct PaintJob {
    std::shared_ptr<VipsImage> input;
    std::shared_ptr<StripPainter> painter;
};

int paintStrip(VipsRegion *out, void *sequence, void *, void *data, gboolean *)
try {
    auto *in = static_cast<VipsRegion *>(sequence);
    const auto *job = static_cast<const PaintJob *>(data);
    VipsRect valid = out->valid;
    if (vips_region_prepare_to(in, out, &valid, valid.left, valid.top))
        return -1;
    const auto format = out->im->Bands == 4 ? QImage::Format_RGBA8888 : QImage::Format_RGB888;
    QImage strip(VIPS_REGION_ADDR(out, valid.left, valid.top), valid.width, valid.height,
                 qsizetype(VIPS_REGION_LSKIP(out)), format);
    const QPoint origin(valid.left, valid.top);
    if (job->painter->meets(QRect(origin, strip.size())))
        job->painter->paint(strip, origin);
    job->painter->finished(strip, origin);
    return 0;
} catch (const std::bad_alloc &) {
    // It must not pass through the library, which is not made for it.
    vips_error("Tessaro", "%s", qUtf8Printable(qtTrId("There is not enough memory for the photo.")));
    return -1;
}

void deletePaintJob(VipsImage *, void *job)
{
    delete static_cast<PaintJob *>(job);
}

/// What libvips itself needs to remember about a picture, against what it read in the file.
bool isInternalField(const char *name)
{
    return std::strncmp(name, "vips-", 5) == 0 || std::strcmp(name, VIPS_META_CONCURRENCY) == 0;
}

/// One pixel a millimetre stands for a density that nobody has told.
double densityOrNone(double pixelsPerMillimetre)
{
    constexpr double none = 72 / 25.4;
    return pixelsPerMillimetre == 1 ? none : pixelsPerMillimetre;
}

/// The picture without any metadata but an sRGB profile and its density, which is 72 to the inch where nobody
/// has told any.
VipsImagePtr withProfileOnly(VipsImage *in, double across, double down)
{
    VipsImage *out = nullptr;
    VipsImagePtr copy =
        taken(vips_copy(in, &out, "xres", densityOrNone(across), "yres", densityOrNone(down), nullptr), out);
    if (!copy)
        return nullptr;
    char **fields = vips_image_get_fields(copy.get());
    for (char **field = fields; *field; ++field)
        if (!isInternalField(*field))
            vips_image_remove(copy.get(), *field);
    g_strfreev(fields);
    const QByteArray profile = sRGBProfile();
    vips_image_set_blob_copy(copy.get(), VIPS_META_ICC_NAME, profile.constData(), size_t(profile.size()));
    return copy;
}

QByteArray takenBytes(int failed, void *const &buffer, const size_t &length)
{
    if (failed)
        return {};
    QByteArray bytes(static_cast<const char *>(buffer), qsizetype(length));
    g_free(buffer);
    return bytes;
}

void stopIfCancelled(VipsImage *image, VipsProgress *, void *test)
{
    if ((*static_cast<const LazyImage::CancelTest *>(test))())
        vips_image_set_kill(image, TRUE);
}

/// A view of the picture that asks the cancel test as it is computed. The test must outlive it.
VipsImagePtr cancellable(VipsImage *in, const LazyImage::CancelTest &test)
{
    VipsImage *out = nullptr;
    VipsImagePtr copy = taken(vips_copy(in, &out, nullptr), out);
    if (copy && test) {
        vips_image_set_progress(copy.get(), TRUE);
        g_signal_connect(copy.get(), "eval", G_CALLBACK(stopIfCancelled),
                         const_cast<LazyImage::CancelTest *>(&test));
    }
    return copy;
}

VipsImagePtr prepared(VipsImage *in, const LazyImage::CancelTest &test, bool keepsDensity = false)
{
    const VipsImagePtr stripped =
        keepsDensity ? withProfileOnly(in, in->Xres, in->Yres) : withProfileOnly(in, 1, 1);
    return stripped ? cancellable(stripped.get(), test) : nullptr;
}

} // namespace

LazyImage LazyImage::open(const QString &path, QSize wanted, int frame)
{
    auto report = std::make_shared<DecodingReport>();
    return LazyImage(openImageSource(path, frame, wanted, 1, report), report);
}

LazyImage LazyImage::fromImage(const QImage &image)
{
    return LazyImage(vipsImageFrom(image));
}

QSize LazyImage::size() const
{
    return m_image ? QSize(m_image->Xsize, m_image->Ysize) : QSize();
}

bool LazyImage::hasAlpha() const
{
    return m_image && vips_image_hasalpha(m_image.get());
}

QString LazyImage::decoderFailure() const
{
    return m_report ? m_report->failure() : QString();
}

LazyImage LazyImage::inSRGB() const
{
    if (!m_image)
        return {};
    const VipsImagePtr managed = toSRGBByProfile(m_image.get());
    return step(toEightBitRGB(managed ? managed.get() : m_image.get()));
}

LazyImage LazyImage::resized(QSize size) const
{
    if (!m_image || size == this->size())
        return *this;
    LazyImage result =
        step(hasAlpha() ? resizedWithAlpha(m_image.get(), size) : resizedPlain(m_image.get(), size));
    if (!result.isEmpty() && result.size() != size)
        vips_error("Tessaro", "the picture could not be scaled to %d by %d", size.width(), size.height());
    return result.size() == size ? result : LazyImage();
}

LazyImage LazyImage::painted(std::shared_ptr<StripPainter> painter) const
{
    if (!m_image)
        return {};
    VipsImagePtr out(vips_image_new());
    // The job lives as long as the picture that it computes.
    auto *job = new PaintJob{m_image, std::move(painter)};
    g_signal_connect(out.get(), "close", G_CALLBACK(deletePaintJob), job);
    if (vips_image_pipelinev(out.get(), VIPS_DEMAND_STYLE_THINSTRIP, m_image.get(), nullptr) ||
        vips_image_generate(out.get(), vips_start_one, paintStrip, vips_stop_one, m_image.get(), job))
        return {};
    return step(std::move(out));
}

LazyImage LazyImage::flattened() const
{
    if (!hasAlpha())
        return *this;
    VipsImage *out = nullptr;
    VipsImagePtr flat = taken(vips_flatten(m_image.get(), &out, nullptr), out);
    return step(flat ? taken(vips_cast_uchar(flat.get(), &out, nullptr), out) : nullptr);
}

QByteArray LazyImage::encodeJpeg(const JpegOptions &options, const CancelTest &isCancelled) const
{
    const LazyImage opaque = flattened();
    const VipsImagePtr image = opaque.isEmpty() ? nullptr : cancellable(opaque.vips(), isCancelled);
    return image ? platform::encodeJpeg(image.get(), options) : QByteArray();
}

bool LazyImage::encodeJpeg(QIODevice &to, const JpegOptions &options, const CancelTest &isCancelled) const
{
    const LazyImage opaque = flattened();
    const VipsImagePtr image = opaque.isEmpty() ? nullptr : cancellable(opaque.vips(), isCancelled);
    return image && platform::encodeJpeg(image.get(), options, to);
}

QByteArray LazyImage::encodePng(const CancelTest &isCancelled) const
{
    const VipsImagePtr image = m_image ? prepared(m_image.get(), isCancelled) : nullptr;
    void *buffer = nullptr;
    size_t length = 0;
    return image ? takenBytes(vips_pngsave_buffer(image.get(), &buffer, &length, nullptr), buffer, length)
                 : QByteArray();
}

QByteArray LazyImage::encodeTiff(const CancelTest &isCancelled) const
{
    const VipsImagePtr image = m_image ? prepared(m_image.get(), isCancelled) : nullptr;
    void *buffer = nullptr;
    size_t length = 0;
    return image ? takenBytes(vips_tiffsave_buffer(image.get(), &buffer, &length, nullptr), buffer, length)
                 : QByteArray();
}

bool LazyImage::encodePng(QIODevice &to, const CancelTest &isCancelled) const
{
    const VipsImagePtr image = m_image ? prepared(m_image.get(), isCancelled) : nullptr;
    return image && vips_pngsave_target(image.get(), openDeviceTarget(to).get(), nullptr) == 0;
}

bool LazyImage::encodeTiff(QIODevice &to, const CancelTest &isCancelled, bool keepsDensity) const
{
    const VipsImagePtr image = m_image ? prepared(m_image.get(), isCancelled, keepsDensity) : nullptr;
    return image && vips_tiffsave_target(image.get(), openDeviceTarget(to).get(), nullptr) == 0;
}

QImage LazyImage::toImage(const CancelTest &isCancelled) const
{
    if (!m_image)
        return {};
    size_t length = 0;
    const VipsImagePtr image = cancellable(m_image.get(), isCancelled);
    void *memory = image ? vips_image_write_to_memory(image.get(), &length) : nullptr;
    if (!memory)
        return {};
    const bool alpha = hasAlpha();
    const QImage view(static_cast<const uchar *>(memory), m_image->Xsize, m_image->Ysize,
                      qsizetype(m_image->Xsize) * m_image->Bands,
                      alpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    QImage result = view.convertToFormat(alpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    g_free(memory);
    return result;
}

} // namespace platform
