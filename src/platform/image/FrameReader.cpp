#include "platform/image/FrameReader.h"

#include "platform/image/ImageSource.h"
#include "platform/image/LazyImage.h"
#include "platform/image/Thumbnail.h"

#include <algorithm>
#include <cstring>
#include <QFile>

namespace platform {

namespace {

bool isGif(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(3) == "GIF";
}

/// Nothing of this size is read into memory whole.
constexpr qint64 largestFrame = qint64(64) << 20;

/// A picture in memory of the roll's kind. It is not linked to the roll, whose reading would be upset by
/// steps of others.
VipsImagePtr emptyFrame(VipsImage *roll, int height)
{
    VipsImagePtr frame(vips_image_new_memory());
    vips_image_init_fields(frame.get(), roll->Xsize, height, roll->Bands, roll->BandFmt, VIPS_CODING_NONE,
                           roll->Type, 1, 1);
    if (const QByteArrayView profile = attachedBytes(roll, VIPS_META_ICC_NAME); !profile.isEmpty())
        vips_image_set_blob_copy(frame.get(), VIPS_META_ICC_NAME, profile.data(), size_t(profile.size()));
    vips_image_set_int(frame.get(), VIPS_META_ORIENTATION, vips_image_get_orientation(roll));
    return vips_image_write_prepare(frame.get()) ? nullptr : std::move(frame);
}

} // namespace

FrameReader::FrameReader(const QString &path) : m_path(path)
{
    const VipsImagePtr first = openImageSource(path);
    if (!first) {
        vips_error_clear();
        return;
    }
    m_frameCount = std::max(1, vips_image_get_n_pages(first.get()));
    if (m_frameCount == 1)
        return;
    m_isAnimation = isGif(path);
    // Pages can be opened one by one; within a roll, libvips would walk through all before at each.
    const bool isSmall = qint64(VIPS_IMAGE_SIZEOF_IMAGE(first.get())) <= largestFrame;
    if (isSmall && m_isAnimation)
        m_framesAtOnce = std::max(1, VIPS_MAX_COORD / first->Ysize);
}

QImage FrameReader::nextThumbnail(int longestSide)
{
    m_frameSize = {};
    VipsImagePtr frame = nextFrame();
    const QImage image = frame ? thumbnail(std::move(frame), longestSide) : QImage();
    if (image.isNull())
        giveRollUp();
    ++m_next;
    vips_error_clear();
    return image;
}

VipsImagePtr FrameReader::nextFrame()
{
    if (m_isBroken || m_next >= m_frameCount)
        return nullptr;
    if (m_framesAtOnce == 1)
        return openImageSource(m_path, m_next);
    if (!m_roll || m_next >= m_rollStart + m_rollFrames)
        openRoll();
    return m_roll ? frameOfRoll() : openImageSource(m_path, m_next);
}

void FrameReader::openRoll()
{
    m_rollStart = m_next;
    m_rollFrames = std::min(m_framesAtOnce, m_frameCount - m_next);
    const VipsImagePtr image = openImageSource(m_path, m_next, {}, m_rollFrames);
    m_roll.reset(image ? vips_region_new(image.get()) : nullptr);
    // Frames of different sizes or kinds do not make a roll.
    if (!m_roll)
        m_framesAtOnce = 1;
}

/// Read in strips from one region for the whole roll: each evaluation of its own would forget where the
/// decoder stands.
VipsImagePtr FrameReader::frameOfRoll()
{
    constexpr int stripHeight = 64;
    VipsImage *image = m_roll->im;
    const int height = image->Ysize / m_rollFrames;
    const int top = (m_next - m_rollStart) * height;
    VipsImagePtr frame = emptyFrame(image, height);
    for (int y = 0; frame && y < height; y += stripHeight) {
        const VipsRect strip{0, top + y, image->Xsize, std::min(stripHeight, height - y)};
        if (vips_region_prepare(m_roll.get(), &strip))
            return nullptr;
        for (int line = 0; line < strip.height; ++line)
            std::memcpy(VIPS_IMAGE_ADDR(frame.get(), 0, y + line),
                        VIPS_REGION_ADDR(m_roll.get(), 0, strip.top + line), VIPS_IMAGE_SIZEOF_LINE(image));
    }
    return frame;
}

/// A roll fails for good with its first damaged frame. Pages of a document stand each for itself and may be
/// read on; the rest of an animation hangs on the frame.
void FrameReader::giveRollUp()
{
    m_roll.reset();
    if (m_isAnimation)
        m_isBroken = true;
}

QImage FrameReader::thumbnail(VipsImagePtr frame, int longestSide)
{
    const int orientation = vips_image_get_orientation(frame.get());
    const bool turnsSideways = vips_image_get_orientation_swap(frame.get()) != 0;
    const LazyImage picture = LazyImage::fromVips(std::move(frame)).inSRGB();
    const QSize size = thumbnailSize(picture.size(), longestSide);
    const QImage image = upright(picture.resized(size).toImage(isCancelled), orientation);
    if (!image.isNull())
        m_frameSize = turnsSideways ? picture.size().transposed() : picture.size();
    return image;
}

} // namespace platform
