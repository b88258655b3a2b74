#pragma once

#include "session/TSOutputCodes.h"

#include <QSizeF>
#include <QString>
#include <QStringList>

/// The output that is asked for. `quality` is 0 to 1; the sizes are pixels, `percentage` 50 for half.
struct TSRequestedOutput {
    unsigned type = 0;
    QString exportFormat;
    double quality = 0;
    unsigned resizeWay = TSResizeWay::KeepOriginalSize;
    double outputWidth = 0;
    double outputHeight = 0;
    double percentage = 0;
    /// One base name a photo, in photo order, without folder and extension.
    QStringList exportNames;
    // How many placeholders the last names were made of, summed over all photos.
    qint64 nameToken = 0;
    qint64 numberToken = 0;
    qint64 createdDateToken = 0;
    qint64 modifiedDateToken = 0;

    /// In pixels, fractions included, for a photo of that many.
    QSizeF sizeFor(const QSizeF &photo) const;
};
