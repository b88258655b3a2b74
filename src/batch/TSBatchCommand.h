#pragma once

#include "batch/TSBatchOptions.h"
#include "batch/TSBatchReporter.h"
#include "export/TSExportRun.h"
#include "session/TSPhotoIntake.h"

/// The exit statuses of the command.
namespace TSBatchStatus {
constexpr int AllWritten = 0;
constexpr int SomeNotWritten = 1;
constexpr int WrongUsage = 2;
constexpr int Interrupted = 130;
} // namespace TSBatchStatus

/// The headless command: the same session, overlays and export as the window's, from a command line. One at a
/// time in a process, on the main thread; needs an application object.
class TSBatchCommand : private TSExportHost, private TSPhotoIntakeDelegate {
public:
    /// Runs a whole command and answers its exit status.
    static int run(const QStringList &arguments);

private:
    /// A photo of the list, a file that gave none, or with neither a file that was not come to.
    struct Entry {
        QString source;
        qint64 photo = -1;
        std::optional<TSExportOutcome> refusal = std::nullopt;
    };

    TSBatchCommand(const TSBatchOptions &options, TSBatchReporter &reporter);

    int exportAll();
    bool isExportWanted() const;
    bool writePhotos();
    bool saveProfile();
    bool warnOfFonts();
    void warnOfPictures(const QStringList &missing);
    void warnOfRefusals();
    void takePhotosIn();
    QString outputFolder() const;
    bool publishCanvas();
    void requestOutput();
    QString nameOutputs();
    void tellEntriesBefore(qint64 photo);
    void tellRest();
    TSExportOutcome outcomeOfRest() const;

    bool continueWithBiggerPhoto() override { return true; }
    void sourceIsMissing(const QString &) override {}
    int nameIsTaken(const QString &) override { return m_options.conflict; }
    void photoIsDone(qint64 index, const TSExportOutcome &outcome) override;
    void setProgressTip(qint64) override {}
    void closeProgressSheet() override {}
    void successfulSaveToPath(const QString &) override {}

    void photoWasAdded(const QString &path, qint64 index) override;
    void fileWasGivenUp(const QString &path) override;
    void fileWasRefused(const QString &path, const QString &reason) override;

    const TSBatchOptions &m_options;
    TSBatchReporter &m_reporter;
    TSExportRun m_run;
    std::vector<Entry> m_entries;
    size_t m_told = 0;
    QString m_givenPath;
    std::optional<std::vector<TSMarkPlacement>> m_placements;
};
