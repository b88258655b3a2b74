#include "platform/image/ThumbnailCache.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

namespace platform {

namespace {

struct Size {
    const char *folder;
    int side;
};

constexpr Size sizes[] = {{"normal", 128}, {"large", 256}, {"x-large", 512}, {"xx-large", 1024}};

QString fileName(const QFileInfo &file)
{
    const QByteArray address = QUrl::fromLocalFile(file.absoluteFilePath()).toEncoded(QUrl::FullyEncoded);
    return QString::fromLatin1(QCryptographicHash::hash(address, QCryptographicHash::Md5).toHex()) +
           QStringLiteral(".png");
}

} // namespace

QImage cachedThumbnail(const QString &path, int side)
{
    const QFileInfo file(path);
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    const QString changed = QString::number(file.lastModified().toSecsSinceEpoch());
    for (const Size &size : sizes) {
        if (size.side < side)
            continue;
        const QImage image(
            QStringLiteral("%1/thumbnails/%2/%3").arg(cache, QLatin1String(size.folder), fileName(file)));
        // An older one shows what the file was.
        if (!image.isNull() && image.text(QStringLiteral("Thumb::MTime")) == changed)
            return image;
    }
    return {};
}

} // namespace platform
