#include "controls/TSBarPainter.h"

#include "controls/TSTheme.h"

#include <algorithm>
#include <QPainter>
#include <QStyleOption>

void TSBarPainter::drawGroove(QPainter *painter, const QRectF &groove, const QColor &color)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    const double radius = qMin(groove.width(), groove.height()) / 2;
    painter->drawRoundedRect(groove, radius, radius);
}

QColor TSBarPainter::grooveColor(const QPalette &palette)
{
    return TSTheme::raised(palette.color(QPalette::Window), palette, 0.24);
}

QRect TSBarPainter::scrollBarHandle(const QStyleOptionSlider *bar)
{
    constexpr int shortest = 28;
    const bool isLying = bar->orientation == Qt::Horizontal;
    const int all = isLying ? bar->rect.width() : bar->rect.height();
    const qint64 range = qint64(bar->maximum) - bar->minimum;
    const qint64 share = range > 0 ? all * qint64(bar->pageStep) / (range + bar->pageStep) : all;
    const int length = int(std::clamp<qint64>(share, qMin(shortest, all), all));
    const int place = QStyle::sliderPositionFromValue(bar->minimum, bar->maximum, bar->sliderPosition,
                                                      all - length, bar->upsideDown);
    return isLying ? QRect(bar->rect.left() + place, bar->rect.top(), length, bar->rect.height())
                   : QRect(bar->rect.left(), bar->rect.top() + place, bar->rect.width(), length);
}

void TSBarPainter::drawScrollBar(const QStyleOptionSlider *bar, QPainter *painter)
{
    const QPalette &palette = bar->palette;
    painter->fillRect(bar->rect, palette.color(QPalette::Window));
    if (bar->maximum <= bar->minimum)
        return;
    const bool isActive = bar->state & (QStyle::State_MouseOver | QStyle::State_Sunken);
    const QColor color = TSTheme::raised(palette.color(QPalette::Window), palette, isActive ? 0.6 : 0.42);
    const QRectF handle = scrollBarHandle(bar);
    constexpr double thin = 3, end = 2;
    drawGroove(painter,
               bar->orientation == Qt::Horizontal ? handle.adjusted(end, thin, -end, -thin)
                                                  : handle.adjusted(thin, end, -thin, -end),
               color);
}

QRectF TSBarPainter::progressGroove(const QStyleOptionProgressBar *bar)
{
    constexpr double thickness = 8;
    const QRectF rect = bar->rect;
    return {rect.left(), rect.center().y() - thickness / 2, rect.width(), thickness};
}

void TSBarPainter::drawBusy(const QStyleOptionProgressBar *bar, QPainter *painter, double phase)
{
    const QRectF groove = progressGroove(bar);
    drawGroove(painter, groove, grooveColor(bar->palette));
    constexpr double share = 0.3;
    QRectF piece = groove;
    piece.setWidth(share * groove.width());
    const double from = bar->direction == Qt::RightToLeft ? 1 - phase : phase;
    piece.moveLeft(groove.left() - piece.width() + from * (groove.width() + piece.width()));
    drawGroove(painter, piece & groove, bar->palette.color(QPalette::Highlight));
}

void TSBarPainter::drawProgress(const QStyleOptionProgressBar *bar, QPainter *painter)
{
    const QRectF groove = progressGroove(bar);
    drawGroove(painter, groove, grooveColor(bar->palette));
    const double share = double(bar->progress - bar->minimum) / qMax(1, bar->maximum - bar->minimum);
    QRectF done = groove;
    done.setWidth(qBound(0.0, share, 1.0) * groove.width());
    if (bar->direction == Qt::RightToLeft)
        done.moveRight(groove.right());
    drawGroove(painter, done, bar->palette.color(QPalette::Highlight));
}
