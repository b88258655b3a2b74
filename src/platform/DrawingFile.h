#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>

namespace platform {

/// Pages that other programs' interpreters draw. The first page is drawn so that it touches a box in pixels
/// from inside, enlarged or reduced; null, with a sentence in `reason`, when it cannot be. Any thread.

/// PDF, and Illustrator files, which hold one. Drawn on white paper.
QImage rasterizePdf(const QString &path, const QSizeF &box, QString *reason = nullptr);
/// PostScript with a bounding box, drawn on nothing. The interpreter is a process of its own, kept from the
/// disk and held to 10 seconds and 1 GB.
QImage rasterizeEps(const QString &path, const QSizeF &box, QString *reason = nullptr);

} // namespace platform
