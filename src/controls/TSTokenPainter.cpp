#include "controls/TSTokenPainter.h"

#include "controls/TSTheme.h"

#include <QFontMetricsF>
#include <QPainter>

namespace {

constexpr double gap = 1.5, padding = 8, chevronRoom = 11, overhang = 2;

void paintChevron(QPainter &painter, const QPointF &center, const QColor &color)
{
    painter.setPen(QPen(color, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(
        QPolygonF({center + QPointF(-3, -1.5), center + QPointF(0, 1.5), center + QPointF(3, -1.5)}));
}

} // namespace

QSizeF TSTokenPainter::size(const Look &look)
{
    const QFontMetricsF metrics(look.font);
    const double menu = look.hasMenu ? chevronRoom : 0;
    return {std::ceil(metrics.horizontalAdvance(look.title) + 2 * (padding + gap) + menu), metrics.height()};
}

void TSTokenPainter::paint(QPainter &painter, const QRectF &rect, const Look &look)
{
    const QColor accent = TSTheme::focusRing(look.palette);
    const QColor soft = TSTheme::mixed(look.palette.color(QPalette::Base), accent, 0.2);
    const QColor ink = look.palette.color(look.isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QRectF shape = rect.adjusted(gap, -overhang, -gap, overhang).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(look.isSelected ? accent : soft);
    const QColor edge = look.isWithinSelection ? ink
                        : look.isSelected      ? accent
                                               : TSTheme::mixed(soft, accent, 0.55);
    painter.setPen(QPen(edge, 1));
    painter.drawRoundedRect(shape, shape.height() / 2, shape.height() / 2);
    painter.setPen(ink);
    painter.setFont(look.font);
    const double menu = look.hasMenu ? chevronRoom : 0;
    painter.drawText(rect.adjusted(0, 0, -menu, 0), Qt::AlignCenter | Qt::TextSingleLine, look.title);
    if (look.hasMenu)
        paintChevron(painter, {rect.right() - gap - padding - 2, rect.center().y() + 0.5}, ink);
    painter.restore();
}
