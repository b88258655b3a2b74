#pragma once

#include <QImage>

/// The picture behind the canvas: bright in the middle, dark around it, bright again toward the far corners.
QImage TSPreviewBackground(const QSize &bounds);
