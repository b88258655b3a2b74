#include "platform/image/JpegDecoder.h"

#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstdio>
#include <QFile>

// libjpeg's headers need stdio's types declared before them.
#include <jpeglib.h>

#include <jerror.h>

namespace platform {

namespace {

/// What a warning says of the words in a header, or of bytes that belong to nothing, harms no pixel. Every
/// other one stands for data that was spoilt or is missing.
bool isHarmless(int code)
{
    return code == JWRN_EXTRANEOUS_DATA || code == JWRN_JFIF_MAJOR || code == JWRN_ADOBE_XFORM ||
           code == JWRN_NOT_SEQUENTIAL;
}

} // namespace

/// libjpeg's decompressor with its error jumps kept inside.
class JpegDecoder::Library {
public:
    Library(const QString &path, int shrink, std::shared_ptr<DecodingReport> report);
    ~Library() { jpeg_destroy_decompress(&m_info); }
    Library(const Library &) = delete;
    Library &operator=(const Library &) = delete;

    bool readHeader();
    bool readRow(uchar *row);
    const jpeg_decompress_struct &info() const { return m_info; }

private:
    static Library &of(void *info) { return *static_cast<Library *>(j_common_ptr(info)->client_data); }
    [[noreturn]] static void fail(j_common_ptr info);
    static void judge(j_common_ptr info, int level);
    static boolean fill(j_decompress_ptr info);
    static void skip(j_decompress_ptr info, long count);

    bool start();
    bool isComplete() const;
    void finish();

    jpeg_decompress_struct m_info{};
    jpeg_error_mgr m_errors{};
    jpeg_source_mgr m_source{};
    std::jmp_buf m_jump{};
    QFile m_file;
    int m_shrink;
    std::shared_ptr<DecodingReport> m_report;
    /// Where the decoder has many bytes before it, it goes faster and takes spoilt codes for sound ones
    /// without a word; it may do so from 512 on.
    std::array<JOCTET, 511> m_bytes{};
    bool m_hasStarted = false;
    /// The file has ended before the picture's end marker.
    bool m_hasRunOut = false;
    /// All rows are there, and what follows them is none of the picture's.
    bool m_isBehind = false;
};

JpegDecoder::Library::Library(const QString &path, int shrink, std::shared_ptr<DecodingReport> report)
    : m_file(path), m_shrink(shrink), m_report(std::move(report))
{
    const auto ignore = [](j_decompress_ptr) {};
    m_info.err = jpeg_std_error(&m_errors);
    m_info.client_data = this;
    m_errors.error_exit = fail;
    m_errors.emit_message = judge;
    m_source = {nullptr, 0, ignore, fill, skip, jpeg_resync_to_restart, ignore};
}

void JpegDecoder::Library::fail(j_common_ptr info)
{
    Library &self = of(info);
    if (!self.m_isBehind) {
        // Whatever the decoder makes of it, data that is missing at the end of a file was cut off.
        if (self.m_hasRunOut)
            info->err->msg_code = JERR_INPUT_EOF;
        char message[JMSG_LENGTH_MAX];
        info->err->format_message(info, message);
        self.m_report->fail(QString::fromLatin1(message));
    }
    std::longjmp(self.m_jump, 1);
}

void JpegDecoder::Library::judge(j_common_ptr info, int level)
{
    if (level < 0 && !isHarmless(info->err->msg_code) && !of(info).m_isBehind)
        fail(info);
}

boolean JpegDecoder::Library::fill(j_decompress_ptr info)
{
    static constexpr JOCTET end[] = {0xFF, JPEG_EOI};
    Library &self = of(info);
    const qint64 count = self.m_file.read(reinterpret_cast<char *>(self.m_bytes.data()), self.m_bytes.size());
    if (count < 0)
        ERREXIT(info, JERR_FILE_READ);
    self.m_hasRunOut = self.m_hasRunOut || count == 0;
    info->src->next_input_byte = count == 0 ? end : self.m_bytes.data();
    info->src->bytes_in_buffer = count == 0 ? sizeof end : size_t(count);
    return TRUE;
}

void JpegDecoder::Library::skip(j_decompress_ptr info, long count)
{
    jpeg_source_mgr *from = info->src;
    while (count > long(from->bytes_in_buffer)) {
        count -= long(from->bytes_in_buffer);
        fill(info);
    }
    from->next_input_byte += std::max(count, 0L);
    from->bytes_in_buffer -= size_t(std::max(count, 0L));
}

bool JpegDecoder::Library::readHeader()
{
    if (!m_file.open(QIODevice::ReadOnly))
        return false;
    if (setjmp(m_jump))
        return false;
    jpeg_create_decompress(&m_info);
    m_info.src = &m_source;
    if (jpeg_read_header(&m_info, TRUE) != JPEG_HEADER_OK)
        return false;
    m_info.scale_num = 1;
    m_info.scale_denom = unsigned(m_shrink);
    jpeg_calc_output_dimensions(&m_info);
    return true;
}

/// A picture of several scans is read to its end here, which is why it waits for the first row.
bool JpegDecoder::Library::start()
{
    if (setjmp(m_jump))
        return false;
    m_hasStarted = true;
    jpeg_start_decompress(&m_info);
    if (!isComplete())
        ERREXIT(&m_info, JERR_INPUT_EOF);
    return true;
}

/// Whether there is a scan for each component. One that was cut off between two scans leaves no trace but
/// what its scans would have refined.
bool JpegDecoder::Library::isComplete() const
{
    for (int i = 0; i < m_info.num_components; ++i) {
        if (!m_info.comp_info[i].quant_table)
            return false;
        const int *precision = m_info.coef_bits ? m_info.coef_bits[i] : nullptr;
        if (m_hasRunOut && precision && std::count(precision, precision + DCTSIZE2, 0) != DCTSIZE2)
            return false;
    }
    return true;
}

bool JpegDecoder::Library::readRow(uchar *row)
{
    if (!m_hasStarted && !start())
        return false;
    if (setjmp(m_jump))
        return false;
    jpeg_read_scanlines(&m_info, &row, 1);
    // Photoshop, and with it everybody else, writes how much ink there is not.
    if (m_info.out_color_space == JCS_CMYK && m_info.saw_Adobe_marker)
        std::transform(row, row + size_t(m_info.output_width) * 4, row, [](uchar ink) { return ~ink; });
    if (m_info.output_scanline == m_info.output_height)
        finish();
    return true;
}

/// Looks for the end marker.
void JpegDecoder::Library::finish()
{
    m_isBehind = true;
    if (setjmp(m_jump) == 0)
        jpeg_finish_decompress(&m_info);
    if (m_hasRunOut)
        m_report->missEnd();
}

JpegDecoder::JpegDecoder(const QString &path, int shrink, std::shared_ptr<DecodingReport> report)
    : m_library(std::make_unique<Library>(path, shrink, std::move(report)))
{
}

JpegDecoder::~JpegDecoder() = default;

bool JpegDecoder::open()
{
    return m_library->readHeader();
}

QSize JpegDecoder::size() const
{
    return {int(m_library->info().output_width), int(m_library->info().output_height)};
}

int JpegDecoder::bands() const
{
    return m_library->info().output_components;
}

int JpegDecoder::nextRow() const
{
    return int(m_library->info().output_scanline);
}

bool JpegDecoder::readRow(uchar *row)
{
    return m_library->readRow(row);
}

} // namespace platform
