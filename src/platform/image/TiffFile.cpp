#include "platform/image/TiffFile.h"

#include "platform/image/TiffStructure.h"
#include "platform/image/TiffTags.h"

#include <algorithm>
#include <QFile>
#include <QtEndian>

namespace platform {

namespace {

constexpr qint64 HeaderLength = 8;
constexpr qint64 EntryLength = 12;

qint64 lengthOf(quint16 type, quint32 count)
{
    // A fraction is of two numbers.
    const qint64 numbers = type == 5 || type == 10 ? 2 : 1;
    return TiffStructure::unitLength(type) * numbers * qint64(count);
}

} // namespace

const TiffFile::Entry *TiffFile::Directory::find(quint16 tag) const
{
    const auto found =
        std::find_if(entries.begin(), entries.end(), [tag](const Entry &entry) { return entry.tag == tag; });
    return found == entries.end() ? nullptr : &*found;
}

std::optional<TiffFile> TiffFile::open(const QString &path)
{
    auto file = std::make_shared<QFile>(path);
    return file->open(QIODevice::ReadOnly) ? read(file, 0) : std::nullopt;
}

std::optional<TiffFile> TiffFile::read(std::shared_ptr<QIODevice> device, qint64 origin)
{
    TiffFile tiff;
    tiff.m_device = std::move(device);
    tiff.m_origin = origin;
    const QByteArray header = tiff.bytesAt(0, HeaderLength);
    const std::optional<TiffStructure> structure = TiffStructure::read(header);
    if (!structure)
        return {};
    tiff.m_bigEndian = structure->isBigEndian();
    tiff.m_firstDirectory = structure->firstDirectory();
    return tiff;
}

quint16 TiffFile::short_(const char *data) const
{
    return m_bigEndian ? qFromBigEndian<quint16>(data) : qFromLittleEndian<quint16>(data);
}

quint32 TiffFile::long_(const char *data) const
{
    return m_bigEndian ? qFromBigEndian<quint32>(data) : qFromLittleEndian<quint32>(data);
}

QByteArray TiffFile::bytesAt(quint32 position, qint64 length)
{
    constexpr qint64 longest = 1 << 24;
    if (length > longest || !m_device->seek(m_origin + position))
        return {};
    const QByteArray bytes = m_device->read(length);
    return bytes.size() == length ? bytes : QByteArray();
}

TiffFile::Entry TiffFile::entryFrom(const char *bytes)
{
    Entry entry{short_(bytes), short_(bytes + 2), long_(bytes + 4), {}};
    const qint64 length = lengthOf(entry.type, entry.count);
    entry.value = length > 4 ? bytesAt(long_(bytes + 8), length) : QByteArray(bytes + 8, length);
    return entry;
}

std::optional<TiffFile::Directory> TiffFile::directoryAt(quint32 position)
{
    const QByteArray told = position < HeaderLength ? QByteArray() : bytesAt(position, 2);
    if (told.isEmpty())
        return {};
    const qint64 count = short_(told.constData());
    const QByteArray entries = bytesAt(position + 2, count * EntryLength);
    if (entries.isEmpty())
        return {};
    Directory directory;
    const QByteArray next = m_device->read(4);
    directory.next = next.size() == 4 ? long_(next.constData()) : 0;
    for (qint64 i = 0; i < count; ++i)
        directory.entries.push_back(entryFrom(entries.constData() + i * EntryLength));
    return directory;
}

std::optional<TiffFile::Link> TiffFile::linkAt(quint32 position)
{
    const QByteArray told = position < HeaderLength ? QByteArray() : bytesAt(position, 2);
    const qint64 count = told.isEmpty() ? 0 : short_(told.constData());
    const qint64 at = qint64(position) + 2 + count * EntryLength;
    // Behind the last directory of a file that breaks off there may be no such link.
    const QByteArray next = count > 0 && m_device->seek(m_origin + at) ? m_device->read(4) : QByteArray();
    if (next.size() != 4)
        return {};
    return Link{at, long_(next.constData())};
}

std::vector<quint32> TiffFile::numbers(const Directory &directory, quint16 tag) const
{
    constexpr quint16 directoryType = 13;
    const Entry *entry = directory.find(tag);
    std::vector<quint32> result;
    if (entry && entry->type == TiffStructure::Short)
        for (qsizetype at = 0; at + 2 <= entry->value.size(); at += 2)
            result.push_back(short_(entry->value.constData() + at));
    else if (entry && (entry->type == TiffStructure::Long || entry->type == directoryType))
        for (qsizetype at = 0; at + 4 <= entry->value.size(); at += 4)
            result.push_back(long_(entry->value.constData() + at));
    return result;
}

quint32 TiffFile::number(const Directory &directory, quint16 tag, quint32 fallback) const
{
    const std::vector<quint32> values = numbers(directory, tag);
    return values.empty() ? fallback : values.front();
}

namespace {

constexpr size_t mostDirectories = 16;

bool isReduced(const TiffFile &file, const TiffFile::Directory &directory)
{
    return file.number(directory, tifftag::NewSubfileType, 0) & 1;
}

/// Samples of one colour each, as the sensor has them, or of all three before anything was made of them.
bool isSensorData(const TiffFile &file, const TiffFile::Directory &directory)
{
    constexpr quint32 mosaic = 32803;
    constexpr quint32 linear = 34892;
    const quint32 kind = file.number(directory, tifftag::Photometric, 0);
    return kind == mosaic || kind == linear;
}

/// Sensor data or, since makers have codes of their own, a whole picture below a reduced one.
bool leadsToSensorData(TiffFile &file, const TiffFile::Directory &directory)
{
    std::vector<quint32> positions = file.numbers(directory, tifftag::SubDirectories);
    positions.resize(std::min(positions.size(), mostDirectories));
    return std::any_of(positions.begin(), positions.end(), [&](quint32 position) {
        const auto below = file.directoryAt(position);
        return below &&
               (isSensorData(file, *below) || (isReduced(file, directory) && !isReduced(file, *below)));
    });
}

/// Of a maker whose directories say nothing of the kind.
bool hasMarkOfRawFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(10).endsWith("CR");
}

} // namespace

bool holdsSensorData(const QString &path)
{
    std::optional<TiffFile> file = TiffFile::open(path);
    if (!file || hasMarkOfRawFile(path))
        return file.has_value();
    auto directory = file->directoryAt(file->firstDirectory());
    for (size_t i = 0; directory && i < mostDirectories; ++i) {
        if (isSensorData(*file, *directory) || leadsToSensorData(*file, *directory))
            return true;
        directory = file->directoryAt(directory->next);
    }
    return false;
}

} // namespace platform
