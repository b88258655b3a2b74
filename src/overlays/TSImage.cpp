#include "overlays/TSImage.h"

#include "platform/Folders.h"
#include "platform/KeyedArchiver.h"
#include "platform/KeyedUnarchiver.h"
#include "platform/PaintLayer.h"
#include "session/TSCacheManager.h"

#include <algorithm>
#include <cmath>

namespace {

QString lastComponent(const QString &path, int fromEnd = 1)
{
    return path.section(u'/', -fromEnd, -fromEnd);
}

/// A full path means nothing on another machine: only the profile's name and the file's are taken from it.
QString stickerOfProfile(const QString &imageName)
{
    return QStringLiteral("%1/Tessaro/My Profiles/%2/Stickers/%3")
        .arg(platform::applicationSupportFolder(), lastComponent(imageName, 3), lastComponent(imageName));
}

QString builtInSticker(const QString &imagePath)
{
    return QStringLiteral("%1/Stickers/%2").arg(platform::resourceFolder(), lastComponent(imagePath));
}

/// The frame with its edges on whole pixels, so that a picture scaled to it once is not resampled again.
QRectF onWholePixels(const QRectF &frame)
{
    const double left = std::round(frame.left());
    const double top = std::round(frame.top());
    return {left, top, std::max(1.0, std::round(frame.right()) - left),
            std::max(1.0, std::round(frame.bottom()) - top)};
}

/// A picture that reaches far beyond the photo is made smaller than it is seen, and stretched: it could be
/// larger than there is memory.
QSize pixelsFor(const QSizeF &seen)
{
    constexpr double longestSide = 1e5;
    constexpr double largestArea = 5e7;
    const QSizeF sides = seen.boundedTo({longestSide, longestSide});
    const double share = std::sqrt(std::min(1.0, largestArea / (sides.width() * sides.height())));
    return (sides * share).toSize().expandedTo({1, 1});
}

} // namespace

TSImage::TSImage(platform::KeyedUnarchiver &coder) : TSOverlay(coder)
{
    m_imagePath = coder.decodeObject(u"imagePath").toString();
    m_imageName = coder.decodeObject(u"imageName").toString();
    m_oldPath = coder.decodeObject(u"oldPath").toString();
    m_isFromFinder = coder.decodeBool(u"isFromFinder");
    m_imagePath = m_isFromFinder ? stickerOfProfile(m_imageName) : builtInSticker(m_imagePath);
}

void TSImage::drawIncontext(platform::PaintLayer &context)
{
    const auto picture = TSCacheManager::cacheManager()->imageWithPath(m_imagePath);
    // A frame that has lost its shape is no number wide.
    if (!picture || !(frame().width() > 0 && frame().height() > 0))
        return;
    const QRectF place = angle() == 0 ? onWholePixels(frame()) : frame();
    const QPointF center = frame().center();
    context.save();
    context.translate(center.x(), center.y());
    context.rotate(angle());
    context.translate(-center.x(), -center.y());
    context.setAlpha(opacity());
    context.drawImage(place, picture->imageOfSize(pixelsFor(place.size())));
    context.restore();
}

QStringList TSImage::classChain() const
{
    return QStringList{QStringLiteral("TSImage")} + TSOverlay::classChain();
}

void TSImage::encodeWithCoder(platform::KeyedArchiver &coder) const
{
    TSOverlay::encodeWithCoder(coder);
    coder.encodeObject(u"imagePath", m_imagePath);
    coder.encodeObject(u"imageName", m_imageName);
    coder.encodeObject(u"oldPath", m_oldPath);
    coder.encodeBool(u"isFromFinder", m_isFromFinder);
}
