#pragma once

#include "platform/archive/ArchiveValue.h"
#include "platform/archive/BinaryPlist.h"

#include <functional>
#include <QHash>
#include <QRectF>
#include <unordered_map>

namespace platform {

/// How a value of one of the platform's own classes stands in an archive.
struct ArchiveLayout {
    QStringList classChain;
    std::function<void(KeyedArchiver &)> encode;
};

/// Writes objects into the platform's keyed archive format, a binary property list. Each object is written
/// once, however often it is referred to, and may refer back to the objects that hold it.
class KeyedArchiver {
public:
    using LayoutOf = ArchiveLayout (*)(const ArchiveValue &);

    /// `layoutOf` is asked for values that are neither plain nor objects of the program.
    static QByteArray archiveRootObject(const ArchiveValue &root, LayoutOf layoutOf);

    KeyedArchiver(const KeyedArchiver &) = delete;
    KeyedArchiver &operator=(const KeyedArchiver &) = delete;

    /// Entries of the object being encoded; for use in `encodeWithCoder`.
    void encodeBool(QStringView key, bool value);
    void encodeInteger(QStringView key, qint64 value);
    void encodeFloat(QStringView key, float value);
    void encodeDouble(QStringView key, double value);
    void encodePoint(QStringView key, QPointF value);
    void encodeSize(QStringView key, QSizeF value);
    void encodeRect(QStringView key, const QRectF &value);
    void encodeObject(QStringView key, const ArchiveValue &value);
    /// Bytes that stand in the object itself, as colours keep their components.
    void encodeBytes(QStringView key, const QByteArray &value);
    /// A bare list of references, as the collections keep their members.
    void encodeReferences(QStringView key, const ArchiveValue::Array &values);

private:
    explicit KeyedArchiver(LayoutOf layoutOf);

    quint64 reference(const ArchiveValue &value);
    quint64 referenceToString(const QString &text);
    quint64 referenceToObject(const ArchiveValue::Object &object);
    quint64 referenceToClass(const QStringList &chain);
    quint64 addObject(const ArchiveLayout &layout);
    quint64 append(plist_t node);
    void set(QStringView key, plist_t node);

    LayoutOf m_layoutOf;
    Plist m_archive;
    plist_t m_objects = nullptr;
    plist_t m_current = nullptr;
    quint64 m_count = 0;
    QHash<QString, quint64> m_strings;
    QHash<QString, quint64> m_classes;
    /// Held, so that no second object comes to lie where a passing one lay.
    std::unordered_map<ArchiveValue::Object, quint64> m_written;
};

} // namespace platform
