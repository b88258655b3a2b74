#include "platform/paint/Picture.h"

#include "platform/drawing/DrawingFile.h"
#include "platform/drawing/PdfDrawing.h"
#include "platform/drawing/SvgDrawing.h"
#include "platform/image/ImageFile.h"
#include "platform/image/LazyImage.h"

#include <limits>
#include <QFile>
#include <QFileInfo>

namespace platform {

namespace {

/// Where a drawing tells what it is; documents begin with comments and declarations.
constexpr qint64 headLength = 64 * 1024;
/// Beyond that no drawing is read.
constexpr qint64 longestDrawing = 128 * 1024 * 1024;

bool isSvg(const QByteArray &head)
{
    return head.contains("<svg") || head.contains(":svg") || head.startsWith("\x1F\x8B");
}

bool isPostScript(const QByteArray &head)
{
    return head.startsWith("%!PS") || head.startsWith("\xC5\xD0\xD3\xC6");
}

std::unique_ptr<Drawing> openDrawing(QFile &file, const QByteArray &head)
{
    if (file.size() > longestDrawing)
        return nullptr;
    if (head.left(1024).contains("%PDF-"))
        return PdfDrawing::fromData(file.readAll());
    if (isSvg(head))
        return SvgDrawing::fromData(file.readAll());
    return nullptr;
}

} // namespace

std::shared_ptr<Picture> Picture::load(const QString &path)
{
    const QImage image = decodeThumbnail(path, std::numeric_limits<int>::max());
    if (!image.isNull())
        return std::make_shared<Picture>(image);
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return nullptr;
    const QByteArray head = file.peek(headLength);
    if (isPostScript(head)) {
        // Its interpreter is too slow to be run for each size.
        constexpr QSizeF box(2000, 2000);
        const QImage page = rasterizeEps(path, box);
        return page.isNull() ? nullptr : std::make_shared<Picture>(page);
    }
    std::unique_ptr<Drawing> drawing = openDrawing(file, head);
    return drawing ? std::make_shared<Picture>(std::move(drawing)) : nullptr;
}

QImage Picture::imageOfSize(const QSize &pixels) const
{
    if (pixels.isEmpty())
        return {};
    const std::lock_guard lock(m_lock);
    if (m_scaled.size() != pixels) {
        // Gone before the next is made: either may be large.
        m_scaled = {};
        m_scaled = rendered(pixels);
    }
    return m_scaled;
}

QImage Picture::rendered(const QSize &pixels) const
{
    const QImage image =
        m_drawing ? m_drawing->imageOfSize(pixels) : LazyImage::fromImage(m_image).resized(pixels).toImage();
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace platform
