#include "ui/export/TSExportController.h"

#include "platform/UserDefaults.h"
#include "session/TSDataManager.h"
#include "session/TSNotificationCenter.h"
#include "ui/export/TSFormatWindowController.h"
#include "ui/export/TSProgressBarWindowController.h"
#include "ui/export/TSSaveInfoWindowController.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QWidget>

namespace {

constexpr int largestSide = 20000;

QMessageBox *newQuestion(QWidget *window, const QString &message, const QString &informative)
{
    auto *box = new QMessageBox(QMessageBox::Warning, {}, message, QMessageBox::NoButton, window);
    box->setInformativeText(informative);
    box->setWindowModality(Qt::WindowModal);
    return box;
}

} // namespace

TSExportController::TSExportController(QWidget &window) : m_window(window)
{
    m_queue.setMaxThreadCount(1);
    m_settings.initSettingsView();
    m_settings.namePattern().initObserver();
}

TSExportController::~TSExportController()
{
    if (m_run)
        m_run->isCancelled = true;
    m_queue.waitForDone();
}

void TSExportController::exportPhotos()
{
    if (isRunning() || TSDataManager::dataManager()->photoCount() == 0)
        return;
    if (!m_formatWC)
        m_formatWC = new TSFormatWindowController(m_settings, &m_window);
    if (m_formatWC->exec() != QDialog::Accepted)
        return;
    Q_EMIT TSNotificationCenter::defaultCenter()->TSOpenSavePanel();
    openSavePanel();
}

void TSExportController::openSavePanel()
{
    const QString folder = QFileDialog::getExistingDirectory(&m_window, qtTrId("ChooseFolder"));
    if (!folder.isEmpty())
        start(folder);
}

void TSExportController::start(const QString &folder)
{
    m_run = std::make_unique<TSExportRun>(static_cast<TSExportHost &>(*this));
    m_progress = new TSProgressBarWindowController(*m_run, &m_window);
    m_progress->setTip(qtTrId("Converting..."));
    m_progress->open();
    Q_EMIT TSNotificationCenter::defaultCenter()->TSExportImageNames();
    m_queue.start([this, folder] {
        m_run->savePhotos(folder);
        QMetaObject::invokeMethod(this, &TSExportController::end, Qt::QueuedConnection);
    });
}

/// The run's own messages have been delivered: they stood in the same queue.
void TSExportController::end()
{
    if (m_progress)
        m_progress->deleteLater();
    m_run.reset();
}

/// Asks on the main thread, while the run waits.
void TSExportController::ask(const std::function<void()> &question)
{
    QMetaObject::invokeMethod(this, question, Qt::BlockingQueuedConnection);
}

bool TSExportController::continueWithBiggerPhoto()
{
    bool isToContinue = false;
    ask([&] {
        const auto box = std::unique_ptr<QMessageBox>(newQuestion(
            &m_window, qtTrId("PhotoBiggerTitle"), qtTrId("PhotoBigger").arg(largestSide).arg(largestSide)));
        box->setDefaultButton(box->addButton(qtTrId("Cancel"), QMessageBox::RejectRole));
        const QAbstractButton *goOn = box->addButton(qtTrId("Continue"), QMessageBox::AcceptRole);
        box->exec();
        isToContinue = box->clickedButton() == goOn;
    });
    return isToContinue;
}

void TSExportController::sourceIsMissing(const QString &)
{
    ask([&] {
        const auto box = std::unique_ptr<QMessageBox>(
            newQuestion(&m_window, qtTrId("No Picture Title"), qtTrId("No Picture")));
        box->setDefaultButton(box->addButton(qtTrId("OK"), QMessageBox::AcceptRole));
        box->addButton(qtTrId("ExportStop"), QMessageBox::RejectRole);
        box->exec();
    });
}

int TSExportController::nameIsTaken(const QString &)
{
    int choice = TSConflictChoice::Stop;
    ask([&] {
        const auto box = std::unique_ptr<QMessageBox>(
            newQuestion(&m_window, qtTrId("NameRepetitionTitle"), qtTrId("NameRepetition")));
        QPushButton *rename = box->addButton(qtTrId("Rename"), QMessageBox::AcceptRole);
        box->addButton(qtTrId("Stop"), QMessageBox::RejectRole);
        const QPushButton *replace = box->addButton(qtTrId("Replace"), QMessageBox::DestructiveRole);
        box->setDefaultButton(rename);
        box->exec();
        if (box->clickedButton() == rename)
            choice = TSConflictChoice::Rename;
        else if (box->clickedButton() == replace)
            choice = TSConflictChoice::Replace;
    });
    return choice;
}

void TSExportController::photoIsDone(qint64, const TSExportOutcome &) {}

void TSExportController::setProgressTip(qint64 index)
{
    QMetaObject::invokeMethod(
        this,
        [this, index] {
            if (m_progress)
                m_progress->setTip(QStringLiteral("%1(%2/%3)")
                                       .arg(qtTrId("Converting..."))
                                       .arg(index + 1)
                                       .arg(TSDataManager::dataManager()->photoCount()));
        },
        Qt::QueuedConnection);
}

void TSExportController::closeProgressSheet()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_progress)
                m_progress->done(QDialog::Accepted);
        },
        Qt::QueuedConnection);
}

void TSExportController::successfulSaveToPath(const QString &path)
{
    QMetaObject::invokeMethod(
        this,
        [this, path] {
            if (platform::UserDefaults::standard().boolForKey(TSSaveInfoWindowController::showKey()))
                (new TSSaveInfoWindowController(path, &m_window))->open();
        },
        Qt::QueuedConnection);
}
