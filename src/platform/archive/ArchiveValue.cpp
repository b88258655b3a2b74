#include "platform/archive/ArchiveValue.h"

#include <cmath>
#include <limits>

namespace platform {

namespace {

const QString kFont = QStringLiteral("NSFont");
const QString kForegroundColor = QStringLiteral("NSColor");
const QString kStrokeWidth = QStringLiteral("NSStrokeWidth");
const QString kStrokeColor = QStringLiteral("NSStrokeColor");
const QString kUnderline = QStringLiteral("NSUnderline");
const QString kUnderlineColor = QStringLiteral("NSUnderlineColor");
const QString kStrikethrough = QStringLiteral("NSStrikethrough");
const QString kStrikethroughColor = QStringLiteral("NSStrikethroughColor");
const QString kParagraphStyle = QStringLiteral("NSParagraphStyle");

template <typename T>
void put(ArchiveValue::Dictionary &dictionary, const QString &key, const std::optional<T> &value)
{
    if (value)
        dictionary.insert(key, *value);
}

qint64 truncated(double value)
{
    constexpr double limit = 9.2e18;
    return std::abs(value) < limit ? qint64(value) : 0;
}

} // namespace

ArchiveValue::ArchiveValue(const TextAttributes &value)
{
    Dictionary dictionary;
    put(dictionary, kFont, value.font);
    put(dictionary, kForegroundColor, value.foregroundColor);
    put(dictionary, kStrokeWidth, value.strokeWidth);
    put(dictionary, kStrokeColor, value.strokeColor);
    put(dictionary, kUnderline, value.underlineStyle);
    put(dictionary, kUnderlineColor, value.underlineColor);
    put(dictionary, kStrikethrough, value.strikethroughStyle);
    put(dictionary, kStrikethroughColor, value.strikethroughColor);
    put(dictionary, kParagraphStyle, value.alignment);
    m_value = dictionary;
}

bool ArchiveValue::isNothing() const
{
    const auto *object = std::get_if<Object>(&m_value);
    return std::holds_alternative<std::monostate>(m_value) || (object && !*object);
}

bool ArchiveValue::isNumber() const
{
    return std::holds_alternative<bool>(m_value) || std::holds_alternative<qint64>(m_value) ||
           std::holds_alternative<double>(m_value);
}

bool ArchiveValue::toBool() const
{
    return toDouble() != 0;
}

qint64 ArchiveValue::toInteger() const
{
    if (const auto *value = std::get_if<qint64>(&m_value))
        return *value;
    return truncated(toDouble());
}

double ArchiveValue::toDouble() const
{
    if (const auto *value = std::get_if<bool>(&m_value))
        return *value;
    if (const auto *value = std::get_if<qint64>(&m_value))
        return double(*value);
    const double value = held<double>().value_or(0);
    return std::isfinite(value) ? value : 0;
}

QString ArchiveValue::toString() const
{
    return held<QString>().value_or(QString());
}

QByteArray ArchiveValue::toData() const
{
    return held<QByteArray>().value_or(QByteArray());
}

ArchiveValue::Array ArchiveValue::toArray() const
{
    return held<Array>().value_or(Array());
}

ArchiveValue::Dictionary ArchiveValue::toDictionary() const
{
    return held<Dictionary>().value_or(Dictionary());
}

std::optional<Color> ArchiveValue::toColor() const
{
    return held<Color>();
}

std::optional<FontDescription> ArchiveValue::toFont() const
{
    return held<FontDescription>();
}

std::optional<TextAlignment> ArchiveValue::toAlignment() const
{
    return held<TextAlignment>();
}

std::optional<TextAttributes> ArchiveValue::toTextAttributes() const
{
    const auto *dictionary = std::get_if<Dictionary>(&m_value);
    if (!dictionary)
        return std::nullopt;
    const auto lineStyle = [dictionary](const QString &key) {
        const ArchiveValue value = dictionary->value(key);
        return value.isNumber() ? std::optional(int(value.toInteger())) : std::nullopt;
    };
    TextAttributes result;
    result.font = dictionary->value(kFont).toFont();
    result.foregroundColor = dictionary->value(kForegroundColor).toColor();
    if (const ArchiveValue width = dictionary->value(kStrokeWidth); width.isNumber())
        result.strokeWidth = width.toDouble();
    result.strokeColor = dictionary->value(kStrokeColor).toColor();
    result.underlineStyle = lineStyle(kUnderline);
    result.underlineColor = dictionary->value(kUnderlineColor).toColor();
    result.strikethroughStyle = lineStyle(kStrikethrough);
    result.strikethroughColor = dictionary->value(kStrikethroughColor).toColor();
    result.alignment = dictionary->value(kParagraphStyle).toAlignment();
    return result;
}

std::optional<AttributedString> ArchiveValue::toAttributedString() const
{
    return held<AttributedString>();
}

} // namespace platform
