#include "Scenes.h"

#include <cmath>
#include <QFont>
#include <QPainter>
#include <QPainterPath>

namespace samples {
namespace {

/// Six blades of an aperture, parted by hairlines, within a ring.
QPainterPath aperture(qreal radius)
{
    constexpr int Blades = 6;
    constexpr qreal Turn = 2 * M_PI / Blades;
    const auto point = [](qreal angle, qreal away) {
        return QPointF(std::cos(angle), std::sin(angle)) * away;
    };
    QPainterPath disc, cuts, opening;
    disc.addEllipse({0, 0}, radius, radius);
    for (int i = 0; i < Blades; ++i) {
        const QPointF corner = point(i * Turn, radius * 0.46), next = point((i + 1) * Turn, radius * 0.46);
        QPainterPath cut(corner);
        cut.lineTo(corner + (next - corner) * 4);
        QPainterPathStroker pen;
        pen.setWidth(radius * 0.055);
        cuts.addPath(pen.createStroke(cut));
        i == 0 ? opening.moveTo(corner) : opening.lineTo(corner);
    }
    opening.closeSubpath();
    cuts.setFillRule(Qt::WindingFill);
    return disc.subtracted(cuts).subtracted(opening);
}

} // namespace

QImage logo()
{
    QImage image(830, 240, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.save();
    painter.translate(120, 120);
    painter.rotate(12);
    painter.drawPath(aperture(78));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 6));
    painter.drawEllipse(QPointF(0, 0), 100, 100);
    painter.restore();

    QFont name(QStringLiteral("Nimbus Sans"));
    name.setPixelSize(88);
    name.setLetterSpacing(QFont::AbsoluteSpacing, 20);
    QFont line(name);
    line.setPixelSize(34);
    line.setLetterSpacing(QFont::AbsoluteSpacing, 27.5);
    QPainterPath letters;
    letters.addText(262, 132, name, QStringLiteral("TESSARO"));
    letters.addText(266, 194, line, QStringLiteral("PHOTOGRAPHY"));
    painter.drawPath(letters);
    return image;
}

} // namespace samples
