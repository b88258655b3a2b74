#pragma once

#include <map>
#include <QByteArray>

namespace platform {

/// Collects the entries of a TIFF directory; a tag that is set again replaces what stood there.
class TiffDirectoryWriter {
public:
    explicit TiffDirectoryWriter(bool bigEndian) : m_bigEndian(bigEndian) {}

    /// The value's bytes are in the byte order of the directory.
    void set(quint16 tag, quint16 type, quint32 count, const QByteArray &value);
    /// A value of more than four bytes that stands in the file already.
    void setReference(quint16 tag, quint16 type, quint32 count, quint32 position);
    bool isBigEndian() const { return m_bigEndian; }

    /// The directory and behind it the values, for a position in the file; the last of its chain.
    QByteArray bytes(quint32 position) const;
    QByteArray number(quint32 value) const;

private:
    struct Entry {
        quint16 type = 0;
        quint32 count = 0;
        /// Either the value itself or, of four bytes, where it stands.
        QByteArray value;
    };

    QByteArray shortNumber(quint16 value) const;

    bool m_bigEndian;
    /// Readers insist on ascending tags.
    std::map<quint16, Entry> m_entries;
};

} // namespace platform
