#pragma once

#include "platform/paint/PaintLayer.h"

#include <QColor>
#include <QImage>
#include <QPainter>

inline QImage plainImage(const QSize &size, const QColor &color = Qt::gray)
{
    QImage image(size, color.alpha() == 255 ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

/// Something that no encoder makes small.
inline QImage noise(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    unsigned seed = 7;
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, 0xFF000000U | (seed = seed * 1664525U + 1013904223U) >> 8);
    return image;
}

inline QImage painted(const platform::PaintLayer &layer, const QColor &paper = Qt::transparent)
{
    QImage image(layer.canvas(), QImage::Format_ARGB32_Premultiplied);
    image.fill(paper);
    QPainter painter(&image);
    layer.paint(painter, image.rect());
    return image;
}

/// The box around the pixels that a test of their colour accepts.
template <typename Test>
QRect boxWhere(const QImage &image, Test accepts)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (accepts(image.pixelColor(x, y)))
                box |= QRect(x, y, 1, 1);
    return box;
}

/// The box around the pixels that are nearly of a colour.
inline QRect extentOf(const QImage &image, const QColor &color, int tolerance = 3)
{
    return boxWhere(image, [&](const QColor &pixel) {
        return std::abs(pixel.red() - color.red()) <= tolerance &&
               std::abs(pixel.green() - color.green()) <= tolerance &&
               std::abs(pixel.blue() - color.blue()) <= tolerance;
    });
}

/// The greatest difference of a channel between two pictures of one size.
inline int greatestDifference(const QImage &a, const QImage &b)
{
    int greatest = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            for (const int shift : {0, 8, 16, 24})
                greatest = std::max(greatest, std::abs(int(a.pixel(x, y) >> shift & 0xFF) -
                                                       int(b.pixel(x, y) >> shift & 0xFF)));
    return greatest;
}
