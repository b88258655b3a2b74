#include "export/TSExportRun.h"

#include "session/TSFileUtility.h"
#include "session/TSQuartzUtility.h"

#include <QThread>
#include <unistd.h>

using Status = TSExportOutcome::Status;

namespace {

QString wholeSize(const QSizeF &size)
{
    return QStringLiteral("%1 × %2").arg(size.width(), 0, 'f', 0).arg(size.height(), 0, 'f', 0);
}

/// In bytes.
double halfOfMemory()
{
    return 0.5 * double(sysconf(_SC_PHYS_PAGES)) * double(sysconf(_SC_PAGESIZE));
}

} // namespace

TSExportRun::TSExportRun(TSExportHost &host)
    : m_host(host), m_pending([this](qint64 index, bool isNamed, const TSExportOutcome &outcome) {
        tell(index, isNamed, outcome);
    })
{
    m_writer.isCancelled = [this] { return isGivenUp(); };
}

void TSExportRun::savePhotos(const QString &folder, std::unique_ptr<TSRunSession> session)
{
    m_isSkip = false;
    m_isStopped = false;
    if (!TSIsDirectory(folder))
        return;
    m_session = std::move(session);
    const TSRunSession::Current current(*m_session);
    m_session->isExitExport() = false;
    m_savedPaths.clear();
    m_savedCount = 0;
    m_conflictChoice = TSConflictChoice::NotAsked;
    if (m_session->data().exportNames.isEmpty()) {
        m_host.closeProgressSheet();
    } else {
        m_session->computeOutputSizes();
        m_targets.begin(folder, keptFiles);
        walk();
    }
    m_workers.reset();
    m_session.reset();
}

void TSExportRun::walk()
{
    if (m_session->isHasBiggerPhoto(biggestWithoutAsking) && !m_host.continueWithBiggerPhoto()) {
        m_host.closeProgressSheet();
        return;
    }
    m_workers.emplace(jobs > 0 ? jobs : QThread::idealThreadCount(), halfOfMemory());
    for (qint64 index = 0; index < m_session->data().photoCount(); ++index)
        if (exportPhoto(index) == Step::Leave)
            return;
    finish();
}

/// Any thread of the run.
bool TSExportRun::isGivenUp() const
{
    return isCancelled || m_session->isExitExport();
}

/// The gate that each photo passes.
bool TSExportRun::isLeaving()
{
    while (isPausing) {
        m_pending.tellEnded();
        QThread::usleep(1000);
    }
    if (!isGivenUp() && !m_isStopped)
        return false;
    m_pending.tellAll();
    if (isCancelled || m_isStopped)
        m_host.closeProgressSheet();
    return true;
}

TSExportRun::Step TSExportRun::exportPhoto(qint64 index)
{
    if (isLeaving())
        return Step::Leave;
    const auto photo = TSPhotoManager::photoManager()->photoAtIndex(index);
    const auto item = m_session->data().itemAtIndex(index);
    if (!photo || !item)
        return Step::GoOn;
    m_photoTimer.start();
    TSExportOutcome outcome;
    outcome.size = QSizeF(photo->photoOutputSize).toSize();
    if (!TSFileExists(item->sourcePath())) {
        tellMissing(index, item->sourcePath(), outcome);
    } else if (isTooBig(*photo)) {
        outcome.reason = qtTrId("The output would have %1 pixels, more than 20000 × 20000; make it smaller.")
                             .arg(wholeSize(photo->photoOutputSize));
        report(index, false, outcome);
    } else {
        return saveImage(index, *photo, *item, outcome);
    }
    return Step::GoOn;
}

void TSExportRun::tellMissing(qint64 index, const QString &path, TSExportOutcome &outcome)
{
    outcome.status = Status::Skipped;
    outcome.reason = qtTrId("The photo's file is no longer there.");
    if (!m_isSkip) {
        m_pending.tellAll();
        m_host.sourceIsMissing(path);
    }
    m_isSkip = true;
    report(index, false, outcome);
}

bool TSExportRun::isTooBig(const TSPhoto &photo) const
{
    const QSizeF &size = photo.photoOutputSize;
    return largestOutput > 0 && size.width() * size.height() > largestOutput;
}

TSExportRun::Step TSExportRun::saveImage(qint64 index, const TSPhoto &photo, const TSImageBrowserItem &item,
                                         TSExportOutcome &outcome)
{
    const QSizeF size = photo.photoOutputSize;
    m_composer.overlayArrays = m_session->overlays().overlays();
    std::optional<TSOutputImage> image = m_composer.createOutputImage(
        photo.path, QRectF(QPointF(0, 0), size), photo, index, size.width() / photo.photoSize.width());
    if (!image) {
        outcome.reason = m_composer.reason();
        report(index, false, outcome);
        return Step::GoOn;
    }
    outcome.size = image->size();
    if (chooseTarget(index, outcome) == Step::Leave)
        return Step::Leave;
    if (isDryRun && placed)
        placed(index, m_composer.placements(QSizeF(image->size()), photo));
    addWarnings(*image, outcome);
    if (isRefused(outcome.targetPath, outcome)) {
        report(index, true, outcome);
        return Step::GoOn;
    }
    const TSDataManager &data = m_session->data();
    const TSOutputRequest request{outcome.targetPath,
                                  data.type,
                                  data.quality,
                                  item.sourcePath(),
                                  photo.propertiesDic,
                                  m_conflictChoice == TSConflictChoice::Replace,
                                  m_conflictChoice == TSConflictChoice::Rename
                                      ? m_targets.nextPath(data.exportNames.value(index))
                                      : nullptr};
    stream(index, {std::move(*image), request, outcome, m_photoTimer});
    return Step::GoOn;
}

TSExportRun::Step TSExportRun::chooseTarget(qint64 index, TSExportOutcome &outcome)
{
    const QString name = m_session->data().exportNames.value(index);
    QString path = m_targets.path(name);
    waitForNamesLike(name, path);
    if (isLeaving())
        return Step::Leave;
    if (resolveConflict(name, path) == Step::Leave) {
        outcome.status = Status::Skipped;
        outcome.reason = qtTrId("The run was stopped: %1 is there already.").arg(path);
        m_host.closeProgressSheet();
        report(index, false, outcome);
        return Step::Leave;
    }
    outcome.targetPath = path;
    return isLeaving() ? Step::Leave : Step::GoOn;
}

/// Whether a name is free shows once the files before are there, and a question is asked about nothing less
/// than what the user can see.
void TSExportRun::waitForNamesLike(const QString &name, const QString &path)
{
    if (m_conflictChoice == TSConflictChoice::NotAsked && m_targets.isTaken(path))
        m_pending.tellAll();
    else
        m_pending.tellThrough([&](const QString &earlier) { return m_targets.mayMeet(name, earlier); });
}

TSExportRun::Step TSExportRun::resolveConflict(const QString &name, QString &path)
{
    if (m_conflictChoice == TSConflictChoice::NotAsked && m_targets.isTaken(path)) {
        ask(path);
        if (m_isStopped)
            return Step::Leave;
    }
    if (m_conflictChoice == TSConflictChoice::Rename)
        path = m_targets.uniquePath(name);
    return Step::GoOn;
}

void TSExportRun::ask(const QString &path)
{
    m_conflictChoice = m_host.nameIsTaken(path);
    m_isStopped = m_conflictChoice == TSConflictChoice::Stop;
}

bool TSExportRun::isRefused(const QString &path, TSExportOutcome &outcome)
{
    if (m_targets.isOriginal(path)) {
        outcome.reason = qtTrId("%1 is one of the originals and is not written to.").arg(path);
    } else if (outcome.isUnmarked && isStrict) {
        outcome.reason = qtTrId("No mark shows on this photo.");
    } else if (isDryRun) {
        m_targets.plan(path);
        outcome.status = Status::Skipped;
        outcome.reason = QStringLiteral("dry run");
    }
    return !outcome.reason.isEmpty();
}

/// Whoever puts marks on photos wants to see one on each.
void TSExportRun::addWarnings(const TSOutputImage &image, TSExportOutcome &outcome) const
{
    outcome.isUnmarked = m_session->overlays().overlayCount() > 0 && !image.isMarked();
    if (outcome.isUnmarked)
        outcome.warnings.append(qtTrId("No mark shows on this photo."));
    for (const QString &path : m_composer.missingPictures())
        outcome.warnings.append(qtTrId("The picture %1 of a mark cannot be read.").arg(path));
}

/// Returns as soon as there is room to stream the photo.
void TSExportRun::stream(qint64 index, Job job)
{
    const double memory = job.image.memory();
    const QString path = job.request.targetPath;
    const auto task = std::make_shared<std::packaged_task<TSExportOutcome()>>(
        [this, index, job = std::move(job)]() mutable { return streamed(index, job); });
    m_pending.add(index, path, task->get_future());
    m_workers->add(memory, [task] { (*task)(); });
    m_pending.tellEnded();
}

/// On a thread of its own.
TSExportOutcome TSExportRun::streamed(qint64 index, Job &job)
{
    TSEncodedOutput encoded;
    {
        const TSExportWorkers::Slot slot(*m_workers);
        encoded = m_writer.encode(job.image, job.request);
    }
    while (isPausing && !isGivenUp())
        QThread::usleep(1000);
    TSExportOutcome outcome = job.outcome;
    if (isGivenUp()) {
        outcome.status = Status::Skipped;
        outcome.reason = qtTrId("The export was cancelled.");
        return outcome;
    }
    const TSWriteResult result = m_writer.write(encoded, job.request);
    outcome.status = result.isWritten ? Status::Written : Status::Failed;
    outcome.reason = result.reason;
    if (result.isWritten)
        outcome.targetPath = result.path;
    if (result.unnamed) {
        const std::lock_guard lock(m_unnamedLock);
        m_unnamed[index] = result.unnamed;
    }
    if (!result.note.isEmpty())
        outcome.warnings.append(result.note);
    outcome.milliseconds = job.timer.elapsed();
    return outcome;
}

void TSExportRun::report(qint64 index, bool isNamed, TSExportOutcome outcome)
{
    outcome.milliseconds = m_photoTimer.elapsed();
    m_pending.add(index, isNamed, outcome);
}

TSExportRun::File TSExportRun::takeUnnamed(qint64 index)
{
    const std::lock_guard lock(m_unnamedLock);
    const auto found = m_unnamed.extract(index);
    return found ? found.mapped() : nullptr;
}

/// The name was free when the photo was begun. Another program may have taken it since, and what to do about
/// that is for the user to say like the rest.
void TSExportRun::nameLate(qint64 index, platform::AtomicFile &file, TSExportOutcome &outcome)
{
    if (m_conflictChoice == TSConflictChoice::NotAsked)
        ask(file.path());
    outcome.reason = take(index, file);
    outcome.targetPath = file.path();
    if (outcome.reason.isEmpty())
        outcome.status = Status::Written;
    else if (m_isStopped)
        outcome.status = Status::Skipped;
}

QString TSExportRun::take(qint64 index, platform::AtomicFile &file)
{
    if (m_conflictChoice == TSConflictChoice::Rename)
        return file.commitNew(m_targets.nextPath(m_session->data().exportNames.value(index)));
    if (m_isStopped)
        return qtTrId("The run was stopped: %1 is there already.").arg(file.path());
    if (m_targets.isOriginal(file.path()))
        return qtTrId("%1 is one of the originals and is not written to.").arg(file.path());
    return file.commit();
}

void TSExportRun::tell(qint64 index, bool isNamed, TSExportOutcome outcome)
{
    if (const auto file = takeUnnamed(index))
        nameLate(index, *file, outcome);
    if (isNamed)
        m_savedPaths.append(outcome.targetPath);
    if (outcome.status == Status::Written)
        ++m_savedCount;
    if (isNamed)
        m_host.setProgressTip(index);
    m_host.photoIsDone(index, outcome);
}

void TSExportRun::finish()
{
    m_pending.tellAll();
    m_host.closeProgressSheet();
    if (m_savedCount > 0 && !m_isStopped)
        m_host.successfulSaveToPath(m_savedPaths.constFirst());
}
