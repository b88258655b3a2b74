#include "export/TSExportRun.h"

#include "session/TSDataManager.h"
#include "session/TSFileUtility.h"
#include "session/TSPhotoManager.h"
#include "session/TSQuartzUtility.h"

#include <QThread>

using Status = TSExportOutcome::Status;

namespace {

QSizeF outputSize(const TSPhoto &photo)
{
    const TSDataManager *data = TSDataManager::dataManager();
    const double w = photo.photoSize.width();
    const double h = photo.photoSize.height();
    switch (data->resizeWay) {
    case TSResizeWay::ByWidth:
        return {data->outputWidth, data->outputWidth * h / w};
    case TSResizeWay::ByHeight:
        return {data->outputHeight * w / h, data->outputHeight};
    case TSResizeWay::ByPercentage:
        return {w * data->percentage / 100, h * data->percentage / 100};
    case TSResizeWay::FitSize:
        return TSAspectFitRect(QRectF(0, 0, w, h), QRectF(0, 0, data->outputWidth, data->outputHeight))
            .size();
    default:
        return {w, h};
    }
}

QString wholeSize(const QSizeF &size)
{
    return QStringLiteral("%1 × %2").arg(size.width(), 0, 'f', 0).arg(size.height(), 0, 'f', 0);
}

} // namespace

TSExportRun::TSExportRun(TSExportHost &host) : m_host(host)
{
    m_writer.isCancelled = [this] {
        // The run comes by here while a photo streams, and nowhere else for as long.
        settleIfWritten();
        return isCancelled || TSDataManager::dataManager()->isExitExport;
    };
}

void TSExportRun::savePhotos(const QString &folder)
{
    TSDataManager *data = TSDataManager::dataManager();
    m_isSkip = false;
    if (!TSIsDirectory(folder))
        return;
    data->isExitExport = false;
    m_savedPaths.clear();
    m_savedCount = 0;
    m_conflictChoice = TSConflictChoice::NotAsked;
    if (data->exportNames.isEmpty()) {
        m_host.closeProgressSheet();
        return;
    }
    if (isHasBiggerPhoto() && !m_host.continueWithBiggerPhoto()) {
        m_host.closeProgressSheet();
        return;
    }
    m_targets.begin(folder, keptFiles);
    for (qint64 index = 0; index < data->photoCount(); ++index)
        if (exportPhoto(index) == Step::Leave)
            return;
    finish();
}

bool TSExportRun::isHasBiggerPhoto()
{
    TSDataManager *data = TSDataManager::dataManager();
    bool isBigger = false;
    // The loop runs to its end whatever it finds: every output size has to be fresh.
    for (qint64 index = 0; index < data->photoCount(); ++index) {
        const auto photo = TSPhotoManager::photoManager()->photoAtIndex(index);
        if (!photo)
            continue;
        if (photo->photoSize.width() == 0)
            data->GetPhotoSize(index);
        const QSizeF size = outputSize(*photo);
        photo->photoOutputSize = size;
        isBigger = isBigger || size.width() * size.height() > biggestWithoutAsking;
    }
    return isBigger;
}

/// The gate that each photo passes four times.
bool TSExportRun::isLeaving()
{
    while (isPausing) {
        settle();
        QThread::usleep(1000);
    }
    if (!isCancelled && !TSDataManager::dataManager()->isExitExport)
        return false;
    settle();
    if (isCancelled)
        m_host.closeProgressSheet();
    return true;
}

TSExportRun::Step TSExportRun::exportPhoto(qint64 index)
{
    if (isLeaving())
        return Step::Leave;
    const auto photo = TSPhotoManager::photoManager()->photoAtIndex(index);
    const auto item = TSDataManager::dataManager()->itemAtIndex(index);
    if (!photo || !item)
        return Step::GoOn;
    m_photoTimer.start();
    TSExportOutcome outcome;
    outcome.size = QSizeF(photo->photoOutputSize).toSize();
    Step step = Step::GoOn;
    if (!TSFileExists(item->sourcePath())) {
        outcome.status = Status::Skipped;
        outcome.reason = qtTrId("The photo's file is no longer there.");
        settle();
        if (!m_isSkip)
            m_host.sourceIsMissing(item->sourcePath());
        m_isSkip = true;
    } else if (isTooBig(*photo)) {
        outcome.reason = qtTrId("The output would have %1 pixels, more than 20000 × 20000; make it smaller.")
                             .arg(wholeSize(photo->photoOutputSize));
    } else {
        step = saveImage(index, *photo, *item, outcome);
    }
    if (step == Step::GoOn || (step == Step::Leave && !outcome.reason.isEmpty()))
        report(index, outcome);
    return step;
}

void TSExportRun::report(qint64 index, TSExportOutcome &outcome)
{
    settle();
    outcome.milliseconds = m_photoTimer.elapsed();
    m_host.photoIsDone(index, outcome);
}

bool TSExportRun::isTooBig(const TSPhoto &photo) const
{
    const QSizeF &size = photo.photoOutputSize;
    return largestOutput > 0 && size.width() * size.height() > largestOutput;
}

TSExportRun::Step TSExportRun::saveImage(qint64 index, const TSPhoto &photo, const TSImageBrowserItem &item,
                                         TSExportOutcome &outcome)
{
    TSDataManager *data = TSDataManager::dataManager();
    const QSizeF size = photo.photoOutputSize;
    const QRectF frame(QPointF(0, 0), size);
    m_composer.overlayArrays = TSOverlayManager::overlayManager()->overlays();
    std::optional<TSOutputImage> image =
        m_composer.createOutputImage(photo.path, frame, photo, index, size.width() / photo.photoSize.width());
    if (!image) {
        outcome.reason = m_composer.reason();
        return Step::GoOn;
    }
    outcome.size = image->size();
    const QString name = data->exportNames.value(index);
    QString path = m_targets.path(name);
    if (isBoundToTrailing(name, path))
        settle();
    if (isLeaving())
        return Step::Leave;
    if (resolveConflict(name, path) == Step::Leave) {
        outcome.status = Status::Skipped;
        outcome.reason = qtTrId("The run was stopped: %1 is there already.").arg(path);
        m_host.closeProgressSheet();
        return Step::Leave;
    }
    outcome.targetPath = path;
    m_savedPaths.append(path);
    if (isLeaving())
        return Step::Leave;
    if (isDryRun && placed)
        placed(index, m_composer.placements(QSizeF(image->size()), photo));
    if (isRefused(path, outcome)) {
        settle();
        m_host.setProgressTip(index);
        return Step::GoOn;
    }
    return writeImage(index, *image,
                      {path, data->type, data->quality, item.sourcePath(), photo.propertiesDic}, outcome);
}

/// Whether a name is free shows once the file before is there, and a question is asked about nothing less
/// than what the user can see.
bool TSExportRun::isBoundToTrailing(const QString &name, const QString &path) const
{
    const bool asks = m_conflictChoice == TSConflictChoice::NotAsked && m_targets.isTaken(path);
    return m_trailing && (asks || m_targets.mayMeet(name, m_trailing->path));
}

TSExportRun::Step TSExportRun::resolveConflict(const QString &name, QString &path)
{
    if (m_conflictChoice == TSConflictChoice::NotAsked && m_targets.isTaken(path)) {
        m_conflictChoice = m_host.nameIsTaken(path);
        if (m_conflictChoice == TSConflictChoice::Stop)
            return Step::Leave;
    }
    if (m_conflictChoice == TSConflictChoice::Rename)
        path = m_targets.uniquePath(name);
    return Step::GoOn;
}

bool TSExportRun::isRefused(const QString &path, TSExportOutcome &outcome)
{
    if (m_targets.isOriginal(path)) {
        outcome.reason = qtTrId("%1 is one of the originals and is not written to.").arg(path);
    } else if (isDryRun) {
        m_targets.plan(path);
        outcome.status = Status::Skipped;
        outcome.reason = QStringLiteral("dry run");
    }
    return !outcome.reason.isEmpty();
}

TSExportRun::Step TSExportRun::writeImage(qint64 index, TSOutputImage &image, const TSOutputRequest &request,
                                          TSExportOutcome &outcome)
{
    TSEncodedOutput encoded = m_writer.encode(image, request);
    settle();
    if (isLeaving()) {
        outcome.status = Status::Skipped;
        outcome.reason = qtTrId("The export was cancelled.");
        return Step::Leave;
    }
    writeBehind(index, std::move(encoded), request, outcome);
    return Step::Later;
}

/// The disk takes a good part of the time of a photo, and nothing of the processor's.
void TSExportRun::writeBehind(qint64 index, TSEncodedOutput encoded, const TSOutputRequest &request,
                              const TSExportOutcome &begun)
{
    const auto write = [this, encoded = std::move(encoded), request, begun, timer = m_photoTimer] {
        const TSWriteResult result = m_writer.write(encoded, request);
        TSExportOutcome outcome = begun;
        outcome.status = result.isWritten ? Status::Written : Status::Failed;
        outcome.reason = result.reason;
        outcome.note = result.note;
        outcome.milliseconds = timer.elapsed();
        return outcome;
    };
    m_trailing.emplace(Trailing{index, request.targetPath, std::async(write)});
}

void TSExportRun::settle()
{
    if (!m_trailing)
        return;
    Trailing trailing = std::move(*m_trailing);
    m_trailing.reset();
    const TSExportOutcome outcome = trailing.outcome.get();
    if (outcome.status == Status::Written)
        ++m_savedCount;
    m_host.setProgressTip(trailing.index);
    m_host.photoIsDone(trailing.index, outcome);
}

void TSExportRun::settleIfWritten()
{
    if (m_trailing && m_trailing->outcome.wait_for(std::chrono::seconds(0)) == std::future_status::ready)
        settle();
}

void TSExportRun::finish()
{
    settle();
    m_host.closeProgressSheet();
    if (m_savedCount > 0)
        m_host.successfulSaveToPath(m_savedPaths.constFirst());
}
