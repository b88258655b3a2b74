#include "platform/PictureSearch.h"

#include "platform/JpegStream.h"
#include "platform/PhotoshopResources.h"
#include "platform/PictureFiles.h"
#include "platform/TiffStructure.h"
#include "platform/TiffTags.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <QtEndian>

namespace platform {

namespace {

/// A size that no thumbnail or preview has, and that would only cost memory to fill.
constexpr int LargestSide = 8192;

using Slots = std::vector<PictureSlot>;

void append(Slots &target, const Slots &more)
{
    target.insert(target.end(), more.begin(), more.end());
}

PictureSlot jpegSlot(const JpegStream &stream, qsizetype begin)
{
    // No JPEG packs more pixels into a byte; a damaged header may well tell of more.
    constexpr qsizetype mostPixelsInByte = 256;
    const QSize size = stream.size();
    const qsizetype length = stream.end() - begin;
    const bool isPlausible = !size.isEmpty() && std::max(size.width(), size.height()) <= LargestSide &&
                             qsizetype(size.width()) * size.height() <= length * mostPixelsInByte;
    if (!isPlausible)
        return {PictureSlot::Fill::Zeros, begin, length, {}};
    return {PictureSlot::Fill::Jpeg, begin, length, size};
}

bool isBase64(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '+' || c == '/';
}

bool isSpace(char c)
{
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

/// The length of a character reference such as "&#xA;" at the beginning of the text; 0 when there is none.
qsizetype characterReference(QByteArrayView text)
{
    constexpr qsizetype longest = 8;
    const qsizetype end =
        text.startsWith("&#") ? text.first(std::min(longest, text.size())).indexOf(';') : -1;
    return end + 1;
}

struct Base64Run {
    qsizetype length = 0;
    qsizetype digits = 0;
};

/// Follows base64 text, with white space plain or escaped between its lines.
Base64Run base64Run(QByteArrayView text)
{
    Base64Run run;
    qsizetype at = 0;
    while (at < text.size()) {
        const qsizetype reference = characterReference(text.sliced(at));
        const bool digit = isBase64(text[at]) || text[at] == '=';
        if (!digit && !isSpace(text[at]) && reference == 0)
            break;
        at += std::max<qsizetype>(reference, 1);
        run.digits += digit;
        if (digit)
            run.length = at;
    }
    return run;
}

/// The base64 text by which a picture format is known, and where it stands in the picture's text.
struct Base64Signature {
    const char *text;
    qsizetype offset;
};

constexpr Base64Signature Base64Signatures[] = {
    {"/9j/", 0},        // JPEG
    {"iVBORw0KGg", 0},  // PNG
    {"UklGR", 0},       // WebP
    {"GZ0eX", 5},       // HEIF and AVIF: the type of the first box, behind a length that varies
    {"R0lGOD", 0},      // GIF
    {"SUkqA", 0},       // TIFF
    {"TU0AK", 0},       // TIFF
    {"AAAADEpYTCA", 0}, // JPEG XL
    {"AAAADGpQICA", 0}, // JPEG 2000
};

bool beginsText(QByteArrayView block, qsizetype at)
{
    return at == 0 || (at > 0 && !isBase64(block[at - 1]));
}

void findBase64(QByteArrayView block, const Base64Signature &signature, Slots &found)
{
    constexpr qsizetype fewestDigits = 64;
    const QByteArrayView text(signature.text);
    qsizetype at = block.indexOf(text);
    while (at >= 0) {
        const qsizetype begin = at - signature.offset;
        Base64Run run;
        if (beginsText(block, begin) && (signature.offset == 0 || block.sliced(begin).startsWith("AAAA")))
            run = base64Run(block.sliced(begin));
        if (run.digits >= fewestDigits)
            found.push_back({PictureSlot::Fill::Spaces, begin, run.length, {}});
        at = block.indexOf(text, std::max(at + 1, begin + run.length));
    }
}

bool overlaps(const PictureSlot &a, qsizetype begin, qsizetype length)
{
    return a.begin < begin + length && begin < a.begin + a.length;
}

/// A picture that was cut off seems to run on to the end of the block, over whatever follows it. Where a
/// directory tells its length, that is all it takes up.
void shorten(PictureSlot &jpeg, QByteArrayView block, const Slots &declared)
{
    if (block.sliced(jpeg.begin, jpeg.length).endsWith("\xFF\xD9"))
        return;
    for (const PictureSlot &slot : declared) {
        if (slot.begin == jpeg.begin)
            jpeg.length = std::min(jpeg.length, slot.length);
    }
}

/// Finds the pictures that the directories of an EXIF block point to.
class ExifDirectories {
public:
    ExifDirectories(QByteArrayView block, const TiffStructure &tiff) : m_block(block), m_tiff(tiff) {}
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

Slots ExifDirectories::find()
{
    for (const TiffStructure::Directory &directory : m_tiff.chain())
        visit(directory, 0);
    // In damaged blocks the offsets point anywhere. What lies over tags is no picture, unless it begins like
    // one.
    const auto isLie = [this](const PictureSlot &slot) {
        const bool looksLikeJpeg = slot.length > 2 && m_block.sliced(slot.begin + 1).startsWith("\xD8\xFF");
        const auto overlapping = [&slot](const PictureSlot &other) {
            return overlaps(other, slot.begin, slot.length);
        };
        return !looksLikeJpeg && std::any_of(m_occupied.begin(), m_occupied.end(), overlapping);
    };
    m_declared.erase(std::remove_if(m_declared.begin(), m_declared.end(), isLie), m_declared.end());
    return m_declared;
}

void ExifDirectories::visit(const TiffStructure::Directory &directory, int depth)
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

void ExifDirectories::occupy(const TiffStructure::Directory &directory)
{
    m_occupied.push_back({PictureSlot::Fill::Zeros, directory.position, directory.length, {}});
    for (const TiffStructure::Entry &entry : directory.entries) {
        // Cameras do keep the thumbnail inside their notes.
        if (entry.tag != tifftag::MakerNote && entry.length > 4)
            m_occupied.push_back({PictureSlot::Fill::Zeros, entry.position, entry.length, {}});
    }
}

void ExifDirectories::addJpeg(const TiffStructure::Directory &directory)
{
    const auto offset = m_tiff.number(directory, tifftag::JpegOffset);
    const auto length = m_tiff.number(directory, tifftag::JpegLength);
    if (offset && length)
        addRange(*offset, *length);
}

void ExifDirectories::addRange(qsizetype begin, qsizetype length)
{
    constexpr qsizetype header = 8;
    if (begin >= header && begin < m_block.size() && length > 0)
        m_declared.push_back({PictureSlot::Fill::Zeros, begin, std::min(length, m_block.size() - begin), {}});
}

void ExifDirectories::addRanges(const TiffStructure::Directory &directory, tifftag::Tag offsets,
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

void ExifDirectories::addStrips(const TiffStructure::Directory &directory)
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
QSize ExifDirectories::pixelSize(const TiffStructure::Directory &directory) const
{
    const TiffStructure::Entry *bits = directory.find(tifftag::BitsPerSample);
    const bool isRgb = bits && m_tiff.numbers(*bits) == std::vector<quint32>{8, 8, 8} &&
                       m_tiff.number(directory, tifftag::Compression).value_or(0) == 1 &&
                       m_tiff.number(directory, tifftag::Photometric).value_or(0) == 2 &&
                       m_tiff.number(directory, tifftag::SamplesPerPixel).value_or(0) == 3 &&
                       m_tiff.number(directory, tifftag::PlanarConfiguration).value_or(1) == 1;
    const quint32 width = m_tiff.number(directory, tifftag::Width).value_or(0);
    const quint32 height = m_tiff.number(directory, tifftag::Height).value_or(0);
    if (!isRgb || std::max(width, height) > quint32(LargestSide))
        return {};
    return {int(width), int(height)};
}

/// The preview that an IPTC record may hold in its second part.
Slots findIptcPreviews(QByteArrayView record, qsizetype origin)
{
    constexpr QByteArrayView preview("\x1C\x02\xCA");
    constexpr qsizetype headerLength = 5;
    constexpr quint16 extended = 0x8000;
    Slots result;
    qsizetype at = 0;
    while (at + headerLength <= record.size() && record[at] == '\x1C') {
        const quint16 told = qFromBigEndian<quint16>(record.data() + at + 3);
        qsizetype begin = at + headerLength;
        qsizetype length = told;
        if (told & extended) {
            // The length then stands in as many bytes as its field tells; of four, in every file there is.
            if ((told & ~extended) != 4 || begin + 4 > record.size())
                break;
            length = qFromBigEndian<quint32>(record.data() + begin);
            begin += 4;
        }
        length = std::min(length, record.size() - begin);
        if (record.sliced(at).startsWith(preview))
            result.push_back({PictureSlot::Fill::Zeros, origin + begin, length, {}});
        at = begin + length;
    }
    return result;
}

Slots findOtherFiles(QByteArrayView block)
{
    Slots result;
    for (const ByteRange &file : findPictureFiles(block))
        result.push_back({PictureSlot::Fill::Zeros, file.begin, file.length, {}});
    return result;
}

/// What the directories of TIFF structures declare as pictures that stand anywhere in the block: makers keep
/// their notes in such structures, and Photoshop a second EXIF block.
Slots findNestedTiffPictures(QByteArrayView block)
{
    constexpr int mostStructures = 16;
    Slots result;
    for (const QByteArrayView header : {QByteArrayView("II*\0", 4), QByteArrayView("MM\0*", 4)}) {
        qsizetype at = block.indexOf(header, 1);
        for (int count = 0; at > 0 && count < mostStructures; ++count, at = block.indexOf(header, at + 1)) {
            const QByteArrayView nested = block.sliced(at);
            const std::optional<TiffStructure> tiff = TiffStructure::read(nested);
            for (PictureSlot slot : tiff ? ExifDirectories(nested, *tiff).find() : Slots()) {
                slot.begin += at;
                result.push_back(slot);
            }
        }
    }
    return result;
}

} // namespace

std::vector<PictureSlot> findJpegs(QByteArrayView block)
{
    Slots result;
    qsizetype from = 0;
    for (;;) {
        const qsizetype at = block.indexOf("\xD8\xFF", from);
        if (at < 0)
            return result;
        from = at + 2;
        const auto stream = JpegStream::read(block, at - 1, JpegStream::Garbage::Refused);
        if (!stream || !stream->isPicture())
            continue;
        result.push_back(jpegSlot(*stream, at - 1));
        from = stream->end();
    }
}

std::vector<PictureSlot> findBase64Pictures(QByteArrayView block)
{
    Slots result;
    for (const Base64Signature &signature : Base64Signatures)
        findBase64(block, signature, result);
    return result;
}

std::vector<PictureSlot> findExifPictures(QByteArrayView block)
{
    Slots result = findJpegs(block);
    const std::optional<TiffStructure> tiff = TiffStructure::read(block);
    const Slots declared = tiff ? ExifDirectories(block, *tiff).find() : Slots();
    for (PictureSlot &jpeg : result)
        shorten(jpeg, block, declared);
    append(result, findBase64Pictures(block));
    append(result, findOtherFiles(block));
    append(result, declared);
    append(result, findNestedTiffPictures(block));
    return result;
}

std::vector<PictureSlot> findPhotoshopPictures(QByteArrayView block)
{
    constexpr qsizetype thumbnailHeader = 28;
    Slots result = findJpegs(block);
    append(result, findBase64Pictures(block));
    append(result, findOtherFiles(block));
    append(result, findNestedTiffPictures(block));
    for (const auto &[id, begin, length] : readPhotoshopResources(block)) {
        const bool isThumbnail = id == PhotoshopResource::Thumbnail || id == PhotoshopResource::OldThumbnail;
        if (id == PhotoshopResource::Iptc)
            append(result, findIptcPreviews(block.sliced(begin, length), begin));
        else if (isThumbnail && length > thumbnailHeader)
            result.push_back(
                {PictureSlot::Fill::Zeros, begin + thumbnailHeader, length - thumbnailHeader, {}});
    }
    return result;
}

} // namespace platform
