#pragma once

#include "platform/image/DecodingReport.h"
#include "platform/image/JpegOptions.h"
#include "platform/image/Vips.h"

#include <functional>
#include <QByteArray>
#include <QImage>
#include <QRect>
#include <QSize>

class QIODevice;

namespace platform {

/// Something that is painted over a picture while it streams by. Coordinates are pixels of that picture, y
/// downward. Called from the thread that computes the strips, one call at a time.
class StripPainter {
public:
    virtual ~StripPainter() = default;
    /// Whether anything is painted inside the rectangle; a strip that holds nothing is passed on untouched.
    virtual bool meets(const QRect &rect) const = 0;
    /// Paints into the strip, which shows the part of the picture that begins at `origin`.
    virtual void paint(QImage &strip, QPoint origin) const = 0;
    /// Sees each finished strip once, top to bottom.
    virtual void finished(const QImage &strip, QPoint origin) = 0;
};

/// A picture that is computed strip by strip when it is encoded, so that a photo of any size passes through
/// in a few megabytes. A value; each step answers a new one. The steps answer an empty image when they fail,
/// and `takeVipsError()` tells why. Not to be encoded from two threads at once.
class LazyImage {
public:
    LazyImage() = default;

    /// Opens a frame of a file, as stored. The decoder may deliver it smaller, but never smaller than
    /// `wanted`.
    static LazyImage open(const QString &path, QSize wanted, int frame = 0);
    static LazyImage fromImage(const QImage &image);
    /// A picture that libvips has already opened.
    static LazyImage fromVips(VipsImagePtr image) { return LazyImage(std::move(image)); }

    bool isEmpty() const { return !m_image; }
    QSize size() const;
    bool hasAlpha() const;
    VipsImage *vips() const { return m_image.get(); }
    /// Once it has been computed: why that failed, in the words of a decoder that keeps them apart, or
    /// nothing.
    QString decoderFailure() const;
    /// Once it has been computed: whether its file ends with the picture but lacks the mark of its end.
    bool lacksEnd() const { return m_report && m_report->lacksEnd(); }

    /// 8-bit sRGB with three bands, or four when the picture has transparency; an embedded profile is
    /// honoured.
    LazyImage inSRGB() const;
    /// Exactly this size, each axis scaled on its own.
    LazyImage resized(QSize size) const;
    LazyImage painted(std::shared_ptr<StripPainter> painter) const;
    /// Transparency laid over black.
    LazyImage flattened() const;

    /// The encoders run the whole picture through. They carry an sRGB profile and no other metadata, and
    /// answer no bytes on failure. `isCancelled` is asked now and then from the computing thread; once it
    /// answers true, encoding fails.
    /// A density of the source goes into a TIFF where asked for, into a JPEG always, and into a PNG never.
    using CancelTest = std::function<bool()>;
    QByteArray encodeJpeg(const JpegOptions &options, const CancelTest &isCancelled = {}) const;
    QByteArray encodePng(const CancelTest &isCancelled = {}) const;
    QByteArray encodeTiff(const CancelTest &isCancelled = {}) const;
    /// The same straight into a device, from where it stands; they answer whether it worked.
    bool encodeJpeg(QIODevice &to, const JpegOptions &options, const CancelTest &isCancelled) const;
    bool encodePng(QIODevice &to, const CancelTest &isCancelled) const;
    bool encodeTiff(QIODevice &to, const CancelTest &isCancelled, bool keepsDensity) const;
    /// The whole picture in memory, RGB32 or premultiplied ARGB32.
    QImage toImage(const CancelTest &isCancelled = {}) const;

private:
    explicit LazyImage(VipsImagePtr image, std::shared_ptr<DecodingReport> report = {})
        : m_image(std::move(image)), m_report(std::move(report))
    {
    }
    /// What is made of this picture, and so comes from the same decoder.
    LazyImage step(VipsImagePtr image) const { return LazyImage(std::move(image), m_report); }

    std::shared_ptr<VipsImage> m_image;
    std::shared_ptr<DecodingReport> m_report;
};

} // namespace platform
