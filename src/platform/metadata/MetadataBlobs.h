#pragma once

#include "platform/image/Vips.h"

#include <QByteArray>
#include <QString>

namespace platform {

/// The metadata of a picture file, each kind in the form in which files hold it: EXIF from its TIFF header
/// on, XMP as a packet, IPTC as a record in Photoshop's resources. Empty is what the file does not have.
struct MetadataBlobs {
    QByteArray exif;
    QByteArray xmp;
    QByteArray photoshop;
};

/// The EXIF and XMP that the decoder hands out with the opened picture, unchanged.
MetadataBlobs metadataOfDecoder(VipsImage *image);

/// The metadata of a file of any format. The bytes are the file's own where the decoder hands them out, and
/// encoded anew otherwise. Where the decoder turns the pixels, the orientation tags say that they are
/// upright. Any thread.
MetadataBlobs readMetadataBlobs(const QString &path);

/// The EXIF encoded anew, without what a segment of a JPEG file cannot take in; empty when even that is too
/// much.
QByteArray reducedExif(const QByteArray &exif);

} // namespace platform
