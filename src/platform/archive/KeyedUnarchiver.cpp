#include "platform/archive/KeyedUnarchiver.h"

#include "platform/archive/GeometryText.h"

#include <cmath>
#include <limits>
#include <utility>

namespace platform {

namespace {

constexpr int kMaximumDepth = 256;
constexpr qsizetype kLongestClassChain = 16;

/// Calls back for every member of an array node.
template <typename Use>
void forEachMember(plist_t array, Use use)
{
    plist_array_iter iterator = nullptr;
    plist_array_new_iter(array, &iterator);
    const std::unique_ptr<void, decltype(&free)> owner(iterator, &free);
    plist_t member = nullptr;
    do {
        plist_array_next_item(array, iterator, &member);
    } while (member && use(member));
}

/// The number of the object that a node refers to. Tools that take property lists through XML leave a
/// dictionary where a reference was.
std::optional<quint64> referenceOf(plist_t node)
{
    uint64_t index = 0;
    if (PLIST_IS_UID(node)) {
        plist_get_uid_val(node, &index);
        return index;
    }
    plist_t number = plist_dict_get_item(node, "CF$UID");
    if (!PLIST_IS_UINT(number) || plist_dict_get_size(node) != 1)
        return std::nullopt;
    plist_get_uint_val(number, &index);
    return index;
}

QByteArray dataOf(plist_t node)
{
    uint64_t length = 0;
    const char *bytes = plist_get_data_ptr(node, &length);
    return QByteArray(bytes, qsizetype(length));
}

ArchiveValue scalarOf(plist_t node)
{
    uint8_t flag = 0;
    uint64_t integer = 0;
    double real = 0;
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN:
        plist_get_bool_val(node, &flag);
        return flag != 0;
    case PLIST_UINT:
        plist_get_uint_val(node, &integer);
        return qint64(integer);
    case PLIST_REAL:
        plist_get_real_val(node, &real);
        return real;
    case PLIST_STRING:
        return plistString(node);
    case PLIST_DATA:
        return dataOf(node);
    default:
        return {};
    }
}

quint64 payloadOf(plist_t node)
{
    uint64_t length = 0;
    if (PLIST_IS_STRING(node))
        plist_get_string_ptr(node, &length);
    else if (PLIST_IS_DATA(node))
        plist_get_data_ptr(node, &length);
    return length * sizeof(QChar);
}

} // namespace

std::optional<ArchiveValue> KeyedUnarchiver::unarchive(const QByteArray &archive,
                                                       const ArchiveClasses &ofProgram,
                                                       const ArchiveClasses &ofPlatform)
{
    const Plist plist = readBinaryPlist(archive);
    plist_t root = plist_dict_get_item(plist_dict_get_item(plist.get(), "$top"), "root");
    if (!referenceOf(root))
        return std::nullopt;
    constexpr quint64 least = 1 << 20;
    KeyedUnarchiver unarchiver(plist.get(), least + 32 * quint64(archive.size()), ofProgram, ofPlatform);
    const ArchiveValue value = unarchiver.decodeNode(root);
    if (value.isNothing() || !unarchiver.charge(0))
        return std::nullopt;
    return value;
}

KeyedUnarchiver::KeyedUnarchiver(plist_t archive, quint64 budget, const ArchiveClasses &ofProgram,
                                 const ArchiveClasses &ofPlatform)
    : m_ofProgram(ofProgram), m_ofPlatform(ofPlatform), m_budget(budget)
{
    plist_t objects = plist_dict_get_item(archive, "$objects");
    if (!PLIST_IS_ARRAY(objects))
        return;
    m_entries.reserve(plist_array_get_size(objects));
    forEachMember(objects, [this](plist_t node) {
        m_entries.emplace_back().node = node;
        return true;
    });
}

bool KeyedUnarchiver::contains(QStringView key) const
{
    return plist_dict_get_item(m_current, key.toUtf8().constData()) != nullptr;
}

bool KeyedUnarchiver::decodeBool(QStringView key)
{
    return decodeObject(key).toBool();
}

qint64 KeyedUnarchiver::decodeInteger(QStringView key)
{
    return decodeObject(key).toInteger();
}

float KeyedUnarchiver::decodeFloat(QStringView key)
{
    const double value = decodeDouble(key);
    return std::abs(value) <= std::numeric_limits<float>::max() ? float(value) : 0.0F;
}

double KeyedUnarchiver::decodeDouble(QStringView key)
{
    return decodeObject(key).toDouble();
}

QPointF KeyedUnarchiver::decodePoint(QStringView key)
{
    return pointFromText(decodeObject(key).toString());
}

QSizeF KeyedUnarchiver::decodeSize(QStringView key)
{
    return sizeFromText(decodeObject(key).toString());
}

QRectF KeyedUnarchiver::decodeRect(QStringView key)
{
    return rectFromText(decodeObject(key).toString());
}

ArchiveValue KeyedUnarchiver::decodeObject(QStringView key)
{
    return decodeNode(plist_dict_get_item(m_current, key.toUtf8().constData()));
}

bool KeyedUnarchiver::charge(quint64 bytes)
{
    m_spent += bytes;
    return m_spent <= m_budget;
}

/// A value where it stands: a reference, a bare list or a scalar. Objects never stand in other objects.
ArchiveValue KeyedUnarchiver::decodeNode(plist_t node)
{
    if (!node || !charge(sizeof(ArchiveValue) + payloadOf(node)))
        return {};
    if (const auto index = referenceOf(node))
        return decodeReference(*index);
    return PLIST_IS_ARRAY(node) ? decodeList(node) : scalarOf(node);
}

ArchiveValue KeyedUnarchiver::decodeReference(quint64 index)
{
    // The first entry of every archive stands for nothing.
    if (index == 0 || index >= m_entries.size())
        return {};
    Entry &entry = m_entries[index];
    if (entry.state == State::Underway)
        return {};
    if (entry.state == State::Done) {
        // Whoever walks the result meets a shared value once for every reference, so each pays for it.
        charge(entry.cost);
        return entry.value;
    }
    entry.state = State::Underway;
    const quint64 spentBefore = m_spent;
    entry.value = decodeEntry(entry.node);
    entry.cost = m_spent - spentBefore;
    entry.state = State::Done;
    return entry.value;
}

ArchiveValue KeyedUnarchiver::decodeEntry(plist_t node)
{
    if (referenceOf(node))
        return {};
    if (!PLIST_IS_DICT(node))
        return decodeNode(node);
    if (m_depth >= kMaximumDepth) {
        m_spent = m_budget + 1;
        return {};
    }
    ++m_depth;
    ArchiveValue value = decodeInstance(node);
    --m_depth;
    return value;
}

ArchiveValue KeyedUnarchiver::decodeList(plist_t node)
{
    ArchiveValue::Array list;
    forEachMember(node, [&](plist_t member) {
        list.append(decodeNode(member));
        return charge(0);
    });
    return list;
}

ArchiveValue KeyedUnarchiver::decodeInstance(plist_t node)
{
    const ArchiveFactory make = factoryFor(node);
    if (!make)
        return {};
    plist_t outer = std::exchange(m_current, node);
    ArchiveValue value = make(*this);
    m_current = outer;
    return value;
}

ArchiveFactory KeyedUnarchiver::factoryFor(plist_t node) const
{
    const QStringList chain = classChain(node);
    if (const ArchiveFactory factory = m_ofProgram.value(chain.value(0)))
        return factory;
    for (const QString &name : chain) {
        if (const ArchiveFactory factory = m_ofPlatform.value(name))
            return factory;
    }
    return {};
}

/// The object's class, then all that its class table names. Empty without a sound table.
QStringList KeyedUnarchiver::classChain(plist_t node) const
{
    const quint64 index = referenceOf(plist_dict_get_item(node, "$class")).value_or(0);
    if (index == 0 || index >= m_entries.size())
        return {};
    plist_t table = m_entries[index].node;
    QStringList chain;
    if (const QString name = plistString(plist_dict_get_item(table, "$classname")); !name.isEmpty())
        chain.append(name);
    plist_t bases = plist_dict_get_item(table, "$classes");
    if (PLIST_IS_ARRAY(bases)) {
        forEachMember(bases, [&chain](plist_t base) {
            chain.append(plistString(base));
            return chain.size() < kLongestClassChain;
        });
    }
    return chain;
}

} // namespace platform
