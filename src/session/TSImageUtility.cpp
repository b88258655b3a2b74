#include "session/TSImageUtility.h"

#include "platform/image/ImageFile.h"
#include "platform/image/LazyImage.h"
#include "session/TSFileUtility.h"
#include "session/TSQuartzUtility.h"

#include <cmath>
#include <cstdio>
#include <QBuffer>
#include <QGuiApplication>
#include <QPainter>
#include <QSaveFile>
#include <QScreen>
#include <QTransform>

namespace {

int clampedByte(float value)
{
    const int whole = int(value);
    return whole >= 256 ? 255 : whole < 0 ? 0 : whole;
}

QByteArray bitmapBytes(const QImage &image)
{
    QBuffer buffer;
    image.save(&buffer, "BMP");
    return buffer.data();
}

QByteArray encoded(const platform::LazyImage &image, unsigned type, const QVariantMap &options)
{
    switch (type) {
    case TSImageTypeCode::JPG:
        return image.encodeJpeg({options.value(QStringLiteral("quality"), 100).toInt(), {1, 1}});
    case TSImageTypeCode::PNG:
        return image.encodePng();
    case TSImageTypeCode::TIFF:
        return image.encodeTiff();
    case TSImageTypeCode::BMP:
        return bitmapBytes(image.toImage());
    default:
        return {};
    }
}

} // namespace

QImage TSCreateImage(const QString &path)
{
    return TSCreateImageAtIndex(path, 0);
}

QImage TSCreateImageAtIndex(const QString &path, int index)
{
    return path.isEmpty() ? QImage() : platform::decodeImage(path, index);
}

QImage TSCreateThumbnail(const QString &path, double longestSide)
{
    return TSFileExists(path) ? platform::decodeThumbnail(path, int(longestSide)) : QImage();
}

QImage TSCreateBitmapContext(float width, float height)
{
    if (!(width > 0) || !(height > 0))
        return {};
    QImage surface(int(std::ceil(width)), int(std::ceil(height)), QImage::Format_ARGB32_Premultiplied);
    if (surface.isNull()) {
        std::fputs("Context not created!\n", stderr);
        return {};
    }
    surface.fill(Qt::transparent);
    return surface;
}

QImage TSCreateBitmapContextCopy(double width, double height)
{
    return TSCreateBitmapContext(float(width), float(height));
}

QImage TSCreateRedrawnImage(const QImage &image, double width, double height)
{
    if (image.isNull())
        return {};
    QImage surface = TSCreateBitmapContext(float(width), float(height));
    if (surface.isNull())
        return image;
    QPainter painter(&surface);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(TSIntRect(QRectF(0, 0, width, height)), image);
    return surface;
}

QImage TSCreateSmallerImage(const QImage &image, double boxW, double boxH)
{
    const QSizeF size = TSShrinkSizeInBox(image.width(), image.height(), boxW, boxH);
    return TSCreateRedrawnImage(image, size.width(), size.height());
}

QImage TSCreateGrayImage(const QImage &image)
{
    return image.convertToFormat(QImage::Format_Grayscale8);
}

QImage TSCreateRotatedImage(const QImage &image, int degrees)
{
    const int turn = degrees % 360;
    if (turn == 0 || turn % 90 != 0)
        return image;
    return image.transformed(QTransform().rotate(turn));
}

QImage TSCreateFlippedImageH(const QImage &image)
{
    return image.mirrored(true, false);
}

QImage TSCreateFlippedImageV(const QImage &image)
{
    return image.mirrored(false, true);
}

void TSApplyColorMatrix(int &r, int &g, int &b, int &a, const TSColorMatrix &m)
{
    const auto row = [&](size_t i) {
        return clampedByte(m[i] * float(r) + m[i + 1] * float(g) + m[i + 2] * float(b) + m[i + 3] * float(a) +
                           m[i + 4]);
    };
    const int values[] = {row(0), row(5), row(10), row(15)};
    r = values[0];
    g = values[1];
    b = values[2];
    a = values[3];
}

QImage TSCreateColorMatrixImage(const TSColorMatrix &matrix, const QImage &image)
{
    QImage result = image.convertToFormat(QImage::Format_RGBA8888);
    for (int y = 0; y < result.height(); ++y) {
        uchar *pixel = result.scanLine(y);
        for (int x = 0; x < result.width(); ++x, pixel += 4) {
            int r = pixel[0], g = pixel[1], b = pixel[2], a = pixel[3];
            TSApplyColorMatrix(r, g, b, a, matrix);
            pixel[0] = uchar(r);
            pixel[1] = uchar(g);
            pixel[2] = uchar(b);
            pixel[3] = uchar(a);
        }
    }
    return result;
}

bool TSSaveImage(const QImage &image, const QString &path, const QVariantMap &options)
{
    if (image.isNull())
        return false;
    const QByteArray bytes = encoded(platform::LazyImage::fromImage(image), TSImageType(path), options);
    QSaveFile file(path);
    return !bytes.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() &&
           file.commit();
}

double TSScreenScale()
{
    const QScreen *screen = qobject_cast<QGuiApplication *>(QCoreApplication::instance())
                                ? QGuiApplication::primaryScreen()
                                : nullptr;
    return screen ? screen->devicePixelRatio() : 1.0;
}
