#pragma once

#include <optional>
#include <QByteArrayView>
#include <QSize>
#include <vector>

namespace platform {

/// A marker segment; the payload leaves out marker and length.
struct JpegSegment {
    quint8 marker = 0;
    QByteArrayView payload;
};

/// One JPEG picture in a run of bytes, followed by its structure alone: nothing is decoded. Positions count
/// from the beginning of the run, and the segments point into it.
class JpegStream {
public:
    /// What to make of bytes between the segments that belong to none: a file may hold them and still be
    /// decoded, while a search for pictures in foreign data takes them as the sign that there is none.
    enum class Garbage { Refused, Skipped };

    /// Reads the picture that begins at a position. Of the two bytes of its first marker the second alone is
    /// looked at, as some camera makers spoil the other. A picture that breaks off is answered as far as it
    /// goes, even without a single segment; nothing is answered where none begins.
    static std::optional<JpegStream> read(QByteArrayView bytes, qsizetype begin, Garbage garbage);

    struct Progress {
        qsizetype position = 0;
        bool ended = false;
    };
    /// Follows the data of a picture that is too large to hold, a window of it at a time and more than one
    /// segment long: to behind the end marker, or to where the next window has to begin. No progress means
    /// that the picture breaks off.
    static Progress followData(QByteArrayView window);

    /// The segments before the picture's data, and the first header of that data.
    const std::vector<JpegSegment> &segments() const { return m_segments; }
    bool hasData() const { return m_hasData; }
    /// Whether it has a frame header and data, and so shows something.
    bool isPicture() const { return !m_frame.isEmpty() && m_hasData; }
    /// In pixels; empty when no frame header tells it.
    QSize size() const;
    /// Luma samples for one chroma sample, across and down: (2, 2) is 4:2:0. Nothing for a picture without
    /// chroma.
    std::optional<QSize> chromaSampling() const;
    /// Behind the end marker or, without one, behind the last byte that may belong to the picture.
    qsizetype end() const { return m_end; }

private:
    void take(const JpegSegment &segment);
    bool isUnlikely() const;

    std::vector<JpegSegment> m_segments;
    QByteArrayView m_frame;
    qsizetype m_end = 0;
    bool m_hasData = false;
};

namespace jpeg {

constexpr quint8 StartOfImage = 0xD8;
constexpr quint8 EndOfImage = 0xD9;
constexpr quint8 StartOfScan = 0xDA;
constexpr quint8 App0 = 0xE0;
constexpr quint8 App1 = 0xE1;
constexpr quint8 App2 = 0xE2;
constexpr quint8 App13 = 0xED;
/// The length field counts itself.
constexpr qsizetype LargestPayload = 0xFFFF - 2;

} // namespace jpeg

} // namespace platform
