#include "platform/archive/KeyedArchiver.h"

#include "platform/archive/GeometryText.h"

#include <utility>

namespace platform {

namespace {

template <typename... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <typename... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

plist_t dataNode(const QByteArray &bytes)
{
    return plist_new_data(bytes.constData(), uint64_t(bytes.size()));
}

plist_t stringNode(const QString &text)
{
    return plist_new_string(text.toUtf8().constData());
}

plist_t integerNode(qint64 number)
{
    return plist_new_uint(uint64_t(number));
}

} // namespace

QByteArray KeyedArchiver::archiveRootObject(const ArchiveValue &root, LayoutOf layoutOf)
{
    KeyedArchiver archiver(layoutOf);
    plist_t top = plist_new_dict();
    plist_dict_set_item(top, "root", plist_new_uid(archiver.reference(root)));
    plist_dict_set_item(archiver.m_archive.get(), "$top", top);
    return writeBinaryPlist(archiver.m_archive.get());
}

KeyedArchiver::KeyedArchiver(LayoutOf layoutOf)
    : m_layoutOf(layoutOf), m_archive(plist_new_dict()), m_objects(plist_new_array())
{
    plist_dict_set_item(m_archive.get(), "$version", plist_new_uint(100000));
    plist_dict_set_item(m_archive.get(), "$archiver", plist_new_string("NSKeyedArchiver"));
    plist_dict_set_item(m_archive.get(), "$objects", m_objects);
    append(plist_new_string("$null"));
}

void KeyedArchiver::encodeBool(QStringView key, bool value)
{
    set(key, plist_new_bool(value));
}

void KeyedArchiver::encodeInteger(QStringView key, qint64 value)
{
    set(key, integerNode(value));
}

void KeyedArchiver::encodeFloat(QStringView key, float value)
{
    set(key, plist_new_real(double(value)));
}

void KeyedArchiver::encodeDouble(QStringView key, double value)
{
    set(key, plist_new_real(value));
}

void KeyedArchiver::encodePoint(QStringView key, QPointF value)
{
    encodeObject(key, pointText(value));
}

void KeyedArchiver::encodeSize(QStringView key, QSizeF value)
{
    encodeObject(key, sizeText(value));
}

void KeyedArchiver::encodeRect(QStringView key, const QRectF &value)
{
    encodeObject(key, rectText(value));
}

void KeyedArchiver::encodeObject(QStringView key, const ArchiveValue &value)
{
    set(key, plist_new_uid(reference(value)));
}

void KeyedArchiver::encodeBytes(QStringView key, const QByteArray &value)
{
    set(key, dataNode(value));
}

void KeyedArchiver::encodeReferences(QStringView key, const ArchiveValue::Array &values)
{
    plist_t list = plist_new_array();
    for (const ArchiveValue &value : values)
        plist_array_append_item(list, plist_new_uid(reference(value)));
    set(key, list);
}

quint64 KeyedArchiver::reference(const ArchiveValue &value)
{
    return std::visit(Overloaded{
                          [](std::monostate) { return quint64(0); },
                          [this](bool flag) { return append(plist_new_bool(flag)); },
                          [this](qint64 number) { return append(integerNode(number)); },
                          [this](double number) { return append(plist_new_real(number)); },
                          [this](const QString &text) { return referenceToString(text); },
                          [this](const QByteArray &bytes) { return append(dataNode(bytes)); },
                          [this](const ArchiveValue::Object &object) { return referenceToObject(object); },
                          [this, &value](const auto &) { return addObject(m_layoutOf(value)); },
                      },
                      value.variant());
}

quint64 KeyedArchiver::referenceToString(const QString &text)
{
    const auto known = m_strings.constFind(text);
    if (known != m_strings.constEnd())
        return *known;
    return *m_strings.insert(text, append(stringNode(text)));
}

quint64 KeyedArchiver::referenceToObject(const ArchiveValue::Object &object)
{
    if (!object)
        return 0;
    const auto known = m_written.find(object);
    if (known != m_written.end())
        return known->second;
    // Known before it is encoded, so that a circle closes.
    m_written.emplace(object, m_count);
    return addObject(
        {object->classChain(), [&object](KeyedArchiver &coder) { object->encodeWithCoder(coder); }});
}

quint64 KeyedArchiver::referenceToClass(const QStringList &chain)
{
    const auto known = m_classes.constFind(chain.first());
    if (known != m_classes.constEnd())
        return *known;
    plist_t names = plist_new_array();
    for (const QString &name : chain + QStringList{QStringLiteral("NSObject")})
        plist_array_append_item(names, stringNode(name));
    plist_t table = plist_new_dict();
    plist_dict_set_item(table, "$classname", stringNode(chain.first()));
    plist_dict_set_item(table, "$classes", names);
    return *m_classes.insert(chain.first(), append(table));
}

quint64 KeyedArchiver::addObject(const ArchiveLayout &layout)
{
    plist_t object = plist_new_dict();
    const quint64 index = append(object);
    plist_t outer = std::exchange(m_current, object);
    layout.encode(*this);
    set(u"$class", plist_new_uid(referenceToClass(layout.classChain)));
    m_current = outer;
    return index;
}

quint64 KeyedArchiver::append(plist_t node)
{
    plist_array_append_item(m_objects, node);
    return m_count++;
}

void KeyedArchiver::set(QStringView key, plist_t node)
{
    plist_dict_set_item(m_current, key.toUtf8().constData(), node);
}

} // namespace platform
