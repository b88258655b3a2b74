#include "controls/TSImageBrowserBackgroundLayer.h"

#include "controls/TSTheme.h"

#include <cmath>
#include <QPainter>
#include <QRandomGenerator>

namespace {

constexpr int tileSide = 64;

/// A neutral dark grey under the pictures in either scheme, with a grain that the eye takes for a surface.
QImage grain(int grey, double ratio)
{
    constexpr int seed = 7, amplitude = 2;
    QRandomGenerator random(seed);
    const int side = qRound(tileSide * ratio);
    QImage tile(side, side, QImage::Format_RGB32);
    for (int y = 0; y < side; ++y) {
        auto *line = reinterpret_cast<QRgb *>(tile.scanLine(y));
        for (int x = 0; x < side; ++x) {
            const int value = grey + random.bounded(-amplitude, amplitude + 1);
            line[x] = qRgb(value, value, value);
        }
    }
    tile.setDevicePixelRatio(ratio);
    return tile;
}

} // namespace

void TSImageBrowserBackgroundLayer::setScheme(const QPalette &palette, double ratio)
{
    constexpr int inLight = 0x58, inDark = 0x20;
    m_tile = QPixmap::fromImage(grain(TSTheme::isDark(palette) ? inDark : inLight, ratio));
}

void TSImageBrowserBackgroundLayer::paint(QPainter &painter, const QRectF &visible) const
{
    if (m_color.isValid()) {
        painter.fillRect(visible, m_color);
        return;
    }
    const QPointF phase(std::fmod(visible.left(), tileSide), std::fmod(visible.top(), tileSide));
    painter.drawTiledPixmap(visible, m_tile, phase);
}
