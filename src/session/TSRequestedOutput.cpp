#include "session/TSRequestedOutput.h"

#include "session/TSQuartzUtility.h"

QSizeF TSRequestedOutput::sizeFor(const QSizeF &photo) const
{
    const double w = photo.width();
    const double h = photo.height();
    switch (resizeWay) {
    case TSResizeWay::ByWidth:
        return {outputWidth, outputWidth * h / w};
    case TSResizeWay::ByHeight:
        return {outputHeight * w / h, outputHeight};
    case TSResizeWay::ByPercentage:
        return {w * percentage / 100, h * percentage / 100};
    case TSResizeWay::FitSize:
        return TSAspectFitRect(QRectF(0, 0, w, h), QRectF(0, 0, outputWidth, outputHeight)).size();
    default:
        return {w, h};
    }
}
