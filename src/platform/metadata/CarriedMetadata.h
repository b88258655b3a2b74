#pragma once

#include "platform/metadata/MetadataBlock.h"

#include <QStringList>

namespace platform {

class JpegFile;
struct MetadataBlobs;

/// The EXIF, XMP and IPTC blocks that a picture file hands on to what is made of it, byte for byte as they
/// stand in it: rewriting them by way of parsed tags loses some of what the makers of cameras put there.
/// Pictures inside the blocks show the photo as it was; they are overwritten in place, so that each offset
/// stays right. Any thread.
class CarriedMetadata {
public:
    /// A file of any format; empty where there is nothing to carry.
    static CarriedMetadata ofFile(const QString &path);
    static CarriedMetadata ofJpeg(const JpegFile &file);
    static CarriedMetadata ofBlobs(const MetadataBlobs &blobs);

    bool isEmpty() const { return m_blocks.empty(); }
    bool hasPictures() const;
    /// In pixels: the photo fitted into this is large enough to take the place of each picture. Empty when
    /// none can be replaced.
    QSize largestPicture() const;

    /// The JPEG file with the blocks put in behind its header. The pictures in them show `standIn` or, where
    /// that is null or does not fit, nothing. What is no JPEG is answered unchanged.
    QByteArray insertedInto(const QByteArray &jpeg, const QImage &standIn) const;

    /// The blocks out of their segments, for other formats, the pictures blanked. Of XMP there is a main
    /// packet and one more for each extension; Photoshop's resources hold the IPTC record.
    QByteArray exif() const;
    std::vector<QByteArray> xmpPackets() const;
    QByteArray photoshopResources() const;

    /// By their names, the blocks of other makers that stay behind since they hold a picture, or may; and
    /// those that go along, where there are segments for them.
    const QStringList &leftBehind() const { return m_leftBehind; }
    QStringList others() const;

private:
    bool takeApp1(QByteArrayView payload, size_t order);
    void takeOther(const QByteArray &name, const MetadataBlock &block);
    void takeExif(QByteArrayView payload, size_t order);
    void takeExtendedXmp(QByteArrayView payload, size_t order);
    bool takeApp13(QByteArrayView payload, size_t order);
    void takeBlob(MetadataBlock::Kind kind, QByteArrayView header, const QByteArray &body);
    MetadataBlock *lastOf(MetadataBlock::Kind kind);
    void findPictures();

    CarriedMetadata filled(const QImage &standIn) const;
    void signAnew(MetadataBlock &extension);
    std::vector<QByteArray> blanked(MetadataBlock::Kind kind) const;

    std::vector<MetadataBlock> m_blocks;
    QStringList m_leftBehind;
};

} // namespace platform
