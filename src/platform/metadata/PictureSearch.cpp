#include "platform/metadata/PictureSearch.h"

#include "platform/image/JpegStream.h"
#include "platform/metadata/PhotoshopResources.h"
#include "platform/metadata/PictureFiles.h"
#include "platform/metadata/TiffPictures.h"

#include <algorithm>
#include <optional>
#include <QtEndian>

namespace platform {

namespace {

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
    const bool isPlausible = !size.isEmpty() &&
                             std::max(size.width(), size.height()) <= PictureSlot::LargestSide &&
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

/// JPEG pictures anywhere, whoever wrote them and by whatever offset they are found.
Slots findJpegs(QByteArrayView block)
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

/// What is told from its own bytes, wherever it stands: base64 text, files of other formats than JPEG, and
/// TIFF structures inside the block.
Slots findEmbedded(QByteArrayView block)
{
    Slots result = findBase64Pictures(block);
    for (const ByteRange &file : findPictureFiles(block))
        result.push_back({PictureSlot::Fill::Zeros, file.begin, file.length, {}});
    append(result, findNestedTiffPictures(block));
    return result;
}

} // namespace

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
    const Slots declared = findTiffPictures(block);
    for (PictureSlot &jpeg : result)
        shorten(jpeg, block, declared);
    append(result, declared);
    append(result, findEmbedded(block));
    return result;
}

std::vector<PictureSlot> findPhotoshopPictures(QByteArrayView block)
{
    constexpr qsizetype thumbnailHeader = 28;
    Slots result = findJpegs(block);
    append(result, findEmbedded(block));
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
