#pragma once

#include "preview/TSPreview.h"
#include "preview/TSPreviewView.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QPixmap>

/// Shows the preview and hands it the events, mapped to overlay space: the photo at the bottom, the overlays,
/// the trackers on top. What is below the layer that changes is kept as a picture, so that dragging a mark
/// draws no photo. Main thread.
class TSPreviewScrollView : public QAbstractScrollArea, private TSPreviewView {
    Q_OBJECT

public:
    explicit TSPreviewScrollView(QWidget *parent = nullptr);

    TSPreview &preview() { return m_preview; }
    /// A rectangle of overlay space, in pixels of the screen.
    QRect onScreen(const QRectF &rect) const;

    // The steps of the keys: a degree to the right, a half percent of the canvas, a notch of the wheel.
    void turnSelection(int steps);
    void resizeSelection(int steps);
    void zoom(int notches);

Q_SIGNALS:
    /// The titles and check marks of the zoom list are to be shown anew.
    void zoomListChanged();

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QRectF superviewFrame() const override;
    QRectF superviewBounds() const override;
    void previewFrameDidChange(const QRectF &frame) override;
    void scrollToPoint(const QPointF &point) override;
    void redrawCanvasView() override;
    void redrawOverlaysView() override;
    void redrawTrackerView() override;
    TSCursor currentCursor() const override { return m_cursor; }
    void setCursor(TSCursor cursor) override;
    void makeFirstResponder(TSResponder responder) override;
    void zoomListDidChange() override;

    void showScrollBars();
    bool hasKeysOfWindow() const;
    QPointF scrollOffset() const;
    TSMouseEvent mapped(const QMouseEvent &event, int clickCount) const;
    const QPixmap &canvasPicture();
    QPixmap newLayerPicture() const;
    void drawFocusRing(QPainter &painter);
    bool selectNeighbour(int step, bool isAdding = false);
    bool manipulateByKey(const QKeyEvent &event);
    void tellMark(std::initializer_list<QAccessible::Event> events);

    QSizeF m_documentSize;
    TSCursor m_cursor = TSCursor::arrowCursor;
    QPixmap m_canvasPicture;
    /// Whoever works with the mouse sees the marks' own frames.
    bool m_isUsedByKeys = false;
    /// Last, since it asks this view for its sizes when it is made.
    TSPreview m_preview;
};
