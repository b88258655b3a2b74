#include "platform/metadata/MetadataBlobs.h"
#include "platform/metadata_bytes.h"
#include "support/Pictures.h"

#include <gtest/gtest.h>

using bytes::carried;

namespace {

const QByteArray Jfif = bytes::segment(0xE0, QByteArray("JFIF\0\1\2\1\0H\0H\0\0", 14));
const QByteArray Photo = bytes::withSegments(bytes::jpeg({64, 48}, Qt::gray), Jfif);

QImage mark()
{
    return plainImage({64, 48}, Qt::red);
}

/// The segments that were put in, as one run of bytes.
QByteArray inserted(const QByteArray &segments, const QImage &standIn = mark())
{
    const QByteArray file = carried(segments).insertedInto(Photo, standIn);
    const qsizetype header = 2 + Jfif.size();
    EXPECT_EQ(file.first(header), Photo.first(header));
    EXPECT_TRUE(file.endsWith(Photo.sliced(header)));
    return file.mid(header, file.size() - Photo.size());
}

QByteArray zeros(qsizetype length)
{
    return QByteArray(length, '\0');
}

/// The stand-in as it fills so many bytes.
QByteArray filling(QSize size, qsizetype length)
{
    return platform::StandInPicture(mark()).jpeg(size, length).leftJustified(length, '\0');
}

/// Expects two runs to be equal but for a range.
void expectEqualOutside(const QByteArray &before, const QByteArray &after, qsizetype begin, qsizetype length)
{
    ASSERT_EQ(before.size(), after.size());
    EXPECT_EQ(before.first(begin), after.first(begin));
    EXPECT_EQ(before.sliced(begin + length), after.sliced(begin + length));
}

constexpr qsizetype SegmentAndExifHeader = 4 + 6;
constexpr qsizetype SegmentAndPhotoshopHeader = 4 + 14;

} // namespace

TEST(StandInPicture, IsFittedIntoSizeAndBytes)
{
    const platform::StandInPicture red(mark());
    const QByteArray best = red.jpeg({90, 30}, 10000);
    EXPECT_EQ(QImage::fromData(best).size(), QSize(90, 30));
    const QByteArray rgb = red.pixels({90, 30});
    EXPECT_EQ(rgb.first(25 * 3), zeros(25 * 3));
    EXPECT_EQ(rgb.mid(25 * 3, 40 * 3), QByteArray("\xFF\0\0", 3).repeated(40));
    EXPECT_LT(red.jpeg({90, 30}, best.size() - 1).size(), best.size());
    EXPECT_TRUE(red.jpeg({90, 30}, 100).isEmpty());
    EXPECT_TRUE(platform::StandInPicture(QImage()).jpeg({90, 30}, 10000).isEmpty());
}

TEST(CarriedMetadata, CarriesBlocksInTheirOrderWithExifFirst)
{
    const QByteArray exif = bytes::exifSegment(bytes::Exif{}.block());
    const QByteArray xmp = bytes::xmpSegment("<x:xmpmeta/>");
    const QByteArray photoshop = bytes::photoshopSegment(bytes::resource(0x03ED, "resolution"));
    const QByteArray strange = bytes::exifSegment("no header");
    const QByteArray others = bytes::segment(0xE0, "JFXX") + bytes::segment(0xE2, QByteArray("MPF\0", 4)) +
                              bytes::segment(0xE2, "ICC_PROFILE") + bytes::segment(0xEE, "Adobe") +
                              bytes::segment(0xFE, "comment");
    EXPECT_EQ(inserted(xmp + others + photoshop + exif), exif + xmp + photoshop);
    EXPECT_EQ(inserted(strange), strange);
    const QByteArray old = bytes::segment(0xED, "Adobe_Photoshop2.5:" + bytes::resource(0x03ED, "old"));
    EXPECT_EQ(inserted(old), old);
    EXPECT_TRUE(carried(others).isEmpty());
    EXPECT_EQ(carried(others).insertedInto(Photo, mark()), Photo);
    EXPECT_EQ(carried(exif).insertedInto("no JPEG", mark()), "no JPEG");
    EXPECT_EQ(carried(exif).insertedInto("\xFF\xD8\xFF\xD9", mark()), "\xFF\xD8" + exif + "\xFF\xD9")
        << "no JFIF";
}

/// Of makers that nobody knows all of, so that what may show the photo stays behind.
TEST(CarriedMetadata, OtherBlocksGoAlongUnlessTheyMayHoldAPicture)
{
    const QByteArray meta = bytes::segment(0xE3, QByteArray("Meta\0\0", 6) + bytes::Exif{}.block());
    const QByteArray unknown = bytes::segment(0xE1, "unknown") + bytes::segment(0xED, "unknown");
    EXPECT_EQ(inserted(unknown + meta), unknown + meta);
    EXPECT_EQ(carried(unknown + meta).others().size(), 3);
    const QByteArray view = bytes::jpeg({40, 30}, Qt::green);
    const QByteArray halves = bytes::segment(0xE2, QByteArray("FPXR\0", 5) + view.first(200)) +
                              bytes::segment(0xE2, QByteArray("FPXR\0", 5) + view.sliced(200));
    const QByteArray raw = bytes::segment(0xE1, QByteArray("FLIR\0", 5) + QByteArray(9000, 'x'));
    const QByteArray inside =
        bytes::segment(0xE3, QByteArray("Meta\0\0", 6) + bytes::Exif{.thumbnail = view}.block());
    EXPECT_EQ(inserted(raw + halves + inside + unknown), unknown);
    EXPECT_EQ(carried(raw + halves + inside).leftBehind().join(u','), "APP1 FLIR,APP2 FPXR,APP3 Meta");
}

TEST(CarriedMetadata, ReplacesThumbnailsInPlace)
{
    const QByteArray thumbnail = bytes::jpeg({40, 30}, Qt::blue) + QByteArray(200, '\x22');
    for (const bool bigEndian : {false, true}) {
        bytes::Exif exif{.bigEndian = bigEndian, .note = "a note", .thumbnail = thumbnail};
        const QByteArray block = bytes::exifSegment(exif.block());
        const qsizetype begin = SegmentAndExifHeader + exif.thumbnailPosition;
        EXPECT_TRUE(carried(block).hasPictures());
        EXPECT_EQ(carried(block).largestPicture(), QSize(40, 30));
        const QByteArray marked = inserted(block);
        expectEqualOutside(block, marked, begin, thumbnail.size());
        EXPECT_EQ(marked.mid(begin, thumbnail.size() - 200), filling({40, 30}, thumbnail.size() - 200));
        EXPECT_EQ(marked.mid(begin + thumbnail.size() - 200, 200), zeros(200))
            << "declared beyond the picture";
        const QByteArray blank = inserted(block, QImage());
        expectEqualOutside(block, blank, begin, thumbnail.size());
        EXPECT_EQ(blank.mid(begin, thumbnail.size()), zeros(thumbnail.size()));
    }
}

TEST(CarriedMetadata, FindsPicturesOfMakerNotes)
{
    const QByteArray preview = bytes::jpeg({160, 120}, Qt::blue);
    QByteArray spoiled = preview;
    spoiled[0] = '\x5A';
    for (const QByteArray &picture : {preview, spoiled}) {
        bytes::Exif exif{.note = "MAKER" + picture + "\xD8\xFF\xE0 and more",
                         .thumbnail = bytes::jpeg({8, 80})};
        const QByteArray block = bytes::exifSegment(exif.block());
        const QByteArray marked = inserted(block);
        const qsizetype begin = SegmentAndExifHeader + exif.notePosition + 5;
        EXPECT_EQ(carried(block).largestPicture(), QSize(160, 120));
        EXPECT_EQ(marked.mid(begin, picture.size()), filling({160, 120}, picture.size()));
        EXPECT_EQ(marked.mid(begin + picture.size(), 12), QByteArray("\xD8\xFF\xE0 and more").first(12));
    }
    bytes::Exif first{.note = preview + "tail"};
    const QByteArray block = first.block();
    const qsizetype cut = first.notePosition + preview.size() / 2;
    const QByteArray both =
        inserted(bytes::exifSegment(block.first(cut)) + bytes::exifSegment(block.sliced(cut)));
    const QByteArray joined =
        both.mid(SegmentAndExifHeader, cut) + both.sliced(2 * SegmentAndExifHeader + cut);
    EXPECT_EQ(joined.mid(first.notePosition, preview.size()), filling({160, 120}, preview.size()));
    expectEqualOutside(block, joined, first.notePosition, preview.size());
}

TEST(CarriedMetadata, BlanksOnlyWhatIsAPicture)
{
    const QByteArray picture = bytes::jpeg({40, 30}, Qt::blue);
    const QByteArray cut = picture.chopped(40);
    bytes::Exif brokenOff{.thumbnail = cut};
    const QByteArray block = bytes::exifSegment(brokenOff.block());
    expectEqualOutside(block, inserted(block), SegmentAndExifHeader + brokenOff.thumbnailPosition,
                       cut.size());
    EXPECT_FALSE(inserted(block).contains(cut.last(20)));

    const QByteArray unknown(300, '\x33');
    bytes::Exif notJpeg{.thumbnail = unknown};
    EXPECT_FALSE(inserted(bytes::exifSegment(notJpeg.block())).contains("\x33\x33"));

    for (const qsizetype offset : {qsizetype(0), qsizetype(10), qsizetype(500), qsizetype(0x7FFFFFFF)}) {
        bytes::Exif lie{.note = "kept", .toldOffset = offset, .toldLength = 600};
        const QByteArray untouched = bytes::exifSegment(lie.block());
        EXPECT_EQ(inserted(untouched), untouched) << offset;
    }
}

TEST(CarriedMetadata, ReplacesUncompressedThumbnails)
{
    for (const int samples : {3, 1}) {
        bytes::Exif exif{.thumbnail = QByteArray(16 * 12 * 3, '\x44')};
        QByteArray block = exif.block();
        platform::TiffDirectoryWriter directory(false);
        const auto number = [&](quint16 tag, quint32 value) {
            directory.set(tag, platform::TiffStructure::Long, 1, directory.number(value));
        };
        number(0x0100, 16);
        number(0x0101, 12);
        directory.set(0x0102, platform::TiffStructure::Short, 3, QByteArray("\x08\0\x08\0\x08\0", 6));
        number(0x0103, 1);
        number(0x0106, 2);
        number(0x0111, quint32(exif.thumbnailPosition));
        number(0x0115, quint32(samples));
        number(0x0117, quint32(exif.thumbnail.size()));
        bytes::Exif::put(block, 768, directory.bytes(768));
        const QByteArray marked = inserted(bytes::exifSegment(block));
        const QByteArray pixels =
            marked.mid(SegmentAndExifHeader + exif.thumbnailPosition, exif.thumbnail.size());
        if (samples == 3)
            EXPECT_EQ(pixels, platform::StandInPicture(mark()).pixels({16, 12}));
        else
            EXPECT_EQ(pixels, zeros(pixels.size()));
    }
}

TEST(CarriedMetadata, ReplacesPicturesOfPhotoshop)
{
    const QByteArray picture = bytes::jpeg({96, 72}, Qt::blue);
    const QByteArray header(28, '\x01');
    const QByteArray raw(500, '\x44');
    const QByteArray preview =
        QByteArray("\x1C\x02\xCA") + bytes::bigEndian(300, 2) + QByteArray(300, '\x44');
    const QByteArray caption = QByteArray("\x1C\x02\x78") + bytes::bigEndian(5, 2) + "hello";
    const QByteArray resources = bytes::resource(0x0404, caption + preview + caption) +
                                 bytes::resource(0x040C, header + picture) +
                                 bytes::resource(0x0409, header + raw) + bytes::resource(0x03ED, "end");
    const qsizetype cut = resources.indexOf(picture) + 100;
    const QByteArray parts[] = {resources.first(cut), resources.sliced(cut)};
    const QByteArray marked = inserted(bytes::photoshopSegment(parts[0]) + bytes::photoshopSegment(parts[1]));
    const QByteArray secondHeader = bytes::photoshopSegment(parts[1]).first(SegmentAndPhotoshopHeader);
    ASSERT_EQ(marked.mid(SegmentAndPhotoshopHeader + cut, SegmentAndPhotoshopHeader), secondHeader);
    const QByteArray joined =
        marked.mid(SegmentAndPhotoshopHeader, cut) + marked.sliced(2 * SegmentAndPhotoshopHeader + cut);
    EXPECT_EQ(joined.mid(resources.indexOf(picture), picture.size()), filling({96, 72}, picture.size()));
    QByteArray expected = resources;
    expected.replace(picture, joined.mid(resources.indexOf(picture), picture.size()));
    EXPECT_EQ(joined, expected.replace('\x44', '\0'));
}

TEST(CarriedMetadata, BlanksPicturesOfXmp)
{
    const QByteArray picture = bytes::jpeg({40, 30}, Qt::blue).toBase64();
    const QByteArray lines = QByteArray(picture).insert(76, "\n").insert(160, "&#xA;").insert(220, " \t");
    const QByteArray png = QByteArray("\x89PNG\r\n\x1A\n" + QByteArray(100, 'p')).toBase64();
    const QByteArray webp = QByteArray("RIFF" + QByteArray(100, 'w')).toBase64();
    const QByteArray heif =
        QByteArray(bytes::bigEndian(32, 4) + "ftypheic" + QByteArray(100, 'h')).toBase64();
    for (const QByteArray &text : {picture, lines, png, webp, heif}) {
        for (const QByteArray &frame : {QByteArray("<a b=\"@\" c=\"d\"/>"), QByteArray("<a>\n@</a>"),
                                        QByteArray("<a>data:image/x;base64,@</a>")}) {
            const QByteArray packet = QByteArray(frame).replace("@", text);
            const QByteArray blank = QByteArray(frame).replace("@", QByteArray(text.size(), ' '));
            EXPECT_EQ(inserted(bytes::xmpSegment(packet)), bytes::xmpSegment(blank));
        }
    }
    const QByteArray innocent =
        "<a b=\"/9j/\" c=\"/photos/9j//9j/" + QByteArray(100, 'x') + "\">iVBORw0KGgo</a>";
    EXPECT_EQ(inserted(bytes::xmpSegment(innocent)), bytes::xmpSegment(innocent));
}

TEST(CarriedMetadata, SignsExtendedXmpAnew)
{
    const auto segments = [](const QByteArray &whole) {
        const QByteArray signature = bytes::md5(whole);
        return bytes::xmpExtension(signature, whole, 100) +
               bytes::xmpSegment("<x xmpNote:HasExtendedXMP=\"" + signature + "\"/>") +
               bytes::xmpExtension(signature, whole, 0, 100);
    };
    const QByteArray picture = bytes::jpeg({40, 30}, Qt::blue).toBase64();
    const QByteArray before = "<GDepth:Data>" + picture + "</GDepth:Data>";
    const QByteArray after = QByteArray(before).replace(picture, QByteArray(picture.size(), ' '));
    EXPECT_EQ(inserted(segments(before)), segments(after));
    EXPECT_EQ(inserted(segments(after)), segments(after));
    const QByteArray incomplete = inserted(bytes::xmpExtension(bytes::md5(before), before, 0, 100));
    EXPECT_EQ(incomplete, bytes::xmpExtension(bytes::md5(before), after, 0, 100)) << "parts are missing";
}
TEST(CarriedMetadata, BlanksPictureFilesOfOtherFormats)
{
    const auto box = [](const char *type, const QByteArray &content) {
        return bytes::bigEndian(quint32(8 + content.size()), 4) + type + content;
    };
    const QByteArray pixels(60, '\x44');
    const QByteArray files[] = {QByteArray("\x89PNG\r\n\x1A\n") + bytes::bigEndian(5, 4) + "IHDRhhhhhssss" +
                                    bytes::bigEndian(60, 4) + "IDAT" + pixels + "ssss" +
                                    bytes::bigEndian(0, 4) + "IENDssss",
                                QByteArray("GIF89a\1\0\1\0\x80\0\0ttttttt", 19) +
                                    QByteArray(",pppppppp\0\2\x3C", 12) + pixels + QByteArray("\0;", 2),
                                QByteArray("RIFF\x40\0\0\0WEBP", 12) + pixels,
                                box("ftyp", "heicmif1") + box("meta", "mmmm") + box("mdat", pixels),
                                box("jP  ", "\r\n\x87\n") + box("ftyp", "jp2 ") + box("jp2c", pixels)};
    for (const QByteArray &file : files) {
        const QByteArray block = bytes::resource(0x0FA0, file) + bytes::resource(0x03ED, "GIF89a ftyp RIFF");
        QByteArray blank = block;
        blank.replace(file, zeros(file.size()));
        EXPECT_EQ(inserted(bytes::photoshopSegment(block)), bytes::photoshopSegment(blank))
            << file.left(12).data();
        bytes::Exif exif{.note = "Maker" + file + "kept"};
        const QByteArray segment = bytes::exifSegment(exif.block());
        EXPECT_EQ(inserted(segment), QByteArray(segment).replace(file, zeros(file.size())));
    }
}

TEST(CarriedMetadata, BlanksPicturesOfNestedStructures)
{
    // A second EXIF block, with its pixels in tiles, behind a resource of another program.
    const QByteArray pixels(90, '\x44');
    platform::TiffDirectoryWriter directory(true);
    directory.set(0x0144, platform::TiffStructure::Long, 1, directory.number(64));
    directory.set(0x0145, platform::TiffStructure::Long, 1, directory.number(90));
    QByteArray nested = QByteArray("MM\0*", 4) + directory.number(8) + directory.bytes(8);
    nested = nested.leftJustified(64, '\0') + pixels;
    const QByteArray block = bytes::resource(0x07D0, "abcd").replace("8BIM", "MeSa") +
                             bytes::resource(0x0422, nested) +
                             bytes::resource(0x040C, QByteArray(28, '\1') + pixels);
    EXPECT_EQ(inserted(bytes::photoshopSegment(block)),
              bytes::photoshopSegment(QByteArray(block).replace(pixels, zeros(90))));
}

/// Other formats keep a block in one piece.
TEST(CarriedMetadata, CutsWhatIsTooLongForASegment)
{
    const QByteArray photoshop = bytes::resource(0x03ED, QByteArray(150000, 'r'));
    const QByteArray exif =
        bytes::Exif{.note = QByteArray(70000, 'n'), .thumbnail = bytes::jpeg({8, 6})}.block();
    const auto metadata = platform::CarriedMetadata::ofBlobs({exif, {}, photoshop});
    const auto file = platform::JpegFile::fromBytes(metadata.insertedInto(Photo, mark()));
    EXPECT_EQ(file->size(), QSize(64, 48));
    const auto back = platform::CarriedMetadata::ofJpeg(*file);
    EXPECT_EQ(back.photoshopResources(), photoshop);
    const QByteArray carried = back.exif();
    const auto fields = platform::TiffStructure::read(carried);
    ASSERT_TRUE(fields);
    EXPECT_EQ(fields->number(fields->chain().front(), 0x0112), 6u);
    EXPECT_FALSE(carried.contains("nnnn"));
}
