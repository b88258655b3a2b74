#include "ui/preview/TSPreviewScrollView.h"

#include "controls/TSTheme.h"
#include "preview/TSPhotoDrop.h"
#include "preview/TSPreviewBackground.h"
#include "session/TSNotificationCenter.h"
#include "ui/preview/TSMarkRing.h"
#include "ui/preview/TSPreviewCursors.h"

#include <algorithm>
#include <numbers>
#include <QMimeData>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QScrollBar>

namespace {

/// What one notch of the wheel adds to the size of the canvas.
constexpr double zoomPerNotch = 0.1;
constexpr double unitsPerNotch = 120;
/// With Shift a key does this many steps at once.
constexpr int farSteps = 10;
constexpr double stepsPerCanvas = 200;
constexpr double degree = std::numbers::pi / 180;

unsigned modifierFlagsOf(Qt::KeyboardModifiers modifiers)
{
    unsigned flags = 0;
    if (modifiers & Qt::ShiftModifier)
        flags |= TSModifier::Shift;
    if (modifiers & Qt::ControlModifier)
        flags |= TSModifier::Command;
    return flags;
}

QStringList localPaths(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls())
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    return paths;
}

/// In the place of a photo, so that nobody waits for it.
void drawUnreadable(QPainter &painter, const QSizeF &canvas)
{
    const QRectF place(QPointF(0, 0), canvas);
    painter.fillRect(place, QColor(0x2a, 0x2a, 0x2a));
    painter.setPen(QColor(0xe8, 0xe8, 0xe8));
    painter.drawText(place, int(Qt::AlignCenter) | int(Qt::TextWordWrap), qtTrId("PhotoUnreadable"));
}

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

} // namespace

TSPreviewScrollView::TSPreviewScrollView(QWidget *parent) : QAbstractScrollArea(parent), m_preview(*this)
{
    setFrameShape(QFrame::NoFrame);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    // What keys, menus and assistive programs select shows at once, as what the mouse does.
    connect(TSNotificationCenter::defaultCenter(), &TSNotificationCenter::overlaysChanged, viewport(),
            qOverload<>(&QWidget::update));
}

QRectF TSPreviewScrollView::superviewFrame() const
{
    return {QPointF(0, 0), QSizeF(viewport()->size())};
}

/// The scroll bars count from the top, the preview from the bottom.
QRectF TSPreviewScrollView::superviewBounds() const
{
    const QSizeF visible = viewport()->size();
    const double below = m_documentSize.height() - visible.height() - verticalScrollBar()->value();
    return {QPointF(horizontalScrollBar()->value(), std::max(0.0, below)), visible};
}

void TSPreviewScrollView::previewFrameDidChange(const QRectF &frame)
{
    m_documentSize = frame.size();
    showScrollBars();
    const QSize visible = viewport()->size();
    horizontalScrollBar()->setRange(0, std::max(0, int(m_documentSize.width()) - visible.width()));
    verticalScrollBar()->setRange(0, std::max(0, int(m_documentSize.height()) - visible.height()));
    horizontalScrollBar()->setPageStep(visible.width());
    verticalScrollBar()->setPageStep(visible.height());
    redrawCanvasView();
}

/// By the policies, which act at once: by its range a bar comes a turn of the event loop later, when the
/// canvas has been laid out without it.
void TSPreviewScrollView::showScrollBars()
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Showing a bar narrows the view in the other direction, which the second round finds.
    for (int round = 0; round < 2; ++round) {
        if (int(m_documentSize.width()) > viewport()->width())
            setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        if (int(m_documentSize.height()) > viewport()->height())
            setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    }
}

void TSPreviewScrollView::scrollToPoint(const QPointF &point)
{
    horizontalScrollBar()->setValue(int(point.x()));
    verticalScrollBar()->setValue(int(m_documentSize.height() - viewport()->height() - point.y()));
}

void TSPreviewScrollView::redrawCanvasView()
{
    m_canvasPicture = {};
    viewport()->update();
}

void TSPreviewScrollView::redrawOverlaysView()
{
    viewport()->update();
}

void TSPreviewScrollView::redrawTrackerView()
{
    viewport()->update();
}

void TSPreviewScrollView::setCursor(TSCursor cursor)
{
    m_cursor = cursor;
    viewport()->setCursor(TSPreviewCursor(cursor, devicePixelRatioF()));
}

void TSPreviewScrollView::makeFirstResponder(TSResponder)
{
    setFocus();
}

void TSPreviewScrollView::zoomListDidChange()
{
    Q_EMIT zoomListChanged();
}

QRect TSPreviewScrollView::onScreen(const QRectF &rect) const
{
    const QRect inView = rect.translated(-scrollOffset()).toAlignedRect();
    return {viewport()->mapToGlobal(inView.topLeft()), inView.size()};
}

QPointF TSPreviewScrollView::scrollOffset() const
{
    return QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value());
}

TSMouseEvent TSPreviewScrollView::mapped(const QMouseEvent &event, int clickCount) const
{
    return {event.position() + scrollOffset(), modifierFlagsOf(event.modifiers()), clickCount};
}

QPixmap TSPreviewScrollView::newLayerPicture() const
{
    QPixmap picture(viewport()->size() * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    return picture;
}

const QPixmap &TSPreviewScrollView::canvasPicture()
{
    if (!m_canvasPicture.isNull())
        return m_canvasPicture;
    m_canvasPicture = newLayerPicture();
    QPainter painter(&m_canvasPicture);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(viewport()->rect(), TSPreviewBackground(viewport()->size()));
    const QRectF canvas = m_preview.layout().convertRectToOverlaysView(m_preview.layout().canvasViewFrame());
    painter.translate(canvas.topLeft() - scrollOffset());
    if (!m_preview.drawCanvas(painter))
        drawUnreadable(painter, canvas.size());
    return m_canvasPicture;
}

bool TSPreviewScrollView::event(QEvent *event)
{
    const bool isHandled = QAbstractScrollArea::event(event);
    // Of this view and not of its viewport, which changes with the scroll bars too.
    if (event->type() == QEvent::Resize)
        Q_EMIT TSNotificationCenter::defaultCenter()->TSWindowWillResizeOrZooming();
    return isHandled;
}

bool TSPreviewScrollView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::Resize)
        m_canvasPicture = {};
    if (event->type() == QEvent::NativeGesture) {
        const auto *gesture = static_cast<QNativeGestureEvent *>(event);
        if (gesture->gestureType() == Qt::ZoomNativeGesture)
            m_preview.presenter().magnifyWithEvent(gesture->value());
        return true;
    }
    return QAbstractScrollArea::viewportEvent(event);
}

void TSPreviewScrollView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    painter.drawPixmap(0, 0, canvasPicture());
    painter.translate(-scrollOffset());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF visible = QRectF(event->rect()).translated(scrollOffset());
    m_preview.overlaysLayer().drawRect(painter, visible);
    m_preview.trackerState().isInactive = !hasKeysOfWindow();
    m_preview.trackerLayer().drawRect(painter);
    if (hasFocus() && m_isUsedByKeys)
        drawFocusRing(painter);
}

/// Also while another window is up: what had the keys before has them afterwards.
bool TSPreviewScrollView::hasKeysOfWindow() const
{
    return window()->focusWidget() == this;
}

/// Around the marks that the keys act on, or else the whole preview, for whoever works without a mouse.
void TSPreviewScrollView::drawFocusRing(QPainter &painter)
{
    if (m_preview.selection().editingOverlaysArray().empty()) {
        painter.resetTransform();
        TSTheme::drawFocusRing(painter, viewport()->rect(), palette(), 3);
        return;
    }
    for (const auto &overlay : m_preview.selection().editingOverlaysArray())
        TSDrawMarkRing(painter, *overlay, palette());
}

void TSPreviewScrollView::scrollContentsBy(int, int)
{
    redrawCanvasView();
}

void TSPreviewScrollView::focusInEvent(QFocusEvent *event)
{
    const bool isByTab = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    m_isUsedByKeys = isByTab;
    if (isByTab && m_preview.selection().editingOverlaysArray().empty())
        selectNeighbour(event->reason() == Qt::TabFocusReason ? 1 : -1);
    viewport()->update();
}

void TSPreviewScrollView::focusOutEvent(QFocusEvent *)
{
    viewport()->update();
}

void TSPreviewScrollView::mousePressEvent(QMouseEvent *event)
{
    m_isUsedByKeys = false;
    if (event->button() != Qt::LeftButton)
        return;
    // A finger comes without moving there first, and of moves that wait the toolkit keeps the last alone.
    m_preview.mouseMoved(mapped(*event, 0));
    m_preview.mouseDown(mapped(*event, 1));
}

void TSPreviewScrollView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_preview.mouseDown(mapped(*event, 2));
}

void TSPreviewScrollView::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton)
        m_preview.mouseDragged(mapped(*event, 1));
    else
        m_preview.mouseMoved(mapped(*event, 0));
}

void TSPreviewScrollView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_preview.mouseUp();
}

void TSPreviewScrollView::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers() & Qt::ControlModifier)
        m_preview.presenter().magnifyWithEvent(event->angleDelta().y() / unitsPerNotch * zoomPerNotch);
    else
        QAbstractScrollArea::wheelEvent(event);
}

void TSPreviewScrollView::turnSelection(int steps)
{
    m_preview.dragging().turnSelection(steps * degree);
}

void TSPreviewScrollView::resizeSelection(int steps)
{
    const double step = m_preview.layout().canvasViewFrame().width() / stepsPerCanvas;
    m_preview.dragging().resizeSelection(steps * step);
}

void TSPreviewScrollView::zoom(int notches)
{
    m_preview.presenter().magnifyWithEvent(notches * zoomPerNotch);
}

void TSPreviewScrollView::keyPressEvent(QKeyEvent *event)
{
    m_isUsedByKeys = true;
    viewport()->update();
    if (manipulateByKey(*event))
        return tellMark({QAccessible::LocationChanged, QAccessible::DescriptionChanged});
    const bool hadSelection = !m_preview.selection().editingOverlaysArray().empty();
    const bool isDelete = event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace;
    m_preview.trackerLayer().keyDown(event->key());
    if (event->key() == Qt::Key_Escape)
        m_preview.selection().selectOverlay(nullptr);
    else if (!hadSelection || !(isDelete || isArrow(event->key())))
        QAbstractScrollArea::keyPressEvent(event);
    if (isArrow(event->key()))
        tellMark({QAccessible::LocationChanged, QAccessible::DescriptionChanged});
}

/// Whoever does not see the mark is told which it is, and where it went.
void TSPreviewScrollView::tellMark(std::initializer_list<QAccessible::Event> events)
{
    const auto &selected = m_preview.selection().editingOverlaysArray();
    if (selected.empty() || !QAccessible::isActive())
        return;
    const qint64 index = TSOverlayManager::overlayManager()->indexOfOverlay(selected.back());
    QAccessibleInterface *mark = QAccessible::queryAccessibleInterface(this)->child(int(index));
    for (const QAccessible::Event kind : events)
        if (mark) {
            QAccessibleEvent event(mark, kind);
            QAccessible::updateAccessibility(&event);
        }
}

/// What the nodes do under the mouse, and the adding of marks to the selection.
bool TSPreviewScrollView::manipulateByKey(const QKeyEvent &event)
{
    if (!(event.modifiers() & Qt::ControlModifier))
        return false;
    const int steps = event.modifiers() & Qt::ShiftModifier ? farSteps : 1;
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        turnSelection(event.key() == Qt::Key_Left ? -steps : steps);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        resizeSelection(event.key() == Qt::Key_Up ? steps : -steps);
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return selectNeighbour(event.key() == Qt::Key_Tab ? 1 : -1, true);
    default:
        return false;
    }
}

/// Tab goes from mark to mark, and leaves the preview behind the last one.
bool TSPreviewScrollView::focusNextPrevChild(bool next)
{
    m_isUsedByKeys = true;
    return selectNeighbour(next ? 1 : -1) || QAbstractScrollArea::focusNextPrevChild(next);
}

bool TSPreviewScrollView::selectNeighbour(int step, bool isAdding)
{
    const TSOverlayManager *manager = TSOverlayManager::overlayManager();
    const auto &selected = m_preview.selection().editingOverlaysArray();
    const qint64 count = manager->overlayCount();
    const qint64 present =
        selected.empty() ? (step > 0 ? -1 : count) : manager->indexOfOverlay(selected.back());
    const auto neighbour = manager->overlayAtIndex(present + step);
    if (!neighbour)
        return false;
    if (!isAdding) {
        m_preview.selection().selectOverlay(neighbour);
    } else if (!neighbour->isScript() && !m_preview.selection().isContainScriptObject()) {
        m_preview.selection().editingOverlaysArrayAddobject(neighbour);
        m_preview.selection().setEditingOverlays(false);
    }
    tellMark({QAccessible::Focus});
    return true;
}

void TSPreviewScrollView::dragEnterEvent(QDragEnterEvent *event)
{
    if (TSPhotoDrop::draggingUpdated(localPaths(*event->mimeData())) == TSPhotoDrop::Copy)
        event->acceptProposedAction();
}

void TSPreviewScrollView::dragMoveEvent(QDragMoveEvent *event)
{
    event->acceptProposedAction();
}

void TSPreviewScrollView::dropEvent(QDropEvent *event)
{
    const QObject *source = event->source();
    const QString className = source ? QString::fromLatin1(source->metaObject()->className()) : QString();
    if (TSPhotoDrop::performDragOperation(localPaths(*event->mimeData()), className))
        event->acceptProposedAction();
}
