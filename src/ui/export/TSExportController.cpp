#include "ui/export/TSExportController.h"

#include "controls/TSCheckBoxAlert.h"
#include "platform/system/UserDefaults.h"
#include "session/TSDataManager.h"
#include "session/TSLastFolder.h"
#include "session/TSNotificationCenter.h"
#include "ui/export/TSFormatWindowController.h"
#include "ui/export/TSProgressBarWindowController.h"
#include "ui/export/TSSaveInfoWindowController.h"

#include <QFileDialog>
#include <QFileInfo>

namespace {

constexpr int largestSide = 20000;

TSDataManager *session()
{
    return TSDataManager::dataManager();
}

/// A long name would leave the question, which is as wide as its words.
QString shortened(const QString &name)
{
    constexpr qsizetype part = 20;
    return name.size() > 2 * part + 1 ? name.left(part) + u'…' + name.right(part) : name;
}

} // namespace

TSExportController::TSExportController(QWidget &window) : m_window(window)
{
    m_settings.initSettingsView();
    m_formatWC = new TSFormatWindowController(m_settings, &m_window);
    m_pbWC = new TSProgressBarWindowController(&m_window);
    m_saveInfoWC = new TSSaveInfoWindowController(&m_window);
    connect(TSNotificationCenter::defaultCenter(), &TSNotificationCenter::TSOpenSavePanel, this,
            &TSExportController::closeFormatWindow);
    connect(m_pbWC, &TSProgressBarWindowController::isPausingChanged, this, [this](bool isPausing) {
        if (m_run)
            m_run->isPausing = isPausing;
        if (!isPausing && !m_pbWC->isCancelled())
            m_isQuitting = false;
    });
    connect(m_pbWC, &TSProgressBarWindowController::isCancelledChanged, this, [this](bool isCancelled) {
        if (m_run)
            m_run->isCancelled = isCancelled;
        if (isCancelled)
            session()->isExitExport = true;
    });
    connect(m_saveInfoWC, &TSSaveInfoWindowController::showChanged, this,
            &TSExportController::showSaveInfoDidChange);
    connect(m_saveInfoWC, &TSSaveInfoWindowController::didClose, this, &TSExportController::saveInfoDidClose);
}

TSExportController::~TSExportController()
{
    abandonRun();
    delete m_formatWC;
    delete m_pbWC;
    delete m_saveInfoWC;
    delete m_savePanel;
}

void TSExportController::abandonRun()
{
    if (m_run) {
        m_run->isCancelled = true;
        m_run->isPausing = false;
    }
    m_questions.giveUp();
    if (m_thread.joinable())
        m_thread.join();
}

void TSExportController::quitRun()
{
    m_isQuitting = isRunning();
    if (m_isQuitting)
        m_pbWC->askToQuit();
}

void TSExportController::addRunAction(QAction *action)
{
    m_pbWC->addAction(action);
}

void TSExportController::exportPhotos()
{
    if (isRunning() || session()->photoCount() == 0)
        return;
    m_formatWC->setPhotoCount(session()->photoCount());
    m_formatWC->open();
}

QFileDialog *TSExportController::savePanel()
{
    if (m_savePanel)
        return m_savePanel;
    m_savePanel = new QFileDialog(&m_window, qtTrId("ChooseFolder"));
    m_savePanel->setObjectName(QStringLiteral("savePanel"));
    m_savePanel->setFileMode(QFileDialog::Directory);
    m_savePanel->setOption(QFileDialog::ShowDirsOnly);
    m_savePanel->setSupportedSchemes({QStringLiteral("file")});
    // Settled: the same word in every language.
    m_savePanel->setLabelText(QFileDialog::Accept, QStringLiteral("Save"));
    m_savePanel->setWindowModality(Qt::WindowModal);
    connect(m_savePanel, &QDialog::finished, this, &TSExportController::savePanelDidEnd);
    return m_savePanel;
}

void TSExportController::closeFormatWindow()
{
    if (m_formatWC->isSavePhotos())
        openSavePanel();
}

void TSExportController::openSavePanel()
{
    savePanel()->setDirectory(TSLastFolder(TSFolderUse::Output));
    savePanel()->open();
}

void TSExportController::savePanelDidEnd(int result)
{
    m_formatWC->setIsSavePhotos(false);
    const QString folder = m_savePanel->selectedFiles().value(0);
    if (result == QDialog::Accepted && !folder.isEmpty())
        start(folder);
}

void TSExportController::start(const QString &folder)
{
    m_folder = folder;
    TSRememberFolder(TSFolderUse::Output, folder);
    m_report = TSExportReport();
    m_isQuitting = false;
    m_run = std::make_unique<TSExportRun>(static_cast<TSExportHost &>(*this));
    m_pbWC->setIndeterminate(true);
    m_pbWC->setIsCancelled(false);
    m_pbWC->setCanCancel(true);
    m_pbWC->setTip(qtTrId("Converting..."));
    m_pbWC->open();
    m_launcher.show(0);
    m_sleep.hold(qtTrId("ExportInhibit"));
    Q_EMIT TSNotificationCenter::defaultCenter()->TSExportImageNames();
    m_thread = std::thread([this, folder, session = TSRunSession::snapshot()]() mutable {
        m_run->savePhotos(folder, std::move(session));
        QMetaObject::invokeMethod(this, &TSExportController::end, Qt::QueuedConnection);
    });
}

/// The run's own messages have been delivered: they stood in the same queue.
void TSExportController::end()
{
    m_thread.join();
    m_launcher.hide();
    m_sleep.release();
    if (m_pbWC->isVisible())
        m_pbWC->endSheet();
    const bool wasCancelled = m_run->isCancelled;
    m_run.reset();
    if (wasCancelled && m_isQuitting)
        Q_EMIT runWasQuit();
    else
        reportFailures(wasCancelled);
}

/// A photo that failed is told of, also where no result sheet comes.
void TSExportController::reportFailures(bool wasCancelled)
{
    const bool neverBegan = m_report.writtenCount() + m_report.missedCount() == 0;
    if (const QString reason = TSExportReport::folderReason(m_folder);
        !wasCancelled && neverBegan && !reason.isEmpty() && !session()->exportNames.isEmpty())
        m_report.addAll(session()->photoCount(), reason);
    if (m_report.failedCount() == 0 || m_saveInfoWC->isVisible())
        return;
    auto *alert =
        TSCheckBoxAlert::alertWithMessageText(qtTrId("NotWritten", int(m_report.failedCount())), qtTrId("OK"),
                                              {}, {}, m_report.sentences(), &m_window);
    alert->setAttribute(Qt::WA_DeleteOnClose);
    alert->open();
}

void TSExportController::updateShowSaveInfo()
{
    m_saveInfoWC->updateCbShow();
}

void TSExportController::onMainThread(const std::function<void()> &block)
{
    QMetaObject::invokeMethod(this, block, Qt::QueuedConnection);
}

bool TSExportController::continueWithBiggerPhoto()
{
    const auto newAlert = [this] {
        auto *alert = TSCheckBoxAlert::alertWithMessageText(
            qtTrId("PhotoBiggerTitle"), qtTrId("Cancel"), qtTrId("Continue"), {},
            qtTrId("PhotoBigger").arg(largestSide).arg(largestSide), m_pbWC);
        alert->setEscapeAnswer(TSCheckBoxAlert::DefaultReturn);
        return alert;
    };
    return m_questions.ask(newAlert, TSCheckBoxAlert::DefaultReturn) != TSCheckBoxAlert::DefaultReturn;
}

void TSExportController::sourceIsMissing(const QString &)
{
    // Settled: both buttons let the run go on.
    const auto newAlert = [this] {
        return TSCheckBoxAlert::alertWithMessageText(qtTrId("No Picture Title"), qtTrId("OK"),
                                                     qtTrId("ExportStop"), {}, qtTrId("No Picture"), m_pbWC);
    };
    m_questions.ask(newAlert, TSCheckBoxAlert::DefaultReturn);
}

int TSExportController::nameIsTaken(const QString &path)
{
    static_assert(int(TSCheckBoxAlert::DefaultReturn) == TSConflictChoice::Rename &&
                  int(TSCheckBoxAlert::AlternateReturn) == TSConflictChoice::Stop &&
                  int(TSCheckBoxAlert::OtherReturn) == TSConflictChoice::Replace);
    const auto newAlert = [this, path] {
        auto *alert = TSCheckBoxAlert::alertWithMessageText(
            qtTrId("NameRepetitionTitle").arg(shortened(QFileInfo(path).fileName())), qtTrId("Rename"),
            qtTrId("Stop"), qtTrId("Replace"), qtTrId("NameRepetition"), m_pbWC);
        alert->setEscapeAnswer(TSCheckBoxAlert::AlternateReturn);
        return alert;
    };
    return m_questions.ask(newAlert, TSConflictChoice::Stop);
}

void TSExportController::photoIsDone(qint64 index, const TSExportOutcome &outcome)
{
    const auto item = session()->itemAtIndex(index);
    m_report.add(item ? item->path : QString(), outcome);
    onMainThread([this, index] { m_launcher.show(double(index + 1) / double(session()->photoCount())); });
}

void TSExportController::setProgressTip(qint64 index)
{
    onMainThread([this, index] {
        m_pbWC->setTip(QStringLiteral("%1(%2/%3)")
                           .arg(qtTrId("Converting..."))
                           .arg(index + 1)
                           .arg(session()->photoCount()));
    });
}

void TSExportController::closeProgressSheet()
{
    onMainThread([this] { m_pbWC->endSheet(); });
}

void TSExportController::successfulSaveToPath(const QString &path)
{
    onMainThread([this, path] {
        if (!platform::UserDefaults::standard().boolForKey(TSSaveInfoWindowController::showKey()))
            return;
        m_saveInfoWC->setPath(path);
        m_saveInfoWC->setReport(m_report);
        m_saveInfoWC->open();
    });
}
