#include "controls/TSImageBrowserView.h"

#include "controls/TSImageBrowserModel.h"
#include "controls/TSTheme.h"

#include <QContextMenuEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

/// Scaled pictures kept: some screens full, so that scrolling back and forth scales nothing.
constexpr int scaledPicturesKept = 400;

} // namespace

TSImageBrowserView::TSImageBrowserView(Arrangement arrangement, QWidget *parent)
    : QListView(parent)
    , m_arrangement(arrangement)
    , m_model(new TSImageBrowserModel(this))
    , m_scaled(scaledPicturesKept)
{
    setModel(m_model);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setFrameShape(NoFrame);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(isStrip() ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(isStrip() ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    setSizePolicy(QSizePolicy::Expanding, isStrip() ? QSizePolicy::Fixed : QSizePolicy::Expanding);
    setIsMouseDragged(true);
    setDropIndicatorShown(false);
    updateTile();
}

TSImageBrowserView::~TSImageBrowserView() = default;

void TSImageBrowserView::setDataSource(TSImageBrowserDataSource *source)
{
    m_model->setSource(source);
}

void TSImageBrowserView::reloadData()
{
    const int selected = selectedIndex();
    const QPoint place(horizontalOffset(), verticalOffset());
    m_isReloading = true;
    m_model->reload();
    const int last = count() - 1;
    const bool wantsOne = selected >= 0 || !m_allowsEmptySelection;
    setSelectedIndex(wantsOne ? qBound(-1, qMax(selected, 0), last) : -1);
    m_isReloading = false;
    if (selectedIndex() == selected) {
        // Selecting scrolled there; whoever looks elsewhere goes on looking there.
        horizontalScrollBar()->setValue(place.x());
        verticalScrollBar()->setValue(place.y());
    }
    if (selectedIndex() != selected)
        Q_EMIT selectionDidChange(selectedIndex());
}

void TSImageBrowserView::thumbnailDidChange(int index)
{
    if (index >= 0 && index < count())
        update(m_model->index(index));
}

int TSImageBrowserView::selectedIndex() const
{
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.first().row();
}

void TSImageBrowserView::setSelectedIndex(int index)
{
    if (index >= 0 && index < count())
        selectionModel()->setCurrentIndex(m_model->index(index), QItemSelectionModel::ClearAndSelect);
    else if (m_allowsEmptySelection || count() == 0)
        selectionModel()->clear();
}

void TSImageBrowserView::scrollIndexToVisible(int index)
{
    scrollTo(m_model->index(index));
}

void TSImageBrowserView::setCellSize(const QSize &size)
{
    m_cellSize = size;
    m_scaled.clear();
    updateGeometries();
    updateGeometry();
}

void TSImageBrowserView::setIntercellSpacing(const QSize &spacing)
{
    m_spacing = spacing;
    updateGeometries();
    updateGeometry();
}

void TSImageBrowserView::setShowsTitles(bool showsTitles)
{
    m_showsTitles = showsTitles;
    viewport()->update();
}

void TSImageBrowserView::setIsTip(bool isTip)
{
    m_model->setIsTip(isTip);
}

void TSImageBrowserView::setIsMouseDragged(bool isMouseDragged)
{
    m_isMouseDragged = isMouseDragged;
    setDragEnabled(isMouseDragged);
    setAcceptDrops(isMouseDragged);
}

void TSImageBrowserView::setBackgroundColor(const QColor &color)
{
    m_background.setColor(color);
    viewport()->update();
}

void TSImageBrowserView::reset()
{
    QListView::reset();
    updateGeometries();
}

void TSImageBrowserView::doItemsLayout()
{
    // Past the list's own, which would walk over all photos.
    QAbstractItemView::doItemsLayout();
}

QSize TSImageBrowserView::sizeHint() const
{
    constexpr int cellsAcross = 5, rowsDown = 3;
    if (isStrip())
        return {pitch().width() * cellsAcross, minimumSizeHint().height()};
    return {pitch().width() * cellsAcross + m_spacing.width() + verticalScrollBar()->sizeHint().width(),
            pitch().height() * rowsDown + m_spacing.height()};
}

QSize TSImageBrowserView::minimumSizeHint() const
{
    const int bar = isStrip() ? horizontalScrollBar()->sizeHint().height() : 0;
    return {pitch().width() + m_spacing.width(), pitch().height() + m_spacing.height() + bar};
}

int TSImageBrowserView::count() const
{
    return m_model->rowCount();
}

QPixmap TSImageBrowserView::pictureForCell(int index)
{
    const double ratio = devicePixelRatioF();
    const QRectF inside = TSImageBrowserCell(cellRect(index)).imageFrame({});
    const QImage picture = m_model->source()->thumbnail(index, (inside.size() * ratio).toSize());
    if (picture.isNull())
        return {};
    if (const QPixmap *scaled = m_scaled.object(picture.cacheKey());
        scaled && scaled->devicePixelRatio() == ratio)
        return *scaled;
    const QSize size = picture.size().scaled((inside.size() * ratio).toSize(), Qt::KeepAspectRatio);
    QPixmap scaled = QPixmap::fromImage(
        picture.scaled(size.expandedTo({1, 1}), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    scaled.setDevicePixelRatio(ratio);
    m_scaled.insert(picture.cacheKey(), new QPixmap(scaled));
    return scaled;
}

void TSImageBrowserView::paintEvent(QPaintEvent *event)
{
    if (m_background.ratio() != devicePixelRatioF())
        m_background.setScheme(palette(), devicePixelRatioF());
    QPainter painter(viewport());
    painter.save();
    painter.translate(-horizontalOffset(), -verticalOffset());
    m_background.paint(painter, event->rect().translated(horizontalOffset(), verticalOffset()));
    painter.restore();
    // A selected cell's ring reaches into its neighbours' space.
    const auto [first, last] = cellsIn(event->rect().adjusted(-5, -5, 5, 5));
    for (int index = first; index <= last; ++index)
        paintCell(painter, index);
    if (m_insertionMark >= 0)
        paintInsertionMark(painter);
    if (hasFocus())
        TSTheme::drawFocusRing(painter, viewport()->rect(), palette(), 3);
}

void TSImageBrowserView::paintCell(QPainter &painter, int index)
{
    const QModelIndex item = m_model->index(index);
    if (index >= m_model->source()->numberOfItemsInImageBrowser())
        return;
    TSImageBrowserCell::Look look;
    look.title = m_showsTitles ? item.data(Qt::DisplayRole).toString() : QString();
    look.titleFont = font();
    look.titleFont.setPixelSize(11);
    look.titleColor = Qt::white;
    look.selectionFill = QColor::fromRgbF(1, 0.8f, 0, 0.2f);
    look.selectionStroke = QColor::fromRgbF(1, 0.8f, 0);
    look.isSelected = selectionModel()->isSelected(item);
    look.isCurrent = !m_selectsWithArrows && hasFocus() && item == currentIndex();
    if (look.isCurrent && !look.isSelected)
        look.selectionStroke = TSTheme::focusRing(palette());
    TSImageBrowserCell(cellRect(index)).paint(painter, look, pictureForCell(index));
}

void TSImageBrowserView::paintInsertionMark(QPainter &painter) const
{
    // Between two cells, or before the first cell and behind the last one.
    const bool isEnd = m_insertionMark >= count() && count() > 0;
    const QRectF cell = cellRect(isEnd ? m_insertionMark - 1 : m_insertionMark);
    const double x = isEnd ? cell.right() + m_spacing.width() / 2.0 : cell.left() - m_spacing.width() / 2.0;
    constexpr double width = 3, knob = 4;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor::fromRgbF(1, 0.8f, 0), width, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(x, cell.top() + knob), QPointF(x, cell.bottom() - knob));
    painter.setBrush(painter.pen().color());
    painter.drawEllipse(QPointF(x, cell.top() + knob / 2), 1.5, 1.5);
}

void TSImageBrowserView::resizeEvent(QResizeEvent *event)
{
    QAbstractItemView::resizeEvent(event);
    updateGeometries();
}

void TSImageBrowserView::wheelEvent(QWheelEvent *event)
{
    const QPoint delta = event->angleDelta();
    if (!isStrip() || delta.x() != 0 || delta.y() == 0)
        return QAbstractItemView::wheelEvent(event);
    // Turning the wheel away moves to the right: settled, though other strips go the other way.
    QScrollBar *bar = horizontalScrollBar();
    bar->setValue(bar->value() + (delta.y() > 0 ? m_cellSize.width() : -m_cellSize.width()));
    event->accept();
}

void TSImageBrowserView::keyPressEvent(QKeyEvent *event)
{
    const bool isDelete = event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace;
    if (isDelete && selectedIndex() >= 0)
        Q_EMIT removeItemsAtIndex(selectedIndex());
    else if (moveByKey(*event) || pickByKey(event->key()))
        event->accept();
    else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && selectedIndex() >= 0)
        Q_EMIT cellWasDoubleClickedAtIndex(selectedIndex());
    else
        QAbstractItemView::keyPressEvent(event);
}

/// What a drag does, by Control and an arrow.
bool TSImageBrowserView::moveByKey(const QKeyEvent &event)
{
    const int key = event.key(), index = selectedIndex();
    if (!m_isMouseDragged || event.modifiers() != Qt::ControlModifier || index < 0 ||
        (key != Qt::Key_Left && key != Qt::Key_Right))
        return false;
    const bool isForward = (key == Qt::Key_Right) != isRightToLeft();
    if (isForward ? index < count() - 1 : index > 0)
        Q_EMIT moveItemAtIndex(index, isForward ? index + 2 : index - 1);
    return true;
}

bool TSImageBrowserView::pickByKey(int key)
{
    const bool isPick = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
    if (m_selectsWithArrows || !isPick || !currentIndex().isValid())
        return false;
    setSelectedIndex(currentIndex().row());
    return true;
}

void TSImageBrowserView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid() && event->button() == Qt::LeftButton)
        Q_EMIT cellWasDoubleClickedAtIndex(index.row());
}

void TSImageBrowserView::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex index = byKey ? currentIndex() : indexAt(event->pos());
    if (!index.isValid())
        return;
    const QPoint global = byKey ? viewport()->mapToGlobal(visualRect(index).center()) : event->globalPos();
    Q_EMIT cellWasRightClickedAtIndex(index.row(), global);
}

void TSImageBrowserView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        updateTile();
    QAbstractItemView::changeEvent(event);
}

QItemSelectionModel::SelectionFlags TSImageBrowserView::selectionCommand(const QModelIndex &index,
                                                                         const QEvent *event) const
{
    const bool isMove = event && event->type() == QEvent::MouseMove;
    const bool isFrame = event && event->type() == QEvent::KeyPress && !m_selectsWithArrows;
    return index.isValid() && !isMove && !isFrame ? QItemSelectionModel::ClearAndSelect
                                                  : QItemSelectionModel::NoUpdate;
}

void TSImageBrowserView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    viewport()->update();
}

void TSImageBrowserView::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QListView::selectionChanged(selected, deselected);
    // The ring reaches beyond the cell that the base class repaints.
    viewport()->update();
    if (!m_isReloading)
        Q_EMIT selectionDidChange(selectedIndex());
}

void TSImageBrowserView::updateTile()
{
    m_background.setScheme(palette(), devicePixelRatioF());
    viewport()->update();
}
