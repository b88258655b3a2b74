#pragma once

#include <functional>
#include <QImage>
#include <QSizeF>
#include <QString>

namespace platform {

/// Drawings that interpreters make pictures of. The first page is drawn so that it touches a square box in
/// pixels from inside, enlarged or reduced; null, with a sentence in `reason`, when it cannot be. Any thread.
///
/// Drawings are programs, or near enough: each interpreter is a process of its own, kept from the rest of the
/// disk and held to 10 seconds and 1 GB.

/// Asked again and again while an interpreter runs, which is ended once it answers true.
using CancelTest = std::function<bool()>;

/// PDF, and Illustrator files, which hold one. Drawn on white paper.
QImage rasterizePdf(const QString &path, const QSizeF &box, QString *reason = nullptr,
                    const CancelTest &isCancelled = {});
/// PostScript with a bounding box, drawn on nothing.
QImage rasterizeEps(const QString &path, const QSizeF &box, QString *reason = nullptr,
                    const CancelTest &isCancelled = {});
/// SVG, drawn on nothing by the program `tessaro-svg`, which lies beside the one that is running.
QImage rasterizeSvg(const QString &path, const QSizeF &box, QString *reason = nullptr,
                    const CancelTest &isCancelled = {});

} // namespace platform
