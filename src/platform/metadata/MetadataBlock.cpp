#include "platform/metadata/MetadataBlock.h"

#include <algorithm>
#include <cstring>

namespace platform {

namespace {

std::vector<PictureSlot> picturesIn(MetadataBlock::Kind kind, QByteArrayView data)
{
    switch (kind) {
    case MetadataBlock::Kind::Exif:
        return findExifPictures(data);
    case MetadataBlock::Kind::Photoshop:
        return findPhotoshopPictures(data);
    case MetadataBlock::Kind::Xmp:
    case MetadataBlock::Kind::ExtendedXmp:
    case MetadataBlock::Kind::Other:
        break;
    }
    return findBase64Pictures(data);
}

void fill(char *begin, const PictureSlot &slot, const StandInPicture &standIn)
{
    QByteArray picture;
    if (slot.fill == PictureSlot::Fill::Jpeg)
        picture = standIn.jpeg(slot.size, slot.length);
    else if (slot.fill == PictureSlot::Fill::Pixels)
        picture = standIn.pixels(slot.size);
    std::memset(begin, slot.fill == PictureSlot::Fill::Spaces ? ' ' : 0, size_t(slot.length));
    std::copy_n(picture.constData(), std::min(picture.size(), slot.length), begin);
}

} // namespace

QByteArray MetadataBlock::data() const
{
    if (m_pieces.size() == 1)
        return m_pieces.front().body;
    QByteArray result;
    for (const Piece &piece : m_pieces)
        result += piece.body;
    return result;
}

void MetadataBlock::setData(const QByteArray &data)
{
    qsizetype at = 0;
    for (Piece &piece : m_pieces) {
        piece.body = data.mid(at, piece.body.size());
        at += piece.body.size();
    }
}

void MetadataBlock::replaceInHeaders(const QByteArray &before, const QByteArray &after)
{
    for (Piece &piece : m_pieces)
        piece.header.replace(before, after);
}

void MetadataBlock::findPictures()
{
    m_pictures = picturesIn(m_kind, data());
    std::stable_sort(m_pictures.begin(), m_pictures.end(),
                     [](const PictureSlot &a, const PictureSlot &b) { return a.fill < b.fill; });
}

void MetadataBlock::fillPictures(const StandInPicture &standIn)
{
    if (m_pictures.empty())
        return;
    QByteArray filled = data();
    for (const PictureSlot &slot : m_pictures)
        fill(filled.data() + slot.begin, slot, standIn);
    setData(filled);
}

} // namespace platform
