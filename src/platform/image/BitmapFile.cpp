#include "platform/image/BitmapFile.h"

#include "platform/image/VipsMemory.h"

#include <cstdlib>
#include <mutex>
#include <QFile>
#include <QImage>
#include <QtEndian>
#include <vector>

namespace platform {

namespace {

std::optional<BitmapLayout> layoutOf(QFile &file)
{
    constexpr qsizetype fullHeader = 34;
    constexpr quint32 oldHeader = 12;
    constexpr quint32 usualHeader = 40;
    const QByteArray head = file.peek(fullHeader);
    if (head.size() < fullHeader || !head.startsWith("BM"))
        return {};
    const auto number = [&](qsizetype at) { return qFromLittleEndian<quint32>(head.constData() + at); };
    const auto shortNumber = [&](qsizetype at) { return qFromLittleEndian<quint16>(head.constData() + at); };
    const bool isOld = number(14) == oldHeader;
    const quint32 compression = isOld ? 0 : number(30);
    const qint64 height = isOld ? shortNumber(22) : qint32(number(22));
    BitmapLayout layout;
    layout.width = isOld ? shortNumber(18) : qint32(number(18));
    layout.height = std::abs(height);
    layout.isFromTop = height < 0;
    layout.bits = shortNumber(isOld ? 24 : 28);
    layout.isCompressed = compression != 0 && compression != 3;
    layout.isPlainHeader = isOld || (number(14) == usualHeader && compression == 0);
    layout.pixels = number(10);
    layout.toldLength = number(2);
    return layout;
}

struct Strips {
    QFile file;
    BitmapLayout layout;
    std::mutex mutex;
};

bool readRow(Strips &strips, qint64 y, std::vector<uchar> &row)
{
    const BitmapLayout &layout = strips.layout;
    const qint64 line = layout.isFromTop ? y : layout.height - 1 - y;
    const qint64 length = qint64(row.size());
    return strips.file.seek(layout.pixels + line * layout.rowLength()) &&
           strips.file.read(reinterpret_cast<char *>(row.data()), length) == length;
}

int readStrip(VipsRegion *out, void *, void *data, void *, gboolean *)
{
    auto &strips = *static_cast<Strips *>(data);
    const std::lock_guard lock(strips.mutex);
    const VipsRect &area = out->valid;
    const int step = strips.layout.bits / 8;
    std::vector<uchar> row(size_t(strips.layout.rowLength()));
    for (int y = area.top; y < VIPS_RECT_BOTTOM(&area); ++y) {
        if (!readRow(strips, y, row)) {
            vips_error("Bitmap", "premature end of the file");
            return -1;
        }
        const uchar *from = row.data() + size_t(area.left) * size_t(step);
        uchar *to = VIPS_REGION_ADDR(out, area.left, y);
        for (int x = 0; x < area.width; ++x, from += step, to += 3) {
            to[0] = from[2];
            to[1] = from[1];
            to[2] = from[0];
        }
    }
    return 0;
}

void deleteStrips(VipsImage *, void *strips)
{
    delete static_cast<Strips *>(strips);
}

VipsImagePtr openStrips(const QString &path, const BitmapLayout &layout)
{
    VipsImagePtr out(vips_image_new());
    vips_image_init_fields(out.get(), int(layout.width), int(layout.height), 3, VIPS_FORMAT_UCHAR,
                           VIPS_CODING_NONE, VIPS_INTERPRETATION_sRGB, 1, 1);
    // They live as long as the picture that is read from them.
    auto *strips = new Strips{QFile(path), layout, {}};
    g_signal_connect(out.get(), "close", G_CALLBACK(deleteStrips), strips);
    const bool isOpen = strips->file.open(QIODevice::ReadOnly) &&
                        !vips_image_pipelinev(out.get(), VIPS_DEMAND_STYLE_THINSTRIP, nullptr) &&
                        !vips_image_generate(out.get(), nullptr, readStrip, nullptr, strips, nullptr);
    return isOpen ? std::move(out) : nullptr;
}

/// The toolkit takes a file that breaks off for whole, and leaves in the missing rows whatever the memory
/// held before.
bool isSane(const BitmapLayout &layout, qint64 fileLength)
{
    return layout.width > 0 && layout.height > 0 && layout.width < VIPS_MAX_COORD &&
           layout.height < VIPS_MAX_COORD && layout.isWholeIn(fileLength);
}

} // namespace

bool BitmapLayout::isWholeIn(qint64 fileLength) const
{
    const double end =
        isCompressed ? double(toldLength) : double(pixels) + double(rowLength()) * double(height);
    return double(fileLength) >= end;
}

std::optional<BitmapLayout> readBitmapLayout(const QString &path)
{
    QFile file(path);
    const auto layout = file.open(QIODevice::ReadOnly) ? layoutOf(file) : std::nullopt;
    return layout && isSane(*layout, file.size()) ? layout : std::nullopt;
}

VipsImagePtr openBitmapFile(const QString &path, const BitmapLayout &layout)
{
    return layout.isReadInStrips() ? openStrips(path, layout) : vipsImageFrom(QImage(path, "BMP"));
}

} // namespace platform
