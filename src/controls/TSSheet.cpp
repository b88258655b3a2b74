#include "controls/TSSheet.h"

#include "controls/TSTheme.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

TSSheet::TSSheet(QWidget *parent) : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
{
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_TranslucentBackground);
    if (parent)
        parent->window()->installEventFilter(this);
}

TSSheet::~TSSheet()
{
    // A sheet that goes while it is up hears of no hiding.
    delete m_veil;
}

void TSSheet::setTopInset(int inset)
{
    m_topInset = inset;
    place();
}

bool TSSheet::eventFilter(QObject *object, QEvent *event)
{
    if (isVisible() && (event->type() == QEvent::Move || event->type() == QEvent::Resize))
        place();
    return QDialog::eventFilter(object, event);
}

void TSSheet::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    dimParent();
    place();
}

void TSSheet::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    delete m_veil;
}

void TSSheet::dimParent()
{
    if (!parentWidget() || m_veil)
        return;
    m_veil = new QWidget(parentWidget()->window());
    m_veil->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_veil->setAutoFillBackground(true);
    constexpr int darkness = 70;
    QPalette shade;
    shade.setColor(QPalette::Window, QColor(0, 0, 0, darkness));
    m_veil->setPalette(shade);
    m_veil->show();
}

void TSSheet::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    place();
}

void TSSheet::place()
{
    if (!parentWidget())
        return;
    const QWidget *window = parentWidget()->window();
    if (m_veil)
        m_veil->setGeometry(window->rect());
    move(window->mapToGlobal(QPoint((window->width() - width()) / 2, m_topInset)));
}

void TSSheet::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // Straight at the top, where it hangs.
    const double radius = 2.0 * TSTheme::radius;
    QPainterPath shape;
    shape.addRoundedRect(QRectF(rect()).adjusted(0.5, -radius, -0.5, -0.5), radius, radius);
    painter.setPen(QPen(TSTheme::outline(palette()), 1));
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawPath(shape);
    painter.drawLine(QPointF(0, 0.5), QPointF(width(), 0.5));
}
