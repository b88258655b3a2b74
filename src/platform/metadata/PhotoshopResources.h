#pragma once

#include <QByteArrayView>
#include <vector>

namespace platform {

/// One of the image resources that Photoshop keeps in files, its data by position in the block that holds
/// them.
struct PhotoshopResource {
    enum Id : quint16 { Iptc = 0x0404, OldThumbnail = 0x0409, Thumbnail = 0x040C };

    quint16 id = 0;
    qsizetype begin = 0;
    qsizetype length = 0;
};

/// The resources in a block, up to the first that cannot be made out; one that breaks off ends with the
/// block.
std::vector<PhotoshopResource> readPhotoshopResources(QByteArrayView block);

} // namespace platform
