#pragma once

#include <QRectF>
#include <QSizeF>

/// Rectangle and size arithmetic. Doubles, with the steps that are told in 32-bit floats narrowed there:
/// results show it. Pure functions. Four of them end the process, with a line on standard error, when their
/// result breaks the one promise that their callers build on.

/// S fitted into T, shape kept. The centred coordinate does not add T's origin: callers with one centre again
/// themselves.
QRectF TSAspectFitRect(const QRectF &source, const QRectF &target);
QRectF TSIntRect(const QRectF &rect);
/// The size of the shape of (w, h) that touches the box from inside, enlarging as readily as reducing.
QSizeF TSFitSizeInBox(double w, double h, double boxW, double boxH);
/// The same, never enlarging.
QSizeF TSShrinkSizeInBox(double w, double h, double boxW, double boxH);

/// S scaled to touch T from inside and centred in it; the factor goes to `scale`.
QRectF TSZoomRect(const QRectF &source, const QRectF &target, double *scale = nullptr);
/// The same, but never enlarging.
QRectF TSResizeRect(const QRectF &source, const QRectF &target, float *scale = nullptr);
QRectF TSRestrictRect(const QRectF &rect, const QRectF &canvas);
QRectF TSRectOffset(const QRectF &rect, float dx, float dy);

bool TSIsEmptyRect(const QRectF &rect);
QRectF TSScaleRect(const QRectF &rect, float scale);
QRectF TSInsetRect(const QRectF &rect, float dx, float dy);
QRectF TSClampRect(const QRectF &rect, const QRectF &bounds);
float TSRectDiagonal(const QRectF &rect);
/// The rectangle of B's shape centred in A.
QRectF TSCenterAspectRect(const QRectF &a, const QRectF &b);
QSizeF TSSwapSize(const QSizeF &size);
/// The smallest size of the shape of (w, h) that covers the box; zero when either is zero.
QSizeF TSCoverSize(double w, double h, double boxW, double boxH);
/// 1 when larger than the box, −1 when inside it, the least integer otherwise.
int TSCompareSize(double w, double h, double boxW, double boxH);
void TSLogRect(const QRectF &rect);
