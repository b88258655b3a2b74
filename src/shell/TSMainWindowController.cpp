#include "shell/TSMainWindowController.h"

#include "controls/TSCheckBoxAlert.h"
#include "controls/TSIcon.h"
#include "controls/TSSegmentedControl.h"
#include "controls/TSTheme.h"
#include "overlays/TSOverlayManager.h"
#include "platform/system/UserDefaults.h"
#include "preview/TSPhotoDrop.h"
#include "session/TSDataManager.h"
#include "session/TSDefaults.h"
#include "session/TSLastFolder.h"
#include "session/TSNotificationCenter.h"
#include "session/TSPhoto.h"
#include "session/TSPhotoManager.h"
#include "shell/TSProcessingSheet.h"
#include "ui/photos/TSPhotoStripView.h"
#include "ui/preview/TSPreviewScrollView.h"

#include <cmath>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTimer>

namespace {

/// What the decoders read, by the usual extensions in either case; everything else is a choice away, since
/// files are taken by their contents.
QString photoFilter(const QString &title)
{
    QStringList patterns;
    for (const char *extension : {"jpg", "jpeg", "png", "tif", "tiff", "heic", "heif", "avif", "webp", "gif",
                                  "bmp", "jp2", "svg", "pdf", "ai", "eps"}) {
        const QString pattern = QStringLiteral("*.") + QLatin1String(extension);
        patterns << pattern << pattern.toUpper();
    }
    return QStringLiteral("%1 (%2);;%3 (*)").arg(title, patterns.join(u' '), qtTrId("AllFiles"));
}

/// In the list of zooms.
constexpr int fitRow = 1;

QStringList localPaths(const QList<QUrl> &urls)
{
    QStringList paths;
    for (const QUrl &url : urls)
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    return paths;
}

TSDataManager *session()
{
    return TSDataManager::dataManager();
}

} // namespace

TSMainWindowController::TSMainWindowController()
    : m_window(std::make_unique<TSMainWindow>()), m_actions(*m_window)
{
    using namespace std::chrono_literals;
    m_window->showStartView(true);
    connect(m_window.get(), &TSMainWindow::windowShouldClose, this, [this] {
        m_window->hide();
        if (m_preferences)
            m_preferences->hide();
    });
    connect(m_window.get(), &TSMainWindow::filesDropped, this, &TSMainWindowController::addPhotos);
    connect(m_window->startButton, &QPushButton::clicked, this, &TSMainWindowController::loadPhotoAction);
    updateScBatchAdjust();
    m_actions.validate();
    QTimer::singleShot(500ms, this, &TSMainWindowController::updateUIAndData);
}

TSMainWindowController::~TSMainWindowController()
{
    // Threads that work on the session end before what they tell of it goes.
    m_photoIntake.reset();
    m_cacheFiller.reset();
}

/// Not by the toolkit's own quit(), which asks every window, and the sheet of an export would ask the user
/// again.
void TSMainWindowController::quit()
{
    if (m_export && m_export->isRunning())
        m_export->quitRun();
    else
        QApplication::exit();
}

void TSMainWindowController::abandonExport()
{
    if (m_export)
        m_export->abandonRun();
}

TSPreview &TSMainWindowController::preview()
{
    return m_window->preview->preview();
}

void TSMainWindowController::updateUIAndData()
{
    initListView();
    initPreview();
    initActions();
    initZoomList();
    initObserver();
    m_actions.validate();
    if (!m_waitingPhotos.isEmpty())
        addPhotos(std::exchange(m_waitingPhotos, {}));
}

void TSMainWindowController::initListView()
{
    TSPhotoStripView &strip = *m_window->photoStrip;
    m_cacheFiller = std::make_unique<TSCacheFiller>();
    m_photoListEditor = std::make_unique<TSPhotoListEditor>(*TSOverlayManager::overlayManager(), strip,
                                                            static_cast<TSPhotoListEditorHost &>(*this));
    m_photoIntake = std::make_unique<TSPhotoIntakeController>(TSOverlayManager::overlayManager(), strip,
                                                              static_cast<TSPhotoIntakeHost &>(*this));
    m_processingWindow = new TSProcessingSheet(m_window.get());
    connect(m_processingWindow, &TSProcessingSheet::processWasCancelled, this,
            [this] { m_photoIntake->cancelProcessAction(); });
    connect(&strip, &TSPhotoStripView::startViewShouldUpdate, this, &TSMainWindowController::updateStartView);
    connect(&strip, &TSPhotoStripView::cacheImagesWasCancelled, m_cacheFiller.get(),
            &TSCacheFiller::cancelCacheImages);
    connect(strip.btAddPhotos(), &QPushButton::clicked, this, &TSMainWindowController::loadPhotoAction);
    connect(strip.btRemove(), &QPushButton::clicked, this,
            [this] { m_photoListEditor->removePhotoAction(); });
    connect(strip.btRemoveAll(), &QPushButton::clicked, this,
            [this] { m_photoListEditor->removeAllPhotosAction(); });
    const TSImageBrowserView *list = strip.ibvList();
    connect(list, &TSImageBrowserView::selectionDidChange, this,
            &TSMainWindowController::imageBrowserSelectionDidChange);
    connect(list, &TSImageBrowserView::removeItemsAtIndex, this,
            &TSMainWindowController::removePhotosWithSelection);
    connect(list, &TSImageBrowserView::moveItemAtIndex, this, [this](int from, int to) {
        m_photoListEditor->moveItemsAtIndexes({from}, to);
        m_window->photoStrip->reloadData();
        m_window->photoStrip->setSelectionIndex(from < to ? to - 1 : to);
    });
    connect(list, &TSImageBrowserView::filesDropped, this, [this](const QList<QUrl> &urls, int index) {
        // Without a single picture among them nothing is dropped here.
        if (TSPhotoDrop::prepareForDragOperation(localPaths(urls)))
            m_photoIntake->addPhotosFromBrowserViewDragging(urls, index);
    });
}

void TSMainWindowController::initPreview()
{
    connect(m_window->preview, &TSPreviewScrollView::zoomListChanged, this,
            &TSMainWindowController::showZoomList);
    connect(m_window->pubZooming, &QComboBox::activated, this, &TSMainWindowController::zoomingTheSize);
}

void TSMainWindowController::initActions()
{
    TSMainWindow &window = *m_window;
    m_layouts = std::make_unique<TSLayoutController>(window, preview());
    m_export = std::make_unique<TSExportController>(window);
    connect(m_export.get(), &TSExportController::showSaveInfoDidChange, this, [this] {
        if (m_preferences)
            m_preferences->updateCbShow();
    });
    // Their sheets keep the keys from the window, as do the preferences.
    m_export->addRunAction(window.quitAction);
    m_processingWindow->addAction(window.quitAction);
    connect(m_export.get(), &TSExportController::runWasQuit, this, &TSMainWindowController::quit);
    connect(window.loadPhotoAction, &QAction::triggered, this, &TSMainWindowController::loadPhotoAction);
    connect(window.removePhotoAction, &QAction::triggered, this,
            [this] { m_photoListEditor->removePhotoAction(); });
    connect(window.removeAllPhotosAction, &QAction::triggered, this,
            [this] { m_photoListEditor->removeAllPhotosAction(); });
    connect(window.exportPhotos, &QAction::triggered, this, [this] { m_export->exportPhotos(); });
    m_actions.bind();
    connect(window.addStickerAction, &QAction::triggered, this,
            &TSMainWindowController::addStickerFromFinder);
    connect(window.openProfileAction, &QAction::triggered, this, [this] { m_layouts->openProfileAction(); });
    connect(window.openSaveProfile, &QAction::triggered, this, [this] { m_layouts->openSaveProfile(); });
    connect(window.scBatchAdjust, &TSSegmentedControl::segmentChanged, this,
            [](int segment) { TSSetBatchControlOverlay(segment == 0); });
    connect(m_layouts.get(), &TSLayoutController::profileDidApply, this,
            &TSMainWindowController::updateScBatchAdjust);
    connect(window.preferencesAction, &QAction::triggered, this, &TSMainWindowController::preferencesAction);
}

void TSMainWindowController::preferencesAction()
{
    if (!m_preferences) {
        m_preferences = new TSPreferencesWindowController(m_window.get());
        m_preferences->addAction(m_window->quitAction);
        connect(m_preferences, &TSPreferencesWindowController::showSaveInfoDidChange, m_export.get(),
                &TSExportController::updateShowSaveInfo);
    }
    m_preferences->show();
    m_preferences->raise();
}

void TSMainWindowController::initZoomList()
{
    const QStringList titles = preview().zoomList().itemTitles();
    QComboBox &list = *m_window->pubZooming;
    for (const QString &title : titles)
        if (!title.isEmpty() || list.count() == 0)
            list.addItem(title);
        else
            list.insertSeparator(list.count());
    // The first item only shows the zoom in force.
    if (auto *view = qobject_cast<QListView *>(list.view()))
        view->setRowHidden(0, true);
    for (size_t item = 0; item < m_window->menuItems.size(); ++item)
        connect(m_window->menuItems[item], &QAction::triggered, this, [this, item] {
            preview().presenter().zoomingTheSize(m_window->menuItems[item]->text(), item);
        });
    showZoomList();
}

void TSMainWindowController::initObserver()
{
    const TSNotificationCenter *center = TSNotificationCenter::defaultCenter();
    connect(center, &TSNotificationCenter::TSOutputSizeOrNameChanged, this,
            &TSMainWindowController::outputSizeOrNameChanged);
}

void TSMainWindowController::addPhotos(const QList<QUrl> &urls)
{
    if (m_photoIntake)
        m_photoIntake->addPhotosFromDragging(urls);
    else
        m_waitingPhotos = urls;
}

void TSMainWindowController::loadPhotoAction()
{
    const QUrl folder = QUrl::fromLocalFile(TSLastFolder(TSFolderUse::Photos));
    const QList<QUrl> urls = QFileDialog::getOpenFileUrls(m_window.get(), qtTrId("ChoosePhoto"), folder,
                                                          photoFilter(qtTrId("Photos")), nullptr,
                                                          QFileDialog::HideNameFilterDetails);
    if (urls.isEmpty() || !m_photoIntake)
        return;
    if (urls.first().isLocalFile())
        TSRememberFolder(TSFolderUse::Photos, QFileInfo(urls.first().toLocalFile()).absolutePath());
    m_photoIntake->loadPhotos(urls);
}

void TSMainWindowController::addStickerFromFinder()
{
    const QString path = QFileDialog::getOpenFileName(
        m_window.get(), qtTrId("ChooseImage"), TSLastFolder(TSFolderUse::Pictures),
        photoFilter(qtTrId("Pictures")), nullptr, QFileDialog::HideNameFilterDetails);
    if (path.isEmpty())
        return;
    TSRememberFolder(TSFolderUse::Pictures, QFileInfo(path).absolutePath());
    preview().creation().addStickerWithPath(path, true);
}

void TSMainWindowController::removePhotosWithSelection(int)
{
    m_photoListEditor->removePhotoAction();
    m_window->photoStrip->ibvList()->setFocus();
}

void TSMainWindowController::imageBrowserSelectionDidChange(int index)
{
    preview().presenter().showFrameAtIndex(index);
    outputSizeOrNameChanged();
    if (const auto &photo = preview().layout().photo())
        preview().zoomList().showPercentage(photo->photoRatioOfSize);
    showZoomList();
    m_cacheFiller->scheduleCacheImages();
    if (index >= 0)
        m_photoListEditor->removeItemsWithoutSource();
}

void TSMainWindowController::outputSizeOrNameChanged()
{
    Q_EMIT TSNotificationCenter::defaultCenter()->TSExportImageNames();
    const std::set<qint64> selection = m_window->photoStrip->selectionIndexes();
    const auto photo =
        selection.empty() ? nullptr : TSPhotoManager::photoManager()->photoAtIndex(*selection.begin());
    if (!photo)
        return;
    QString name = session()->exportNames.value(photo->index);
    if (!name.isEmpty())
        name += u'.' + session()->exportFormat;
    m_window->OutputTipLabel->setText(QStringLiteral("Output Name : ") + name);
    m_window->outputTipSizeLabel->setText(QStringLiteral("｜  Output Size : %1 x %2 pixel")
                                              .arg(std::lround(photo->photoOutputSize.width()))
                                              .arg(std::lround(photo->photoOutputSize.height())));
}

void TSMainWindowController::showZoomList()
{
    TSZoomList &zooms = preview().zoomList();
    m_window->pubZooming->setItemText(0, zooms.title());
    m_window->pubZooming->setCurrentIndex(0);
    QPixmap noMark(TSTheme::iconSize, TSTheme::iconSize);
    noMark.fill(Qt::transparent);
    for (int row = fitRow; row < m_window->pubZooming->count(); ++row)
        m_window->pubZooming->setItemIcon(row, row == fitRow && zooms.isFitMarked()
                                                   ? TSIcon::icon(TSIconName::Check, m_window->palette())
                                                   : QIcon(noMark));
    const bool hasPhotos = session()->photoCount() > 0;
    for (size_t item = 0; item < m_window->menuItems.size(); ++item)
        m_window->menuItems[item]->setChecked(hasPhotos && zooms.menuItems()[item] && !zooms.isFitMarked());
    m_window->menuItems.front()->setChecked(hasPhotos && zooms.isFitMarked());
}

void TSMainWindowController::zoomingTheSize(int row)
{
    if (row > 0)
        preview().presenter().zoomingTheSize(m_window->pubZooming->itemText(row));
    showZoomList();
}

void TSMainWindowController::updateStartView()
{
    const bool isEmpty = session()->photoCount() == 0;
    m_window->pubZooming->setEnabled(!isEmpty);
    m_window->showStartView(isEmpty);
    m_actions.validate();
}

void TSMainWindowController::updateScBatchAdjust()
{
    m_window->scBatchAdjust->setSelected(TSIsBatchControlOverlay() ? 0 : 1);
}

bool TSMainWindowController::confirm(const QString &message, const QString &informative)
{
    const std::unique_ptr<TSCheckBoxAlert> alert(TSCheckBoxAlert::alertWithMessageText(
        message, qtTrId("OK"), qtTrId("Cancel"), {}, informative, m_window.get()));
    return alert->exec() == TSCheckBoxAlert::DefaultReturn;
}

void TSMainWindowController::showAlert(const QString &message, const QString &informative)
{
    const std::unique_ptr<TSCheckBoxAlert> alert(
        TSCheckBoxAlert::alertWithMessageText(message, qtTrId("OK"), {}, {}, informative, m_window.get()));
    alert->exec();
}

void TSMainWindowController::releaseShownPhoto()
{
    preview().layout().setPhoto(nullptr);
}

void TSMainWindowController::emptyEditingOverlaysArray()
{
    preview().selection().clear();
}

void TSMainWindowController::clearEditingOverlay()
{
    preview().selection().setEditingOverlay(nullptr);
    preview().selection().setEditingText(nullptr);
}

void TSMainWindowController::showProcessingView(bool isShown, const QString &title, bool canCancel)
{
    if (isShown) {
        m_processingWindow->begin(title, canCancel);
        return;
    }
    m_processingWindow->end();
    // The intake goes on with the strip before the user is told.
    QMetaObject::invokeMethod(this, &TSMainWindowController::tellRefusals, Qt::QueuedConnection);
}

void TSMainWindowController::setProcessTitle(const QString &title)
{
    m_processingWindow->setTitle(title);
}

/// Repeated files have a message of their own.
void TSMainWindowController::fileWasRefused(const QString &path, const QString &reason)
{
    if (!session()->isHasItem(path))
        m_processingWindow->addRefusal(path, reason);
}

void TSMainWindowController::tellRefusals()
{
    const qsizetype count = m_processingWindow->refusalCount();
    if (count > 0)
        showAlert(qtTrId("FilesRefused").arg(count), m_processingWindow->takeRefusals());
}
