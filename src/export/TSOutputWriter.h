#pragma once

#include "export/TSOutputImage.h"
#include "platform/metadata/CarriedMetadata.h"
#include "platform/metadata/JpegFile.h"
#include "platform/system/AtomicFile.h"

#include <functional>
#include <memory>
#include <optional>
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
    /// What stands under the target's name by the time the file is complete is replaced; else it is left
    /// alone, and the file takes the name that `nextPath` answers.
    bool isReplacing = true;
    std::function<QString()> nextPath = {};
};

/// A picture that has been through its encoder, and what of its source goes along with it.
struct TSEncodedOutput {
    /// Of a JPEG, which is small.
    QByteArray bytes;
    /// Of the others, complete but for its name.
    std::shared_ptr<platform::AtomicFile> file;
    platform::CarriedMetadata metadata;
    /// What takes the place of the pictures in the metadata.
    QImage thumbnail;
    std::optional<platform::JpegFile> source;
    /// Its file stops where the picture does, without the mark of its end.
    bool lacksEnd = false;
    /// Why there is neither, in a sentence for the user.
    QString reason;
};

struct TSWriteResult {
    bool isWritten = false;
    /// Why not, in a sentence for the user.
    QString reason;
    /// What of a written photo did not go along, or nothing.
    QString note;
    /// The name that the file has taken.
    QString path;
    /// The file, complete but for its name, where that was taken and is not to be replaced.
    std::shared_ptr<platform::AtomicFile> unnamed;
};

/// Encodes an output, puts the photo's metadata in, and writes the file whole or not at all. Any
/// thread; one output may be written while the next one is being encoded on another.
class TSOutputWriter {
public:
    /// Once it answers true, the photo being encoded is given up. Asked again and again from the thread that
    /// called `encode`.
    std::function<bool()> isCancelled;

    TSEncodedOutput encode(TSOutputImage &image, const TSOutputRequest &request) const;
    TSWriteResult write(const TSEncodedOutput &output, const TSOutputRequest &request) const;

private:
    void encode(const platform::LazyImage &picture, const TSOutputRequest &request,
                TSEncodedOutput &output) const;
    bool stream(const platform::LazyImage &picture, const TSOutputRequest &request,
                const platform::CarriedMetadata &metadata, platform::AtomicFile &file) const;
    static std::shared_ptr<platform::AtomicFile> file(const TSEncodedOutput &output,
                                                      const TSOutputRequest &request, QString &reason);
};
