#pragma once

#include <array>
#include <QImage>
#include <QSizeF>
#include <QString>
#include <QVariantMap>

/// Decoding and drawing surfaces. Pictures are sRGB, 8 bits a channel; a null image stands for nothing. Sizes
/// are pixels. May run on any thread.

/// The first picture of a file at full size, as stored: the orientation tag is not applied.
QImage TSCreateImage(const QString &path);
QImage TSCreateImageAtIndex(const QString &path, int index);
/// The picture upright, no longer than the given side.
QImage TSCreateThumbnail(const QString &path, double longestSide);

/// A cleared surface, its size made whole. Nothing, and no word, for a size at or below 0; "Context not
/// created!" on standard error when there is no memory for it.
QImage TSCreateBitmapContext(float width, float height);
QImage TSCreateBitmapContextCopy(double width, double height);
/// The picture drawn to a size; the picture itself when no surface can be had.
QImage TSCreateRedrawnImage(const QImage &image, double width, double height);
QImage TSCreateSmallerImage(const QImage &image, double boxW, double boxH);
QImage TSCreateGrayImage(const QImage &image);
/// Turned by a multiple of 90 degrees, clockwise; for any other angle the picture itself.
QImage TSCreateRotatedImage(const QImage &image, int degrees);
QImage TSCreateFlippedImageH(const QImage &image);
QImage TSCreateFlippedImageV(const QImage &image);

using TSColorMatrix = std::array<float, 20>;
/// In place on four components of 0 to 255.
void TSApplyColorMatrix(int &r, int &g, int &b, int &a, const TSColorMatrix &matrix);
QImage TSCreateColorMatrixImage(const TSColorMatrix &matrix, const QImage &image);

/// Writes in the type that the path's extension names; GIF and vector files cannot be written. Option:
/// "quality" (1 to 100, for JPEG).
bool TSSaveImage(const QImage &image, const QString &path, const QVariantMap &options);

/// How many device pixels the main screen has for a point, 1 where there is no screen.
double TSScreenScale();
