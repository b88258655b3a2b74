#pragma once

#include <memory>
#include <optional>
#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <vector>

namespace platform {

/// The directories of a TIFF file, each read when it is asked for: the file may be large, and may shrink
/// while we look at it. No number in it is trusted. One thread.
class TiffFile {
public:
    struct Entry {
        quint16 tag = 0;
        quint16 type = 0;
        quint32 count = 0;
        /// In the byte order of the file; empty where it lies outside of the file.
        QByteArray value;
        bool operator==(const Entry &) const = default;
    };
    struct Directory {
        std::vector<Entry> entries;
        /// Position of the next directory of the chain, 0 for none.
        quint32 next = 0;

        const Entry *find(quint16 tag) const;
    };

    /// Nothing for what cannot be read or has no header of either byte order.
    static std::optional<TiffFile> open(const QString &path);
    /// One that begins inside of a device; positions count from there.
    static std::optional<TiffFile> read(std::shared_ptr<QIODevice> device, qint64 origin);

    bool isBigEndian() const { return m_bigEndian; }
    quint32 firstDirectory() const { return m_firstDirectory; }
    std::optional<Directory> directoryAt(quint32 position);
    /// Where a directory tells of the next one, and what; without its entries being read.
    struct Link {
        qint64 position;
        quint32 next;
    };
    std::optional<Link> linkAt(quint32 position);
    /// None for a directory without that entry, or for values that are no whole numbers.
    std::vector<quint32> numbers(const Directory &directory, quint16 tag) const;
    quint32 number(const Directory &directory, quint16 tag, quint32 fallback) const;

private:
    TiffFile() = default;
    quint16 short_(const char *data) const;
    quint32 long_(const char *data) const;
    Entry entryFrom(const char *bytes);
    QByteArray bytesAt(quint32 position, qint64 length);

    std::shared_ptr<QIODevice> m_device;
    qint64 m_origin = 0;
    bool m_bigEndian = false;
    quint32 m_firstDirectory = 0;
};

/// Whether a file that begins like a TIFF holds the data of a camera's sensor, of which its first directory
/// shows no more than a preview.
bool holdsSensorData(const QString &path);

} // namespace platform
