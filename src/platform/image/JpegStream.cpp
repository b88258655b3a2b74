#include "platform/image/JpegStream.h"

#include <algorithm>
#include <cstring>
#include <QtEndian>

namespace platform {

namespace {

bool isRestart(quint8 marker)
{
    return marker >= 0xD0 && marker <= 0xD7;
}

bool startsSegment(quint8 marker)
{
    return (marker >= 0xC0 && marker <= 0xCF) || (marker >= jpeg::StartOfScan && marker <= 0xEF) ||
           marker == 0xFE;
}

bool isFrameHeader(quint8 marker)
{
    // Huffman tables, extensions and arithmetic conditioning share the range.
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

class Walker {
public:
    Walker(QByteArrayView bytes, qsizetype position, JpegStream::Garbage garbage)
        : m_bytes(bytes), m_position(position), m_garbage(garbage)
    {
    }

    qsizetype position() const { return m_position; }
    /// Passes over the next marker and answers it.
    std::optional<quint8> nextMarker();
    /// Passes over the payload behind a marker.
    std::optional<QByteArrayView> nextPayload();
    /// Passes over entropy-coded data, up to the marker that ends it.
    void skipData();

private:
    quint8 at(qsizetype position) const { return quint8(m_bytes[position]); }
    qsizetype nextFF(qsizetype from) const;

    QByteArrayView m_bytes;
    qsizetype m_position;
    JpegStream::Garbage m_garbage;
};

qsizetype Walker::nextFF(qsizetype from) const
{
    if (from >= m_bytes.size())
        return m_bytes.size();
    const void *found = std::memchr(m_bytes.data() + from, 0xFF, size_t(m_bytes.size() - from));
    return found ? static_cast<const char *>(found) - m_bytes.data() : m_bytes.size();
}

std::optional<quint8> Walker::nextMarker()
{
    const bool skipsGarbage = m_garbage == JpegStream::Garbage::Skipped;
    qsizetype position = skipsGarbage ? nextFF(m_position) : m_position;
    while (position + 1 < m_bytes.size() && at(position) == 0xFF) {
        const quint8 marker = at(position + 1);
        if (marker == 0xFF) {
            ++position;
        } else if (startsSegment(marker) || marker == jpeg::EndOfImage) {
            m_position = position + 2;
            return marker;
        } else if (skipsGarbage) {
            position = nextFF(position + 2);
        } else {
            break;
        }
    }
    if (skipsGarbage)
        m_position = m_bytes.size();
    return {};
}

std::optional<QByteArrayView> Walker::nextPayload()
{
    if (m_position + 2 > m_bytes.size())
        return {};
    const qsizetype length = qFromBigEndian<quint16>(m_bytes.data() + m_position);
    if (length < 2 || m_position + length > m_bytes.size())
        return {};
    const QByteArrayView payload = m_bytes.sliced(m_position + 2, length - 2);
    m_position += length;
    return payload;
}

void Walker::skipData()
{
    m_position = nextFF(m_position);
    while (m_position + 1 < m_bytes.size()) {
        const quint8 next = at(m_position + 1);
        if (next != 0 && !isRestart(next))
            return;
        m_position = nextFF(m_position + 2);
    }
}

} // namespace

std::optional<JpegStream> JpegStream::read(QByteArrayView bytes, qsizetype begin, Garbage garbage)
{
    if (begin < 0 || begin + 2 > bytes.size() || quint8(bytes[begin + 1]) != jpeg::StartOfImage)
        return {};
    JpegStream stream;
    Walker walker(bytes, begin + 2, garbage);
    while (const std::optional<quint8> marker = walker.nextMarker()) {
        if (*marker == jpeg::EndOfImage)
            break;
        const std::optional<QByteArrayView> payload = walker.nextPayload();
        if (!payload)
            break;
        stream.take({*marker, *payload});
        if (garbage == Garbage::Refused && stream.isUnlikely())
            break;
        if (*marker == jpeg::StartOfScan)
            walker.skipData();
    }
    stream.m_end = walker.position();
    return stream;
}

JpegStream::Progress JpegStream::followData(QByteArrayView window)
{
    Walker walker(window, 0, Garbage::Skipped);
    for (;;) {
        walker.skipData();
        const qsizetype reached = walker.position();
        const std::optional<quint8> marker = walker.nextMarker();
        if (marker == jpeg::EndOfImage)
            return {walker.position(), true};
        if (!marker || !walker.nextPayload())
            return {reached, false};
    }
}

void JpegStream::take(const JpegSegment &segment)
{
    if (m_hasData)
        return;
    m_segments.push_back(segment);
    if (isFrameHeader(segment.marker) && m_frame.isEmpty())
        m_frame = segment.payload;
    m_hasData = segment.marker == jpeg::StartOfScan;
}

/// Keeps a search through bytes made to mislead it from following them over and over.
bool JpegStream::isUnlikely() const
{
    constexpr size_t mostSegments = 256;
    return (m_hasData && m_frame.isEmpty()) || m_segments.size() > mostSegments;
}

QSize JpegStream::size() const
{
    if (m_frame.size() < 6)
        return {};
    return {qFromBigEndian<quint16>(m_frame.data() + 3), qFromBigEndian<quint16>(m_frame.data() + 1)};
}

std::optional<QSize> JpegStream::chromaSampling() const
{
    constexpr qsizetype firstComponent = 6;
    constexpr qsizetype componentLength = 3;
    if (m_frame.size() < firstComponent + 3 * componentLength || m_frame[5] != 3)
        return {};
    const auto factors = [this](int component) {
        const quint8 both = quint8(m_frame[firstComponent + component * componentLength + 1]);
        return QSize(std::max(both >> 4, 1), std::max(both & 15, 1));
    };
    const QSize luma = factors(0);
    const QSize chroma = factors(1).expandedTo(factors(2));
    return QSize(std::max(luma.width() / chroma.width(), 1), std::max(luma.height() / chroma.height(), 1));
}

} // namespace platform
