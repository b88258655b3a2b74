#pragma once

#include "export/TSExportHost.h"
#include "export/TSExportRun.h"
#include "naming/TSOutputSettings.h"

#include <functional>
#include <memory>
#include <QObject>
#include <QPointer>
#include <QThreadPool>

class QWidget;
class TSFormatWindowController;
class TSProgressBarWindowController;

/// The road of an export: the format sheet, the choice of a folder, the run on a thread of its own behind the
/// progress sheet, the three questions, the result. Lives on the main thread.
class TSExportController : public QObject, private TSExportHost {
    Q_OBJECT

public:
    explicit TSExportController(QWidget &window);
    /// A run under way is cancelled: the photo at hand is not written, and no half of it is left.
    ~TSExportController() override;

    void exportPhotos();
    bool isRunning() const { return m_run != nullptr; }

private:
    void openSavePanel();
    void start(const QString &folder);
    void end();
    void ask(const std::function<void()> &question);

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
    std::unique_ptr<TSExportRun> m_run;
    /// Made at the first use and kept, with what stands in its fields.
    QPointer<TSFormatWindowController> m_formatWC;
    QPointer<TSProgressBarWindowController> m_progress;
    QThreadPool m_queue;
};
