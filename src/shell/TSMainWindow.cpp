#include "shell/TSMainWindow.h"

#include "controls/TSIcon.h"
#include "controls/TSSegmentedControl.h"
#include "controls/TSTheme.h"
#include "ui/photos/TSPhotoStripView.h"
#include "ui/preview/TSPreviewAccessible.h"
#include "ui/preview/TSPreviewScrollView.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

constexpr QSize leastSize(1024, 680);
constexpr QSize firstSize(1280, 820);
/// The order of the zooms in the menu is that of the list.
constexpr size_t separatorItem = 9;
constexpr size_t fitItem = 10;
/// Characters that the word for "Fit" may have in a language.
constexpr int longestZoom = 9;
constexpr const char *zooms[] = {"25%", "50%", "75%", "100%", "125%", "150%", "200%", "300%", "400%"};

QLabel *newTip(const char *name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setFont(TSTheme::smallFont());
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

TSMainWindow::TSMainWindow()
{
    setObjectName(QStringLiteral("MainWindow"));
    setWindowTitle(QStringLiteral("Tessaro"));
    setMinimumSize(leastSize);
    resize(firstSize);
    setAcceptDrops(true);
    makePhotoMenu();
    makeEditMenu();
    makeWatermarkMenu();
    makeViewMenu();
    makeToolbar();
    m_pages = new QStackedWidget(this);
    m_pages->addWidget(newStartView());
    m_pages->addWidget(newContent());
    setCentralWidget(m_pages);
}

QAction *TSMainWindow::newAction(const char *name, const QString &title, const QKeySequence &keys)
{
    auto *action = new QAction(title, this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(keys);
    return action;
}

void TSMainWindow::makePhotoMenu()
{
    QMenu *menu = menuBar()->addMenu(qtTrId("MenuPhotos"));
    menu->addAction(loadPhotoAction =
                        newAction("loadPhotoAction", qtTrId("MenuAddPhotos"), QKeySequence::Open));
    menu->addAction(removePhotoAction = newAction("removePhotoAction", qtTrId("MenuRemovePhoto"),
                                                  QKeySequence(Qt::CTRL | Qt::Key_Backspace)));
    menu->addAction(removeAllPhotosAction = newAction("removeAllPhotosAction", qtTrId("MenuRemoveAll")));
    menu->addSeparator();
    menu->addAction(exportPhotos =
                        newAction("exportPhotos", qtTrId("MenuExport"), QKeySequence(Qt::CTRL | Qt::Key_E)));
    menu->addSeparator();
    menu->addAction(preferencesAction =
                        newAction("preferencesAction", qtTrId("MenuPreferences"), QKeySequence::Preferences));
    preferencesAction->setMenuRole(QAction::PreferencesRole);
    menu->addAction(quitAction = newAction("quitAction", qtTrId("MenuQuit"), QKeySequence::Quit));
    quitAction->setMenuRole(QAction::QuitRole);
}

void TSMainWindow::makeEditMenu()
{
    QMenu *menu = menuBar()->addMenu(qtTrId("MenuEdit"));
    menu->addAction(selectAll = newAction("selectAll", qtTrId("MenuSelectAll"), QKeySequence::SelectAll));
    menu->addAction(deleteOverlay = newAction("deleteOverlay", qtTrId("MenuDelete")));
}

void TSMainWindow::makeWatermarkMenu()
{
    QMenu *menu = menuBar()->addMenu(qtTrId("MenuWatermark"));
    menu->addAction(addTextAction = newAction("addTextAction", qtTrId("MenuAddText"),
                                              QKeySequence(Qt::CTRL | Qt::Key_T)));
    menu->addAction(addStickerAction = newAction("addStickerAction", qtTrId("MenuAddImage"),
                                                 QKeySequence(Qt::CTRL | Qt::Key_I)));
    menu->addSeparator();
    menu->addAction(openProfileAction = newAction("openProfileAction", qtTrId("MenuApplyLayout"),
                                                  QKeySequence(Qt::CTRL | Qt::Key_L)));
    menu->addAction(openSaveProfile =
                        newAction("openSaveProfile", qtTrId("MenuSaveLayout"), QKeySequence::Save));
}

void TSMainWindow::makeViewMenu()
{
    QMenu *menu = menuBar()->addMenu(qtTrId("MenuView"));
    QMenu *zoom = menu->addMenu(qtTrId("MenuZoom"));
    for (size_t item = 0; item < separatorItem; ++item) {
        menuItems[item] = newAction("zoomingTheSize", QLatin1String(zooms[item]));
        menuItems[item]->setCheckable(true);
        zoom->addAction(menuItems[item]);
    }
    menuItems[separatorItem] = zoom->addSeparator();
    menuItems[fitItem] = newAction("itemFit", qtTrId("Fit"), QKeySequence(Qt::CTRL | Qt::Key_0));
    menuItems[fitItem]->setCheckable(true);
    zoom->addAction(menuItems[fitItem]);
    menu->addSeparator();
    menu->addAction(itemAutoSnap = newAction("itemAutoSnap", qtTrId("MenuSnap")));
    menu->addAction(itemAutoSnapToPhoto = newAction("itemAutoSnapToPhoto", qtTrId("MenuSnapToPhoto")));
    menu->addAction(itemAutoSnapToObjects = newAction("itemAutoSnapToObjects", qtTrId("MenuSnapToObjects")));
    for (QAction *action : {itemAutoSnap, itemAutoSnapToPhoto, itemAutoSnapToObjects})
        action->setCheckable(true);
    menu->addAction(itemAuxiliaryLine = newAction("itemAuxiliaryLine", {}));
}

void TSMainWindow::makeToolbar()
{
    QToolBar *bar = addToolBar(QStringLiteral("Toolbar"));
    bar->setObjectName(QStringLiteral("Toolbar"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    bar->setIconSize(QSize(TSTheme::iconSize, TSTheme::iconSize));
    for (QAction *action :
         {loadPhotoAction, addTextAction, addStickerAction, openProfileAction, openSaveProfile})
        bar->addAction(action);
    auto *space = new QWidget(bar);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(space);
    scBatchAdjust = new TSSegmentedControl(TSSegmentedControl::Selection::One, bar);
    scBatchAdjust->addSegment(qtTrId("Batch"));
    scBatchAdjust->addSegment(qtTrId("Adjust"));
    scBatchAdjust->setObjectName(QStringLiteral("scBatchAdjust"));
    scBatchAdjust->setAccessibleName(qtTrId("BatchAdjustName"));
    bar->addWidget(scBatchAdjust);
    auto *gap = new QWidget(bar);
    gap->setFixedWidth(TSTheme::spacing);
    bar->addWidget(gap);
    pubZooming = new QComboBox(bar);
    pubZooming->setObjectName(QStringLiteral("pubZooming"));
    pubZooming->setAccessibleName(qtTrId("MenuZoom"));
    pubZooming->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    pubZooming->setMinimumContentsLength(longestZoom);
    bar->addWidget(pubZooming);
    bar->addAction(exportPhotos);
    tintIcons();
}

void TSMainWindow::tintIcons()
{
    const std::pair<QAction *, TSIconName> icons[] = {
        {loadPhotoAction, TSIconName::Add},        {addTextAction, TSIconName::Text},
        {addStickerAction, TSIconName::Sticker},   {openProfileAction, TSIconName::Layers},
        {openSaveProfile, TSIconName::SaveLayout}, {exportPhotos, TSIconName::Export}};
    for (const auto &[action, name] : icons)
        action->setIcon(TSIcon::icon(name, palette()));
}

/// The pictures are drawn in the colours of a scheme, which the desktop may change.
void TSMainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && exportPhotos)
        tintIcons();
}

QWidget *TSMainWindow::newContent()
{
    auto *content = new QWidget(this);
    TSPreviewAccessible::install();
    preview = new TSPreviewScrollView(content);
    preview->setObjectName(QStringLiteral("preview"));
    preview->setAccessibleName(qtTrId("PreviewName"));
    photoStrip = new TSPhotoStripView(content);
    OutputTipLabel = newTip("OutputTipLabel", content);
    outputTipSizeLabel = newTip("outputTipSizeLabel", content);
    auto *tips = new QHBoxLayout;
    tips->setContentsMargins(TSTheme::margin, TSTheme::spacing / 2, TSTheme::margin, TSTheme::spacing / 2);
    tips->addStretch();
    tips->addWidget(OutputTipLabel);
    tips->addWidget(outputTipSizeLabel);
    tips->addStretch();
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(preview, 1);
    column->addLayout(tips);
    column->addWidget(photoStrip);
    return content;
}

QWidget *TSMainWindow::newStartView()
{
    auto *view = new QWidget(this);
    view->setObjectName(QStringLiteral("startView"));
    auto *title = new QLabel(qtTrId("StartTitle"), view);
    title->setFont(TSTheme::titleFont());
    title->setAlignment(Qt::AlignCenter);
    auto *hint = new QLabel(qtTrId("StartHint"), view);
    hint->setAlignment(Qt::AlignCenter);
    startButton = new QPushButton(qtTrId("StartButton"), view);
    startButton->setObjectName(QStringLiteral("startButton"));
    startButton->setAccessibleName(qtTrId("StartButton"));
    startButton->setDefault(true);
    startButton->setMinimumSize(220, 48);
    auto *column = new QVBoxLayout(view);
    column->addStretch();
    column->addWidget(title);
    column->addSpacing(TSTheme::margin);
    column->addWidget(startButton, 0, Qt::AlignCenter);
    column->addSpacing(TSTheme::spacing);
    column->addWidget(hint);
    column->addStretch();
    return view;
}

void TSMainWindow::showStartView(bool isShown)
{
    m_pages->setCurrentIndex(isShown ? 0 : 1);
}

bool TSMainWindow::isStartViewShown() const
{
    return m_pages->currentIndex() == 0;
}

void TSMainWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    Q_EMIT windowShouldClose();
}

void TSMainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (isStartViewShown() && event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void TSMainWindow::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    Q_EMIT filesDropped(event->mimeData()->urls());
}
