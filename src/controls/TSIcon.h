#pragma once

#include "controls/TSIconName.h"

#include <QIcon>

class QPainter;

/// The line pictures on buttons, drawn as paths at whatever size and scale they are asked for.
class TSIcon {
public:
    using Name = TSIconName;

    /// Tinted with the palette's button text in its normal and its disabled form.
    static QIcon icon(Name name, const QPalette &palette);
    /// Fits the picture into the largest square in the middle of the rectangle.
    static void paint(QPainter &painter, const QRectF &rect, Name name, const QColor &color);
};
