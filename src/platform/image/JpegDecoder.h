#pragma once

#include "platform/image/DecodingReport.h"

#include <memory>
#include <QSize>
#include <QString>

namespace platform {

/// The pixels of one JPEG file, row by row from the top: grey, RGB or CMYK, 8 bits each. What warnings mean
/// is judged by their code, and by every one of them: a picture that any data is missing of fails. One
/// thread at a time.
class JpegDecoder {
public:
    JpegDecoder(const QString &path, int shrink, std::shared_ptr<DecodingReport> report);
    ~JpegDecoder();
    JpegDecoder(const JpegDecoder &) = delete;
    JpegDecoder &operator=(const JpegDecoder &) = delete;

    /// Reads the header. Like the others it answers whether it worked; the report tells why not.
    bool open();
    /// Reduced, and known once it is open.
    QSize size() const;
    int bands() const;
    int nextRow() const;
    bool readRow(uchar *row);

private:
    class Library;

    std::unique_ptr<Library> m_library;
};

} // namespace platform
