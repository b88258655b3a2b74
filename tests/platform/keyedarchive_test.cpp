#include "platform/archive/KeyedArchive.h"
#include "platform/archive/KeyedArchiver.h"

#include <gtest/gtest.h>
#include <limits>
#include <QTemporaryFile>
#include <tuple>

using platform::ArchiveClasses;
using platform::ArchiveValue;
using platform::AttributedString;
using platform::Color;
using platform::FontDescription;
using platform::KeyedArchiver;
using platform::KeyedUnarchiver;
using platform::TextAlignment;
using platform::TextAttributes;

namespace {

/// An object with one entry of every kind, which can refer to others.
class Shape : public platform::Archivable {
public:
    Shape() = default;
    explicit Shape(KeyedUnarchiver &coder)
        : visible(coder.decodeBool(u"visible"))
        , order(coder.decodeInteger(u"order"))
        , angle(coder.decodeFloat(u"angle"))
        , ratio(coder.decodeDouble(u"ratio"))
        , origin(coder.decodePoint(u"origin"))
        , tile(coder.decodeSize(u"tile"))
        , frame(coder.decodeRect(u"frame"))
        , hasExtra(coder.contains(u"extra"))
        , next(coder.decodeObject(u"next").toObject<Shape>())
    {
    }

    QStringList classChain() const override { return {"Shape", "ShapeBase"}; }
    void encodeWithCoder(KeyedArchiver &coder) const override
    {
        coder.encodeBool(u"visible", visible);
        coder.encodeInteger(u"order", order);
        coder.encodeFloat(u"angle", angle);
        coder.encodeDouble(u"ratio", ratio);
        coder.encodePoint(u"origin", origin);
        coder.encodeSize(u"tile", tile);
        coder.encodeRect(u"frame", frame);
        coder.encodeObject(u"next", next);
    }

    auto values() const { return std::tuple(visible, order, angle, ratio, origin, tile, frame); }

    bool visible = false;
    qint64 order = 0;
    float angle = 0;
    double ratio = 0;
    QPointF origin;
    QSizeF tile;
    QRectF frame;
    bool hasExtra = false;
    std::shared_ptr<Shape> next;
};

const ArchiveClasses kClasses{{"Shape", platform::archiveFactory<Shape>()}};

ArchiveValue passOn(const ArchiveValue &value)
{
    return platform::unarchive(platform::archiveRootObject(value), kClasses).value_or(ArchiveValue());
}

/// A property list from its XML form without the frame, as another program might have written it.
QByteArray binaryPlist(const QByteArray &xml)
{
    const QByteArray document = "<plist version=\"1.0\">" + xml + "</plist>";
    plist_t node = nullptr;
    plist_from_xml(document.constData(), uint32_t(document.size()), &node);
    return platform::writeBinaryPlist(platform::Plist(node).get());
}

QByteArray uid(int index)
{
    return "<dict><key>CF$UID</key><integer>" + QByteArray::number(index) + "</integer></dict>";
}

/// An archive of the objects given, the first (number 1) being its root.
QByteArray foreignArchive(const QByteArray &objects)
{
    return binaryPlist("<dict><key>$version</key><integer>100000</integer><key>$archiver</key>"
                       "<string>NSKeyedArchiver</string><key>$top</key><dict><key>root</key>" +
                       uid(1) + "</dict><key>$objects</key><array><string>$null</string>" + objects +
                       "</array></dict>");
}

QByteArray objectOf(const QByteArray &entries, int classIndex)
{
    return "<dict>" + entries + "<key>$class</key>" + uid(classIndex) + "</dict>";
}

QByteArray classTable(const QByteArray &name)
{
    return "<dict><key>$classname</key><string>" + name + "</string><key>$classes</key><array><string>" +
           name + "</string><string>NSObject</string></array></dict>";
}

/// A lone object of a platform class: its entries, and what they refer to from number 3 on.
ArchiveValue readLone(const QByteArray &className, const QByteArray &entries, const QByteArray &others = {})
{
    const QByteArray archive = foreignArchive(objectOf(entries, 2) + classTable(className) + others);
    return platform::unarchive(archive, kClasses).value_or(ArchiveValue());
}

QByteArray data(const QByteArray &bytes)
{
    return "<data>" + bytes.toBase64() + "</data>";
}

} // namespace

TEST(KeyedArchive, PassesEveryKindOfValueOn)
{
    EXPECT_TRUE(passOn(true).toBool());
    for (const qint64 number :
         {qint64(0), qint64(-5), qint64(0xFF000000), std::numeric_limits<qint64>::min()})
        EXPECT_EQ(passOn(number).toInteger(), number);
    EXPECT_EQ(passOn(0.1).toDouble(), 0.1);
    EXPECT_EQ(passOn(QStringLiteral("Grüße 🎞")).toString(), "Grüße 🎞");
    EXPECT_EQ(passOn(QByteArray("\0\1\xff", 3)).toData(), QByteArray("\0\1\xff", 3));
    EXPECT_EQ(passOn(Color{0.1, 0.25, 1, 0.3}).toColor(), (Color{0.1, 0.25, 1, 0.3}));
    EXPECT_EQ(passOn(TextAlignment::Center).toAlignment(), TextAlignment::Center);
}

TEST(KeyedArchive, PassesFontsOnByASingleName)
{
    const char *const fonts[][3] = {
        {"Helvetica", "Bold Oblique", "Helvetica-BoldOblique"},
        {"DejaVu Sans Mono", "Bold", "DejaVu Sans Mono-Bold"},
        {"Noto Sans", "SemiBold Italic", "Noto Sans-SemiBoldItalic"},
        {"Noto Sans", "Extra Light", "Noto Sans-Extra Light"},
        {"Source-Code", "", "Source-Code-Regular"},
    };
    for (const auto &[family, style, name] : fonts) {
        const FontDescription font{family, style, 36};
        const QByteArray archive = platform::archiveRootObject(font);
        EXPECT_TRUE(archive.contains(name)) << name;
        EXPECT_EQ(passOn(font).toFont(), font) << name;
    }
}

TEST(KeyedArchive, PassesStyledTextOn)
{
    TextAttributes look;
    look.font = FontDescription{"Helvetica", "Bold", 36};
    look.foregroundColor = Color::white();
    look.strokeWidth = 0;
    look.strokeColor = Color::black();
    look.underlineStyle = 1;
    look.underlineColor = Color{1, 0, 0, 1};
    look.strikethroughStyle = 1;
    look.strikethroughColor = Color{0, 1, 0, 1};
    look.alignment = TextAlignment::Right;
    EXPECT_EQ(passOn(look).toTextAttributes(), look);
    const QString words = QString(300, u'x') + QStringLiteral("end");
    for (const AttributedString &text :
         {AttributedString(), AttributedString(words, look),
          AttributedString::fromRuns(words, {{200, look}, {102, TextAttributes()}, {1, look}})})
        EXPECT_EQ(passOn(text).toAttributedString(), text);
}

TEST(KeyedArchive, KeepsObjectsOneAndClosesCircles)
{
    auto first = std::make_shared<Shape>();
    auto second = std::make_shared<Shape>();
    *second = *first;
    first->visible = true;
    first->order = -7;
    first->angle = 0.1F;
    first->ratio = 0.1;
    first->origin = {1.5, -2};
    first->tile = {0.1, 1e-9};
    first->frame = {0, 1.0 / 3, 1e6, 4};
    first->next = second;
    second->next = first;
    const ArchiveValue::Array back = passOn(ArchiveValue::Array{first, second, first}).toArray();
    first->next = second->next = nullptr;
    const auto copy = back[0].toObject<Shape>();
    ASSERT_TRUE(copy && copy->next);
    EXPECT_EQ(copy, back[2].toObject<Shape>());
    EXPECT_EQ(copy->next, back[1].toObject<Shape>());
    EXPECT_EQ(copy->next->next, nullptr) << "the reference that closes the circle";
    EXPECT_EQ(copy->values(), first->values());
}

TEST(KeyedArchive, HasTheFormThatOtherReadersExpect)
{
    auto shape = std::make_shared<Shape>();
    shape->frame = {0.5, 1, 20, 30};
    const QByteArray bytes = platform::archiveRootObject(shape);
    EXPECT_TRUE(bytes.startsWith("bplist00"));
    char *xml = nullptr;
    uint32_t length = 0;
    plist_to_xml(platform::readBinaryPlist(bytes).get(), &xml, &length);
    const QByteArray text = QByteArray(xml).replace("\t", "").replace("\n", "");
    free(xml);
    for (const QByteArray &part :
         {QByteArray("<key>$version</key><integer>100000</integer>"
                     "<key>$archiver</key><string>NSKeyedArchiver</string>"),
          "<key>$top</key><dict><key>root</key>" + uid(1) + "</dict>",
          QByteArray("<array><string>$null</string><dict><key>visible</key><false/><key>order</key>"
                     "<integer>0</integer><key>angle</key><real>0.0</real>"),
          "<key>frame</key>" + uid(4) + "<key>next</key>" + uid(0) + "<key>$class</key>" + uid(5),
          QByteArray("<string>{{0.5, 1}, {20, 30}}</string><dict><key>$classname</key><string>Shape</string>"
                     "<key>$classes</key><array><string>Shape</string><string>ShapeBase</string>"
                     "<string>NSObject</string></array></dict></array>")})
        EXPECT_TRUE(text.contains(part)) << part.constData();
}

TEST(KeyedArchive, ReadsColorsOfOtherPrograms)
{
    const auto space = [](int number) {
        return "<key>NSColorSpace</key><integer>" + QByteArray::number(number) + "</integer>";
    };
    const auto bytes = [](const char *key, const QByteArray &text) {
        return QByteArray("<key>") + key + "</key>" + data(text);
    };
    const std::pair<QByteArray, std::optional<Color>> layouts[] = {
        {space(1) + bytes("NSRGB", "1 0.5 0"), Color{1, 0.5, 0, 1}},
        {space(3) + bytes("NSWhite", "0.5"), Color{0.5, 0.5, 0.5, 1}},
        {space(4) + bytes("NSWhite", QByteArray("0.5 0.1\0", 8)), Color{0.5, 0.5, 0.5, 0.1}},
        {space(6) + bytes("NSComponents", "0 0 1 1") + bytes("NSRGB", "0.25 0 1"), Color{0.25, 0, 1, 1}},
        {space(7) + bytes("NSComponents", "0 0 1 0.5"), Color{0, 0, 1, 0.5}},
        {space(5) + bytes("NSCMYK", "0 0.5 1 0.5") + bytes("NSComponents", "0 0.5 1 0.5"),
         Color{0.5, 0.25, 0, 1}},
        {space(5) + bytes("NSCMYK", "1 0 0 0 0.5"), Color{0, 1, 1, 0.5}},
        {space(6) + "<key>NSColor</key>" + uid(3), Color{1, 1, 1, 1}},
        {space(1) + "<key>NSRGB</key>" + uid(4), Color{0.5, 0.25, 0, 1}},
        {space(1) + bytes("NSRGB", "2 -1 0"), Color{1, 0, 0, 1}},
        {space(1) + bytes("NSRGB", "nan 0 0"), std::nullopt},
        {space(1) + bytes("NSRGB", "1 0"), Color{1, 1, 1, 0}},
        {space(1) + "<key>NSRGB</key><integer>3</integer>", std::nullopt},
    };
    const QByteArray others = objectOf(space(3) + bytes("NSWhite", "1"), 2) + data("0.5 0.25 0");
    for (const auto &[entries, color] : layouts)
        EXPECT_EQ(readLone("NSColor", entries, others).toColor(), color) << entries.constData();
}

TEST(KeyedArchive, ReadsTextOfOtherPrograms)
{
    // Number 3: an array of a plain look (5) and an underlined one (6) in the platform's collection classes.
    const QByteArray dictionary = classTable("NSDictionary");
    const auto look = [](const QByteArray &keys, const QByteArray &values) {
        return objectOf("<key>NS.keys</key><array>" + keys + "</array><key>NS.objects</key><array>" + values +
                            "</array>",
                        7);
    };
    const QByteArray others =
        objectOf("<key>NS.objects</key><array>" + uid(5) + uid(6) + "</array>", 4) + classTable("NSArray") +
        look("", "") + look(uid(8) + uid(9) + uid(10), uid(11) + uid(12) + uid(13)) + dictionary +
        "<string>NSUnderline</string><string>NSKern</string><string>NSParagraphStyle</string><integer>1</"
        "integer><real>3</real>" +
        objectOf("<key>NSAlignment</key><integer>2</integer>", 14) + classTable("NSMutableParagraphStyle") +
        objectOf("<key>NS.string</key><string>A wide text</string>", 16) + classTable("NSMutableString") +
        objectOf("<key>NS.data</key>" + data(QByteArray("\2\0\3\1\x86\x80\0\0", 8)), 18) +
        classTable("NSMutableData");
    TextAttributes underlined;
    underlined.underlineStyle = 1;
    underlined.alignment = TextAlignment::Center;
    const QString words = "A wide text";
    const auto runs = AttributedString::fromRuns(words, {{2, {}}, {3, underlined}, {6, {}}});
    const QByteArray string = "<key>NSString</key>" + uid(15);
    const std::pair<QByteArray, AttributedString> layouts[] = {
        {string + "<key>NSAttributes</key>" + uid(6), AttributedString(words, underlined)},
        {string + "<key>NSAttributes</key>" + uid(3) + "<key>NSAttributeInfo</key>" + uid(17), runs},
        {"<key>NSString</key><string>A wide text</string><key>NSAttributes</key>" + uid(3) +
             "<key>NSAttributeInfo</key>" + data(QByteArray("\2\0\3\1\6\0", 6)),
         runs},
        {string + "<key>NSDelegate</key>" + uid(1), AttributedString(words, {})},
        {string + "<key>NSAttributes</key>" + uid(3) + "<key>NSAttributeInfo</key>" + data("\xff\xff\xff"),
         AttributedString(words, {})},
    };
    for (const char *const name : {"NSAttributedString", "NSMutableAttributedString", "NSTextStorage"}) {
        for (const auto &[entries, text] : layouts)
            EXPECT_EQ(readLone(name, entries, others).toAttributedString(), text)
                << name << entries.constData();
    }
}

TEST(KeyedArchive, ReadsScalarsWhereverTheyStand)
{
    const QByteArray entries =
        "<key>angle</key>" + uid(3) +
        "<key>order</key><real>7.9</real><key>visible</key><integer>1</integer>"
        "<key>frame</key><string>{{1, 2}, {3, 4}}</string><key>origin</key>" +
        uid(4) +
        "<key>tile</key><string>{1, nan}</string><key>ratio</key><string>3</string><key>extra</key><true/>";
    const auto shape =
        readLone("Shape", entries, "<real>0.5</real><string>{1e2, -2.5}</string>").toObject<Shape>();
    ASSERT_TRUE(shape);
    EXPECT_EQ(shape->values(),
              std::tuple(true, qint64(7), 0.5F, 0.0, QPointF(100, -2.5), QSizeF(0, 0), QRectF(1, 2, 3, 4)));
    EXPECT_TRUE(shape->hasExtra);
}

TEST(KeyedArchive, LosesOnlyWhatIsWrong)
{
    // An array of an unknown object, itself, a number out of range, an object without a class table, and a
    // good text.
    const QByteArray archive =
        foreignArchive(objectOf("<key>NS.objects</key><array>" + uid(3) + uid(1) + uid(99) + uid(5) + uid(0) +
                                    uid(6) + "</array>",
                                2) +
                       classTable("NSArray") + objectOf("<key>a</key>" + uid(1), 4) +
                       classTable("NSTornado") + objectOf("", 6) + "<string>good</string>");
    const ArchiveValue::Array array =
        platform::unarchive(archive, kClasses).value_or(ArchiveValue()).toArray();
    ASSERT_EQ(array.size(), 1);
    EXPECT_EQ(array[0].toString(), "good");
}

namespace {

/// Arrays in one another, `width` times the next one in each.
QByteArray nestedArrays(int depth, int width)
{
    QByteArray objects;
    for (int i = 0; i < depth; ++i)
        objects +=
            objectOf("<key>NS.objects</key><array>" + uid(i + 2).repeated(width) + "</array>", depth + 2);
    return foreignArchive(objects + "<string>core</string>" + classTable("NSArray"));
}

/// A bare property list whose arrays share the next one `width` times; its objects are told apart by the file
/// alone. It stays short enough for offsets of one byte.
QByteArray sharingPlist(int depth, int width)
{
    QByteArray objects = "bplist00";
    QByteArray offsets;
    for (int i = 0; i < depth; ++i) {
        offsets.append(char(objects.size()));
        objects.append(char(0xA0 | width)).append(QByteArray(width, char(i + 1)));
    }
    offsets.append(char(objects.size()));
    objects.append(char(0x09));
    QByteArray trailer(32, '\0');
    trailer[6] = trailer[7] = 1;
    trailer[15] = char(depth + 1);
    trailer[31] = char(objects.size());
    return objects + offsets + trailer;
}

} // namespace

TEST(KeyedArchive, TakesNothingFromHostileBytes)
{
    const std::pair<const char *, QByteArray> inputs[] = {
        {"empty", {}},
        {"no archive", binaryPlist("<array><string>a</string></array>")},
        {"top of a wrong type",
         binaryPlist("<dict><key>$top</key><array/><key>$objects</key><string>x</string></dict>")},
        {"objects of a wrong type", binaryPlist("<dict><key>$top</key><dict><key>root</key>" + uid(1) +
                                                "</dict><key>$objects</key><string>x</string></dict>")},
        {"root in a circle", foreignArchive(uid(1))},
        {"class in a circle", foreignArchive(objectOf("", 1))},
        {"zeros with a head", "bplist00" + QByteArray(8 << 20, '\0')},
        {"table that shares itself into the thousands of millions", sharingPlist(40, 4)},
        {"table too deep", sharingPlist(120, 1)},
        {"objects that share themselves", nestedArrays(40, 8)},
        {"objects too deep", nestedArrays(5000, 1)},
    };
    for (const auto &[name, bytes] : inputs)
        EXPECT_FALSE(platform::unarchive(bytes, kClasses)) << name;
}

TEST(KeyedArchive, LooksAtAFilesSizeFirst)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write(platform::archiveRootObject(QStringLiteral("text")));
    file.flush();
    EXPECT_EQ(platform::unarchiveFile(file.fileName(), {}).value_or(ArchiveValue()).toString(), "text");
    ASSERT_TRUE(file.resize(qint64(1) << 30));
    EXPECT_FALSE(platform::unarchiveFile(file.fileName(), {}));
}
