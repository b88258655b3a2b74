#pragma once

#include "export/TSExportHost.h"
#include "export/TSExportTargets.h"
#include "export/TSOutputComposer.h"
#include "export/TSOutputWriter.h"

#include <atomic>
#include <future>
#include <memory>
#include <optional>
#include <QElapsedTimer>
#include <QStringList>

class TSImageBrowserItem;

/// The run over the photo list: one file for every photo, in list order, on whatever thread calls
/// `savePhotos`. The host answers its questions; the flags may be set from any thread, and are looked at
/// four times in each photo and while its picture streams through. While a photo streams, the one before it
/// is still being written on another thread; what becomes of it is told before anything of a later one is.
class TSExportRun {
public:
    explicit TSExportRun(TSExportHost &host);

    std::atomic<bool> isPausing = false;
    std::atomic<bool> isCancelled = false;

    /// Goes through everything but writes no file: each photo's outcome tells the name it would get.
    bool isDryRun = false;
    /// In pixels, which is 20000 by 20000: whoever exports more is asked first.
    static constexpr double biggestWithoutAsking = 400000000;
    /// A photo whose output has more pixels than this is not made; 0 for no limit.
    double largestOutput = 0;
    /// Files that are no more written to than the photos of the list.
    QStringList keptFiles;
    /// Called for each photo of a dry run with the places of its marks.
    std::function<void(qint64 index, const std::vector<TSMarkPlacement> &)> placed;

    /// A folder that is not there ends the run without a word to the host.
    void savePhotos(const QString &folder);
    /// Every path that a write was attempted to, in order, whether it worked or not.
    const QStringList &savedPaths() const { return m_savedPaths; }
    qint64 savedCount() const { return m_savedCount; }

    /// Computes the output sizes of all photos, and answers whether one is above `biggestWithoutAsking`.
    static bool isHasBiggerPhoto();

private:
    /// What follows a photo: its outcome is there, or it comes once the file is written, or the run ends.
    enum class Step { GoOn, Later, Leave };
    /// The photo whose file is being written.
    struct Trailing {
        qint64 index;
        QString path;
        std::future<TSExportOutcome> outcome;
    };

    bool isLeaving();
    Step exportPhoto(qint64 index);
    void report(qint64 index, TSExportOutcome &outcome);
    Step saveImage(qint64 index, const TSPhoto &photo, const TSImageBrowserItem &item,
                   TSExportOutcome &outcome);
    bool isBoundToTrailing(const QString &name, const QString &path) const;
    Step resolveConflict(const QString &name, QString &path);
    Step writeImage(qint64 index, TSOutputImage &image, const TSOutputRequest &request,
                    TSExportOutcome &outcome);
    void writeBehind(qint64 index, TSEncodedOutput encoded, const TSOutputRequest &request,
                     const TSExportOutcome &begun);
    bool isTooBig(const TSPhoto &photo) const;
    bool isRefused(const QString &path, TSExportOutcome &outcome);
    void settle();
    void settleIfWritten();
    void finish();

    TSExportHost &m_host;
    TSOutputComposer m_composer;
    TSOutputWriter m_writer;
    TSExportTargets m_targets;
    QStringList m_savedPaths;
    qint64 m_savedCount = 0;
    bool m_isSkip = false;
    int m_conflictChoice = TSConflictChoice::NotAsked;
    QElapsedTimer m_photoTimer;
    std::optional<Trailing> m_trailing;
};
