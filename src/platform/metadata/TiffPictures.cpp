#include "platform/metadata/TiffPictures.h"

#include "platform/image/TiffStructure.h"
#include "platform/image/TiffTags.h"

#include <algorithm>
#include <optional>

namespace platform {

namespace {

using Slots = std::vector<PictureSlot>;

bool overlap(const PictureSlot &a, const PictureSlot &b)
{
    return a.begin < b.begin + b.length && b.begin < a.begin + a.length;
}

/// One walk over the directories of a structure.
class DirectoryWalk {
public:
    DirectoryWalk(QByteArrayView block, const TiffStructure &tiff) : m_block(block), m_tiff(tiff) {}
    Slots find();

private:
    void visit(const TiffStructure::Directory &directory, int depth);
    void occupy(const TiffStructure::Directory &directory);
    void addJpeg(const TiffStructure::Directory &directory);
    void addStrips(const TiffStructure::Directory &directory);
    void addRanges(const TiffStructure::Directory &directory, tifftag::Tag offsets, tifftag::Tag lengths);
    void addRange(qsizetype begin, qsizetype length);
    QSize pixelSize(const TiffStructure::Directory &directory) const;

    QByteArrayView m_block;
    const TiffStructure &m_tiff;
    Slots m_declared;
    /// What directories and the values of their tags take up.
    Slots m_occupied;
};

Slots DirectoryWalk::find()
{
    for (const TiffStructure::Directory &directory : m_tiff.chain())
        visit(directory, 0);
    // In damaged blocks the offsets point anywhere. What lies over tags is no picture, unless it begins like
    // one.
    const auto isLie = [this](const PictureSlot &slot) {
        const bool looksLikeJpeg = slot.length > 2 && m_block.sliced(slot.begin + 1).startsWith("\xD8\xFF");
        const auto overlapping = [&slot](const PictureSlot &other) { return overlap(other, slot); };
        return !looksLikeJpeg && std::any_of(m_occupied.begin(), m_occupied.end(), overlapping);
    };
    m_declared.erase(std::remove_if(m_declared.begin(), m_declared.end(), isLie), m_declared.end());
    return m_declared;
}

void DirectoryWalk::visit(const TiffStructure::Directory &directory, int depth)
{
    constexpr int deepest = 3;
    constexpr size_t mostSubdirectories = 16;
    occupy(directory);
    addJpeg(directory);
    addStrips(directory);
    addRanges(directory, tifftag::TileOffsets, tifftag::TileByteCounts);
    for (const quint16 tag : {tifftag::SubDirectories, tifftag::ExifDirectory, tifftag::GpsDirectory,
                              tifftag::InteroperabilityDirectory}) {
        const TiffStructure::Entry *entry = depth < deepest ? directory.find(tag) : nullptr;
        std::vector<quint32> positions = entry ? m_tiff.numbers(*entry) : std::vector<quint32>();
        positions.resize(std::min(positions.size(), mostSubdirectories));
        for (const quint32 position : positions) {
            if (const auto subdirectory = m_tiff.directoryAt(position))
                visit(*subdirectory, depth + 1);
        }
    }
}

void DirectoryWalk::occupy(const TiffStructure::Directory &directory)
{
    m_occupied.push_back({PictureSlot::Fill::Zeros, directory.position, directory.length, {}});
    for (const TiffStructure::Entry &entry : directory.entries) {
        // Cameras do keep the thumbnail inside their notes.
        if (entry.tag != tifftag::MakerNote && entry.length > 4)
            m_occupied.push_back({PictureSlot::Fill::Zeros, entry.position, entry.length, {}});
    }
}

void DirectoryWalk::addJpeg(const TiffStructure::Directory &directory)
{
    const auto offset = m_tiff.number(directory, tifftag::JpegOffset);
    const auto length = m_tiff.number(directory, tifftag::JpegLength);
    if (offset && length)
        addRange(*offset, *length);
}

void DirectoryWalk::addRange(qsizetype begin, qsizetype length)
{
    constexpr qsizetype header = 8;
    if (begin >= header && begin < m_block.size() && length > 0)
        m_declared.push_back({PictureSlot::Fill::Zeros, begin, std::min(length, m_block.size() - begin), {}});
}

void DirectoryWalk::addRanges(const TiffStructure::Directory &directory, tifftag::Tag offsets,
                              tifftag::Tag lengths)
{
    const TiffStructure::Entry *positions = directory.find(offsets);
    const TiffStructure::Entry *byteCounts = directory.find(lengths);
    if (!positions || !byteCounts)
        return;
    const std::vector<quint32> begins = m_tiff.numbers(*positions);
    const std::vector<quint32> counts = m_tiff.numbers(*byteCounts);
    for (size_t i = 0; i < std::min(begins.size(), counts.size()); ++i)
        addRange(begins[i], counts[i]);
}

void DirectoryWalk::addStrips(const TiffStructure::Directory &directory)
{
    const size_t before = m_declared.size();
    addRanges(directory, tifftag::StripOffsets, tifftag::StripByteCounts);
    const QSize size = pixelSize(directory);
    if (m_declared.size() == before + 1 &&
        m_declared.back().length == qsizetype(size.width()) * size.height() * 3) {
        m_declared.back().fill = PictureSlot::Fill::Pixels;
        m_declared.back().size = size;
    }
}

/// The size of uncompressed 8-bit RGB pixels; empty for pixels of any other kind.
QSize DirectoryWalk::pixelSize(const TiffStructure::Directory &directory) const
{
    const TiffStructure::Entry *bits = directory.find(tifftag::BitsPerSample);
    const bool isRgb = bits && m_tiff.numbers(*bits) == std::vector<quint32>{8, 8, 8} &&
                       m_tiff.number(directory, tifftag::Compression).value_or(0) == 1 &&
                       m_tiff.number(directory, tifftag::Photometric).value_or(0) == 2 &&
                       m_tiff.number(directory, tifftag::SamplesPerPixel).value_or(0) == 3 &&
                       m_tiff.number(directory, tifftag::PlanarConfiguration).value_or(1) == 1;
    const quint32 width = m_tiff.number(directory, tifftag::Width).value_or(0);
    const quint32 height = m_tiff.number(directory, tifftag::Height).value_or(0);
    if (!isRgb || std::max(width, height) > quint32(PictureSlot::LargestSide))
        return {};
    return {int(width), int(height)};
}

} // namespace

std::vector<PictureSlot> findTiffPictures(QByteArrayView block)
{
    const std::optional<TiffStructure> tiff = TiffStructure::read(block);
    return tiff ? DirectoryWalk(block, *tiff).find() : Slots();
}

std::vector<PictureSlot> findNestedTiffPictures(QByteArrayView block)
{
    constexpr int mostStructures = 16;
    Slots result;
    for (const QByteArrayView header : {QByteArrayView("II*\0", 4), QByteArrayView("MM\0*", 4)}) {
        qsizetype at = block.indexOf(header, 1);
        for (int count = 0; at > 0 && count < mostStructures; ++count, at = block.indexOf(header, at + 1)) {
            for (PictureSlot slot : findTiffPictures(block.sliced(at))) {
                slot.begin += at;
                result.push_back(slot);
            }
        }
    }
    return result;
}

} // namespace platform
