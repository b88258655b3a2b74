#pragma once

#include "platform/metadata/PictureSlot.h"

#include <QByteArrayView>
#include <vector>

namespace platform {

/// Searches for pictures in a block of metadata. The slots are in no particular order and lie inside the
/// block; they may overlap. Garbage is answered with few or no slots.

/// Base64 text of a picture, as XMP holds it.
std::vector<PictureSlot> findBase64Pictures(QByteArrayView block);
/// That and picture files of any format, whoever wrote them and by whatever offset they are found, and what
/// the directories of an EXIF block or of TIFF structures inside of it declare as pictures. The block begins
/// with the TIFF header.
std::vector<PictureSlot> findExifPictures(QByteArrayView block);
/// The same in a block of Photoshop's resources, and what these and the IPTC record in them declare as
/// pictures.
std::vector<PictureSlot> findPhotoshopPictures(QByteArrayView block);

} // namespace platform
