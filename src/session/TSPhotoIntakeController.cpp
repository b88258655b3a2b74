#include "session/TSPhotoIntakeController.h"

#include "session/TSDataManager.h"
#include "session/TSNotificationCenter.h"
#include "session/TSPhotoManager.h"

#include <QCoreApplication>
#include <QThread>

namespace {

QStringList pathsOf(const QList<QUrl> &urls)
{
    QStringList paths;
    for (const QUrl &url : urls)
        paths.append(url.isLocalFile() ? url.toLocalFile() : url.toString());
    return paths;
}

} // namespace

TSPhotoIntakeController::TSPhotoIntakeController(TSPhotoListObserver *rows, TSPhotoStrip &strip,
                                                 TSPhotoIntakeHost &host)
    : m_strip(strip), m_host(host), m_intake(rows, this)
{
    m_queue.setMaxThreadCount(1);
    setAutoDelete(false);
    connect(TSNotificationCenter::defaultCenter(), &TSNotificationCenter::TSDraggingPhotosEnd, this,
            &TSPhotoIntakeController::addPhotosFromDragging);
}

TSPhotoIntakeController::~TSPhotoIntakeController()
{
    m_isEnding = true;
    m_queue.clear();
    m_intake.processCanceled = true;
    // An intake that is about to meet this thread must find it, or neither would come to its end.
    constexpr int patience = 5;
    while (!m_queue.waitForDone(patience) || isRunning()) {
        QCoreApplication::sendPostedEvents(this, QEvent::User);
        m_intake.processCanceled = true;
    }
}

void TSPhotoIntakeController::addPhotosFromBrowserViewDragging(const QList<QUrl> &urls, qint64 insertAtIndex)
{
    start(urls, true, insertAtIndex);
}

void TSPhotoIntakeController::start(const QList<QUrl> &urls, bool isInsert, qint64 insertAtIndex)
{
    // Made here if nobody has yet, since this is not for other threads.
    TSDataManager::dataManager();
    TSPhotoManager::photoManager();
    {
        const std::lock_guard lock(m_meeting);
        m_drops.push_back({pathsOf(urls), isInsert, insertAtIndex});
    }
    m_queue.start(this);
}

void TSPhotoIntakeController::run()
{
    Drop drop;
    {
        const std::lock_guard lock(m_meeting);
        drop = std::move(m_drops.front());
        m_drops.pop_front();
        m_isRunning = true;
    }
    addItemsFromURLs(drop.paths, drop.isInsert, drop.insertAtIndex);
    const std::lock_guard lock(m_meeting);
    m_isRunning = false;
}

bool TSPhotoIntakeController::isRunning()
{
    const std::lock_guard lock(m_meeting);
    return m_isRunning;
}

void TSPhotoIntakeController::syncOnMainThread(const std::function<void()> &operation)
{
    if (QThread::currentThread() == thread()) {
        operation();
        return;
    }
    std::unique_lock lock(m_meeting);
    m_operation = &operation;
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    m_isPerformed.wait(lock, [this] { return !m_operation; });
}

void TSPhotoIntakeController::customEvent(QEvent *)
{
    performOperation();
}

/// The lock is not held meanwhile: an alert may let the main thread go on.
void TSPhotoIntakeController::performOperation()
{
    const std::function<void()> *operation = nullptr;
    {
        const std::lock_guard lock(m_meeting);
        operation = m_operation;
    }
    if (!m_isEnding)
        (*operation)();
    const std::lock_guard lock(m_meeting);
    m_operation = nullptr;
    m_isPerformed.notify_one();
}

void TSPhotoIntakeController::addItemsFromURLs(const QStringList &paths, bool isInsert, qint64 insertAtIndex)
{
    TSDataManager *data = TSDataManager::dataManager();
    syncOnMainThread([this] {
        m_host.showProcessingView(true, qtTrId("Loading..."), true);
        m_intake.processCanceled = false;
    });
    m_intake.clearRepeatedFileNames();
    // A cancel that came before this is not seen.
    m_intake.processCanceled = false;
    m_intake.insertAtIndex = insertAtIndex;
    m_intake.addItemsWithURLs(paths, isInsert);
    syncOnMainThread([this] { m_host.showProcessingView(false, QString(), false); });
    data->isRemoveAllPhotos = false;
    data->isSelectedPhotoChanged = true;
    syncOnMainThread([this] { m_strip.cancelCacheImages(); });
    if (m_intake.isHasAddItem && data->photoCount() > 0)
        syncOnMainThread([this, isInsert] { showNewPhotos(isInsert); });
    m_intake.isHasAddItem = false;
    if (!m_intake.repeatedFileNames().isEmpty())
        showAlert();
}

void TSPhotoIntakeController::showNewPhotos(bool isInsert)
{
    m_strip.reloadData();
    const bool isBehindInserted = isInsert && m_intake.insertAtIndex >= 0;
    const qint64 end = isBehindInserted ? m_intake.insertAtIndex : TSDataManager::dataManager()->photoCount();
    // By now the position has passed the last photo of the drop. When nothing came of it, that is the photo
    // before the drop, and there may be none.
    if (end > 0) {
        m_strip.scrollIndexToVisible(end - 1);
        m_strip.setSelectionIndex(end - 1);
    }
    m_strip.updateStartView();
}

/// The names decide whether the message comes, and are not told by it.
void TSPhotoIntakeController::showAlert()
{
    syncOnMainThread([this] { m_host.showAlert(qtTrId("can'tAddRepeatedly"), qtTrId("imagesFiltered")); });
}

void TSPhotoIntakeController::cancelProcessAction()
{
    m_intake.processCanceled = true;
    m_host.showProcessingView(false, QString(), false);
    // The intake tells the same when it has come to its end. Both messages are wanted.
    if (!m_intake.repeatedFileNames().isEmpty())
        showAlert();
}

/// The lists and the rows change on the main thread as well: after a cancel the sheet no longer keeps the
/// user from them, while the file at hand is still being read.
void TSPhotoIntakeController::photoIsReady(const QString &path, const std::function<void()> &join)
{
    syncOnMainThread([&] {
        m_host.setProcessTitle(QStringLiteral("%1:%2").arg(qtTrId("LoadingPhoto"), path));
        if (!m_strip.isRemoveEnabled())
            m_strip.setRemoveEnabled(true);
        join();
    });
}

void TSPhotoIntakeController::photoWasAdded(const QString &, qint64) {}

void TSPhotoIntakeController::fileWasGivenUp(const QString &)
{
    if (TSDataManager::dataManager()->photoCount() == 0)
        syncOnMainThread([this] { m_strip.setRemoveEnabled(false); });
}

void TSPhotoIntakeController::fileWasRefused(const QString &path, const QString &reason)
{
    syncOnMainThread([&] { m_host.fileWasRefused(path, reason); });
}
