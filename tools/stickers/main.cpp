#include "platform/image/LazyImage.h"
#include "platform/paint/Picture.h"

#include <cstdio>
#include <QDir>
#include <QPainter>
#include <QSaveFile>

namespace {

/// Cells are 100 points a side; screens with two pixels a point get their own.
constexpr int CellSide = 200;
constexpr int Margin = 14;

bool write(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    const bool isWritten = !bytes.isEmpty() && file.open(QIODevice::WriteOnly) &&
                           file.write(bytes) == bytes.size() && file.commit();
    if (!isWritten)
        std::fprintf(stderr, "make-sticker-list: %s could not be written.\n", qUtf8Printable(path));
    return isWritten;
}

/// The sticker in the middle of its cell, as large as it can be.
QImage cell(const platform::Picture &sticker)
{
    const QSizeF size =
        sticker.size().scaled(CellSide - 2 * Margin, CellSide - 2 * Margin, Qt::KeepAspectRatio);
    const QImage image = sticker.imageOfSize(size.toSize());
    QImage cell(CellSide, CellSide, QImage::Format_ARGB32_Premultiplied);
    cell.fill(Qt::transparent);
    QPainter(&cell).drawImage((CellSide - image.width()) / 2, (CellSide - image.height()) / 2, image);
    return cell;
}

bool makeList(const QDir &stickers, const QDir &list)
{
    for (const QString &name : stickers.entryList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name)) {
        const auto sticker = platform::Picture::load(stickers.filePath(name));
        const QByteArray png =
            sticker ? platform::LazyImage::fromImage(cell(*sticker)).encodePng() : QByteArray();
        if (!write(list.filePath(QFileInfo(name).completeBaseName() + QStringLiteral(".png")), png))
            return false;
    }
    return true;
}

/// What profile pictures show behind the marks: sky, dark slopes and bright water, so that light and dark
/// marks both are seen.
bool makeBackground(const QString &photo, const QString &target)
{
    constexpr QRect part(560, 330, 960, 720);
    constexpr QSize size(400, 300);
    const auto picture = platform::Picture::load(photo);
    if (!picture)
        return false;
    const QImage cut = picture->imageOfSize(picture->size().toSize()).copy(part);
    const auto small =
        platform::LazyImage::fromImage(cut.convertToFormat(QImage::Format_RGB32)).resized(size);
    return write(target, small.encodeJpeg({90, {1, 1}}));
}

} // namespace

/// Makes what of the resources is pixels: the thumbnails of the stickers, and the ground of profile pictures.
int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "Usage: make-sticker-list STICKERS SAMPLES RESOURCES\n");
        return 2;
    }
    const QDir stickers(QString::fromLocal8Bit(argv[1]));
    const QDir samples(QString::fromLocal8Bit(argv[2]));
    const QDir resources(QString::fromLocal8Bit(argv[3]));
    resources.mkpath(QStringLiteral("StickerList"));
    const bool isMade = makeList(stickers, QDir(resources.filePath(QStringLiteral("StickerList")))) &&
                        makeBackground(samples.filePath(QStringLiteral("photos/evening lake.jpg")),
                                       resources.filePath(QStringLiteral("profileBackground.jpg")));
    return isMade ? 0 : 1;
}
