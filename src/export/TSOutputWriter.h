#pragma once

#include "export/TSOutputImage.h"

#include <functional>
#include <QString>
#include <QVariantMap>

/// What becomes of an output: its kind by type code, the quality of a JPEG from 0 to 1, and the photo it was
/// made from. The properties are those of the photo; without any, nothing of the source goes along and the
/// quality counts for nothing.
struct TSOutputRequest {
    QString targetPath;
    unsigned type = 0;
    double quality = 0;
    QString sourcePath;
    QVariantMap propertiesDic;
};

struct TSWriteResult {
    bool isWritten = false;
    /// Why not, in a sentence for the user.
    QString reason;
    /// What of a written photo did not go along, or nothing.
    QString note;
};

/// Encodes an output into memory, puts the photo's metadata in, and writes the file whole or not at all. Any
/// thread.
class TSOutputWriter {
public:
    /// Once it answers true, the photo under way is given up. Asked from the encoding thread.
    std::function<bool()> isCancelled;

    TSWriteResult write(TSOutputImage &image, const TSOutputRequest &request) const;

private:
    QByteArray encodedJpeg(TSOutputImage &image, const TSOutputRequest &request, TSWriteResult &result) const;
    QByteArray encoded(TSOutputImage &image, const TSOutputRequest &request, TSWriteResult &result) const;
    QString put(const QByteArray &bytes, const TSOutputRequest &request) const;
};
