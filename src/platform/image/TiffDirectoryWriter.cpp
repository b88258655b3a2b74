#include "platform/image/TiffDirectoryWriter.h"

#include <QtEndian>

namespace platform {

namespace {

constexpr qsizetype InlineLength = 4;

template <typename T>
QByteArray ordered(T value, bool bigEndian)
{
    const T bytes = bigEndian ? qToBigEndian(value) : qToLittleEndian(value);
    return {reinterpret_cast<const char *>(&bytes), sizeof bytes};
}

} // namespace

QByteArray TiffDirectoryWriter::number(quint32 value) const
{
    return ordered(value, m_bigEndian);
}

QByteArray TiffDirectoryWriter::shortNumber(quint16 value) const
{
    return ordered(value, m_bigEndian);
}

void TiffDirectoryWriter::set(quint16 tag, quint16 type, quint32 count, const QByteArray &value)
{
    m_entries[tag] = {type, count, value.leftJustified(InlineLength, '\0')};
}

void TiffDirectoryWriter::setReference(quint16 tag, quint16 type, quint32 count, quint32 position)
{
    m_entries[tag] = {type, count, number(position)};
}

QByteArray TiffDirectoryWriter::bytes(quint32 position) const
{
    constexpr qsizetype entryLength = 12;
    const qsizetype directoryLength = 2 + qsizetype(m_entries.size()) * entryLength + 4;
    QByteArray directory = shortNumber(quint16(m_entries.size()));
    QByteArray values;
    for (const auto &[tag, entry] : m_entries) {
        directory += shortNumber(tag) + shortNumber(entry.type) + number(entry.count);
        if (entry.value.size() <= InlineLength) {
            directory += entry.value;
            continue;
        }
        directory += number(quint32(position + directoryLength + values.size()));
        values += entry.value;
        values.append(values.size() % 2, '\0');
    }
    return directory + number(0) + values;
}

} // namespace platform
