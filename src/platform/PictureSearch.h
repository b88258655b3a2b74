#pragma once

#include <QByteArrayView>
#include <QSize>
#include <vector>

namespace platform {

/// A picture inside a block of metadata: the bytes it takes up and what may take their place, so that every
/// other byte and every offset in the block stays right.
struct PictureSlot {
    /// In the order in which slots are filled: where some overlap, a picture lies over what was blanked.
    enum class Fill { Zeros, Spaces, Pixels, Jpeg };

    Fill fill = Fill::Zeros;
    qsizetype begin = 0;
    qsizetype length = 0;
    /// Of the picture that may stand in, in pixels; empty where only blanking is possible.
    QSize size;

    bool operator==(const PictureSlot &) const = default;
};

/// Searches for pictures in a block of metadata. The slots are in no particular order and lie inside the
/// block; they may overlap. Garbage is answered with few or no slots.

/// JPEG pictures anywhere, whoever wrote them and by whatever offset they are found.
std::vector<PictureSlot> findJpegs(QByteArrayView block);
/// Base64 text of a picture, as XMP holds it.
std::vector<PictureSlot> findBase64Pictures(QByteArrayView block);
/// All of the above, picture files of other formats, and what the directories of an EXIF block declare as
/// pictures, or those of TIFF structures inside of it. The block begins with the TIFF header.
std::vector<PictureSlot> findExifPictures(QByteArrayView block);
/// All of the above, and what Photoshop's resources and the IPTC record in them declare as pictures.
std::vector<PictureSlot> findPhotoshopPictures(QByteArrayView block);

} // namespace platform
