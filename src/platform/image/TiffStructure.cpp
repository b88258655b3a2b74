#include "platform/image/TiffStructure.h"

#include <algorithm>
#include <QtEndian>

namespace platform {

namespace {

constexpr qsizetype HeaderLength = 8;
constexpr qsizetype EntryLength = 12;
/// Chains of real files are of two or three; a longer one is a knot.
constexpr size_t LongestChain = 16;

qsizetype lengthOfType(quint16 type)
{
    static constexpr quint8 lengths[] = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4};
    return type < std::size(lengths) ? lengths[type] : 0;
}

} // namespace

const TiffStructure::Entry *TiffStructure::Directory::find(quint16 tag) const
{
    const auto found =
        std::find_if(entries.begin(), entries.end(), [tag](const Entry &entry) { return entry.tag == tag; });
    return found == entries.end() ? nullptr : &*found;
}

std::optional<TiffStructure> TiffStructure::read(QByteArrayView bytes)
{
    if (bytes.size() < HeaderLength)
        return {};
    TiffStructure result;
    result.m_bytes = bytes;
    result.m_bigEndian = bytes.startsWith("MM");
    if ((!result.m_bigEndian && !bytes.startsWith("II")) || result.short_(2) != 42)
        return {};
    result.m_firstDirectory = result.long_(4);
    return result;
}

quint16 TiffStructure::short_(qsizetype position) const
{
    const char *data = m_bytes.data() + position;
    return m_bigEndian ? qFromBigEndian<quint16>(data) : qFromLittleEndian<quint16>(data);
}

quint32 TiffStructure::long_(qsizetype position) const
{
    const char *data = m_bytes.data() + position;
    return m_bigEndian ? qFromBigEndian<quint32>(data) : qFromLittleEndian<quint32>(data);
}

std::optional<TiffStructure::Entry> TiffStructure::entryAt(qsizetype position) const
{
    Entry entry{short_(position), short_(position + 2), long_(position + 4), position + 8, 0};
    entry.length = lengthOfType(entry.type) * qsizetype(entry.count);
    if (entry.length > 4)
        entry.position = long_(position + 8);
    if (entry.length == 0 || entry.position > m_bytes.size() - entry.length)
        return {};
    return entry;
}

std::optional<TiffStructure::Directory> TiffStructure::directoryAt(quint32 position) const
{
    const qsizetype begin = position;
    if (begin < HeaderLength || begin + 2 > m_bytes.size())
        return {};
    const qsizetype told = short_(begin);
    const qsizetype count = std::min(told, (m_bytes.size() - begin - 2) / EntryLength);
    Directory directory;
    directory.position = begin;
    directory.length = 2 + count * EntryLength;
    for (qsizetype i = 0; i < count; ++i) {
        if (const std::optional<Entry> entry = entryAt(begin + 2 + i * EntryLength))
            directory.entries.push_back(*entry);
    }
    if (count == told && begin + directory.length + 4 <= m_bytes.size()) {
        directory.next = long_(begin + directory.length);
        directory.length += 4;
    }
    return directory;
}

std::vector<TiffStructure::Directory> TiffStructure::chain() const
{
    std::vector<Directory> result;
    std::optional<Directory> directory = directoryAt(m_firstDirectory);
    while (directory && result.size() < LongestChain) {
        result.push_back(std::move(*directory));
        directory = directoryAt(result.back().next);
    }
    return result;
}

qsizetype TiffStructure::unitLength(quint16 type)
{
    const bool isFraction = type == 5 || type == 10;
    return isFraction ? 4 : lengthOfType(type);
}

std::vector<quint32> TiffStructure::numbers(const Entry &entry) const
{
    constexpr quint16 directoryType = 13;
    std::vector<quint32> result;
    if (entry.type == Short) {
        for (quint32 i = 0; i < entry.count; ++i)
            result.push_back(short_(entry.position + 2 * qsizetype(i)));
    } else if (entry.type == Long || entry.type == directoryType) {
        for (quint32 i = 0; i < entry.count; ++i)
            result.push_back(long_(entry.position + 4 * qsizetype(i)));
    }
    return result;
}

std::optional<quint32> TiffStructure::number(const Directory &directory, quint16 tag) const
{
    const Entry *entry = directory.find(tag);
    const std::vector<quint32> values = entry ? numbers(*entry) : std::vector<quint32>();
    return values.empty() ? std::nullopt : std::optional(values.front());
}

} // namespace platform
