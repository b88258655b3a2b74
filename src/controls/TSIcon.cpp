#include "controls/TSIcon.h"

#include "controls/TSIconShapes.h"

#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace {

class Engine : public QIconEngine {
public:
    Engine(TSIcon::Name name, const QPalette &palette) : m_name(name), m_palette(palette) {}

    QIconEngine *clone() const override { return new Engine(*this); }
    QString key() const override { return QStringLiteral("TSIcon"); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
        TSIcon::paint(*painter, rect, m_name, m_palette.color(group, role));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, {QPoint(), size}, mode, state);
        return pixmap;
    }

private:
    TSIcon::Name m_name;
    QPalette m_palette;
};

} // namespace

QIcon TSIcon::icon(Name name, const QPalette &palette)
{
    return QIcon(new Engine(name, palette));
}

void TSIcon::paint(QPainter &painter, const QRectF &rect, Name name, const QColor &color)
{
    const double side = qMin(rect.width(), rect.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect.center() - QPointF(side, side) / 2);
    painter.scale(side / TSIconShapes::grid, side / TSIconShapes::grid);
    painter.setPen(QPen(color, TSIconShapes::lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(TSIconShapes::lines(name));
    painter.restore();
}
