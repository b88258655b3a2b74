#include "platform/image/RawPicture.h"
#include "session/TSImageUtility.h"
#include "session/TSQuartzUtility.h"
#include "vector/TSSVGImage.h"

#include <cstdio>
#include <QFile>
#include <QPainter>

/// Draws an SVG file so that it touches a square box from inside, and leaves the pixels in a file. A program
/// of its own, so that whoever calls it can hold the drawing to a time and a memory.
int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fputs("usage: tessaro-svg DRAWING SIDE RESULT\n", stderr);
        return 2;
    }
    const auto drawing = TSSVGImage::imageWithContentsOfFile(QFile::decodeName(argv[1]));
    const double side = QByteArray(argv[2]).toDouble();
    const QSizeF natural = drawing ? drawing->size() : QSizeF(0, 0);
    const QSizeF size = TSFitSizeInBox(natural.width(), natural.height(), side, side);
    QImage surface = TSCreateBitmapContextCopy(size.width(), size.height());
    if (surface.isNull())
        return 1;
    QPainter painter(&surface);
    // All of the surface, whose sides are whole: a last row that the drawing covers in part shows as an edge.
    drawing->drawInRect(painter, QRectF(surface.rect()));
    painter.end();
    return platform::writeRawPicture(surface, QFile::decodeName(argv[3])) ? 0 : 1;
}
