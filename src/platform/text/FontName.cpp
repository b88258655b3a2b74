#include "platform/text/FontName.h"

#include <QRegularExpression>

namespace platform {

namespace {

const QString kRegular = QStringLiteral("Regular");

/// "BoldOblique" is two words and "SemiBold" is one.
QString spacedStyle(const QString &style)
{
    static const QRegularExpression boundary(
        QStringLiteral("(?<=[a-z])(?<!Semi|Demi)(?<!Extra|Ultra)(?=[A-Z])"));
    QString spaced = style;
    if (!style.contains(u' '))
        spaced.replace(boundary, QStringLiteral(" "));
    return spaced == kRegular ? QString() : spaced;
}

QString joinedStyle(const QString &style)
{
    QString joined = style;
    joined.remove(u' ');
    return spacedStyle(joined) == style ? joined : style;
}

} // namespace

QString fontName(const FontDescription &font)
{
    if (font.style.isEmpty() && !font.family.contains(u'-'))
        return font.family;
    return font.family + u'-' + (font.style.isEmpty() ? kRegular : joinedStyle(font.style));
}

FontDescription fontFromName(const QString &name, double size)
{
    const qsizetype hyphen = name.lastIndexOf(u'-');
    if (hyphen <= 0)
        return {name, {}, size};
    return {name.left(hyphen), spacedStyle(name.mid(hyphen + 1)), size};
}

} // namespace platform
