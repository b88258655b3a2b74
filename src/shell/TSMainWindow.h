#pragma once

#include <array>
#include <QMainWindow>

class QComboBox;
class QLabel;
class QPushButton;
class QStackedWidget;
class QToolBar;
class TSPhotoStripView;
class TSPreviewScrollView;
class TSSegmentedControl;

/// The main window as it is laid out: menus, toolbar, preview, strip. It does nothing by itself.
class TSMainWindow : public QMainWindow {
    Q_OBJECT

public:
    TSMainWindow();

    // Actions, in the order of the menus.
    QAction *loadPhotoAction = nullptr;
    QAction *removePhotoAction = nullptr;
    QAction *removeAllPhotosAction = nullptr;
    QAction *exportPhotos = nullptr;
    QAction *preferencesAction = nullptr;
    QAction *quitAction = nullptr;
    QAction *selectAll = nullptr;
    QAction *deleteOverlay = nullptr;
    QAction *addTextAction = nullptr;
    QAction *addStickerAction = nullptr;
    QAction *openProfileAction = nullptr;
    QAction *openSaveProfile = nullptr;
    QAction *upOverlay = nullptr;
    QAction *downOverlay = nullptr;
    QAction *turnLeft = nullptr;
    QAction *turnRight = nullptr;
    QAction *makeLarger = nullptr;
    QAction *makeSmaller = nullptr;
    QAction *zoomIn = nullptr;
    QAction *zoomOut = nullptr;
    QAction *itemAutoSnap = nullptr;
    QAction *itemAutoSnapToPhoto = nullptr;
    QAction *itemAutoSnapToObjects = nullptr;
    QAction *itemAuxiliaryLine = nullptr;
    /// As in the zoom list, whose check marks go by position: "Fit", a separator, nine fixed zooms.
    std::array<QAction *, 11> menuItems{};

    TSSegmentedControl *scBatchAdjust = nullptr;
    QComboBox *pubZooming = nullptr;
    TSPreviewScrollView *preview = nullptr;
    TSPhotoStripView *photoStrip = nullptr;
    QLabel *OutputTipLabel = nullptr;
    QLabel *outputTipSizeLabel = nullptr;
    QPushButton *startButton = nullptr;

    /// The start view covers the content while there are no photos.
    void showStartView(bool isShown);
    bool isStartViewShown() const;

Q_SIGNALS:
    /// The window is to go away. It hides; the program and its photos stay.
    void windowShouldClose();
    void filesDropped(const QList<QUrl> &urls);

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QAction *newAction(const char *name, const QString &title, const QKeySequence &keys = {});
    void makePhotoMenu();
    void makeEditMenu();
    void makeWatermarkMenu();
    void addManipulations(QMenu &menu);
    void makeViewMenu();
    void makeZoomMenu(QMenu &zoom);
    void makeToolbar();
    void nameButtons(const QToolBar &bar);
    void tintIcons();
    QWidget *newContent();
    QWidget *newStartView();

    QStackedWidget *m_pages = nullptr;
};
