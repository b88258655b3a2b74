#pragma once

#include <QRectF>

/// The frame that a node makes when it is dragged by (dx, dy), both in the overlay's own unturned sense. All
/// nodes keep the shape. The longer side ends at 6 points; the shorter one may be less then.
QRectF TSProportionallyResizedFrame(const QRectF &frame, int node, double dx, double dy);
