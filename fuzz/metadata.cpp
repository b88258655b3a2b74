#include "platform/metadata/CarriedMetadata.h"
#include "platform/metadata/JpegFile.h"
#include "Target.h"

#include <QImage>

/// Whatever the pictures in the blocks are replaced by, the file has room for it: each stays as long as it
/// is.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using platform::CarriedMetadata;
    const auto file = platform::JpegFile::fromBytes(bytesOf(data, size));
    if (!file)
        return 0;
    const CarriedMetadata metadata = CarriedMetadata::ofJpeg(*file);
    QImage standIn(64, 48, QImage::Format_RGB32);
    standIn.fill(Qt::red);
    const QByteArray bare("\xFF\xD8\xFF\xD9");
    const QByteArray marked = metadata.insertedInto(bare, standIn);
    require(marked.size() == metadata.insertedInto(bare, QImage()).size());
    const auto written = platform::JpegFile::fromBytes(marked);
    require(written && CarriedMetadata::ofJpeg(*written).exif().size() == metadata.exif().size());
    metadata.xmpPackets();
    metadata.photoshopResources();
    return 0;
}
