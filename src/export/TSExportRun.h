#pragma once

#include "export/TSExportHost.h"
#include "export/TSOutputComposer.h"
#include "export/TSOutputWriter.h"

#include <atomic>
#include <memory>
#include <QElapsedTimer>
#include <QSet>
#include <QStringList>

class TSImageBrowserItem;

/// The run over the photo list: one file for every photo, in list order, on whatever thread calls
/// `savePhotos`. The host answers its questions; the flags may be set from any thread, and are looked at
/// three times in each photo and while its picture streams through.
class TSExportRun {
public:
    explicit TSExportRun(TSExportHost &host);

    std::atomic<bool> isPausing = false;
    std::atomic<bool> isCancelled = false;

    /// Goes through everything but writes no file: each photo's outcome tells the name it would get.
    bool isDryRun = false;
    /// A photo whose output has more pixels than this is not made; 0 for no limit.
    double largestOutput = 0;
    /// Files that are no more written to than the photos of the list.
    QStringList keptFiles;
    /// Called for each photo of a dry run with the places of its marks.
    std::function<void(qint64 index, const std::vector<TSMarkPlacement> &)> placed;

    void savePhotos(const QString &folder);
    /// Every path that a write was attempted to, in order, whether it worked or not.
    const QStringList &savedPaths() const { return m_savedPaths; }
    qint64 savedCount() const { return m_savedCount; }

    /// Computes the output sizes of all photos, and answers whether one is above 400000000 pixels.
    static bool isHasBiggerPhoto();

private:
    enum class Step { GoOn, Leave };

    bool isLeaving();
    Step exportPhoto(qint64 index);
    Step saveImage(qint64 index, const TSPhoto &photo, const TSImageBrowserItem &item,
                   TSExportOutcome &outcome);
    Step resolveConflict(const QString &name, QString &path);
    void writeImage(TSOutputImage &image, const TSPhoto &photo, const TSImageBrowserItem &item,
                    TSExportOutcome &outcome);
    bool isTooBig(const TSPhoto &photo) const;
    bool isTaken(const QString &path) const;
    QString uniquePath(const QString &name) const;
    bool isOriginal(const QString &path) const;
    void rememberOriginals();
    void finish();

    TSExportHost &m_host;
    TSOutputComposer m_composer;
    TSOutputWriter m_writer;
    QString m_folder;
    QStringList m_savedPaths;
    qint64 m_savedCount = 0;
    bool m_isSkip = false;
    int m_conflictChoice = TSConflictChoice::NotAsked;
    QSet<QString> m_originals;
    QSet<QString> m_plannedPaths;
};
