#include "platform/archive/ArchiveLayouts.h"

#include "platform/text/FontName.h"

#include <algorithm>
#include <cmath>
#include <QLocale>

namespace platform {

namespace {

/// Run lengths and indices are numbers in groups of seven bits, the low group first; a set top bit says that
/// another group follows.
void appendNumber(QByteArray &bytes, quint64 number)
{
    for (; number > 127; number >>= 7)
        bytes.append(char((number & 127) | 128));
    bytes.append(char(number));
}

class NumberReader {
public:
    explicit NumberReader(const QByteArray &bytes) : m_bytes(bytes) {}

    bool atEnd() const { return m_position >= m_bytes.size(); }
    /// Bits beyond those of the result are lost.
    quint64 next()
    {
        quint64 number = 0;
        for (int shift = 0; !atEnd(); shift += 7) {
            const quint64 group = uchar(m_bytes[m_position++]);
            if (shift < 64)
                number |= (group & 127) << shift;
            if (group < 128)
                break;
        }
        return number;
    }

private:
    const QByteArray &m_bytes;
    qsizetype m_position = 0;
};

/// Colour components are a text of numbers, written as data and often closed by a zero byte.
std::vector<double> components(const ArchiveValue &value)
{
    constexpr qsizetype longest = 256;
    QByteArray text = (value.toData() + value.toString().left(longest).toLatin1()).left(longest);
    if (const qsizetype end = text.indexOf('\0'); end >= 0)
        text.truncate(end);
    std::vector<double> result;
    for (const QByteArray &part : text.simplified().split(' ')) {
        bool isNumber = false;
        const double component = part.toDouble(&isNumber);
        if (!isNumber || !std::isfinite(component))
            return {};
        result.push_back(std::clamp(component, 0.0, 1.0));
    }
    return result;
}

/// Grey or red, green and blue, each with or without an alpha.
std::optional<Color> colorOfComponents(const std::vector<double> &c)
{
    switch (c.size()) {
    case 1:
        return Color{c[0], c[0], c[0], 1};
    case 2:
        return Color{c[0], c[0], c[0], c[1]};
    case 3:
        return Color{c[0], c[1], c[2], 1};
    case 4:
        return Color{c[0], c[1], c[2], c[3]};
    default:
        return std::nullopt;
    }
}

/// Cyan, magenta, yellow and black, as a printer's colours are shown without a profile.
std::optional<Color> colorOfInks(const std::vector<double> &c)
{
    if (c.size() != 4 && c.size() != 5)
        return std::nullopt;
    const double light = 1 - c[3];
    return Color{(1 - c[0]) * light, (1 - c[1]) * light, (1 - c[2]) * light, c.size() == 5 ? c[4] : 1};
}

/// Custom colour spaces carry their plain equivalent beside their own components, and named colours a plain
/// colour.
ArchiveValue decodeColor(KeyedUnarchiver &coder)
{
    // Before the components, which do not tell inks from light.
    if (const auto color = colorOfInks(components(coder.decodeObject(u"NSCMYK"))))
        return *color;
    for (const QStringView key : {u"NSRGB", u"NSWhite", u"NSComponents"}) {
        if (const auto color = colorOfComponents(components(coder.decodeObject(key))))
            return *color;
    }
    return coder.decodeObject(u"NSColor");
}

ArchiveValue decodeFont(KeyedUnarchiver &coder)
{
    const QString name = coder.decodeObject(u"NSName").toString();
    const double size = coder.decodeDouble(u"NSSize");
    if (name.isEmpty())
        return {};
    return size > 0 ? fontFromName(name, size) : fontFromName(name, FontDescription().size);
}

ArchiveValue decodeAlignment(KeyedUnarchiver &coder)
{
    const qint64 number = coder.decodeInteger(u"NSAlignment");
    return number >= 0 && number <= qint64(TextAlignment::Natural) ? TextAlignment(number)
                                                                   : TextAlignment::Natural;
}

ArchiveValue decodeString(KeyedUnarchiver &coder)
{
    const ArchiveValue bytes = coder.decodeObject(u"NS.bytes");
    return bytes.isNothing() ? coder.decodeObject(u"NS.string").toString()
                             : QString::fromUtf8(bytes.toData());
}

ArchiveValue decodeData(KeyedUnarchiver &coder)
{
    return coder.decodeObject(u"NS.data").toData();
}

ArchiveValue decodeArray(KeyedUnarchiver &coder)
{
    ArchiveValue::Array array = coder.decodeObject(u"NS.objects").toArray();
    array.removeIf([](const ArchiveValue &value) { return value.isNothing(); });
    return array;
}

ArchiveValue decodeDictionary(KeyedUnarchiver &coder)
{
    const ArchiveValue::Array keys = coder.decodeObject(u"NS.keys").toArray();
    const ArchiveValue::Array values = coder.decodeObject(u"NS.objects").toArray();
    ArchiveValue::Dictionary dictionary;
    for (qsizetype i = 0; i < std::min(keys.size(), values.size()); ++i) {
        const QString key = keys[i].toString();
        if (!key.isEmpty() && !values[i].isNothing())
            dictionary.insert(key, values[i]);
    }
    return dictionary;
}

std::vector<AttributedString::Run> decodeRuns(KeyedUnarchiver &coder, const ArchiveValue &attributes,
                                              qsizetype length)
{
    const QByteArray bytes = coder.decodeObject(u"NSAttributeInfo").toData();
    std::vector<TextAttributes> looks;
    for (const ArchiveValue &look : attributes.toArray()) {
        if (!coder.charge(sizeof(TextAttributes)))
            return {};
        looks.push_back(look.toTextAttributes().value_or(TextAttributes()));
    }
    std::vector<AttributedString::Run> runs;
    for (NumberReader reader(bytes); !reader.atEnd() && length > 0;) {
        const auto run = qsizetype(std::min(reader.next(), quint64(length)));
        const quint64 look = reader.next();
        if (!coder.charge(sizeof(AttributedString::Run)))
            return {};
        runs.push_back({run, look < looks.size() ? looks[look] : TextAttributes()});
        length -= run;
    }
    return runs;
}

ArchiveValue decodeAttributedString(KeyedUnarchiver &coder)
{
    const QString text = coder.decodeObject(u"NSString").toString();
    const ArchiveValue attributes = coder.decodeObject(u"NSAttributes");
    if (const auto look = attributes.toTextAttributes())
        return AttributedString(text, *look);
    return AttributedString::fromRuns(text, decodeRuns(coder, attributes, text.size()));
}

void encodeArray(KeyedArchiver &coder, const ArchiveValue::Array &array)
{
    coder.encodeReferences(u"NS.objects", array);
}

void encodeDictionary(KeyedArchiver &coder, const ArchiveValue::Dictionary &dictionary)
{
    const QStringList keys = dictionary.keys();
    coder.encodeReferences(u"NS.keys", ArchiveValue::Array(keys.begin(), keys.end()));
    coder.encodeReferences(u"NS.objects", dictionary.values());
}

void encodeColor(KeyedArchiver &coder, const Color &color)
{
    QByteArray text;
    for (const double component : {color.red, color.green, color.blue, color.alpha})
        text += QByteArray::number(component, 'g', QLocale::FloatingPointShortest) + ' ';
    text.back() = '\0';
    coder.encodeInteger(u"NSColorSpace", 1);
    coder.encodeBytes(u"NSRGB", text);
}

void encodeFont(KeyedArchiver &coder, const FontDescription &font)
{
    // The flags of a font that is asked for by its name.
    constexpr qint64 namedFont = 16;
    coder.encodeObject(u"NSName", fontName(font));
    coder.encodeDouble(u"NSSize", font.size);
    coder.encodeInteger(u"NSfFlags", namedFont);
}

void encodeAlignment(KeyedArchiver &coder, const TextAlignment &alignment)
{
    coder.encodeInteger(u"NSAlignment", qint64(alignment));
}

void encodeAttributedString(KeyedArchiver &coder, const AttributedString &text)
{
    coder.encodeObject(u"NSString", text.string());
    const auto &runs = text.runs();
    if (runs.size() < 2) {
        coder.encodeObject(u"NSAttributes", runs.empty() ? TextAttributes() : runs.front().attributes);
        return;
    }
    ArchiveValue::Array looks;
    QByteArray info;
    for (const AttributedString::Run &run : runs) {
        appendNumber(info, quint64(run.length));
        appendNumber(info, quint64(looks.size()));
        looks.append(run.attributes);
    }
    coder.encodeObject(u"NSAttributes", looks);
    coder.encodeObject(u"NSAttributeInfo", info);
}

// Collections and texts are written as the kinds that can be changed: programs that read them take them over
// as they are.
const QStringList kArrayChain{QStringLiteral("NSMutableArray"), QStringLiteral("NSArray")};
const QStringList kDictionaryChain{QStringLiteral("NSMutableDictionary"), QStringLiteral("NSDictionary")};
const QStringList kTextChain{QStringLiteral("NSTextStorage"), QStringLiteral("NSMutableAttributedString"),
                             QStringLiteral("NSAttributedString")};
const QStringList kColorChain{QStringLiteral("NSColor")};
const QStringList kFontChain{QStringLiteral("NSFont")};
const QStringList kParagraphChain{QStringLiteral("NSParagraphStyle")};

template <typename T>
ArchiveLayout layout(const QStringList &classChain, void (*encode)(KeyedArchiver &, const T &),
                     const T &value)
{
    return {classChain, [encode, &value](KeyedArchiver &coder) { encode(coder, value); }};
}

} // namespace

ArchiveLayout platformLayout(const ArchiveValue &value)
{
    const ArchiveValue::Variant &held = value.variant();
    if (const auto *array = std::get_if<ArchiveValue::Array>(&held))
        return layout(kArrayChain, encodeArray, *array);
    if (const auto *dictionary = std::get_if<ArchiveValue::Dictionary>(&held))
        return layout(kDictionaryChain, encodeDictionary, *dictionary);
    if (const auto *color = std::get_if<Color>(&held))
        return layout(kColorChain, encodeColor, *color);
    if (const auto *font = std::get_if<FontDescription>(&held))
        return layout(kFontChain, encodeFont, *font);
    if (const auto *alignment = std::get_if<TextAlignment>(&held))
        return layout(kParagraphChain, encodeAlignment, *alignment);
    return layout(kTextChain, encodeAttributedString, std::get<AttributedString>(held));
}

const ArchiveClasses &platformClasses()
{
    static const ArchiveClasses table{
        {QStringLiteral("NSString"), decodeString},
        {QStringLiteral("NSData"), decodeData},
        {QStringLiteral("NSArray"), decodeArray},
        {QStringLiteral("NSDictionary"), decodeDictionary},
        {QStringLiteral("NSColor"), decodeColor},
        {QStringLiteral("NSFont"), decodeFont},
        {QStringLiteral("NSParagraphStyle"), decodeAlignment},
        {QStringLiteral("NSAttributedString"), decodeAttributedString},
        {QStringLiteral("NSMutableString"), decodeString},
        {QStringLiteral("NSMutableData"), decodeData},
        {QStringLiteral("NSMutableArray"), decodeArray},
        {QStringLiteral("NSMutableDictionary"), decodeDictionary},
        {QStringLiteral("NSMutableParagraphStyle"), decodeAlignment},
        {QStringLiteral("NSMutableAttributedString"), decodeAttributedString},
        {QStringLiteral("NSTextStorage"), decodeAttributedString},
    };
    return table;
}

} // namespace platform
