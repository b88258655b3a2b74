#pragma once

#include "platform/paint/Color.h"

#include <optional>
#include <QHash>
#include <QString>
#include <QTransform>
#include <vector>

/// The attributes of one element, and what the reader makes of their texts. Numbers are single precision; a
/// unit behind a number is passed over, and a text without one is 0.
class TSSVGAttributes {
public:
    void insert(const QString &key, const QString &value) { m_values.insert(key, value); }
    bool contains(const QString &key) const { return m_values.contains(key); }
    /// Empty for a missing key.
    QString textForKey(const QString &key) const { return m_values.value(key); }

    double floatForKey(const QString &key) const;
    std::optional<double> opacityForKey(const QString &key) const;
    std::optional<platform::Color> strokeColorForKey(const QString &key) const;
    /// Black for a missing key.
    std::optional<platform::Color> fillColorForKey(const QString &key) const;
    std::vector<double> dashArrayForKey(const QString &key) const;
    double strokeWeightForKey(const QString &key) const;
    double miterLimitForKey(const QString &key) const;
    Qt::PenJoinStyle lineJoinForKey(const QString &key) const;
    Qt::PenCapStyle lineCapForKey(const QString &key) const;
    /// Only "matrix(" with six numbers set apart by white space is understood.
    std::optional<QTransform> transformForKey(const QString &key) const;

    /// Six hexadecimal digits behind any one character. Names and short forms fall through the same
    /// arithmetic, the word red to a blue; documents are drawn so.
    static std::optional<platform::Color> colorFromHexString(const QString &text);

private:
    QHash<QString, QString> m_values;
};
