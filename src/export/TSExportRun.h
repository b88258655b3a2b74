#pragma once

#include "export/TSExportHost.h"
#include "export/TSExportTargets.h"
#include "export/TSExportWorkers.h"
#include "export/TSOutputComposer.h"
#include "export/TSOutputWriter.h"
#include "export/TSPendingOutcomes.h"
#include "export/TSRunSession.h"

#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <QElapsedTimer>
#include <QStringList>

class TSImageBrowserItem;

/// The run over the photo list: one file for every photo. The thread that calls `savePhotos` walks the list:
/// it composes each photo's marks and chooses its file's name, in list order, and asks and tells the host.
/// Photos then stream side by side on threads of their own, each giving the same file as it would alone.
///
/// The flags may be set from any thread, and are looked at four times in each photo and while its picture
/// streams through.
class TSExportRun {
public:
    explicit TSExportRun(TSExportHost &host);

    std::atomic<bool> isPausing = false;
    std::atomic<bool> isCancelled = false;

    /// Goes through everything but writes no file: each photo's outcome tells the name it would get.
    bool isDryRun = false;
    /// A photo on which no mark shows is not written.
    bool isStrict = false;
    /// How many photos stream at once; 0 for as many as there are processors. Fewer do where they would take
    /// half of the machine's memory.
    int jobs = 0;
    /// In pixels, which is 20000 by 20000: whoever exports more is asked first.
    static constexpr double biggestWithoutAsking = 400000000;
    /// A photo whose output has more pixels than this is not made; 0 for no limit.
    double largestOutput = 0;
    /// Files that are no more written to than the photos of the list.
    QStringList keptFiles;
    /// Called for each photo of a dry run with the places of its marks.
    std::function<void(qint64 index, const std::vector<TSMarkPlacement> &)> placed;

    /// A folder that is not there ends the run without a word to the host. The session ends on this thread.
    void savePhotos(const QString &folder, std::unique_ptr<TSRunSession> session = TSRunSession::snapshot());
    /// Every path that a write was attempted to, in order, whether it worked or not.
    const QStringList &savedPaths() const { return m_savedPaths; }
    qint64 savedCount() const { return m_savedCount; }

private:
    enum class Step { GoOn, Leave };
    using File = std::shared_ptr<platform::AtomicFile>;
    /// A photo that is ready to stream.
    struct Job {
        TSOutputImage image;
        TSOutputRequest request;
        TSExportOutcome outcome;
        QElapsedTimer timer;
    };

    void walk();
    bool isGivenUp() const;
    bool isLeaving();
    Step exportPhoto(qint64 index);
    void tellMissing(qint64 index, const QString &path, TSExportOutcome &outcome);
    Step saveImage(qint64 index, const TSPhoto &photo, const TSImageBrowserItem &item,
                   TSExportOutcome &outcome);
    Step chooseTarget(qint64 index, TSExportOutcome &outcome);
    void waitForNamesLike(const QString &name, const QString &path);
    Step resolveConflict(const QString &name, QString &path);
    void ask(const QString &path);
    bool isRefused(const QString &path, TSExportOutcome &outcome);
    void addWarnings(const TSOutputImage &image, TSExportOutcome &outcome) const;
    bool isTooBig(const TSPhoto &photo) const;
    void stream(qint64 index, Job job);
    TSExportOutcome streamed(qint64 index, Job &job);
    File takeUnnamed(qint64 index);
    void nameLate(qint64 index, platform::AtomicFile &file, TSExportOutcome &outcome);
    QString take(qint64 index, platform::AtomicFile &file);
    void report(qint64 index, bool isNamed, TSExportOutcome outcome);
    void tell(qint64 index, bool isNamed, TSExportOutcome outcome);
    void finish();

    TSExportHost &m_host;
    TSOutputComposer m_composer;
    TSOutputWriter m_writer;
    TSExportTargets m_targets;
    QStringList m_savedPaths;
    qint64 m_savedCount = 0;
    bool m_isSkip = false;
    bool m_isStopped = false;
    int m_conflictChoice = TSConflictChoice::NotAsked;
    QElapsedTimer m_photoTimer;
    std::unique_ptr<TSRunSession> m_session;
    std::mutex m_unnamedLock;
    /// Complete but for their names, which others took meanwhile; by photo.
    std::map<qint64, File> m_unnamed;
    TSPendingOutcomes m_pending;
    std::optional<TSExportWorkers> m_workers;
};
