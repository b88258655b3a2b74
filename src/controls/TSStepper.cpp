#include "controls/TSStepper.h"

#include "controls/TSTheme.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr int firstWait = 350, nextWait = 60, pageSteps = 10;

} // namespace

TSStepper::TSStepper(QWidget *parent) : QAbstractSlider(parent)
{
    setOrientation(Qt::Vertical);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setPageStep(pageSteps);
}

QSize TSStepper::sizeHint() const
{
    return {20, TSTheme::controlHeight};
}

bool TSStepper::canStep(int direction) const
{
    return isEnabled() && (m_isWrapping || (direction > 0 ? value() < maximum() : value() > minimum()));
}

void TSStepper::step(int direction)
{
    if (!m_isWrapping)
        return triggerAction(direction > 0 ? SliderSingleStepAdd : SliderSingleStepSub);
    const int count = maximum() - minimum() + 1;
    setValue(minimum() + (value() - minimum() + direction * singleStep() + count) % count);
}

void TSStepper::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    m_held = event->position().y() < height() / 2.0 ? 1 : -1;
    step(m_held);
    m_timer = startTimer(firstWait);
    update();
}

void TSStepper::mouseReleaseEvent(QMouseEvent *)
{
    if (m_timer != 0)
        killTimer(m_timer);
    m_timer = m_held = 0;
    update();
}

void TSStepper::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer)
        return QAbstractSlider::timerEvent(event);
    killTimer(m_timer);
    m_timer = startTimer(nextWait);
    step(m_held);
}

void TSStepper::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Right)
        step(1);
    else if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Left)
        step(-1);
    else
        QAbstractSlider::keyPressEvent(event);
}

void TSStepper::wheelEvent(QWheelEvent *event)
{
    // Panels with steppers scroll; a value must not change on the way.
    event->ignore();
}

void TSStepper::paintHalf(QPainter &painter, int direction) const
{
    const QRectF half(0, direction > 0 ? 0 : height() / 2.0, width(), height() / 2.0);
    if (m_held == direction) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(TSTheme::raised(palette().color(QPalette::Button), palette(), 0.18));
        painter.drawRoundedRect(half.adjusted(1, 1, -1, -1), 4, 4);
    }
    const QPointF center = half.center() + QPointF(0, direction * 0.5);
    const auto group = canStep(direction) ? QPalette::Active : QPalette::Disabled;
    painter.setPen(
        QPen(palette().color(group, QPalette::ButtonText), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(
        QPolygonF({center + QPointF(-3, direction * 1.5), center - QPointF(0, direction * 1.5),
                   center + QPointF(3, direction * 1.5)}));
}

void TSStepper::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(isEnabled() ? TSTheme::outline(palette()) : TSTheme::hairline(palette()), 1));
    painter.setBrush(palette().color(QPalette::Button));
    constexpr double radius = TSTheme::radius - 1;
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    paintHalf(painter, 1);
    paintHalf(painter, -1);
    if (hasFocus())
        TSTheme::drawFocusRing(painter, rect(), palette(), radius);
}
