#pragma once

#include <optional>
#include <QByteArrayView>
#include <vector>

namespace platform {

/// Reads the directories of a TIFF structure, as it stands in EXIF blocks, without trusting any number in it.
/// Positions count from its header; whatever points outside the bytes is left out.
class TiffStructure {
public:
    enum Type : quint16 { Byte = 1, Short = 3, Long = 4 };

    struct Entry {
        quint16 tag = 0;
        quint16 type = 0;
        quint32 count = 0;
        /// Where the value stands: inside the entry itself when it is of four bytes or less.
        qsizetype position = 0;
        qsizetype length = 0;
    };
    struct Directory {
        qsizetype position = 0;
        qsizetype length = 0;
        std::vector<Entry> entries;
        /// Position of the next directory of the chain, 0 for none.
        quint32 next = 0;

        const Entry *find(quint16 tag) const;
    };

    /// Nothing without a header of either byte order.
    static std::optional<TiffStructure> read(QByteArrayView bytes);

    quint32 firstDirectory() const { return m_firstDirectory; }
    std::optional<Directory> directoryAt(quint32 position) const;
    /// The chain that begins with the first directory.
    std::vector<Directory> chain() const;

    /// All values of an entry of whole numbers; none for other types.
    std::vector<quint32> numbers(const Entry &entry) const;
    std::optional<quint32> number(const Directory &directory, quint16 tag) const;
    bool isBigEndian() const { return m_bigEndian; }
    /// The bytes that are turned round together when the byte order changes.
    static qsizetype unitLength(quint16 type);

private:
    quint16 short_(qsizetype position) const;
    quint32 long_(qsizetype position) const;
    std::optional<Entry> entryAt(qsizetype position) const;

    QByteArrayView m_bytes;
    bool m_bigEndian = false;
    quint32 m_firstDirectory = 0;
};

} // namespace platform
