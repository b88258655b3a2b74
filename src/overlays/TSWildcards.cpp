#include "overlays/TSWildcards.h"

#include "naming/TSDateCreatedToken.h"
#include "naming/TSDateModifiedToken.h"
#include "naming/TSDateShootingToken.h"
#include "naming/TSNameToken.h"
#include "naming/TSTimeShootingToken.h"
#include "platform/system/DateFormatter.h"
#include "session/TSImageBrowserItem.h"
#include "session/TSPhotoManager.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <QTimeZone>

namespace {

QVariantMap section(const TSPhoto &photo, const QString &name)
{
    return photo.propertiesDic.value(name).toMap();
}

QVariantMap exif(const TSPhoto &photo)
{
    return section(photo, QStringLiteral("{Exif}"));
}

QString nameWithoutExtension(const QString &path)
{
    const QString name = path.section(u'/', -1);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.first(dot) : name;
}

/// Cut towards zero. Cameras write fractions over zero too, whose value is no number or without end.
qint64 wholePart(double value)
{
    constexpr double limit = 9e18;
    return std::isfinite(value) ? qint64(std::clamp(value, -limit, limit)) : 0;
}

/// Nothing for a negative time, which no camera means.
std::optional<QString> exposureText(const QVariant &value)
{
    const double time = value.toDouble();
    if (time < 0)
        return std::nullopt;
    if (time == 0 || !std::isfinite(time))
        return QString();
    if (time >= 1)
        return QString::number(wholePart(time));
    // 1/93 kept as a fraction of seconds and turned over again must not lose its last unit to rounding.
    constexpr double tolerance = 1e-9;
    return QStringLiteral("1 / %1").arg(wholePart(1.0 / time + tolerance));
}

/// Cut and not rounded: f/2.8 reads 2. Layouts count on it.
QString wholeNumber(const QVariant &value)
{
    return QString::number(wholePart(value.toDouble()));
}

QString isoText(const QVariant &value)
{
    const QVariantList speeds = value.toList();
    return speeds.isEmpty() ? QString() : QString::number(speeds.constFirst().toLongLong());
}

std::optional<QString> namedText(const QString &name, const TSPhoto &photo)
{
    if (name == u"NAME")
        return nameWithoutExtension(photo.path);
    if (name == u"COUNTER")
        return QString::number(TSPhotoManager::photoManager()->selectedPhoto() + 1);
    if (name == u"MODEL")
        return section(photo, QStringLiteral("{TIFF}")).value(QStringLiteral("Model")).toString();
    if (name == u"EXPOSURE")
        return exposureText(exif(photo).value(QStringLiteral("ExposureTime")));
    if (name == u"FNUMBER")
        return wholeNumber(exif(photo).value(QStringLiteral("FNumber")));
    if (name == u"ISO")
        return isoText(exif(photo).value(QStringLiteral("ISOSpeedRatings")));
    if (name == u"FOCAL")
        return wholeNumber(exif(photo).value(QStringLiteral("FocalLength")));
    if (name == u"©" || name == u"®")
        return name;
    return std::nullopt;
}

/// A camera's clock knows no zone. Reading and writing it in one without summer time keeps every hour what it
/// was.
std::optional<QString> shootingText(const TSDateTimeToken &token, const TSPhoto &photo)
{
    const QTimeZone zone = QTimeZone::utc();
    const auto format = platform::DateFormatter::ofMachines(QStringLiteral("yyyy:MM:dd HH:mm:ss"), zone);
    const auto date = format.date(exif(photo).value(QStringLiteral("DateTimeOriginal")).toString());
    return token.text(date.value_or(QDateTime()), zone);
}

std::optional<QString> fileDateText(const TSDateTimeToken &token, const TSPhoto &photo, QStringView attribute)
{
    return token.text(photo.fileAttributesDic.value(attribute.toString()).toDateTime());
}

std::optional<QString> tokenText(const TSToken *token, const TSPhoto &photo, bool isTokenName)
{
    const auto *name = dynamic_cast<const TSNameToken *>(token);
    const auto *date = dynamic_cast<const TSDateTimeToken *>(token);
    if (isTokenName && (name || date))
        return u'{' + token->name() + u'}';
    if (name)
        return namedText(name->name(), photo);
    if (dynamic_cast<const TSDateCreatedToken *>(token))
        return fileDateText(*date, photo, TSFileAttribute::CreationDate);
    if (dynamic_cast<const TSDateModifiedToken *>(token))
        return fileDateText(*date, photo, TSFileAttribute::ModificationDate);
    if (date)
        return shootingText(*date, photo);
    return std::nullopt;
}

} // namespace

QString TSTextForTokenValues(const TSPhoto &photo, const std::vector<TSTokenValue> &values, bool isTokenName)
{
    QString result;
    // A value that gives no text of its own repeats the one before it; saved layouts show it so.
    QString text;
    for (const TSTokenValue &value : values) {
        if (const QString *words = std::get_if<QString>(&value))
            text = *words;
        else if (const auto resolved =
                     tokenText(std::get<std::shared_ptr<TSToken>>(value).get(), photo, isTokenName))
            text = *resolved;
        result += text;
    }
    return result;
}
