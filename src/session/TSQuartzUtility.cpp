#include "session/TSQuartzUtility.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <QDebug>

namespace {

/// The promises are kept in release builds too, and their messages are part of what the library answers with.
void require(bool holds, const char *condition, const char *function, int line)
{
    if (holds)
        return;
    std::fprintf(stderr, "Assertion failed: %s, function %s, file Utility/TSQuartzUtility, line %d.\n",
                 condition, function, line);
    std::abort();
}

bool hasArea(const QRectF &rect)
{
    return rect.width() > 0 && rect.height() > 0;
}

QRectF centredIn(const QSizeF &size, const QRectF &target)
{
    return {target.x() + (target.width() - size.width()) * 0.5,
            target.y() + (target.height() - size.height()) * 0.5, size.width(), size.height()};
}

bool isZero(const QRectF &rect)
{
    return rect.x() == 0 && rect.y() == 0 && rect.width() == 0 && rect.height() == 0;
}

} // namespace

QRectF TSAspectFitRect(const QRectF &source, const QRectF &target)
{
    if (isZero(source) || isZero(target))
        return {};
    const float s = float(source.width() / source.height());
    const float t = float(target.width() / target.height());
    if (!(s > t)) {
        const double width = double(s) * target.height();
        return {(target.width() - width) * 0.5, target.y(), width, target.height()};
    }
    const double height = target.width() / double(s);
    return {target.x(), (target.height() - height) * 0.5, target.width(), height};
}

QRectF TSIntRect(const QRectF &rect)
{
    const double x = std::trunc(rect.x());
    const double y = std::trunc(rect.y());
    return {x, y, std::trunc(rect.x() + rect.width()) - x, std::trunc(rect.y() + rect.height()) - y};
}

QSizeF TSFitSizeInBox(double w, double h, double boxW, double boxH)
{
    if ((w == 0 && h == 0) || (boxW == 0 && boxH == 0))
        return {w, h};
    const float a = float(w / h);
    const float b = float(boxW / boxH);
    return b > a ? QSizeF(double(a) * boxH, boxH) : QSizeF(boxW, boxW / double(a));
}

QSizeF TSShrinkSizeInBox(double w, double h, double boxW, double boxH)
{
    if (w <= 0 || h <= 0)
        return {w, h};
    const float a = float(w / h);
    const float r = float(w / boxW);
    const float s = float(h / boxH);
    if (r > 1 && (!(s > 1) || r > s))
        return {boxW, boxW / double(a)};
    if (s > 1)
        return {double(a) * boxH, boxH};
    return {w, h};
}

QRectF TSZoomRect(const QRectF &source, const QRectF &target, double *scale)
{
    if (!hasArea(source) || !hasArea(target))
        return {};
    const float ratioOld = float(source.width() / source.height());
    QSizeF size(target.width(), double(float(target.width()) / ratioOld));
    if (!(ratioOld > float(target.width() / target.height())))
        size = QSizeF(double(float(target.height()) * ratioOld), target.height());
    const float ratioNew = float(size.width() / size.height());
    require(std::fabs(ratioNew - ratioOld) < 0.2f, "(fabs(ratioNew - ratioOld) < 0.2f)", "TSZoomRect", 53);
    if (scale)
        *scale = size.width() / source.width();
    return centredIn(size, target);
}

QRectF TSResizeRect(const QRectF &source, const QRectF &target, float *scale)
{
    if (source.width() == 0 || source.height() == 0 || target.width() == 0 || target.height() == 0)
        return {};
    const bool isLarger = source.width() > target.width() || source.height() > target.height();
    const float factor =
        isLarger ? std::min(float(target.width() / source.width()), float(target.height() / source.height()))
                 : 1.0f;
    const QSizeF size = source.size() * double(factor);
    const float ratioOld = float(source.width() / source.height());
    const float ratioNew = float(size.width() / size.height());
    require(std::fabs(ratioNew - ratioOld) < 0.2f, "(fabs(ratioNew - ratioOld) < 0.2f)", "TSResizeRect", 115);
    if (scale)
        *scale = factor;
    return centredIn(size, target);
}

QRectF TSRestrictRect(const QRectF &rect, const QRectF &canvas)
{
    require(int(rect.width()) <= int(canvas.width()) && int(rect.height()) <= int(canvas.height()),
            "(iSrcWidth <= iCanvasWidth && iSrcHeight <= iCanvasHeight)", "TSRestrictRect", 129);
    const double x = std::max(rect.x(), canvas.x());
    const double y = std::max(rect.y(), canvas.y());
    // The far edge is cut where it overruns; the origin does not move back.
    const double w = std::min(rect.width(), canvas.x() + canvas.width() - x);
    const double h = std::min(rect.height(), canvas.y() + canvas.height() - y);
    return {x, y, w, h};
}

QRectF TSRectOffset(const QRectF &rect, float dx, float dy)
{
    const QRectF moved = rect.translated(double(dx), double(dy));
    require(moved.x() >= 0 && moved.y() >= 0, "(rt.origin.x >= 0 && rt.origin.y >= 0)", "TSRectOffset", 175);
    return moved;
}

bool TSIsEmptyRect(const QRectF &rect)
{
    return rect.width() <= 0 || rect.height() <= 0;
}

QRectF TSScaleRect(const QRectF &rect, float scale)
{
    if (scale <= 0)
        return rect;
    return {rect.topLeft() * double(scale), rect.size() * double(scale)};
}

QRectF TSInsetRect(const QRectF &rect, float dx, float dy)
{
    const QSizeF size(rect.width() - double(dx), rect.height() - double(dy));
    if (size.width() <= 0 || size.height() <= 0)
        return rect;
    return {rect.topLeft() + QPointF(double(dx / 2), double(dy / 2)), size};
}

QRectF TSClampRect(const QRectF &rect, const QRectF &bounds)
{
    if (TSIsEmptyRect(rect))
        return rect;
    const double w = std::min(rect.width(), bounds.width());
    const double h = std::min(rect.height(), bounds.height());
    const double x = std::max(rect.x(), bounds.x());
    const double y = std::max(rect.y(), bounds.y());
    const double overX = std::max(0.0, x + w - (bounds.x() + bounds.width()));
    const double overY = std::max(0.0, y + h - (bounds.y() + bounds.height()));
    return {x - overX, y - overY, w, h};
}

float TSRectDiagonal(const QRectF &rect)
{
    const float w = float(rect.width());
    const float h = float(rect.height());
    return std::sqrt(w * w + h * h);
}

QRectF TSCenterAspectRect(const QRectF &a, const QRectF &b)
{
    if (isZero(a) || isZero(b))
        return {};
    const float ratioA = float(a.width() / a.height());
    const float ratioB = float(b.width() / b.height());
    if (ratioA > ratioB) {
        const double width = double(ratioB) * a.height();
        return {a.x() + (a.width() - width) * 0.5, a.y(), width, a.height()};
    }
    const double height = a.width() / double(ratioB);
    return {a.x(), a.y() + (a.height() - height) * 0.5, a.width(), height};
}

QSizeF TSSwapSize(const QSizeF &size)
{
    return size.transposed();
}

QSizeF TSCoverSize(double w, double h, double boxW, double boxH)
{
    if (w == 0 || h == 0 || boxW == 0 || boxH == 0)
        return {0, 0};
    const float a = float(w / h);
    const float b = float(boxW / boxH);
    return b > a ? QSizeF(boxW, boxW / double(a)) : QSizeF(double(a) * boxH, boxH);
}

int TSCompareSize(double w, double h, double boxW, double boxH)
{
    if (w > boxW || h > boxH)
        return 1;
    // The width is held against the box's height on purpose: callers count on the answer for wide boxes.
    if (boxH >= w && boxH >= h)
        return -1;
    return std::numeric_limits<int>::min();
}

void TSLogRect(const QRectF &rect)
{
    qInfo("(%f, %f, %f, %f)", rect.x(), rect.y(), rect.width(), rect.height());
}
