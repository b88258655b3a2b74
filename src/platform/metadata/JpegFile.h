#pragma once

#include "platform/image/JpegStream.h"

#include <memory>
#include <QByteArray>
#include <QIODevice>
#include <QString>

namespace platform {

/// What a file holds behind its first picture.
struct JpegRemainder {
    /// Reduced views of the first picture that the file declares as such.
    int previews = 0;
    /// Pictures of any other kind, a gain map among them.
    int pictures = 0;
    bool gainMap = false;
    bool video = false;

    bool isEmpty() const { return previews == 0 && pictures == 0 && !video; }
    bool operator==(const JpegRemainder &) const = default;
};

/// The structure of a JPEG file, of which no more than the header is held. Views point into it and last as
/// long as the object or a copy. Not to be used by two threads at once.
class JpegFile {
public:
    /// Nothing for what cannot be read or is no JPEG; a damaged one is read as far as it goes. The file is
    /// read and not mapped: a memory card may be pulled while we look at it.
    static std::optional<JpegFile> open(const QString &path);
    static std::optional<JpegFile> fromBytes(const QByteArray &bytes);

    const std::vector<JpegSegment> &segments() const { return m_picture.segments(); }
    /// In pixels; empty when no frame header tells it.
    QSize size() const { return m_picture.size(); }
    /// Luma samples for one chroma sample, across and down: (2, 2) is 4:2:0. Nothing for a picture without
    /// chroma.
    std::optional<QSize> chromaSampling() const { return m_picture.chromaSampling(); }
    /// Reads through the rest of the file, in pieces: a few milliseconds for ten megabytes.
    JpegRemainder remainder() const;

private:
    static std::optional<JpegFile> read(std::shared_ptr<QIODevice> device);
    /// Behind the end marker, or where the picture breaks off.
    qint64 endOfPicture() const;

    std::shared_ptr<QIODevice> m_device;
    QByteArray m_header;
    /// Of the header alone.
    JpegStream m_picture;
};

} // namespace platform
