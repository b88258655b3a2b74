#pragma once

#include "platform/archive/ArchiveValue.h"
#include "platform/archive/BinaryPlist.h"

#include <functional>
#include <QHash>
#include <QRectF>
#include <vector>

namespace platform {

class KeyedUnarchiver;

/// Makes a value from the entries of its archived form, or nothing.
using ArchiveFactory = std::function<ArchiveValue(KeyedUnarchiver &)>;
/// Classes by the names that archives give them.
using ArchiveClasses = QHash<QString, ArchiveFactory>;

/// Reads keyed archives, the program's own and others'. Archives come from anywhere, so whatever is wrong
/// with one costs what it belongs to and no more: an unknown class, a reference in a circle or out of range,
/// a value of another type is nothing, and members of an array or a dictionary that are nothing are left out.
///
/// Time and memory stay within a small multiple of the archive's size.
class KeyedUnarchiver {
public:
    /// Nothing if the bytes are no keyed archive or its root is nothing. Objects of the program must be of
    /// the very class; others are read by the first of their classes that the platform has.
    static std::optional<ArchiveValue> unarchive(const QByteArray &archive, const ArchiveClasses &ofProgram,
                                                 const ArchiveClasses &ofPlatform);

    KeyedUnarchiver(const KeyedUnarchiver &) = delete;
    KeyedUnarchiver &operator=(const KeyedUnarchiver &) = delete;

    /// Entries of the object being decoded; for use in factories. What is missing or of another type is zero
    /// or nothing, and so is a number that is not finite.
    bool contains(QStringView key) const;
    bool decodeBool(QStringView key);
    qint64 decodeInteger(QStringView key);
    float decodeFloat(QStringView key);
    double decodeDouble(QStringView key);
    QPointF decodePoint(QStringView key);
    QSizeF decodeSize(QStringView key);
    QRectF decodeRect(QStringView key);
    /// A bare list of references is an array here in which what is nothing keeps its place.
    ArchiveValue decodeObject(QStringView key);

    /// Sets memory aside for what a factory is about to make; false when the archive has used up its share.
    bool charge(quint64 bytes);

private:
    enum class State { Untouched, Underway, Done };
    struct Entry {
        plist_t node = nullptr;
        State state = State::Untouched;
        quint64 cost = 0;
        ArchiveValue value;
    };

    KeyedUnarchiver(plist_t archive, quint64 budget, const ArchiveClasses &ofProgram,
                    const ArchiveClasses &ofPlatform);

    ArchiveValue decodeNode(plist_t node);
    ArchiveValue decodeReference(quint64 index);
    ArchiveValue decodeEntry(plist_t node);
    ArchiveValue decodeList(plist_t node);
    ArchiveValue decodeInstance(plist_t node);
    ArchiveFactory factoryFor(plist_t node) const;
    QStringList classChain(plist_t node) const;

    const ArchiveClasses &m_ofProgram;
    const ArchiveClasses &m_ofPlatform;
    std::vector<Entry> m_entries;
    plist_t m_current = nullptr;
    quint64 m_budget = 0;
    quint64 m_spent = 0;
    int m_depth = 0;
};

/// A factory for a class that has a constructor taking the unarchiver.
template <std::derived_from<Archivable> T>
ArchiveFactory archiveFactory()
{
    return
        [](KeyedUnarchiver &coder) { return coder.charge(sizeof(T)) ? std::make_shared<T>(coder) : nullptr; };
}

} // namespace platform
