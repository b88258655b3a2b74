#pragma once

#include "platform/metadata/PictureSlot.h"

#include <QByteArrayView>
#include <vector>

namespace platform {

// What the directories of TIFF structures declare as pictures: JPEG streams, strips and tiles. Declared sizes
// and positions are not trusted; the slots lie inside the block and are in no particular order.

/// Of the structure that the block itself is. None for a block without the header of one.
std::vector<PictureSlot> findTiffPictures(QByteArrayView block);
/// Of those that begin anywhere else in the block: makers keep their notes in such structures, and Photoshop
/// a second EXIF block. Positions count from the block's beginning.
std::vector<PictureSlot> findNestedTiffPictures(QByteArrayView block);

} // namespace platform
