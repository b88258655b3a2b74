#include "profiles/TSProfileSaver.h"

#include "export/TSOutputComposer.h"
#include "overlays/TSOverlaySynchronisation.h"
#include "platform/archive/KeyedArchive.h"
#include "platform/image/LazyImage.h"
#include "platform/paint/PaintLayer.h"
#include "platform/system/AtomicFile.h"
#include "platform/system/Folders.h"
#include "profiles/TSProfileLibrary.h"
#include "profiles/TSProfileStickers.h"
#include "profiles/TSVersionInfo.h"
#include "session/TSCacheManager.h"
#include "session/TSNotificationCenter.h"
#include "session/TSPhotoManager.h"

#include <QDir>
#include <QPainter>
#include <QTemporaryDir>

namespace {

constexpr QSize pictureSize{400, 300};

QImage profileBackground()
{
    QImage background(platform::resourceFolder() + QStringLiteral("/profileBackground.jpg"));
    if (background.isNull()) {
        background = QImage(pictureSize, QImage::Format_RGB32);
        background.fill(Qt::gray);
    }
    return background.scaled(pictureSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

/// Puts a whole package in the place of the one that may be there, which is kept until then.
bool takePlace(const QString &fresh, const QString &package)
{
    // Not named after the package, whose name may be as long as names can be.
    const QString former = QFileInfo(fresh).dir().filePath(QStringLiteral("former"));
    const bool isTaken = QFileInfo::exists(package);
    if (isTaken && !QFile::rename(package, former))
        return false;
    if (!QFile::rename(fresh, package)) {
        if (isTaken)
            QFile::rename(former, package);
        return false;
    }
    if (isTaken)
        QDir(former).removeRecursively();
    return true;
}

} // namespace

TSProfileSaver::TSProfileSaver(const QString &name)
    : m_name(name), m_package(TSProfileLibrary::userPackage(name))
{
}

QString TSProfileSaver::saveProfile(const QString &name, QStringList *missing)
{
    const QString problem = TSProfileLibrary::problemWithName(name);
    if (!problem.isEmpty())
        return problem;
    const QString folder = TSProfileLibrary::userFolder();
    if (!QDir().mkpath(folder))
        return qtTrId("The folder %1 could not be made.").arg(folder);
    QTemporaryDir workshop(folder + QStringLiteral("/.saving-XXXXXX"));
    if (!workshop.isValid())
        return qtTrId("The folder %1 could not be written to.").arg(folder);

    TSProfileSaver saver(name);
    QString failure = saver.writePackage(workshop.filePath(QFileInfo(saver.m_package).fileName()));
    if (!failure.isEmpty())
        saver.forgetStickers();
    else
        saver.adoptStickers();
    if (missing)
        *missing = saver.m_missing;
    Q_EMIT TSNotificationCenter::defaultCenter()->TSUpdateProfile();
    return failure;
}

/// The stickers go before the archive, which must know their names.
QString TSProfileSaver::writePackage(const QString &folder)
{
    if (!QDir().mkdir(folder))
        return qtTrId("The profile %1 could not be written.").arg(m_name);
    QString failure = saveProfileImageToPath(folder);
    if (failure.isEmpty())
        failure = saveFinderStickerTOPath(folder);
    if (failure.isEmpty())
        failure = saveProfileDataToPath(folder);
    if (failure.isEmpty() && !takePlace(folder, m_package))
        failure = qtTrId("The profile %1 could not be put in its place.").arg(m_name);
    return failure;
}

QString TSProfileSaver::saveProfileImageToPath(const QString &folder) const
{
    const TSPhotoManager *photos = TSPhotoManager::photoManager();
    const auto shown = photos->photoAtIndex(photos->selectedPhoto());
    if (!shown)
        return qtTrId("There is no photo to lay the marks out on.");
    platform::PaintLayer layer(pictureSize);
    TSOutputComposer composer;
    composer.overlayArrays = TSOverlayManager::overlayManager()->overlays();
    composer.drawOverlay(layer, pictureSize, 1.0, *shown, true);
    // Tiles measure themselves where they are drawn, and the archive takes their measure of the photo's
    // canvas.
    TSOverlaySynchronisation().updateOverlaysRenderTextImage();
    QImage picture = profileBackground();
    QPainter painter(&picture);
    layer.paint(painter, picture.rect());
    painter.end();
    const QByteArray bytes = platform::LazyImage::fromImage(picture).encodeJpeg({});
    return platform::writeFileAtomically(QStringLiteral("%1/%2.jpg").arg(folder, m_name), bytes);
}

QString TSProfileSaver::saveFinderStickerTOPath(const QString &folder)
{
    QDir().mkdir(TSProfileLibrary::stickerFolder(folder));
    int count = 0;
    const auto overlays = TSOverlayManager::overlayManager()->overlays();
    for (const auto &image : TSProfileStickers::picturesAmong(overlays)) {
        if (!image->isFromFinder())
            continue;
        m_formerNames.emplace_back(image, image->imageName());
        const QString file = TSProfileStickers::fileOfNumber(count++);
        const auto picture = TSCacheManager::cacheManager()->imageWithPath(image->imagePath());
        image->setImageName(TSProfileLibrary::stickerFolder(m_package) + file);
        if (!picture) {
            m_missing.append(QFileInfo(image->imagePath()).fileName());
            continue;
        }
        const QString failure =
            TSProfileStickers::store(*image, *picture, TSProfileLibrary::stickerFolder(folder) + file);
        if (!failure.isEmpty())
            return failure;
    }
    return {};
}

QString TSProfileSaver::saveProfileDataToPath(const QString &folder) const
{
    // The archive refers to the manager that is at work; it does not own it.
    const std::shared_ptr<TSOverlayManager> manager(TSOverlayManager::overlayManager(),
                                                    [](TSOverlayManager *) {});
    const platform::ArchiveValue::Dictionary root = {
        {QStringLiteral("versionInfo"), std::make_shared<TSVersionInfo>()},
        {QStringLiteral("overlayManager"), manager}};
    return platform::writeFileAtomically(TSProfileLibrary::archivePath(folder),
                                         platform::archiveRootObject(root));
}

void TSProfileSaver::forgetStickers()
{
    for (const auto &[image, name] : m_formerNames)
        image->setImageName(name);
}

/// Overlays of the package that was replaced have lost the files they were drawn from, and find them in the
/// new one.
void TSProfileSaver::adoptStickers() const
{
    for (const auto &[image, name] : m_formerNames) {
        const QString shown = TSProfileStickers::shown(image->imageName());
        if (image->imagePath().startsWith(m_package + u'/'))
            image->setImagePath(shown);
        TSCacheManager::cacheManager()->removeCacheWithPath(shown);
    }
}
