#pragma once

#include <QColor>
#include <QRectF>

class QPainter;
class QPalette;
class QStyleOptionProgressBar;
class QStyleOptionSlider;

/// Scroll bars, progress bars and the grooves of sliders, for the style.
class TSBarPainter {
public:
    static QColor grooveColor(const QPalette &palette);
    static void drawGroove(QPainter *painter, const QRectF &groove, const QColor &color);
    /// The handle's share of the bar, never too short to be caught.
    static QRect scrollBarHandle(const QStyleOptionSlider *bar);
    static void drawScrollBar(const QStyleOptionSlider *bar, QPainter *painter);
    static void drawProgress(const QStyleOptionProgressBar *bar, QPainter *painter);
    /// A piece on its way through the bar, from before its beginning at 0 to behind its end at 1.
    static void drawBusy(const QStyleOptionProgressBar *bar, QPainter *painter, double phase);

private:
    static QRectF progressGroove(const QStyleOptionProgressBar *bar);
};
