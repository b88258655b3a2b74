#pragma once

#include "platform/metadata/PictureSearch.h"
#include "platform/metadata/StandInPicture.h"

#include <algorithm>
#include <QByteArray>

namespace platform {

/// A block of metadata as a JPEG file holds it: spread over segments, each with a header of its own before
/// its part. Filling its pictures changes no length, so that it goes back into segments of the same lengths.
class MetadataBlock {
public:
    enum class Kind { Exif, Xmp, ExtendedXmp, Photoshop, Other };

    struct Piece {
        /// The place of the segment among those of its source.
        size_t order = 0;
        QByteArray header;
        QByteArray body;
        /// Of a segment that has none by its kind.
        quint8 marker = 0;
    };

    explicit MetadataBlock(Kind kind) : m_kind(kind) {}

    Kind kind() const { return m_kind; }
    /// In the order of the joined data.
    const std::vector<Piece> &pieces() const { return m_pieces; }
    void add(Piece piece) { m_pieces.push_back(std::move(piece)); }
    /// Puts the pieces in the order of the data where that is not the order of the segments.
    template <typename Less>
    void sortPieces(Less less)
    {
        std::stable_sort(m_pieces.begin(), m_pieces.end(), less);
    }
    void replaceInHeaders(const QByteArray &before, const QByteArray &after);

    QByteArray data() const;
    /// Takes data of the same length.
    void setData(const QByteArray &data);

    void findPictures();
    const std::vector<PictureSlot> &pictures() const { return m_pictures; }
    void fillPictures(const StandInPicture &standIn);

private:
    Kind m_kind;
    std::vector<Piece> m_pieces;
    std::vector<PictureSlot> m_pictures;
};

} // namespace platform
