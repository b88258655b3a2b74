#include "platform/JpegStrips.h"

#include <array>
#include <csetjmp>
#include <cstdio>
#include <memory>
#include <QFile>
#include <QSize>

// libjpeg's headers need stdio's types declared before them.
#include <jpeglib.h>

#include <jerror.h>

namespace platform {

namespace {

struct ErrorManager {
    jpeg_error_mgr base;
    std::jmp_buf jump;
};

void tell(j_common_ptr info)
{
    char message[JMSG_LENGTH_MAX];
    info->err->format_message(info, message);
    vips_error("VipsJpeg", "%s", message);
}

[[noreturn]] void failDecoding(j_common_ptr info)
{
    tell(info);
    std::longjmp(reinterpret_cast<ErrorManager *>(info->err)->jump, 1);
}

/// Hands the file's bytes to the decoder, a few at a time: where it has many before it, it goes faster and
/// takes spoilt codes for sound ones without a word.
struct Source {
    jpeg_source_mgr base;
    QFile *file;
    std::array<JOCTET, 0x400> bytes;
};

boolean fill(j_decompress_ptr info)
{
    auto *from = reinterpret_cast<Source *>(info->src);
    const qint64 count = from->file->read(reinterpret_cast<char *>(from->bytes.data()), from->bytes.size());
    if (count <= 0)
        ERREXIT(info, JERR_INPUT_EOF);
    from->base.next_input_byte = from->bytes.data();
    from->base.bytes_in_buffer = size_t(count);
    return TRUE;
}

void skip(j_decompress_ptr info, long count)
{
    jpeg_source_mgr *from = info->src;
    while (count > long(from->bytes_in_buffer)) {
        count -= long(from->bytes_in_buffer);
        fill(info);
    }
    from->next_input_byte += std::max(count, 0L);
    from->bytes_in_buffer -= size_t(std::max(count, 0L));
}

void ignore(j_decompress_ptr) {}

/// libjpeg's decompressor with its error jumps kept inside; every function answers whether it worked.
class Decompressor {
public:
    explicit Decompressor(const QString &path) : m_file(path)
    {
        m_info.err = jpeg_std_error(&m_errors.base);
        m_errors.base.error_exit = failDecoding;
        m_errors.base.output_message = tell;
        m_source.base = {nullptr, 0, ignore, fill, skip, jpeg_resync_to_restart, ignore};
        m_source.file = &m_file;
    }
    ~Decompressor() { jpeg_destroy_decompress(&m_info); }
    Decompressor(const Decompressor &) = delete;
    Decompressor &operator=(const Decompressor &) = delete;

    bool readHeader()
    {
        if (!m_file.open(QIODevice::ReadOnly) || setjmp(m_errors.jump))
            return false;
        jpeg_create_decompress(&m_info);
        m_info.src = &m_source.base;
        return jpeg_read_header(&m_info, TRUE) == JPEG_HEADER_OK;
    }

    bool isSinglePassColor()
    {
        const bool isColor = m_info.jpeg_color_space == JCS_YCbCr || m_info.jpeg_color_space == JCS_RGB;
        return isColor && m_info.num_components == 3 && m_info.data_precision == 8 &&
               !jpeg_has_multiple_scans(&m_info);
    }

    QSize size() const { return {int(m_info.image_width), int(m_info.image_height)}; }

    bool start()
    {
        if (setjmp(m_errors.jump))
            return false;
        m_info.out_color_space = JCS_RGB;
        return jpeg_start_decompress(&m_info);
    }

    bool read(VipsRegion *strip)
    {
        const VipsRect &area = strip->valid;
        if (area.width != int(m_info.output_width) || area.top != int(m_info.output_scanline)) {
            vips_error("VipsJpeg", "the picture was not read from top to bottom");
            return false;
        }
        if (setjmp(m_errors.jump))
            return false;
        while (int(m_info.output_scanline) < VIPS_RECT_BOTTOM(&area)) {
            JSAMPROW row = VIPS_REGION_ADDR(strip, 0, int(m_info.output_scanline));
            jpeg_read_scanlines(&m_info, &row, 1);
        }
        return true;
    }

private:
    jpeg_decompress_struct m_info{};
    ErrorManager m_errors{};
    Source m_source{};
    QFile m_file;
};

int decodeStrip(VipsRegion *out, void *, void *, void *decompressor, gboolean *)
{
    return static_cast<Decompressor *>(decompressor)->read(out) ? 0 : -1;
}

void deleteDecompressor(VipsImage *, void *decompressor)
{
    delete static_cast<Decompressor *>(decompressor);
}

} // namespace

VipsImagePtr openJpegStrips(const QString &path, VipsImage *header)
{
    auto decompressor = std::make_unique<Decompressor>(path);
    if (header->Bands != 3 || !decompressor->readHeader() || !decompressor->isSinglePassColor() ||
        decompressor->size() != QSize(header->Xsize, header->Ysize) || !decompressor->start())
        return nullptr;
    VipsImagePtr out(vips_image_new());
    // The decompressor lives as long as the picture that it decodes.
    void *reader = decompressor.release();
    g_signal_connect(out.get(), "close", G_CALLBACK(deleteDecompressor), reader);
    if (vips_image_pipelinev(out.get(), VIPS_DEMAND_STYLE_THINSTRIP, header, nullptr) ||
        vips_image_generate(out.get(), nullptr, decodeStrip, nullptr, nullptr, reader))
        return nullptr;
    return out;
}

} // namespace platform
