#pragma once

#include <QPixmap>

class QPainter;
class QPalette;

/// The ground of a photo browser: a tile that stays fixed to the content when that scrolls.
class TSImageBrowserBackgroundLayer {
public:
    /// The tile that suits a scheme, at a device pixel ratio.
    void setScheme(const QPalette &palette, double ratio);
    double ratio() const { return m_tile.devicePixelRatio(); }
    /// One flat colour instead; an invalid one brings the tile back.
    void setColor(const QColor &color) { m_color = color; }
    /// `visible` is in content coordinates, and the painter is as well.
    void paint(QPainter &painter, const QRectF &visible) const;

private:
    QPixmap m_tile;
    QColor m_color;
};
