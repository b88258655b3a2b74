#include "platform/image/JpegEncoder.h"

#include "platform/image/ColorProfile.h"

#include <csetjmp>
#include <cstdio>
#include <QIODevice>

// libjpeg's headers need stdio's types declared before them.
#include <jpeglib.h>

#include <jerror.h>

namespace platform {

namespace {

struct ErrorManager {
    jpeg_error_mgr base;
    std::jmp_buf jump;
};

[[noreturn]] void failEncoding(j_common_ptr info)
{
    char message[JMSG_LENGTH_MAX];
    info->err->format_message(info, message);
    vips_error("JPEG", "%s", message);
    std::longjmp(reinterpret_cast<ErrorManager *>(info->err)->jump, 1);
}

void discardWarning(j_common_ptr, int) {}

/// Collects the compressed bytes, growing in large steps, or hands each step on to a device.
struct Destination {
    jpeg_destination_mgr base;
    QByteArray *bytes;
    QIODevice *device;
};

constexpr qsizetype growth = 1 << 20;

void grow(Destination *to, qsizetype used)
{
    to->bytes->resize(used + growth);
    to->base.next_output_byte = reinterpret_cast<JOCTET *>(to->bytes->data()) + used;
    to->base.free_in_buffer = size_t(growth);
}

void handOn(j_compress_ptr info, const Destination &to)
{
    if (to.device->write(*to.bytes) != to.bytes->size())
        ERREXIT(info, JERR_FILE_WRITE);
}

void beginOutput(j_compress_ptr info)
{
    grow(reinterpret_cast<Destination *>(info->dest), 0);
}

boolean growOutput(j_compress_ptr info)
{
    auto *to = reinterpret_cast<Destination *>(info->dest);
    if (to->device)
        handOn(info, *to);
    grow(to, to->device ? 0 : to->bytes->size());
    return TRUE;
}

void endOutput(j_compress_ptr info)
{
    auto *to = reinterpret_cast<Destination *>(info->dest);
    to->bytes->resize(to->bytes->size() - qsizetype(to->base.free_in_buffer));
    if (to->device)
        handOn(info, *to);
}

/// libjpeg's compressor with its error jumps kept inside; every function answers whether it worked.
class Compressor {
public:
    explicit Compressor(QByteArray *bytes, QIODevice *device)
    {
        m_info.err = jpeg_std_error(&m_errors.base);
        m_errors.base.error_exit = failEncoding;
        m_errors.base.emit_message = discardWarning;
        m_destination.base = {nullptr, 0, beginOutput, growOutput, endOutput};
        m_destination.bytes = bytes;
        m_destination.device = device;
    }
    ~Compressor() { jpeg_destroy_compress(&m_info); }
    Compressor(const Compressor &) = delete;
    Compressor &operator=(const Compressor &) = delete;

    bool start(const VipsImage *image, const JpegOptions &options, const QByteArray &profile)
    {
        if (setjmp(m_errors.jump))
            return false;
        jpeg_create_compress(&m_info);
        m_info.dest = &m_destination.base;
        m_info.image_width = JDIMENSION(image->Xsize);
        m_info.image_height = JDIMENSION(image->Ysize);
        m_info.input_components = 3;
        m_info.in_color_space = JCS_RGB;
        jpeg_set_defaults(&m_info);
        jpeg_set_quality(&m_info, options.quality, TRUE);
        m_info.comp_info[0].h_samp_factor = options.chromaSampling.width();
        m_info.comp_info[0].v_samp_factor = options.chromaSampling.height();
        setDensity(image);
        jpeg_start_compress(&m_info, TRUE);
        jpeg_write_icc_profile(&m_info, reinterpret_cast<const JOCTET *>(profile.constData()),
                               unsigned(profile.size()));
        return true;
    }

    bool write(VipsRegion *region, const VipsRect *area)
    {
        if (setjmp(m_errors.jump))
            return false;
        for (int y = 0; y < area->height; ++y) {
            auto *row = static_cast<JSAMPROW>(VIPS_REGION_ADDR(region, area->left, area->top + y));
            jpeg_write_scanlines(&m_info, &row, 1);
        }
        return true;
    }

    bool finish()
    {
        if (setjmp(m_errors.jump))
            return false;
        jpeg_finish_compress(&m_info);
        return true;
    }

private:
    void setDensity(const VipsImage *image)
    {
        m_info.density_unit = 1;
        m_info.X_density = pixelsPerInch(image->Xres);
        m_info.Y_density = pixelsPerInch(image->Yres);
    }

    /// One pixel a millimetre stands for a density that nobody has told.
    static UINT16 pixelsPerInch(double pixelsPerMillimetre)
    {
        constexpr double millimetresPerInch = 25.4;
        constexpr UINT16 unknown = 72;
        const double density = VIPS_RINT(pixelsPerMillimetre * millimetresPerInch);
        return pixelsPerMillimetre == 1 ? unknown : UINT16(VIPS_CLIP(1, density, 65535));
    }

    jpeg_compress_struct m_info{};
    ErrorManager m_errors{};
    Destination m_destination{};
};

int writeArea(VipsRegion *region, VipsRect *area, void *compressor)
{
    return static_cast<Compressor *>(compressor)->write(region, area) ? 0 : -1;
}

bool encode(VipsImage *image, const JpegOptions &options, QByteArray &bytes, QIODevice *device)
{
    Compressor compressor(&bytes, device);
    if (image->Bands != 3 || image->BandFmt != VIPS_FORMAT_UCHAR) {
        vips_error("JPEG", "the picture is not 8-bit RGB");
        return false;
    }
    return compressor.start(image, options, sRGBProfile()) &&
           vips_sink_disc(image, writeArea, &compressor) == 0 && compressor.finish();
}

} // namespace

QByteArray encodeJpeg(VipsImage *image, const JpegOptions &options)
{
    QByteArray bytes;
    return encode(image, options, bytes, nullptr) ? bytes : QByteArray();
}

bool encodeJpeg(VipsImage *image, const JpegOptions &options, QIODevice &to)
{
    QByteArray step;
    return encode(image, options, step, &to);
}

} // namespace platform
