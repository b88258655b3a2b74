#include "shell/TSMainWindow.h"

#include "controls/TSIcon.h"
#include "controls/TSSegmentedControl.h"
#include "controls/TSTheme.h"
#include "ui/photos/TSPhotoStripView.h"
#include "ui/preview/TSPreviewAccessible.h"
#include "ui/preview/TSPreviewScrollView.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

constexpr QSize leastSize(1024, 680);
constexpr QSize firstSize(1280, 820);
/// What a window manager's frame may take on the screen.
constexpr QSize frameRoom(8, 40);
constexpr size_t fitItem = 0;
constexpr size_t separatorItem = 1;
constexpr size_t firstZoomItem = 2;
/// Characters that the word for "Fit" may have in a language.
constexpr int longestZoom = 9;
constexpr std::pair<const char *, const char *> zooms[] = {
    {"itemOne", "25%"},    {"itemTwo", "50%"},    {"itemThree", "75%"},
    {"itemFour", "100%"},  {"itemFive", "125%"},  {"itemSix", "150%"},
    {"itemSeven", "200%"}, {"itemEight", "300%"}, {"itemNine", "400%"}};

/// Where a pane is to stand beside the preview. A place without a pane takes no room.
QWidget *newPlace(const char *name, QWidget *parent)
{
    auto *place = new QWidget(parent);
    place->setObjectName(QLatin1String(name));
    place->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    place->hide();
    return place;
}

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
    const QSize room = screen()->availableGeometry().size() - frameRoom;
    setMinimumSize(leastSize.boundedTo(room));
    resize(firstSize.boundedTo(room));
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
    menu->addAction(preferencesAction = newAction("preferencesAction", qtTrId("MenuPreferences"),
                                                  QKeySequence(Qt::CTRL | Qt::Key_Comma)));
    preferencesAction->setMenuRole(QAction::PreferencesRole);
    menu->addAction(quitAction = newAction("quitAction", qtTrId("MenuQuit"), QKeySequence::Quit));
    quitAction->setMenuRole(QAction::QuitRole);
}

void TSMainWindow::makeEditMenu()
{
    QMenu *menu = menuBar()->addMenu(qtTrId("MenuEdit"));
    menu->addAction(selectAll = newAction("selectAll", qtTrId("MenuSelectAll"), QKeySequence::SelectAll));
    menu->addAction(deleteOverlay = newAction("deleteOverlay", qtTrId("MenuDelete"), QKeySequence::Delete));
    deleteOverlay->setShortcutContext(Qt::WidgetShortcut);
}

void TSMainWindow::makeWatermarkMenu()
{
    QMenu *menu = menuBar()->addMenu(qtTrId("MenuWatermark"));
    menu->addAction(addTextAction = newAction("addTextAction", qtTrId("MenuAddText"),
                                              QKeySequence(Qt::CTRL | Qt::Key_T)));
    menu->addAction(addStickerAction = newAction("addStickerAction", qtTrId("MenuAddImage"),
                                                 QKeySequence(Qt::CTRL | Qt::Key_I)));
    menu->addSeparator();
    addManipulations(*menu);
    menu->addSeparator();
    menu->addAction(openProfileAction = newAction("openProfileAction", qtTrId("MenuApplyLayout"),
                                                  QKeySequence(Qt::CTRL | Qt::Key_L)));
    menu->addAction(openSaveProfile =
                        newAction("openSaveProfile", qtTrId("MenuSaveLayout"), QKeySequence::Save));
}

/// The keys of these are the preview's, which takes them with Shift too; other fields move their caret by
/// them.
void TSMainWindow::addManipulations(QMenu &menu)
{
    upOverlay = newAction("upOverlay", qtTrId("MenuUp"), QKeySequence(Qt::CTRL | Qt::Key_PageUp));
    downOverlay = newAction("downOverlay", qtTrId("MenuDown"), QKeySequence(Qt::CTRL | Qt::Key_PageDown));
    turnLeft = newAction("turnLeft", qtTrId("MenuTurnLeft"), QKeySequence(Qt::CTRL | Qt::Key_Left));
    turnRight = newAction("turnRight", qtTrId("MenuTurnRight"), QKeySequence(Qt::CTRL | Qt::Key_Right));
    makeLarger = newAction("makeLarger", qtTrId("MenuLarger"), QKeySequence(Qt::CTRL | Qt::Key_Up));
    makeSmaller = newAction("makeSmaller", qtTrId("MenuSmaller"), QKeySequence(Qt::CTRL | Qt::Key_Down));
    for (QAction *action : {turnLeft, turnRight, makeLarger, makeSmaller})
        action->setShortcutContext(Qt::WidgetShortcut);
    menu.addActions({upOverlay, downOverlay});
    menu.addSeparator();
    menu.addActions({turnLeft, turnRight, makeLarger, makeSmaller});
}

void TSMainWindow::makeViewMenu()
{
    QMenu *menu = menuBar()->addMenu(qtTrId("MenuView"));
    makeZoomMenu(*menu->addMenu(qtTrId("MenuZoom")));
    menu->addSeparator();
    menu->addAction(itemAutoSnap = newAction("itemAutoSnap", qtTrId("MenuSnap")));
    menu->addAction(itemAutoSnapToPhoto = newAction("itemAutoSnapToPhoto", qtTrId("MenuSnapToPhoto")));
    menu->addAction(itemAutoSnapToObjects = newAction("itemAutoSnapToObjects", qtTrId("MenuSnapToObjects")));
    for (QAction *action : {itemAutoSnap, itemAutoSnapToPhoto, itemAutoSnapToObjects})
        action->setCheckable(true);
    menu->addAction(itemAuxiliaryLine = newAction("itemAuxiliaryLine", {}));
}

void TSMainWindow::makeZoomMenu(QMenu &zoom)
{
    menuItems[fitItem] = newAction("itemFit", qtTrId("Fit"), QKeySequence(Qt::CTRL | Qt::Key_0));
    zoom.addAction(menuItems[fitItem]);
    menuItems[separatorItem] = zoom.addSeparator();
    menuItems[separatorItem]->setObjectName(QStringLiteral("itemSeparator"));
    size_t item = firstZoomItem;
    for (const auto &[name, title] : zooms)
        zoom.addAction(menuItems[item++] = newAction(name, QLatin1String(title)));
    // None of them is in force while the photo has a size between theirs.
    auto *steps = new QActionGroup(this);
    steps->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    for (QAction *action : menuItems)
        if (!action->isSeparator()) {
            action->setCheckable(true);
            steps->addAction(action);
        }
    zoom.addSeparator();
    zoom.addAction(zoomIn = newAction("zoomIn", qtTrId("MenuZoomIn"), QKeySequence::ZoomIn));
    zoom.addAction(zoomOut = newAction("zoomOut", qtTrId("MenuZoomOut"), QKeySequence::ZoomOut));
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
    nameButtons(*bar);
    tintIcons();
}

void TSMainWindow::nameButtons(const QToolBar &bar)
{
    const std::pair<QAction *, const char *> names[] = {
        {loadPhotoAction, "tbiAddPhotos"}, {addTextAction, "tbiText"},
        {addStickerAction, "tbiSticker"},  {openProfileAction, "tbiManagerWatermarks"},
        {openSaveProfile, "tbiLayout"},    {exportPhotos, "tbiSave"}};
    for (const auto &[action, name] : names)
        bar.widgetForAction(action)->setObjectName(QLatin1String(name));
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
    // The bar between them is of another font, and taller.
    tips->addWidget(OutputTipLabel, 0, Qt::AlignBottom);
    tips->addWidget(outputTipSizeLabel, 0, Qt::AlignBottom);
    tips->addStretch();
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto *middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(newPlace("overlayListView", content));
    middle->addWidget(preview, 1);
    middle->addWidget(newPlace("tvSettings", content));
    column->addLayout(middle, 1);
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
