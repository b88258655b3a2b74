#include "vector/TSSVGAttributes.h"

#include "vector/TSScanner.h"

#include <array>

namespace {

double floatValue(QStringView text)
{
    float value = 0;
    TSScanner(text).scanFloat(&value);
    return double(value);
}

/// The styles in the order of the codes 0, 1 and 2. Both attributes read "round" and "square" and nothing
/// else, so that a bevel comes out as a miter.
template <typename Style>
Style styleFor(const QString &text, const std::array<Style, 3> &styles)
{
    if (text == u"round")
        return styles[1];
    return text == u"square" ? styles[2] : styles[0];
}

} // namespace

double TSSVGAttributes::floatForKey(const QString &key) const
{
    return floatValue(textForKey(key));
}

std::optional<double> TSSVGAttributes::opacityForKey(const QString &key) const
{
    return contains(key) ? std::optional(floatForKey(key)) : std::nullopt;
}

std::optional<platform::Color> TSSVGAttributes::strokeColorForKey(const QString &key) const
{
    return contains(key) ? colorFromHexString(textForKey(key)) : std::nullopt;
}

std::optional<platform::Color> TSSVGAttributes::fillColorForKey(const QString &key) const
{
    return contains(key) ? colorFromHexString(textForKey(key)) : platform::Color::black();
}

std::vector<double> TSSVGAttributes::dashArrayForKey(const QString &key) const
{
    std::vector<double> dashes;
    if (contains(key))
        for (const QString &piece : textForKey(key).split(u','))
            dashes.push_back(floatValue(piece));
    return dashes;
}

double TSSVGAttributes::strokeWeightForKey(const QString &key) const
{
    return contains(key) ? floatForKey(key) : 1.0;
}

double TSSVGAttributes::miterLimitForKey(const QString &key) const
{
    return contains(key) ? floatForKey(key) : 10.0;
}

Qt::PenJoinStyle TSSVGAttributes::lineJoinForKey(const QString &key) const
{
    return styleFor<Qt::PenJoinStyle>(textForKey(key), {Qt::SvgMiterJoin, Qt::RoundJoin, Qt::BevelJoin});
}

Qt::PenCapStyle TSSVGAttributes::lineCapForKey(const QString &key) const
{
    return styleFor<Qt::PenCapStyle>(textForKey(key), {Qt::FlatCap, Qt::RoundCap, Qt::SquareCap});
}

std::optional<QTransform> TSSVGAttributes::transformForKey(const QString &key) const
{
    if (!contains(key))
        return std::nullopt;
    const QString text = textForKey(key);
    TSScanner scanner(text);
    scanner.scanString(u"matrix(");
    std::array<float, 6> m{};
    for (float &number : m)
        if (!scanner.scanFloat(&number))
            return std::nullopt;
    return QTransform(double(m[0]), double(m[1]), double(m[2]), double(m[3]), double(m[4]), double(m[5]));
}

std::optional<platform::Color> TSSVGAttributes::colorFromHexString(const QString &text)
{
    if (text.isNull() || text == u"none")
        return std::nullopt;
    quint32 value = 0;
    TSScanner(QStringView(text).mid(1)).scanHexInt(&value);
    return platform::Color{(value >> 16 & 0xFF) / 255.0, (value >> 8 & 0xFF) / 255.0, (value & 0xFF) / 255.0,
                           1};
}
