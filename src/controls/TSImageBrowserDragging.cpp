// Drags out of, into and within a photo browser.
#include "controls/TSImageBrowserMimeData.h"
#include "controls/TSImageBrowserModel.h"
#include "controls/TSImageBrowserView.h"

#include <QDrag>
#include <QDragEnterEvent>

void TSImageBrowserView::startDrag(Qt::DropActions)
{
    const int index = selectedIndex();
    if (!m_isMouseDragged || index < 0)
        return;
    auto *drag = new QDrag(this);
    drag->setMimeData(m_model->mimeData({m_model->index(index)}));
    if (const QPixmap picture = pictureForCell(index); !picture.isNull()) {
        drag->setPixmap(picture);
        drag->setHotSpot(QRectF(QPointF(), picture.deviceIndependentSize()).center().toPoint());
    }
    // Others may only copy: a photo never leaves its folder by being dragged.
    drag->exec(Qt::CopyAction);
    setState(NoState);
    setInsertionMark(-1);
}

int TSImageBrowserView::ownPhoto(const QMimeData *data) const
{
    const auto *photo = qobject_cast<const TSImageBrowserMimeData *>(data);
    return photo && photo->model == m_model ? photo->index : -1;
}

void TSImageBrowserView::dragEnterEvent(QDragEnterEvent *event)
{
    dragMoveEvent(event);
}

void TSImageBrowserView::dragMoveEvent(QDragMoveEvent *event)
{
    if (ownPhoto(event->mimeData()) < 0 && !event->mimeData()->hasUrls())
        return event->ignore();
    // The base class scrolls near the edges; its own opinion of the drop does not count.
    QAbstractItemView::dragMoveEvent(event);
    setInsertionMark(gapAt(event->position().toPoint()));
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void TSImageBrowserView::dragLeaveEvent(QDragLeaveEvent *event)
{
    QAbstractItemView::dragLeaveEvent(event);
    setInsertionMark(-1);
}

void TSImageBrowserView::dropEvent(QDropEvent *event)
{
    stopAutoScroll();
    setState(NoState);
    setInsertionMark(-1);
    m_droppedAt = gapAt(event->position().toPoint());
    event->setDropAction(Qt::CopyAction);
    event->accept();
    const int photo = ownPhoto(event->mimeData());
    const bool staysInPlace = m_droppedAt == photo || m_droppedAt == photo + 1;
    if (photo < 0)
        Q_EMIT filesDropped(event->mimeData()->urls(), m_droppedAt);
    else if (!staysInPlace)
        Q_EMIT moveItemAtIndex(photo, m_droppedAt);
}

void TSImageBrowserView::setInsertionMark(int gap)
{
    m_insertionMark = gap;
    viewport()->update();
}
