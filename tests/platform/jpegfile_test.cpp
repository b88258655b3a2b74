#include "platform/metadata_bytes.h"

#include <gtest/gtest.h>

using platform::JpegFile;
using platform::JpegRemainder;

namespace {

/// A picture of bare structure: tables, a frame header, data. Nothing in it could be decoded.
QByteArray structure(const QByteArray &data)
{
    const QByteArray frame = bytes::bigEndian(8, 1) + bytes::bigEndian(30, 2) + bytes::bigEndian(40, 2) +
                             QByteArray("\1\1\x11\0", 4);
    return QByteArray("\xFF\xD8") + bytes::segment(0xC0, frame) + bytes::segment(0xDA, "scan") + data +
           "\xFF\xD9";
}

std::vector<int> markers(const QByteArray &file)
{
    std::vector<int> result;
    const std::optional<JpegFile> jpeg = JpegFile::fromBytes(file);
    for (const platform::JpegSegment &segment : jpeg->segments())
        result.push_back(segment.marker);
    return result;
}

QByteArray pictureIndex(qsizetype previewOffset)
{
    const QByteArray entry = bytes::bigEndian(0x010001, 4) + bytes::bigEndian(100, 4) +
                             bytes::bigEndian(quint32(previewOffset), 4) + bytes::bigEndian(0, 4);
    platform::TiffDirectoryWriter directory(true);
    directory.set(0xB002, 7, 16, entry);
    return bytes::segment(0xE2, QByteArray("MPF\0MM\0*\0\0\0\x08", 12) + directory.bytes(8));
}

} // namespace

TEST(JpegFile, ListsSegmentsAsFarAsTheyCanBeRead)
{
    const QByteArray app = bytes::segment(0xE1, "one");
    const QByteArray comment = bytes::segment(0xFE, "two");
    const QByteArray scan = bytes::segment(0xDA, "scan");
    const QByteArray start("\xFF\xD8");
    const std::vector<int> all{0xE1, 0xFE, 0xDA};
    EXPECT_EQ(markers(start + app + comment + scan + "data\xFF\xE2"), all);
    EXPECT_EQ(markers(start + "\xFF\xFF" + app + "\xFF" + comment + scan), all) << "fill bytes";
    EXPECT_EQ(markers(start + app + "stray\xFF" + QByteArray(1, '\0') + comment + "\xFF\x01" + scan), all)
        << "garbage";
    EXPECT_EQ(markers(start + app + comment.chopped(1)), (std::vector<int>{0xE1})) << "broken off";
    EXPECT_EQ(markers(start), std::vector<int>());
    EXPECT_EQ(JpegFile::fromBytes(start + app)->segments().front().payload, QByteArrayView("one"));
    const QByteArray longHeader = bytes::segment(0xE2, QByteArray(60000, 'x')).repeated(3);
    EXPECT_EQ(JpegFile::fromBytes(bytes::withSegments(structure("data"), longHeader))->size(), QSize(40, 30));
    for (const QByteArray &foreign : {QByteArray(), QByteArray("\xFF"), QByteArray("\x89PNG")})
        EXPECT_FALSE(JpegFile::fromBytes(foreign));
    EXPECT_FALSE(JpegFile::open("/nowhere"));
}

TEST(JpegFile, TellsWhatStandsBehindTheFirstPicture)
{
    const QByteArray first = bytes::jpeg({64, 48});
    const QByteArray second = bytes::jpeg({16, 12});
    const QByteArray nested = bytes::withSegments(second, bytes::exifSegment(second));
    const QByteArray gainMap = bytes::withSegments(
        second, bytes::xmpSegment("xmlns:hdrgm=\"http://ns.adobe.com/hdr-gain-map/1.0/\""));
    const QByteArray video = bytes::bigEndian(24, 4) + "ftypmp42" + QByteArray(100, 'v') + second;
    const QByteArray index = pictureIndex(0);
    const qsizetype offset = first.size() + index.size() - 2 - 8;
    const QByteArray indexed = bytes::withSegments(first, pictureIndex(offset));
    const std::tuple<const char *, QByteArray, JpegRemainder> cases[] = {
        {"nothing", first, {}},
        {"a thumbnail inside", bytes::withSegments(first, bytes::exifSegment(second)), {}},
        {"padding", first + QByteArray(1000, '\0'), {}},
        {"one more", first + second, {0, 1, false, false}},
        {"two more behind padding", first + QByteArray(99, '\0') + nested + second, {0, 2, false, false}},
        {"the start of one, and a whole one", first + "-" + second.first(10) + second, {0, 1, false, false}},
        {"a declared preview", indexed + second, {1, 0, false, false}},
        {"a declared preview and one more", indexed + second + second, {1, 1, false, false}},
        {"a gain map", first + gainMap, {0, 1, true, false}},
        {"a video with a poster in it", first + second + video, {0, 1, false, true}},
        {"a word that is no video", first + "the ftyp box", {}}};
    for (const auto &[name, file, remainder] : cases)
        EXPECT_EQ(JpegFile::fromBytes(file)->remainder(), remainder) << name;
}

TEST(JpegFile, FindsTheEndOfPicturesLargerThanAWindow)
{
    constexpr int window = 0x40000;
    const QByteArray tables = bytes::segment(0xC4, QByteArray(300, '\xD9')) + bytes::segment(0xDA, "scan");
    for (int length = window - 8; length < window + 8; ++length) {
        const QByteArray data(length, 'x');
        const QByteArray second = structure("second");
        EXPECT_EQ(JpegFile::fromBytes(structure(data) + second)->remainder().pictures, 1) << length;
        EXPECT_EQ(JpegFile::fromBytes(structure(data + tables + data) + second)->remainder().pictures, 1)
            << length;
        EXPECT_EQ(JpegFile::fromBytes(structure(data).chopped(2))->remainder(), JpegRemainder()) << length;
    }
    const QByteArray stuffed = QByteArray("x\xFF\0\xFF\xD0\xFF\xD7", 7).repeated(window);
    EXPECT_EQ(JpegFile::fromBytes(structure(stuffed))->remainder(), JpegRemainder());
}
