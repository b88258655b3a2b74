#include "platform/archive/BinaryPlist.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <QtEndian>
#include <vector>

namespace platform {

namespace {

constexpr int kHeaderSize = 8;
constexpr int kTrailerSize = 32;
constexpr int kMaximumDepth = 64;
/// What a node takes in memory beside its text or data.
constexpr quint64 kNodeWeight = 160;

/// libplist copies what the object table of a binary property list shares, so that a few hundred bytes can
/// ask for more memory than there is, and it follows any depth. The table is therefore weighed before it is
/// unpacked.
class ObjectTable {
public:
    explicit ObjectTable(const QByteArray &bytes);

    bool isTame();

private:
    struct Object {
        enum { Unknown, Underway, Known } state = Unknown;
        int height = 0;
        quint64 weight = 0;
    };
    struct Extent {
        int kind = 0;
        quint64 count = 0;
        quint64 start = 0;
    };

    std::optional<quint64> number(quint64 offset, int width) const;
    std::optional<Extent> extent(quint64 index) const;
    bool weigh(quint64 index, int depth);
    bool weighMembers(Object &object, const Extent &extent, int depth);

    const QByteArray &m_bytes;
    quint64 m_limit = 0;
    int m_offsetWidth = 0;
    int m_referenceWidth = 0;
    quint64 m_root = 0;
    quint64 m_tableOffset = 0;
    std::vector<Object> m_objects;
};

ObjectTable::ObjectTable(const QByteArray &bytes) : m_bytes(bytes)
{
    const char *trailer = bytes.constData() + bytes.size() - kTrailerSize;
    m_offsetWidth = uchar(trailer[6]);
    m_referenceWidth = uchar(trailer[7]);
    const quint64 count = qFromBigEndian<quint64>(trailer + 8);
    m_root = qFromBigEndian<quint64>(trailer + 16);
    m_tableOffset = qFromBigEndian<quint64>(trailer + 24);
    if (count <= quint64(bytes.size()))
        m_objects.resize(count);
    m_limit = std::min<quint64>((quint64(1) << 20) + 64 * quint64(bytes.size()), quint64(1) << 29);
}

bool ObjectTable::isTame()
{
    const auto isWidth = [](int width) { return width >= 1 && width <= 8; };
    return isWidth(m_offsetWidth) && isWidth(m_referenceWidth) && weigh(m_root, 0);
}

std::optional<quint64> ObjectTable::number(quint64 offset, int width) const
{
    const quint64 end = quint64(m_bytes.size() - kTrailerSize);
    if (offset > end || quint64(width) > end - offset)
        return std::nullopt;
    quint64 value = 0;
    for (int i = 0; i < width; ++i)
        value = value << 8 | uchar(m_bytes[qsizetype(offset) + i]);
    return value;
}

/// Where an object's contents stand and how many units they have.
std::optional<ObjectTable::Extent> ObjectTable::extent(quint64 index) const
{
    const auto offset = number(m_tableOffset + index * quint64(m_offsetWidth), m_offsetWidth);
    const auto marker = offset ? number(*offset, 1) : std::nullopt;
    if (!marker)
        return std::nullopt;
    Extent extent{int(*marker >> 4), *marker & 15, *offset + 1};
    if (extent.count < 15)
        return extent;
    const int width = 1 << (number(extent.start, 1).value_or(0) & 3);
    const auto count = number(extent.start + 1, width);
    extent.count = count.value_or(0);
    extent.start += 1 + quint64(width);
    return count ? std::optional(extent) : std::nullopt;
}

bool ObjectTable::weigh(quint64 index, int depth)
{
    if (index >= m_objects.size())
        return false;
    Object &object = m_objects[index];
    if (object.state == Object::Unknown) {
        const auto contents = extent(index);
        object.state = Object::Underway;
        if (!contents || depth > kMaximumDepth || !weighMembers(object, *contents, depth))
            return false;
        object.state = Object::Known;
    }
    return object.state == Object::Known && depth + object.height <= kMaximumDepth;
}

bool ObjectTable::weighMembers(Object &object, const Extent &extent, int depth)
{
    enum Kind { Data = 4, Ascii = 5, Utf16 = 6, Array = 10, Set = 12, Dictionary = 13 };
    const quint64 size = quint64(m_bytes.size());
    object.weight = kNodeWeight;
    if (extent.kind >= Data && extent.kind <= Utf16)
        object.weight += std::min(extent.count, size) * (extent.kind == Utf16 ? 4 : 1);
    if (extent.kind != Array && extent.kind != Set && extent.kind != Dictionary)
        return object.weight <= m_limit;
    if (extent.count > size)
        return false;
    const quint64 count = extent.kind == Dictionary ? 2 * extent.count : extent.count;
    for (quint64 i = 0; i < count && object.weight <= m_limit; ++i) {
        const auto member = number(extent.start + i * quint64(m_referenceWidth), m_referenceWidth);
        if (!member || !weigh(*member, depth + 1))
            return false;
        object.weight += m_objects[*member].weight;
        object.height = std::max(object.height, m_objects[*member].height + 1);
    }
    return object.weight <= m_limit;
}

} // namespace

Plist readBinaryPlist(const QByteArray &bytes)
{
    if (bytes.size() <= kHeaderSize + kTrailerSize || bytes.size() > kMaximumPlistSize ||
        !bytes.startsWith("bplist00"))
        return nullptr;
    if (!ObjectTable(bytes).isTame())
        return nullptr;
    plist_t root = nullptr;
    plist_from_bin(bytes.constData(), uint32_t(bytes.size()), &root);
    return Plist(root);
}

QByteArray writeBinaryPlist(plist_t root)
{
    char *bytes = nullptr;
    uint32_t length = 0;
    plist_to_bin(root, &bytes, &length);
    const QByteArray result(bytes, length);
    plist_to_bin_free(bytes);
    return result;
}

QString plistString(plist_t node)
{
    if (!PLIST_IS_STRING(node))
        return {};
    uint64_t length = 0;
    const char *text = plist_get_string_ptr(node, &length);
    return QString::fromUtf8(text, qsizetype(length));
}

} // namespace platform
