#pragma once

#include "controls/TSImageBrowserBackgroundLayer.h"
#include "controls/TSImageBrowserCell.h"
#include "controls/TSImageBrowserDataSource.h"

#include <QCache>
#include <QListView>
#include <QUrl>

class TSImageBrowserModel;

/// Photos in cells of one size, as a horizontal strip or as a grid that grows downward. Nothing in it depends
/// on the number of photos: places are computed, and only what is seen is asked for. A list view by name, so
/// that assistive programs meet a list; the layout of that class is not used.
class TSImageBrowserView : public QListView {
    Q_OBJECT

public:
    enum class Arrangement { Strip, Grid };

    explicit TSImageBrowserView(Arrangement arrangement, QWidget *parent = nullptr);
    ~TSImageBrowserView() override;

    /// Not owned; must live as long as the view shows it.
    void setDataSource(TSImageBrowserDataSource *source);
    /// Counts anew and asks for all pictures again. The selected position stays, or becomes the last one; no
    /// change of the selection is reported for a position that stays.
    void reloadData();
    void thumbnailDidChange(int index);

    int selectedIndex() const;
    /// A negative index selects nothing where that is allowed.
    void setSelectedIndex(int index);
    void scrollIndexToVisible(int index);
    /// Before which photo the last drop went: the number of photos for the end.
    int indexAtLocationOfDroppedItem() const { return m_droppedAt; }

    void setCellSize(const QSize &size);
    void setIntercellSpacing(const QSize &spacing);
    void setShowsTitles(bool showsTitles);
    void setAllowsEmptySelection(bool allows) { m_allowsEmptySelection = allows; }
    /// Without it the arrows only move a frame, and Return or Space selects what is in it: for grids where a
    /// selection is an answer.
    void setSelectsWithArrows(bool selects) { m_selectsWithArrows = selects; }
    /// Tooltips with the photos' descriptions.
    void setIsTip(bool isTip);
    /// Drags of photos, for reordering and to other programs, and drops of files.
    void setIsMouseDragged(bool isMouseDragged);
    /// A flat colour instead of the tile.
    void setBackgroundColor(const QColor &color);

    QRect visualRect(const QModelIndex &index) const override;
    QModelIndex indexAt(const QPoint &point) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    void reset() override;
    void doItemsLayout() override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// -1 when nothing is selected.
    void selectionDidChange(int index);
    void cellWasDoubleClickedAtIndex(int index);
    void cellWasRightClickedAtIndex(int index, const QPoint &globalPosition);
    void removeItemsAtIndex(int index);
    /// A photo was dragged in front of `toIndex`, counted before the move.
    void moveItemAtIndex(int index, int toIndex);
    /// Files from elsewhere; whether any of them is a photo is for the receiver to tell.
    void filesDropped(const QList<QUrl> &urls, int index);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void startDrag(Qt::DropActions supportedActions) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;

    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    int horizontalOffset() const override;
    int verticalOffset() const override;
    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection &selection) const override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;

private:
    bool isStrip() const { return m_arrangement == Arrangement::Strip; }
    int count() const;
    int columns() const;
    QSize pitch() const { return m_cellSize + m_spacing; }
    QSize contentSize() const;
    QRect cellRect(int index) const;
    /// The cells that meet a rectangle of the viewport, as first and last; last is below first for none.
    std::pair<int, int> cellsIn(const QRect &rect) const;
    int gapAt(const QPoint &point) const;
    /// The position of a photo that is dragged from here, or -1.
    int ownPhoto(const QMimeData *data) const;
    QPixmap pictureForCell(int index);
    void paintCell(QPainter &painter, int index);
    void paintInsertionMark(QPainter &painter) const;
    void setInsertionMark(int gap);
    void updateTile();
    bool pickByKey(int key);
    bool moveByKey(const QKeyEvent &event);

    Arrangement m_arrangement;
    TSImageBrowserModel *m_model;
    TSImageBrowserBackgroundLayer m_background;
    QCache<qint64, QPixmap> m_scaled;
    QSize m_cellSize{130, 118};
    QSize m_spacing{10, 10};
    bool m_showsTitles = true;
    bool m_allowsEmptySelection = false;
    bool m_isMouseDragged = true;
    bool m_isReloading = false;
    bool m_selectsWithArrows = true;
    int m_insertionMark = -1;
    int m_droppedAt = -1;
};
