#pragma once

#include "session/TSOutputCodes.h"

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QVariantMap>

class QImage;
class QPainter;

/// The record of one photo: its sizes, its place on the preview and the metadata of its file.
///
/// `photoSize` is in pixels as stored, its width 0 until it has been read. `photoOutputSize` is in pixels of
/// the output and may hold fractions. `photoRatioOfSize` is canvas points a pixel of the output;
/// `previewRect` is in preview points.
class TSPhoto {
public:
    /// The position in the list; every operation of the list keeps it so.
    qint64 index = 0;
    QString path;
    QString resourcePath;
    QSizeF photoSize{0, 0};
    /// Height divided by width.
    double ratio = 0;
    QSizeF photoOutputSize{100, 100};
    double photoRatioOfSize = 1;
    QRectF previewRect;
    unsigned sizeMode = TSSizeMode::Fit;
    QVariantMap propertiesDic;
    QVariantMap fileAttributesDic;
    bool shown = false;
    bool basedScreen = true;

    /// Draws the photo's decoded preview picture, which the session keeps, fitted into a rectangle at the
    /// origin of the size of `previewRect`. Nothing is drawn for no picture.
    void drawInContext(QPainter &context, const QImage &image) const;
};
