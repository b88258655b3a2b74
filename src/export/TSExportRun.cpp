#include "export/TSExportRun.h"

#include "platform/FileIdentity.h"
#include "session/TSDataManager.h"
#include "session/TSFileUtility.h"
#include "session/TSPhotoManager.h"
#include "session/TSQuartzUtility.h"

#include <QThread>

using Status = TSExportOutcome::Status;

namespace {

/// 20000 by 20000.
constexpr double biggestWithoutAsking = 400000000;

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
    m_writer.isCancelled = [this] { return isCancelled || TSDataManager::dataManager()->isExitExport; };
}

void TSExportRun::savePhotos(const QString &folder)
{
    TSDataManager *data = TSDataManager::dataManager();
    m_folder = folder;
    m_isSkip = false;
    if (!TSIsDirectory(folder))
        return;
    data->isExitExport = false;
    m_savedPaths.clear();
    m_savedCount = 0;
    m_conflictChoice = TSConflictChoice::NotAsked;
    m_plannedPaths.clear();
    if (data->exportNames.isEmpty()) {
        m_host.closeProgressSheet();
        return;
    }
    if (isHasBiggerPhoto() && !m_host.continueWithBiggerPhoto()) {
        m_host.closeProgressSheet();
        return;
    }
    rememberOriginals();
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

/// The gate that each photo passes three times.
bool TSExportRun::isLeaving()
{
    while (isPausing)
        QThread::usleep(1000);
    if (isCancelled) {
        m_host.closeProgressSheet();
        return true;
    }
    return TSDataManager::dataManager()->isExitExport;
}

TSExportRun::Step TSExportRun::exportPhoto(qint64 index)
{
    if (isLeaving())
        return Step::Leave;
    const auto photo = TSPhotoManager::photoManager()->photoAtIndex(index);
    const auto item = TSDataManager::dataManager()->itemAtIndex(index);
    if (!photo || !item)
        return Step::GoOn;
    QElapsedTimer timer;
    timer.start();
    TSExportOutcome outcome;
    outcome.size = QSizeF(photo->photoOutputSize).toSize();
    Step step = Step::GoOn;
    if (!TSFileExists(item->sourcePath())) {
        outcome.status = Status::Skipped;
        outcome.reason = QStringLiteral("The photo's file is no longer there.");
        if (!m_isSkip)
            m_host.sourceIsMissing(item->sourcePath());
        m_isSkip = true;
    } else if (isTooBig(*photo)) {
        outcome.reason =
            QStringLiteral("The output would have %1 pixels, more than 20000 × 20000; make it smaller.")
                .arg(wholeSize(photo->photoOutputSize));
    } else {
        step = saveImage(index, *photo, *item, outcome);
    }
    outcome.milliseconds = timer.elapsed();
    if (step == Step::GoOn || !outcome.reason.isEmpty())
        m_host.photoIsDone(index, outcome);
    return step;
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
    if (isLeaving())
        return Step::Leave;
    const QString name = data->exportNames.value(index);
    QString path = QStringLiteral("%1/%2.%3").arg(m_folder, name, data->exportFormat);
    if (resolveConflict(name, path) == Step::Leave) {
        outcome.status = Status::Skipped;
        outcome.reason = QStringLiteral("The run was stopped: %1 is there already.").arg(path);
        m_host.closeProgressSheet();
        return Step::Leave;
    }
    outcome.targetPath = path;
    m_savedPaths.append(path);
    if (isLeaving())
        return Step::Leave;
    if (isDryRun && placed)
        placed(index, m_composer.placements(QSizeF(image->size()), photo));
    writeImage(*image, photo, item, outcome);
    if (outcome.status == Status::Failed && isLeaving()) {
        outcome.status = Status::Skipped;
        return Step::Leave;
    }
    m_host.setProgressTip(index);
    return Step::GoOn;
}

TSExportRun::Step TSExportRun::resolveConflict(const QString &name, QString &path)
{
    if (m_conflictChoice == TSConflictChoice::NotAsked && isTaken(path)) {
        m_conflictChoice = m_host.nameIsTaken(path);
        if (m_conflictChoice == TSConflictChoice::Stop)
            return Step::Leave;
    }
    if (m_conflictChoice == TSConflictChoice::Rename)
        path = uniquePath(name);
    return Step::GoOn;
}

void TSExportRun::writeImage(TSOutputImage &image, const TSPhoto &photo, const TSImageBrowserItem &item,
                             TSExportOutcome &outcome)
{
    const TSDataManager *data = TSDataManager::dataManager();
    if (isOriginal(outcome.targetPath)) {
        outcome.reason =
            QStringLiteral("%1 is one of the originals and is not written to.").arg(outcome.targetPath);
        return;
    }
    if (isDryRun) {
        m_plannedPaths.insert(outcome.targetPath);
        outcome.status = Status::Skipped;
        outcome.reason = QStringLiteral("dry run");
        return;
    }
    TSOutputRequest request{outcome.targetPath, data->type, data->quality, item.sourcePath(),
                            photo.propertiesDic};
    const TSWriteResult result = m_writer.write(image, request);
    outcome.reason = result.reason;
    if (result.isWritten) {
        outcome.note = result.note;
        outcome.status = Status::Written;
        ++m_savedCount;
    }
}

bool TSExportRun::isTaken(const QString &path) const
{
    return TSFileExists(path) || m_plannedPaths.contains(path);
}

QString TSExportRun::uniquePath(const QString &name) const
{
    const QString &format = TSDataManager::dataManager()->exportFormat;
    QString path = TSUniquePath(m_folder, name, format);
    // Names that a dry run has given out are not on the disk.
    for (int number = 1; isTaken(path); ++number)
        path = QStringLiteral("%1/%2_%3.%4")
                   .arg(m_folder, name, QStringLiteral("%1").arg(number, 3, 10, QLatin1Char('0')), format);
    return path;
}

void TSExportRun::rememberOriginals()
{
    m_originals.clear();
    const TSDataManager *data = TSDataManager::dataManager();
    for (qint64 index = 0; index < data->photoCount(); ++index)
        m_originals.insert(platform::fileIdentity(data->itemAtIndex(index)->sourcePath()));
    for (const QString &path : keptFiles)
        m_originals.insert(platform::fileIdentity(path));
    m_originals.remove(QString());
}

bool TSExportRun::isOriginal(const QString &path) const
{
    return m_originals.contains(platform::fileIdentity(path));
}

void TSExportRun::finish()
{
    m_host.closeProgressSheet();
    if (m_savedCount > 0)
        m_host.successfulSaveToPath(m_savedPaths.constFirst());
}
