#pragma once

#include "platform/image/FileSource.h"

#include <QString>

namespace platform {

class TiffFile;

/// The pages of a TIFF file. Each stands behind the one before, so that whoever asks a reader for one page
/// after the other makes it walk through all those before, and count all those behind, every time. With the
/// file's head and the last link bent, it begins with the page and ends with it.
class TiffChain {
public:
    /// Of a file that is not changed meanwhile; the one asked for last is remembered. Any thread. There are
    /// no pages in what cannot be read, and in files of 64-bit offsets.
    static TiffChain ofFile(const QString &path);

    int count() const { return m_links ? int(m_links->size()) : 0; }
    /// What has to be read in place of the file's own bytes for so many pages from `first` on to be all.
    std::vector<FilePatch> only(int first, int pages) const;

private:
    struct Link {
        quint32 directory;
        /// Where the position of the next directory stands.
        qint64 next;
    };
    using Links = std::vector<Link>;

    static Links read(TiffFile &tiff);

    std::shared_ptr<const Links> m_links;
    bool m_isBigEndian = false;
};

} // namespace platform
