#pragma once

#include "export/TSExportHost.h"
#include "export/TSExportRun.h"
#include "naming/TSOutputSettings.h"
#include "ui/export/TSExportQuestions.h"
#include "ui/export/TSExportReport.h"
#include "ui/export/TSLauncherProgress.h"
#include "ui/export/TSSleepInhibitor.h"

#include <functional>
#include <memory>
#include <QObject>
#include <QPointer>
#include <thread>

class QAction;
class QFileDialog;
class TSFormatWindowController;
class TSProgressBarWindowController;
class TSSaveInfoWindowController;

/// The road of an export: the format sheet, the choice of a folder, the run on a thread of its own behind the
/// progress sheet, the three questions, the result. Lives on the main thread. The sheets hang from the
/// window, which outlives the controller.
class TSExportController : public QObject, private TSExportHost {
    Q_OBJECT

public:
    explicit TSExportController(QWidget &window);
    /// A run under way is cancelled: the photo at hand is not written, and no half of it is left.
    ~TSExportController() override;

    void exportPhotos();
    /// Cancels the run under way and waits for its thread, whatever it asks; no widget is touched.
    void abandonRun();
    /// Asks whether to cancel the run under way in order to leave the program, and tells of it by
    /// `runWasQuit` once the photo at hand has ended. A run that ends by itself before the answer is told as
    /// ever.
    void quitRun();
    /// What the keys do while a run has them.
    void addRunAction(QAction *action);
    bool isRunning() const { return m_run != nullptr; }
    /// Takes up what the preferences changed.
    void updateShowSaveInfo();

Q_SIGNALS:
    /// The user changed, on the result sheet, whether it is wanted.
    void showSaveInfoDidChange();
    void saveInfoDidClose();
    void runWasQuit();

private:
    QFileDialog *savePanel();
    void closeFormatWindow();
    void openSavePanel();
    void savePanelDidEnd(int result);
    void start(const QString &folder);
    void end();
    void reportFailures(bool wasCancelled);
    void onMainThread(const std::function<void()> &block);

    // On the thread of the run.
    bool continueWithBiggerPhoto() override;
    void sourceIsMissing(const QString &path) override;
    int nameIsTaken(const QString &path) override;
    void photoIsDone(qint64 index, const TSExportOutcome &outcome) override;
    void setProgressTip(qint64 index) override;
    void closeProgressSheet() override;
    void successfulSaveToPath(const QString &path) override;

    QWidget &m_window;
    TSOutputSettings m_settings;
    TSFormatWindowController *m_formatWC;
    TSProgressBarWindowController *m_pbWC;
    TSSaveInfoWindowController *m_saveInfoWC;
    QPointer<QFileDialog> m_savePanel;
    TSExportQuestions m_questions;
    TSLauncherProgress m_launcher;
    TSSleepInhibitor m_sleep;
    TSExportReport m_report;
    std::unique_ptr<TSExportRun> m_run;
    bool m_isQuitting = false;
    QString m_folder;
    std::thread m_thread;
};
