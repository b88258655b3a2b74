#include "overlays/TSImage.h"

#include "overlays/TSImageScreen.h"
#include "platform/archive/KeyedArchiver.h"
#include "platform/archive/KeyedUnarchiver.h"
#include "platform/paint/PaintLayer.h"
#include "platform/system/Folders.h"
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
/// `factor` is pixels a unit.
QRectF onWholePixels(const QRectF &frame, double factor)
{
    const double left = std::round(frame.left() * factor);
    const double top = std::round(frame.top() * factor);
    return {left / factor, top / factor, std::max(1.0, std::round(frame.right() * factor) - left) / factor,
            std::max(1.0, std::round(frame.bottom() * factor) - top) / factor};
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

/// As many as a picture has that fills a large screen. A larger one is made anew for each look, and with no
/// more pixels than units, since a person who has zoomed in so far sees a small part of it.
constexpr double mostKeptPixels = 8e6;

double area(const QSizeF &size)
{
    return size.width() * size.height();
}

/// Of the screen, as far as they are few enough.
double pixelsPerUnit(const QSizeF &seen)
{
    const TSImageScreen *screen = TSImageScreen::current();
    return screen ? std::max(1.0, std::min(screen->pixelsPerUnit(), std::sqrt(mostKeptPixels / area(seen))))
                  : 1.0;
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
    const double factor = pixelsPerUnit(frame().size());
    const QRectF place = angle() == 0 ? onWholePixels(frame(), factor) : frame();
    const QPointF center = frame().center();
    context.save();
    context.translate(center.x(), center.y());
    context.rotate(angle());
    context.translate(-center.x(), -center.y());
    context.setAlpha(opacity());
    context.drawImage(place, pixelsOf(picture, pixelsFor(place.size() * factor)));
    context.restore();
}

/// A picture remembers one size alone, which an export and every other mark that shows it have theirs of.
QImage TSImage::pixelsOf(const std::shared_ptr<platform::Picture> &picture, const QSize &size)
{
    if (!TSImageScreen::current() || area(size) > mostKeptPixels)
        return picture->imageOfSize(size);
    if (m_seen.size() != size || m_seenPicture.lock() != picture) {
        m_seen = picture->imageOfSize(size);
        m_seenPicture = picture;
    }
    return m_seen;
}

QStringList TSImage::classChain() const
{
    return QStringList{QStringLiteral("TSImage")} + TSOverlay::classChain();
}

void TSImage::encodeWithCoder(platform::KeyedArchiver &coder) const
{
    TSOverlay::encodeWithCoder(coder);
    // Where the program lies on this machine is nobody's business, and its pictures are found by their names.
    coder.encodeObject(u"imagePath", m_isFromFinder
                                         ? m_imagePath
                                         : QStringLiteral("Stickers/") + lastComponent(m_imagePath));
    coder.encodeObject(u"imageName", m_imageName);
    coder.encodeObject(u"oldPath", m_oldPath);
    coder.encodeBool(u"isFromFinder", m_isFromFinder);
}
