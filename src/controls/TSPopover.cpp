#include "controls/TSPopover.h"

#include "controls/TSTheme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr int arrowHeight = 9, arrowHalf = 11, shade = 10, cornerRadius = 9;

} // namespace

TSPopover::TSPopover(QWidget *parent)
    : QWidget(parent, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint)
    , m_layout(new QVBoxLayout(this))
{
    setAttribute(Qt::WA_TranslucentBackground);
    // The click that closes it must not open it anew when it meets the button that does so.
    setAttribute(Qt::WA_NoMouseReplay);
    setFocusPolicy(Qt::StrongFocus);
    m_layout->setSizeConstraint(QLayout::SetFixedSize);
}

void TSPopover::setContent(QWidget *content)
{
    while (QLayoutItem *item = m_layout->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    m_layout->addWidget(content);
}

void TSPopover::showRelativeTo(const QWidget *anchor)
{
    const QPoint below = anchor->mapToGlobal(QPoint(anchor->width() / 2, anchor->height()));
    const QPoint above = anchor->mapToGlobal(QPoint(anchor->width() / 2, 0));
    const QRect room = anchor->screen()->availableGeometry();
    const int inset = shade + 2;
    m_layout->setContentsMargins(inset, inset + arrowHeight, inset, inset + arrowHeight);
    m_layout->activate();
    const QSize size = sizeHint();
    m_isBelow =
        below.y() + size.height() <= room.bottom() || room.bottom() - below.y() >= above.y() - room.top();
    const int left =
        qBound(room.left(), below.x() - size.width() / 2, qMax(room.left(), room.right() - size.width()));
    const int edge = cornerRadius + arrowHalf + shade;
    m_arrowX = qBound(edge, below.x() - left, size.width() - edge);
    move(left, m_isBelow ? below.y() - shade : above.y() + shade - size.height());
    show();
    setFocus(Qt::PopupFocusReason);
    focusNextChild();
}

QPainterPath TSPopover::shape() const
{
    const QRectF body = QRectF(rect()).adjusted(shade, shade + arrowHeight, -shade, -shade - arrowHeight);
    const double base = m_isBelow ? body.top() + 1 : body.bottom() - 1;
    const double tip = m_isBelow ? base - arrowHeight : base + arrowHeight;
    QPainterPath bubble, arrow;
    bubble.addRoundedRect(body, cornerRadius, cornerRadius);
    arrow.addPolygon(QPolygonF(
        {QPointF(m_arrowX - arrowHalf, base), QPointF(m_arrowX, tip), QPointF(m_arrowX + arrowHalf, base)}));
    arrow.closeSubpath();
    return bubble.united(arrow);
}

void TSPopover::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainterPath outline = shape();
    painter.setBrush(Qt::NoBrush);
    for (int width = shade; width > 0; --width) {
        painter.setPen(QPen(QColor(0, 0, 0, 5), 2 * width - 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(outline.translated(0, 1));
    }
    painter.setPen(QPen(TSTheme::outline(palette()), 1));
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawPath(outline);
}

void TSPopover::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (!event->spontaneous())
        Q_EMIT popoverDidClose();
}

void TSPopover::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}
