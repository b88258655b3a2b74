#include "controls/TSSegment.h"

#include "controls/TSTheme.h"

#include <QPainter>

TSSegment::TSSegment(std::optional<TSIcon::Name> picture, const QString &title, QWidget *parent)
    : QAbstractButton(parent), m_picture(picture)
{
    setCheckable(true);
    setText(title);
    setAccessibleName(title);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    if (picture)
        setToolTip(title);
}

QSize TSSegment::sizeHint() const
{
    const int width = m_picture ? TSTheme::iconSize + 14 : fontMetrics().horizontalAdvance(text()) + 32;
    return {width, TSTheme::controlHeight - 4};
}

QColor TSSegment::surface() const
{
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    if (isChecked())
        return palette().color(group, QPalette::Highlight);
    const bool isOver = isEnabled() && (underMouse() || isDown());
    return isOver ? TSTheme::raised(palette().color(QPalette::Button), palette(), isDown() ? 0.16 : 0.07)
                  : QColor(Qt::transparent);
}

void TSSegment::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(surface());
    constexpr double radius = TSTheme::radius - 2;
    painter.drawRoundedRect(rect(), radius, radius);
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    const QColor ink = palette().color(group, isChecked() ? QPalette::HighlightedText : QPalette::ButtonText);
    if (m_picture) {
        QRectF place(0, 0, TSTheme::iconSize - 2, TSTheme::iconSize - 2);
        place.moveCenter(QRectF(rect()).center());
        TSIcon::paint(painter, place, *m_picture, ink);
    } else {
        painter.setPen(ink);
        painter.drawText(rect(), Qt::AlignCenter, text());
    }
    if (hasFocus())
        TSTheme::drawFocusRing(painter, rect(), palette(), radius);
}
