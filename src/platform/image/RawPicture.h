#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>

namespace platform {

/// A picture on its short way from one program of ours to another on the same machine: its pixels as they
/// stand in memory, premultiplied, and nothing lost.
bool writeRawPicture(const QImage &image, const QString &path);
/// Null for what is no such picture or is larger than the box.
QImage readRawPicture(const QString &path, const QSizeF &box);

} // namespace platform
