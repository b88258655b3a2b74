#include "platform/paint/PaintLayer.h"

#include "platform/paint/BoxBlur.h"
#include "platform/paint/StampBlend.h"

#include <algorithm>
#include <cmath>
#include <mutex>

namespace platform {

namespace {

/// Whether the picture falls on whole pixels one to one, so that painting copies it and blurs nothing.
bool isPixelExact(const QTransform &transform, const QRectF &rect, const QImage &image)
{
    const QPointF corner = transform.map(rect.topLeft());
    return transform.type() <= QTransform::TxTranslate && rect.size() == QSizeF(image.size()) &&
           corner == QPointF(corner.toPoint());
}

bool hasVisiblePixel(const QImage &image)
{
    if (!image.hasAlphaChannel())
        return !image.isNull();
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < pixels.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(pixels.constScanLine(y));
        if (std::any_of(line, line + pixels.width(), [](QRgb pixel) { return qAlpha(pixel) != 0; }))
            return true;
    }
    return false;
}

/// The last shadow made, with all that it follows from. In a batch of equal photos the same shadow is cast
/// again and again.
class ShadowMemory {
public:
    struct Key {
        qint64 caster = 0;
        QTransform transform;
        QRectF rect;
        double alpha = 0;
        QRect area;
        QPointF fraction;
        double deviation = 0;
        Color color;

        bool operator==(const Key &) const = default;
    };

    QImage find(const Key &key) const
    {
        const std::lock_guard lock(m_mutex);
        return m_key == key ? m_image : QImage();
    }
    void keep(const Key &key, const QImage &image)
    {
        const std::lock_guard lock(m_mutex);
        m_key = key;
        m_image = image;
    }

private:
    mutable std::mutex m_mutex;
    Key m_key;
    QImage m_image;
};

ShadowMemory &shadowMemory()
{
    static ShadowMemory memory;
    return memory;
}

} // namespace

PaintLayer::PaintLayer(const QSize &canvas) : m_canvas(canvas) {}

void PaintLayer::restore()
{
    if (m_stack.empty())
        return;
    m_state = m_stack.back();
    m_stack.pop_back();
}

void PaintLayer::setShadow(const QPointF &offset, double blur, const Color &color)
{
    m_state.hasShadow = true;
    m_state.shadow = {offset, blur, color};
}

void PaintLayer::drawImage(const QRectF &rect, const QImage &image)
{
    if (image.isNull() || rect.isEmpty())
        return;
    const QRectF bounds = m_state.transform.mapRect(rect);
    if (!std::isfinite(bounds.x() + bounds.y() + bounds.width() + bounds.height()))
        return;
    Stamp stamp{image, m_state.transform, rect, m_state.alpha, bounds.toAlignedRect(), {}};
    if (m_state.hasShadow)
        recordShadow(stamp);
    record(std::move(stamp));
}

void PaintLayer::drawTiledImage(const QRectF &tile, const QSizeF &pictureSize, const QImage &image)
{
    const QTransform &transform = m_state.transform;
    QRectF picture(tile.topLeft(), pictureSize);
    // An unturned picture is copied pixel by pixel.
    if (transform.type() <= QTransform::TxTranslate)
        picture.translate(QPointF(transform.map(picture.topLeft()).toPoint()) -
                          transform.map(picture.topLeft()));
    const QRectF turned = transform.mapRect(picture);
    if (image.isNull() || !(tile.width() >= 1 && tile.height() >= 1) ||
        !std::isfinite(turned.x() + turned.y()))
        return;
    // One copy is turned and faded; the others are copies of it.
    Stamp stamp;
    stamp.bounds = turned.toAlignedRect();
    stamp.image = QImage(stamp.bounds.size(), QImage::Format_ARGB32_Premultiplied);
    stamp.image.fill(Qt::transparent);
    QPainter painter(&stamp.image);
    painter.translate(-stamp.bounds.topLeft());
    paintStamp(painter, {image, transform, picture, m_state.alpha, stamp.bounds, {}});
    painter.end();
    stamp.rect = QRectF(stamp.bounds);
    if (m_state.hasShadow) {
        const int reach = gaussianReach(m_state.shadow.blur / 2);
        Stamp shadow = shadowOf(stamp, stamp.bounds.adjusted(-reach, -reach, reach, reach));
        shadow.places = tilePlaces(tile, shadow.bounds);
        record(std::move(shadow));
    }
    stamp.places = tilePlaces(tile, stamp.bounds);
    record(std::move(stamp));
}

/// The offsets, in whole pixels, by which a tile is copied so that the canvas is covered.
std::vector<QPoint> PaintLayer::tilePlaces(const QRectF &tile, const QRect &bounds) const
{
    bool isInvertible = false;
    const QTransform back = m_state.transform.inverted(&isInvertible);
    std::vector<QPoint> places;
    if (!isInvertible)
        return places;
    const QRect canvas(QPoint(0, 0), m_canvas);
    const QRectF reach = back.mapRect(
        QRectF(canvas.adjusted(-bounds.width(), -bounds.height(), bounds.width(), bounds.height())));
    // An unturned tile stands on a whole pixel already, and where a copy of it stands is rounded from its own
    // place: the rounding of both would add up.
    const QPointF corner = m_state.transform.map(tile.topLeft());
    const bool isTurned = m_state.transform.type() > QTransform::TxTranslate;
    const QPointF origin = isTurned ? corner : QPointF(corner.toPoint());
    const int left = int(std::floor((reach.left() - tile.left()) / tile.width()));
    const int right = int(std::ceil((reach.right() - tile.left()) / tile.width()));
    const int top = int(std::floor((reach.top() - tile.top()) / tile.height()));
    const int bottom = int(std::ceil((reach.bottom() - tile.top()) / tile.height()));
    for (int row = top; row <= bottom; ++row) {
        for (int column = left; column <= right; ++column) {
            const QPointF next = tile.topLeft() + QPointF(column * tile.width(), row * tile.height());
            const QPoint place = (m_state.transform.map(next) - origin).toPoint();
            if (bounds.translated(place).intersects(canvas))
                places.push_back(place);
        }
    }
    std::sort(places.begin(), places.end(), [](const QPoint &a, const QPoint &b) { return a.y() < b.y(); });
    return places;
}

void PaintLayer::record(Stamp stamp)
{
    if (stampMeets(stamp, QRect(QPoint(0, 0), m_canvas)))
        m_stamps.push_back(std::move(stamp));
}

/// The shadow is cast by the picture as it will be seen, turned and faded, and is itself turned by nothing.
void PaintLayer::recordShadow(const Stamp &caster)
{
    const int reach = gaussianReach(m_state.shadow.blur / 2);
    // Only what can darken the canvas is computed.
    const QRect canvas(QPoint(0, 0), m_canvas);
    const QRect visible = canvas.translated(-m_state.shadow.offset.toPoint());
    const int margin = reach + 1;
    const QRect area = caster.bounds.adjusted(-reach, -reach, reach, reach)
                           .intersected(visible.adjusted(-margin, -margin, margin, margin));
    if (!area.isEmpty())
        record(shadowOf(caster, area));
}

PaintLayer::Stamp PaintLayer::shadowOf(const Stamp &caster, const QRect &area) const
{
    const QPoint whole = m_state.shadow.offset.toPoint();
    const QPointF fraction = m_state.shadow.offset - whole;
    const double deviation = m_state.shadow.blur / 2;
    const ShadowMemory::Key key{
        caster.image.cacheKey(), caster.transform, caster.rect, caster.alpha, area, fraction, deviation,
        m_state.shadow.color};
    QImage image = shadowMemory().find(key);
    if (image.isNull()) {
        QImage mask(area.size(), QImage::Format_Alpha8);
        mask.fill(0);
        QPainter painter(&mask);
        painter.translate(-area.topLeft() + fraction);
        paintStamp(painter, caster);
        painter.end();
        image = tinted(gaussianBlurred(mask, deviation), m_state.shadow.color.toQColor());
        shadowMemory().keep(key, image);
    }
    Stamp shadow;
    shadow.image = image;
    shadow.bounds = area.translated(whole);
    shadow.rect = QRectF(shadow.bounds);
    return shadow;
}

bool PaintLayer::stampMeets(const Stamp &stamp, const QRect &rect)
{
    if (stamp.places.empty())
        return stamp.bounds.intersects(rect);
    return std::any_of(stamp.places.begin(), stamp.places.end(),
                       [&](const QPoint &place) { return stamp.bounds.translated(place).intersects(rect); });
}

bool PaintLayer::shows() const
{
    return std::any_of(m_stamps.begin(), m_stamps.end(),
                       [](const Stamp &stamp) { return stamp.alpha > 0 && hasVisiblePixel(stamp.image); });
}

bool PaintLayer::meets(const QRect &rect) const
{
    return std::any_of(m_stamps.begin(), m_stamps.end(),
                       [&](const Stamp &stamp) { return stampMeets(stamp, rect); });
}

/// Calls for the offset of each copy that meets a part of the canvas.
template <typename Paint>
void PaintLayer::forEachCopy(const Stamp &stamp, const QRect &part, Paint paint)
{
    if (stamp.places.empty() && stamp.bounds.intersects(part))
        paint(QPoint(0, 0));
    const auto isAbove = [&](const QPoint &place, int y) { return stamp.bounds.bottom() + place.y() < y; };
    auto place = std::lower_bound(stamp.places.begin(), stamp.places.end(), part.top(), isAbove);
    for (; place != stamp.places.end() && stamp.bounds.top() + place->y() <= part.bottom(); ++place)
        if (stamp.bounds.translated(*place).intersects(part))
            paint(*place);
}

void PaintLayer::paint(QPainter &painter, const QRect &part) const
{
    for (const Stamp &stamp : m_stamps) {
        forEachCopy(stamp, part, [&](const QPoint &offset) {
            painter.translate(offset);
            paintStamp(painter, stamp);
            painter.translate(-offset);
        });
    }
}

void PaintLayer::paintOnto(QImage &picture, const QPoint &origin) const
{
    const QRect part(origin, picture.size());
    for (const Stamp &stamp : m_stamps) {
        const bool isCopied = picture.format() == QImage::Format_RGB888 &&
                              stamp.image.format() == QImage::Format_ARGB32_Premultiplied &&
                              isPixelExact(stamp.transform, stamp.rect, stamp.image);
        forEachCopy(stamp, part, [&](const QPoint &offset) {
            if (isCopied) {
                const QPoint corner = stamp.transform.map(stamp.rect.topLeft()).toPoint();
                blendOntoRGB888(picture, corner + offset - origin, stamp.image, stamp.alpha);
                return;
            }
            QPainter painter(&picture);
            painter.translate(offset - origin);
            paintStamp(painter, stamp);
        });
    }
}

void PaintLayer::paintStamp(QPainter &painter, const Stamp &stamp)
{
    painter.save();
    painter.setOpacity(stamp.alpha);
    if (isPixelExact(stamp.transform, stamp.rect, stamp.image)) {
        painter.drawImage(stamp.transform.map(stamp.rect.topLeft()).toPoint(), stamp.image);
    } else {
        painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
        painter.setTransform(stamp.transform, true);
        painter.drawImage(stamp.rect, stamp.image);
    }
    painter.restore();
}

} // namespace platform
