#include "platform/metadata/JpegFile.h"

#include "platform/image/TiffStructure.h"

#include <algorithm>
#include <QBuffer>
#include <QFile>
#include <QtEndian>
#include <set>
#include <string_view>

namespace platform {

namespace {

constexpr std::string_view PictureStart("\xFF\xD8\xFF");

/// Where the file's index of pictures says that previews begin.
std::set<qint64> declaredPreviews(const JpegStream &picture, const char *fileBegin)
{
    constexpr QByteArrayView identifier("MPF\0", 4);
    constexpr quint16 entriesTag = 0xB002;
    constexpr qsizetype entryLength = 16;
    constexpr quint32 previewClass = 0x010000;
    std::set<qint64> result;
    for (const JpegSegment &segment : picture.segments()) {
        if (segment.marker != jpeg::App2 || !segment.payload.startsWith(identifier))
            continue;
        const QByteArrayView index = segment.payload.sliced(identifier.size());
        const std::optional<TiffStructure> tiff = TiffStructure::read(index);
        const auto directory = tiff ? tiff->directoryAt(tiff->firstDirectory()) : std::nullopt;
        const TiffStructure::Entry *entries = directory ? directory->find(entriesTag) : nullptr;
        for (qsizetype at = 0; entries && at + entryLength <= entries->length; at += entryLength) {
            const char *entry = index.data() + entries->position + at;
            const auto number = [&](int offset) {
                return tiff->isBigEndian() ? qFromBigEndian<quint32>(entry + offset)
                                           : qFromLittleEndian<quint32>(entry + offset);
            };
            if ((number(0) & 0xFF0000) == previewClass)
                result.insert(index.data() - fileBegin + qsizetype(number(8)));
        }
    }
    return result;
}

bool isGainMap(const JpegStream &picture)
{
    for (const JpegSegment &segment : picture.segments()) {
        const QByteArrayView payload = segment.payload;
        if (segment.marker == jpeg::App1 &&
            (payload.contains("hdr-gain-map") || payload.contains("hdrgainmap")))
            return true;
        if (segment.marker == jpeg::App2 && payload.startsWith("urn:iso:std:iso:ts:21496"))
            return true;
    }
    return false;
}

/// The first box of a video begins with a short length and its type.
size_t findVideo(std::string_view bytes)
{
    constexpr std::string_view type("ftyp");
    constexpr quint32 longestBox = 4096;
    size_t at = bytes.find(type, 4);
    while (at != bytes.npos && qFromBigEndian<quint32>(bytes.data() + at - 4) > longestBox)
        at = bytes.find(type, at + 1);
    return at == bytes.npos ? at : at - 4;
}

} // namespace

std::optional<JpegFile> JpegFile::open(const QString &path)
{
    auto file = std::make_shared<QFile>(path);
    return file->open(QIODevice::ReadOnly | QIODevice::Unbuffered) ? read(file) : std::nullopt;
}

std::optional<JpegFile> JpegFile::fromBytes(const QByteArray &bytes)
{
    auto buffer = std::make_shared<QBuffer>();
    buffer->setData(bytes);
    buffer->open(QIODevice::ReadOnly);
    return read(buffer);
}

std::optional<JpegFile> JpegFile::read(std::shared_ptr<QIODevice> device)
{
    JpegFile result;
    result.m_device = std::move(device);
    qsizetype wanted = 0x10000;
    do {
        result.m_header += result.m_device->read(wanted - result.m_header.size());
        if (!result.m_header.startsWith("\xFF\xD8"))
            return {};
        result.m_picture = *JpegStream::read(result.m_header, 0, JpegStream::Garbage::Skipped);
        wanted *= 2;
    } while (!result.m_picture.hasData() && result.m_header.size() == wanted / 2);
    return result;
}

qint64 JpegFile::endOfPicture() const
{
    constexpr qsizetype windowLength = 0x40000;
    if (!m_picture.hasData())
        return m_device->size();
    QByteArray window(windowLength, Qt::Uninitialized);
    const QByteArrayView dataHeader = segments().back().payload;
    qint64 position = dataHeader.data() + dataHeader.size() - m_header.constData();
    while (m_device->seek(position)) {
        const qint64 length = std::max<qint64>(m_device->read(window.data(), window.size()), 0);
        const JpegStream::Progress progress = JpegStream::followData(QByteArrayView(window).first(length));
        position += progress.position;
        if (progress.ended || progress.position == 0)
            break;
    }
    return position;
}

JpegRemainder JpegFile::remainder() const
{
    JpegRemainder result;
    const qint64 end = endOfPicture();
    m_device->seek(end);
    const QByteArray rest = m_device->readAll();
    // Searched as a string view: that search is many times faster than Qt's.
    const std::string_view bytes(rest.constData(), size_t(rest.size()));
    const size_t video = findVideo(bytes);
    result.video = video != bytes.npos;
    const std::string_view still = bytes.substr(0, video);
    const std::set<qint64> previews = declaredPreviews(m_picture, m_header.constData());
    size_t at = still.find(PictureStart);
    while (at != still.npos) {
        const auto picture = JpegStream::read(QByteArrayView(still.data(), qsizetype(still.size())),
                                              qsizetype(at), JpegStream::Garbage::Refused);
        const bool found = picture && picture->isPicture();
        if (found) {
            ++(previews.contains(end + qint64(at)) ? result.previews : result.pictures);
            result.gainMap = result.gainMap || isGainMap(*picture);
        }
        at = still.find(PictureStart, found ? size_t(picture->end()) : at + 1);
    }
    return result;
}

} // namespace platform
