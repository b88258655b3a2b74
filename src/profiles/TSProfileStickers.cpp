#include "profiles/TSProfileStickers.h"

#include "overlays/TSGroup.h"
#include "platform/image/LazyImage.h"
#include "platform/system/AtomicFile.h"
#include "profiles/TSProfileLibrary.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

namespace {

const QStringList drawingSuffixes = {QStringLiteral("svg"), QStringLiteral("pdf"), QStringLiteral("ai"),
                                     QStringLiteral("eps")};

/// Empty for a picture of pixels. Files are known by their contents, whatever they are called.
QString drawingSuffix(const TSImage &image, const platform::Picture &picture)
{
    const QString suffix = QFileInfo(image.imagePath()).suffix().toLower();
    if (drawingSuffixes.contains(suffix))
        return suffix;
    return picture.isDrawing() ? drawingSuffixes.first() : QString();
}

QString withSuffix(const QString &file, const QString &suffix)
{
    const QFileInfo info(file);
    return QStringLiteral("%1/%2.%3").arg(info.path(), info.completeBaseName(), suffix);
}

bool isFile(const QString &path)
{
    return QFileInfo(path).isFile();
}

/// Members of groups were once saved without a picture, and with whatever name they had: one that another
/// picture of the package bears is not theirs.
bool isTakenFrom(const QString &own, const TSImage &image, QSet<QString> &taken)
{
    if (image.imageName().isEmpty() || !isFile(own) || taken.contains(own))
        return false;
    taken.insert(own);
    return true;
}

void collectMembers(const TSOverlayManager::Overlays &overlays, TSProfileStickers::Pictures &pictures)
{
    for (const auto &overlay : overlays) {
        const auto *group = dynamic_cast<const TSGroup *>(overlay.get());
        if (!group)
            continue;
        const auto members = TSProfileStickers::picturesAmong(group->overlaysOfGroup());
        pictures.insert(pictures.end(), members.begin(), members.end());
    }
}

} // namespace

TSProfileStickers::Pictures TSProfileStickers::picturesAmong(const TSOverlayManager::Overlays &overlays)
{
    Pictures pictures;
    for (const auto &overlay : overlays)
        if (auto image = std::dynamic_pointer_cast<TSImage>(overlay))
            pictures.push_back(std::move(image));
    collectMembers(overlays, pictures);
    return pictures;
}

QString TSProfileStickers::fileOfNumber(int number)
{
    return QStringLiteral("/Stickers_%1.png").arg(number);
}

/// Pictures are stored as TIFF under this name. Readers go by the content, and packages have been written so
/// from the first.
QString TSProfileStickers::store(const TSImage &image, const platform::Picture &picture, const QString &file)
{
    const QImage pixels = picture.imageOfSize(picture.size().toSize());
    const QString failure =
        platform::writeFileAtomically(file, platform::LazyImage::fromImage(pixels).encodeTiff());
    const QString suffix = drawingSuffix(image, picture);
    QFile drawing(image.imagePath());
    if (!failure.isEmpty() || suffix.isEmpty() || !drawing.open(QIODevice::ReadOnly))
        return failure;
    return platform::writeFileAtomically(withSuffix(file, suffix), drawing.readAll());
}

QString TSProfileStickers::shown(const QString &file)
{
    for (const QString &suffix : drawingSuffixes)
        if (isFile(withSuffix(file, suffix)))
            return withSuffix(file, suffix);
    return file;
}

/// What the package does not hold may still lie where it was taken from.
QStringList TSProfileStickers::find(const TSOverlayManager::Overlays &overlays, const QString &package)
{
    QSet<QString> taken;
    QStringList missing;
    for (const auto &image : picturesAmong(overlays)) {
        const QString own =
            TSProfileLibrary::stickerFolder(package) + u'/' + QFileInfo(image->imageName()).fileName();
        const bool isUsers = image->isFromFinder();
        if (isUsers && isTakenFrom(own, *image, taken))
            image->setImagePath(shown(own));
        else if (isUsers && (image->imagePath() == own || !isFile(image->imagePath())))
            image->setImagePath(image->oldPath());
        if (!isFile(image->imagePath()))
            missing.append(
                QFileInfo(isUsers && image->oldPath().isEmpty() ? image->imageName() : image->imagePath())
                    .fileName());
    }
    return missing;
}
