#include "controls/TSTokenPill.h"

#include "controls/TSTheme.h"
#include "controls/TSTokenMimeData.h"
#include "controls/TSTokenPainter.h"

#include <QApplication>
#include <QDrag>
#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr int ringRoom = 6;

TSTokenPainter::Look lookOf(const TSTokenPill &pill)
{
    return {pill.token().title, pill.font(), pill.palette(), false, false};
}

} // namespace

TSTokenPill::TSTokenPill(const TSFieldToken &token, QWidget *parent) : QAbstractButton(parent), m_token(token)
{
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::OpenHandCursor);
    setAccessibleName(token.title);
    connect(this, &QAbstractButton::clicked, this, [this] { Q_EMIT activated(m_token); });
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize TSTokenPill::sizeHint() const
{
    return TSTokenPainter::size(lookOf(*this)).toSize() + QSize(2 * 4, 2 * ringRoom);
}

void TSTokenPill::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRectF inside = QRectF(rect()).adjusted(4, ringRoom, -4, -ringRoom);
    TSTokenPainter::paint(painter, inside, lookOf(*this));
    if (hasFocus())
        TSTheme::drawFocusRing(painter, rect(), palette(), height() / 2.0);
}

void TSTokenPill::mousePressEvent(QMouseEvent *event)
{
    m_pressedAt = event->position().toPoint();
    QAbstractButton::mousePressEvent(event);
}

void TSTokenPill::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint way = event->position().toPoint() - m_pressedAt;
    if (event->buttons() & Qt::LeftButton && way.manhattanLength() >= QApplication::startDragDistance())
        drag();
}

void TSTokenPill::mouseDoubleClickEvent(QMouseEvent *event)
{
    // Its first click has put the token in place.
    event->accept();
}

void TSTokenPill::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void TSTokenPill::drag()
{
    setDown(false);
    auto *drag = new QDrag(this);
    drag->setMimeData(new TSTokenMimeData({m_token}));
    QPixmap picture(size() * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    TSTokenPainter::paint(painter, QRectF(rect()).adjusted(4, ringRoom, -4, -ringRoom), lookOf(*this));
    painter.end();
    drag->setPixmap(picture);
    drag->setHotSpot(m_pressedAt);
    drag->exec(Qt::CopyAction);
}
