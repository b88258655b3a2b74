#pragma once

#include "platform/metadata/CarriedMetadata.h"

#include <memory>
#include <QByteArray>
#include <QIODevice>

namespace platform {

/// Puts metadata round the encoded TIFF file of one picture. The file begins with the EXIF block as it is, so
/// that every offset in it holds, maker notes included; the encoded file follows, unchanged, and a directory
/// for both. Pictures in the metadata and tags about the pixels of the source stay behind; the colour profile
/// stays.
class TiffMetadata {
public:
    explicit TiffMetadata(const CarriedMetadata &metadata);

    /// What stands before the encoded file.
    const QByteArray &head() const { return m_head; }
    /// About what comes with the head and the directory.
    qsizetype length() const;
    /// Completes a file of which head and encoded file are written. Answers false, with nothing written, for
    /// what is no TIFF or would grow beyond the four gigabytes of one. Errors of the target are the caller's
    /// to look at.
    bool finish(std::shared_ptr<QIODevice> written, QIODevice &target) const;

private:
    QByteArray m_head;
    QByteArray m_xmp;
    QByteArray m_resources;
};

} // namespace platform
