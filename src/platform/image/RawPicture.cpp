#include "platform/image/RawPicture.h"

#include <QFile>

namespace platform {

namespace {

struct Head {
    qint32 width = 0;
    qint32 height = 0;
};

} // namespace

bool writeRawPicture(const QImage &image, const QString &path)
{
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const Head head{pixels.width(), pixels.height()};
    QFile file(path);
    if (pixels.isNull() || !file.open(QIODevice::WriteOnly))
        return false;
    file.write(reinterpret_cast<const char *>(&head), sizeof head);
    file.write(reinterpret_cast<const char *>(pixels.constBits()), pixels.sizeInBytes());
    return file.flush();
}

QImage readRawPicture(const QString &path, const QSizeF &box)
{
    Head head;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) ||
        file.read(reinterpret_cast<char *>(&head), sizeof head) != qint64(sizeof head))
        return {};
    if (head.width <= 0 || head.height <= 0 || head.width > box.width() || head.height > box.height())
        return {};
    QImage image(head.width, head.height, QImage::Format_ARGB32_Premultiplied);
    const bool isWhole = !image.isNull() && file.read(reinterpret_cast<char *>(image.bits()),
                                                      image.sizeInBytes()) == image.sizeInBytes();
    return isWhole ? image : QImage();
}

} // namespace platform
