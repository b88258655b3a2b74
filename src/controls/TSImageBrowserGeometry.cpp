// Where the cells of a photo browser lie, and how keys and scrolling move among them.
#include "controls/TSImageBrowserModel.h"
#include "controls/TSImageBrowserView.h"

#include <QScrollBar>

int TSImageBrowserView::columns() const
{
    if (isStrip())
        return qMax(1, count());
    return qMax(1, (viewport()->width() - m_spacing.width()) / pitch().width());
}

QSize TSImageBrowserView::contentSize() const
{
    const int rows = (count() + columns() - 1) / columns();
    return {columns() * pitch().width() + m_spacing.width(), rows * pitch().height() + m_spacing.height()};
}

QRect TSImageBrowserView::cellRect(int index) const
{
    const QPoint place(index % columns() * pitch().width() + m_spacing.width(),
                       index / columns() * pitch().height() + m_spacing.height());
    return {place - QPoint(horizontalOffset(), verticalOffset()), m_cellSize};
}

QRect TSImageBrowserView::visualRect(const QModelIndex &index) const
{
    return index.isValid() ? cellRect(index.row()) : QRect();
}

std::pair<int, int> TSImageBrowserView::cellsIn(const QRect &rect) const
{
    const QRect content = rect.translated(horizontalOffset(), verticalOffset());
    const auto line = [](int position, int step) { return qMax(0, position) / step; };
    if (isStrip())
        return {qMax(0, line(content.left(), pitch().width()) - 1),
                qMin(count() - 1, line(content.right(), pitch().width()))};
    const int first = qMax(0, line(content.top(), pitch().height()) - 1) * columns();
    const int last = (line(content.bottom(), pitch().height()) + 1) * columns() - 1;
    return {first, qMin(count() - 1, last)};
}

QModelIndex TSImageBrowserView::indexAt(const QPoint &point) const
{
    const auto [first, last] = cellsIn({point, QSize(1, 1)});
    for (int index = first; index <= last; ++index) {
        if (cellRect(index).contains(point))
            return m_model->index(index);
    }
    return {};
}

int TSImageBrowserView::gapAt(const QPoint &point) const
{
    const QPoint content = point + QPoint(horizontalOffset(), verticalOffset());
    const int column = (content.x() - m_spacing.width() / 2 + pitch().width() / 2) / pitch().width();
    const int row = isStrip() ? 0 : qMax(0, content.y() - m_spacing.height() / 2) / pitch().height();
    return qMin(count(), row * columns() + qBound(0, column, columns()));
}

void TSImageBrowserView::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    if (!index.isValid())
        return;
    QScrollBar *bar = isStrip() ? horizontalScrollBar() : verticalScrollBar();
    const QRect cell = cellRect(index.row());
    const int room = isStrip() ? viewport()->width() : viewport()->height();
    const int margin = isStrip() ? m_spacing.width() : m_spacing.height();
    const int before = (isStrip() ? cell.left() : cell.top()) - margin;
    const int behind = (isStrip() ? cell.right() : cell.bottom()) + margin - room;
    if (hint == PositionAtCenter)
        bar->setValue(bar->value() + (before + behind) / 2);
    else if (before < 0 || hint == PositionAtTop)
        bar->setValue(bar->value() + before);
    else if (behind > 0 || hint == PositionAtBottom)
        bar->setValue(bar->value() + behind);
}

void TSImageBrowserView::updateGeometries()
{
    QAbstractItemView::updateGeometries();
    const QSize content = contentSize(), room = viewport()->size();
    const auto set = [](QScrollBar *bar, int length, int page, int step) {
        bar->setRange(0, qMax(0, length - page));
        bar->setPageStep(page);
        bar->setSingleStep(step);
    };
    set(horizontalScrollBar(), isStrip() ? content.width() : 0, room.width(), pitch().width());
    set(verticalScrollBar(), isStrip() ? 0 : content.height(), room.height(), pitch().height() / 2);
    viewport()->update();
}

void TSImageBrowserView::scrollContentsBy(int, int)
{
    // All of it anew: the focus ring must not scroll along.
    viewport()->update();
}

int TSImageBrowserView::horizontalOffset() const
{
    return horizontalScrollBar()->value();
}

int TSImageBrowserView::verticalOffset() const
{
    return verticalScrollBar()->value();
}

QModelIndex TSImageBrowserView::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    if (count() == 0)
        return {};
    if (!currentIndex().isValid())
        return m_model->index(0);
    const int page = isStrip() ? qMax(1, viewport()->width() / pitch().width())
                               : qMax(1, viewport()->height() / pitch().height()) * columns();
    const int line = isStrip() ? 1 : columns();
    const int row = currentIndex().row(), forward = isRightToLeft() ? -1 : 1;
    const auto by = [&](int step) {
        const int target = row + step;
        const bool isLine = qAbs(step) == line && !isStrip();
        return m_model->index(isLine && (target < 0 || target >= count()) ? row
                                                                          : qBound(0, target, count() - 1));
    };
    switch (action) {
    case MoveHome:
        return m_model->index(0);
    case MoveEnd:
        return m_model->index(count() - 1);
    case MoveLeft:
        return by(-forward);
    case MoveRight:
        return by(forward);
    case MovePrevious:
        return by(-1);
    case MoveNext:
        return by(1);
    case MoveUp:
        return by(-line);
    case MoveDown:
        return by(line);
    case MovePageUp:
        return by(-page);
    case MovePageDown:
        return by(page);
    }
    return {};
}

void TSImageBrowserView::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command)
{
    const QModelIndex index = indexAt(rect.center());
    if (index.isValid())
        selectionModel()->select(index, command);
}

QRegion TSImageBrowserView::visualRegionForSelection(const QItemSelection &selection) const
{
    QRegion region;
    for (const QModelIndex &index : selection.indexes())
        region += cellRect(index.row()).adjusted(-5, -5, 5, 5);
    return region;
}
