#pragma once

#include "platform/archive/Archivable.h"
#include "platform/text/AttributedString.h"

#include <concepts>
#include <memory>
#include <QByteArray>
#include <QList>
#include <QMap>
#include <variant>

namespace platform {

/// What a keyed archive holds at one place, or nothing. Arrays and dictionaries are shared on copy, and
/// objects are referred to, so that what was one object when it was archived is one object again.
class ArchiveValue {
public:
    using Array = QList<ArchiveValue>;
    using Dictionary = QMap<QString, ArchiveValue>;
    using Object = std::shared_ptr<Archivable>;

    ArchiveValue() = default;
    ArchiveValue(bool value) : m_value(value) {}
    ArchiveValue(int value) : m_value(qint64(value)) {}
    ArchiveValue(qint64 value) : m_value(value) {}
    ArchiveValue(double value) : m_value(value) {}
    ArchiveValue(const QString &value) : m_value(value) {}
    ArchiveValue(const QByteArray &value) : m_value(value) {}
    ArchiveValue(const Array &value) : m_value(value) {}
    ArchiveValue(const Dictionary &value) : m_value(value) {}
    ArchiveValue(const Color &value) : m_value(value) {}
    ArchiveValue(const FontDescription &value) : m_value(value) {}
    ArchiveValue(TextAlignment value) : m_value(value) {}
    ArchiveValue(const AttributedString &value) : m_value(value) {}
    /// Attributes are archived as a dictionary under the attributes' names.
    ArchiveValue(const TextAttributes &value);
    template <std::derived_from<Archivable> T>
    ArchiveValue(const std::shared_ptr<T> &value) : m_value(Object(value))
    {
    }
    /// A literal would pass for a boolean.
    ArchiveValue(const void *) = delete;

    bool isNothing() const;
    /// True for booleans too.
    bool isNumber() const;
    bool isString() const { return std::holds_alternative<QString>(m_value); }

    /// The value as the type asked for. Numbers and booleans stand in for one another; for anything else
    /// these answer zero, an empty value or nothing. A number that is not finite reads as 0.
    bool toBool() const;
    qint64 toInteger() const;
    double toDouble() const;
    QString toString() const;
    QByteArray toData() const;
    Array toArray() const;
    Dictionary toDictionary() const;
    std::optional<Color> toColor() const;
    std::optional<FontDescription> toFont() const;
    std::optional<TextAlignment> toAlignment() const;
    /// Entries of other names or types are left out; nothing if the value is no dictionary.
    std::optional<TextAttributes> toTextAttributes() const;
    std::optional<AttributedString> toAttributedString() const;
    /// Nothing also for an object of another class.
    template <std::derived_from<Archivable> T>
    std::shared_ptr<T> toObject() const
    {
        const auto *object = std::get_if<Object>(&m_value);
        return object ? std::dynamic_pointer_cast<T>(*object) : nullptr;
    }

    using Variant = std::variant<std::monostate, bool, qint64, double, QString, QByteArray, Array, Dictionary,
                                 Color, FontDescription, TextAlignment, AttributedString, Object>;
    /// For visiting whatever it is.
    const Variant &variant() const { return m_value; }

private:
    template <typename T>
    std::optional<T> held() const
    {
        const auto *value = std::get_if<T>(&m_value);
        return value ? std::optional<T>(*value) : std::nullopt;
    }

    Variant m_value;
};

} // namespace platform
