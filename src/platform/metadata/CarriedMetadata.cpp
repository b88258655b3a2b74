#include "platform/metadata/CarriedMetadata.h"

#include "platform/image/TiffStructure.h"
#include "platform/metadata/JpegFile.h"
#include "platform/metadata/MetadataBlobs.h"

#include <algorithm>
#include <map>
#include <QCryptographicHash>
#include <QtEndian>

namespace platform {

namespace {

using Kind = MetadataBlock::Kind;
using Piece = MetadataBlock::Piece;

constexpr QByteArrayView ExifHeader("Exif\0\0", 6);
/// Its last byte is a zero, or not even that.
constexpr QByteArrayView ExifIdentifier("Exif\0", 5);
constexpr QByteArrayView XmpHeader("http://ns.adobe.com/xap/1.0/\0", 29);
constexpr QByteArrayView PhotoshopHeader("Photoshop 3.0\0", 14);
constexpr QByteArrayView OldPhotoshopHeader("Adobe_Photoshop2.5:");

/// The header of an extension's segment: identifier, signature, length of the whole, offset of the part.
constexpr QByteArrayView ExtendedXmpIdentifier("http://ns.adobe.com/xmp/extension/\0", 35);
constexpr qsizetype SignatureLength = 32;
constexpr qsizetype ExtendedXmpHeaderLength = ExtendedXmpIdentifier.size() + SignatureLength + 4 + 4;

QByteArray signatureOf(const Piece &piece)
{
    return piece.header.mid(ExtendedXmpIdentifier.size(), SignatureLength);
}

quint32 wholeLengthOf(const Piece &piece)
{
    return qFromBigEndian<quint32>(piece.header.constData() + ExtendedXmpHeaderLength - 8);
}

quint32 offsetOf(const Piece &piece)
{
    return qFromBigEndian<quint32>(piece.header.constData() + ExtendedXmpHeaderLength - 4);
}

Piece cut(QByteArrayView payload, qsizetype headerLength, size_t order)
{
    return {order, payload.first(headerLength).toByteArray(), payload.sliced(headerLength).toByteArray()};
}

quint8 markerOf(Kind kind, const Piece &piece)
{
    if (piece.marker)
        return piece.marker;
    return kind == Kind::Photoshop ? jpeg::App13 : jpeg::App1;
}

struct Segment {
    Kind kind;
    Piece piece;
};

/// Cuts what is too long for one segment, and came out of none, as far as its kind allows.
std::vector<Segment> fitting(const Segment &segment)
{
    const qsizetype most = jpeg::LargestPayload - segment.piece.header.size();
    if (segment.piece.body.size() <= most)
        return {segment};
    std::vector<Segment> result;
    if (segment.kind == Kind::Exif) {
        const QByteArray reduced = reducedExif(segment.piece.body);
        if (!reduced.isEmpty() && reduced.size() <= most)
            result.push_back({segment.kind, {segment.piece.order, segment.piece.header, reduced}});
    } else if (segment.kind == Kind::Photoshop) {
        for (qsizetype at = 0; at < segment.piece.body.size(); at += most)
            result.push_back({segment.kind,
                              {segment.piece.order, segment.piece.header, segment.piece.body.mid(at, most)}});
    }
    return result;
}

/// The segments of all blocks in their source's order, except that readers look for EXIF first.
std::vector<Segment> segmentsOf(const std::vector<MetadataBlock> &blocks)
{
    std::vector<Segment> result;
    for (const MetadataBlock &block : blocks) {
        for (const Piece &piece : block.pieces())
            result.push_back({block.kind(), piece});
    }
    std::stable_sort(result.begin(), result.end(), [](const Segment &a, const Segment &b) {
        return std::pair(a.kind != Kind::Exif, a.piece.order) <
               std::pair(b.kind != Kind::Exif, b.piece.order);
    });
    return result;
}

QByteArray serialized(const std::vector<MetadataBlock> &blocks)
{
    QByteArray result;
    for (const Segment &whole : segmentsOf(blocks)) {
        for (const auto &[kind, piece] : fitting(whole)) {
            const quint16 length = quint16(2 + piece.header.size() + piece.body.size());
            result += '\xFF';
            result += char(markerOf(kind, piece));
            result += char(length >> 8);
            result += char(length & 0xFF);
            result += piece.header;
            result += piece.body;
        }
    }
    return result;
}

/// What belongs to the picture as it is coded, or to those behind it, and is made anew or has gone.
bool isOfThePicture(const JpegSegment &segment)
{
    constexpr quint8 app14 = 0xEE;
    constexpr quint8 app15 = 0xEF;
    if (segment.marker <= jpeg::App0 || segment.marker > app15 || segment.marker == app14)
        return true;
    static constexpr const char *names[] = {"ICC_PROFILE", "MPF", "urn:iso:std:iso:ts:21496"};
    return segment.marker == jpeg::App2 &&
           std::any_of(std::begin(names), std::end(names),
                       [&](const char *name) { return segment.payload.startsWith(name); });
}

/// What a block calls itself, up to the first byte that is no letter of a name.
QByteArray nameOf(const JpegSegment &segment)
{
    constexpr qsizetype longest = 32;
    qsizetype length = 0;
    while (length < std::min(longest, segment.payload.size()) && segment.payload[length] > ' ' &&
           segment.payload[length] <= '~')
        ++length;
    const QByteArray place = "APP" + QByteArray::number(segment.marker - jpeg::App0);
    return length < 2 ? place : place + ' ' + segment.payload.first(length).toByteArray();
}

/// Nobody knows all that makers write. Pictures in a file format are found; a small view in bare pixels has
/// more bytes than these. Of one that goes on in another segment, the beginning alone is in one piece.
bool mayShowThePhoto(const MetadataBlock &block)
{
    constexpr qsizetype harmless = 8192;
    const QByteArray data = block.data();
    return data.size() > harmless || data.contains("\xFF\xD8\xFF") || !findExifPictures(data).empty();
}

/// Behind the start marker and the JFIF header; 0 for what is no JPEG.
qsizetype insertionPoint(QByteArrayView jpeg)
{
    // The header is all there is to see; following the picture's data would cost time.
    constexpr qsizetype enough = 0x20000;
    if (!jpeg.startsWith("\xFF\xD8"))
        return 0;
    const QByteArrayView begin = jpeg.first(std::min(enough, jpeg.size()));
    const auto stream = JpegStream::read(begin, 0, JpegStream::Garbage::Refused);
    qsizetype point = 2;
    for (const JpegSegment &segment : stream->segments()) {
        if (segment.marker != jpeg::App0)
            break;
        point = segment.payload.data() + segment.payload.size() - jpeg.data();
    }
    return point;
}

} // namespace

CarriedMetadata CarriedMetadata::ofFile(const QString &path)
{
    const std::optional<JpegFile> jpeg = JpegFile::open(path);
    return jpeg ? ofJpeg(*jpeg) : ofBlobs(readMetadataBlobs(path));
}

CarriedMetadata CarriedMetadata::ofJpeg(const JpegFile &file)
{
    CarriedMetadata result;
    size_t order = 0;
    std::map<QByteArray, MetadataBlock> others;
    for (const JpegSegment &segment : file.segments()) {
        ++order;
        if ((segment.marker == jpeg::App1 && result.takeApp1(segment.payload, order)) ||
            (segment.marker == jpeg::App13 && result.takeApp13(segment.payload, order)) ||
            isOfThePicture(segment))
            continue;
        others.try_emplace(nameOf(segment), Kind::Other)
            .first->second.add({order, {}, segment.payload.toByteArray(), segment.marker});
    }
    for (const auto &[name, block] : others)
        result.takeOther(name, block);
    result.findPictures();
    return result;
}

CarriedMetadata CarriedMetadata::ofBlobs(const MetadataBlobs &blobs)
{
    CarriedMetadata result;
    result.takeBlob(Kind::Exif, ExifHeader, blobs.exif);
    result.takeBlob(Kind::Xmp, XmpHeader, blobs.xmp);
    result.takeBlob(Kind::Photoshop, PhotoshopHeader, blobs.photoshop);
    result.findPictures();
    return result;
}

void CarriedMetadata::takeBlob(Kind kind, QByteArrayView header, const QByteArray &body)
{
    if (body.isEmpty())
        return;
    m_blocks.emplace_back(kind).add({m_blocks.size(), header.toByteArray(), body});
}

bool CarriedMetadata::takeApp1(QByteArrayView payload, size_t order)
{
    if (payload.startsWith(ExifIdentifier) && payload.size() > ExifHeader.size())
        takeExif(payload, order);
    else if (payload.startsWith(XmpHeader))
        m_blocks.emplace_back(Kind::Xmp).add(cut(payload, XmpHeader.size(), order));
    else if (payload.startsWith(ExtendedXmpIdentifier) && payload.size() >= ExtendedXmpHeaderLength)
        takeExtendedXmp(payload, order);
    else
        return false;
    return true;
}

void CarriedMetadata::takeOther(const QByteArray &name, const MetadataBlock &block)
{
    if (mayShowThePhoto(block))
        m_leftBehind.append(QString::fromLatin1(name));
    else
        m_blocks.push_back(block);
}

QStringList CarriedMetadata::others() const
{
    QStringList names;
    for (const MetadataBlock &block : m_blocks) {
        const Piece &piece = block.pieces().front();
        if (block.kind() == Kind::Other)
            names.append(QString::fromLatin1(nameOf({piece.marker, piece.body})));
    }
    return names;
}

void CarriedMetadata::takeExif(QByteArrayView payload, size_t order)
{
    const Piece piece = cut(payload, ExifHeader.size(), order);
    // A block too long for one segment goes on in the next, which then has no header of TIFF.
    MetadataBlock *before = TiffStructure::read(piece.body) ? nullptr : lastOf(Kind::Exif);
    (before ? *before : m_blocks.emplace_back(Kind::Exif)).add(piece);
}

void CarriedMetadata::takeExtendedXmp(QByteArrayView payload, size_t order)
{
    const Piece piece = cut(payload, ExtendedXmpHeaderLength, order);
    const auto sameExtension = [&piece](const MetadataBlock &block) {
        return block.kind() == Kind::ExtendedXmp && signatureOf(block.pieces().front()) == signatureOf(piece);
    };
    const auto found = std::find_if(m_blocks.begin(), m_blocks.end(), sameExtension);
    MetadataBlock &block = found == m_blocks.end() ? m_blocks.emplace_back(Kind::ExtendedXmp) : *found;
    block.add(piece);
}

bool CarriedMetadata::takeApp13(QByteArrayView payload, size_t order)
{
    for (const QByteArrayView header : {PhotoshopHeader, OldPhotoshopHeader}) {
        if (!payload.startsWith(header))
            continue;
        MetadataBlock *before = lastOf(Kind::Photoshop);
        (before ? *before : m_blocks.emplace_back(Kind::Photoshop)).add(cut(payload, header.size(), order));
        return true;
    }
    return false;
}

MetadataBlock *CarriedMetadata::lastOf(Kind kind)
{
    const auto found = std::find_if(m_blocks.rbegin(), m_blocks.rend(),
                                    [kind](const MetadataBlock &block) { return block.kind() == kind; });
    return found == m_blocks.rend() ? nullptr : &*found;
}

void CarriedMetadata::findPictures()
{
    for (MetadataBlock &block : m_blocks) {
        if (block.kind() == Kind::ExtendedXmp)
            block.sortPieces([](const Piece &a, const Piece &b) { return offsetOf(a) < offsetOf(b); });
        block.findPictures();
    }
}

bool CarriedMetadata::hasPictures() const
{
    return std::any_of(m_blocks.begin(), m_blocks.end(),
                       [](const MetadataBlock &block) { return !block.pictures().empty(); });
}

QSize CarriedMetadata::largestPicture() const
{
    QSize result(0, 0);
    for (const MetadataBlock &block : m_blocks) {
        for (const PictureSlot &slot : block.pictures())
            result = result.expandedTo(slot.size);
    }
    return result;
}

CarriedMetadata CarriedMetadata::filled(const QImage &standIn) const
{
    CarriedMetadata result = *this;
    const StandInPicture picture(standIn);
    for (MetadataBlock &block : result.m_blocks)
        block.fillPictures(picture);
    for (MetadataBlock &block : result.m_blocks) {
        if (block.kind() == Kind::ExtendedXmp && !block.pictures().empty())
            result.signAnew(block);
    }
    return result;
}

/// An extension is known by the digest of its text, in its own segments and in the main packet. One with
/// parts missing has lost its digest already.
void CarriedMetadata::signAnew(MetadataBlock &extension)
{
    const QByteArray data = extension.data();
    const Piece &first = extension.pieces().front();
    if (data.size() != qsizetype(wholeLengthOf(first)))
        return;
    const QByteArray before = signatureOf(first);
    const QByteArray after = QCryptographicHash::hash(data, QCryptographicHash::Md5).toHex().toUpper();
    extension.replaceInHeaders(before, after);
    for (MetadataBlock &block : m_blocks) {
        if (block.kind() == Kind::Xmp)
            block.setData(block.data().replace(before, after));
    }
}

QByteArray CarriedMetadata::insertedInto(const QByteArray &jpeg, const QImage &standIn) const
{
    const qsizetype point = insertionPoint(jpeg);
    if (point == 0 || isEmpty())
        return jpeg;
    const QByteArray blocks = serialized(filled(standIn).m_blocks);
    QByteArray result;
    result.reserve(jpeg.size() + blocks.size());
    result.append(jpeg.constData(), point);
    result.append(blocks);
    result.append(jpeg.constData() + point, jpeg.size() - point);
    return result;
}

std::vector<QByteArray> CarriedMetadata::blanked(Kind kind) const
{
    std::vector<QByteArray> result;
    for (MetadataBlock block : m_blocks) {
        if (block.kind() != kind)
            continue;
        block.fillPictures(StandInPicture({}));
        result.push_back(block.data());
    }
    return result;
}

QByteArray CarriedMetadata::exif() const
{
    const std::vector<QByteArray> blocks = blanked(Kind::Exif);
    return blocks.empty() ? QByteArray() : blocks.front();
}

std::vector<QByteArray> CarriedMetadata::xmpPackets() const
{
    std::vector<QByteArray> packets = blanked(Kind::Xmp);
    const std::vector<QByteArray> extensions = blanked(Kind::ExtendedXmp);
    packets.insert(packets.end(), extensions.begin(), extensions.end());
    return packets;
}

QByteArray CarriedMetadata::photoshopResources() const
{
    const std::vector<QByteArray> blocks = blanked(Kind::Photoshop);
    return blocks.empty() ? QByteArray() : blocks.front();
}

} // namespace platform
