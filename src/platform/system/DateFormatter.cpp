#include "platform/system/DateFormatter.h"

#include <unicode/smpdtfmt.h>

namespace platform {

namespace {

/// The environment is asked directly: the C library forgets a language whose locale is not installed, and ICU
/// brings its own.
icu::Locale userLocale()
{
    for (const char *variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const QByteArray name = qgetenv(variable);
        // The other name of the bare locale is a language of no country to ICU.
        if (name == "POSIX")
            return icu::Locale::createCanonical("C");
        if (!name.isEmpty())
            return icu::Locale::createCanonical(name.constData());
    }
    return icu::Locale::getDefault();
}

icu::UnicodeString toIcu(QStringView text)
{
    return icu::UnicodeString(text.utf16(), int32_t(text.size()));
}

/// Qt names a plain offset "UTC+02:00" and ICU "GMT+02:00".
icu::TimeZone *toIcu(const QTimeZone &zone)
{
    QString id = QString::fromLatin1(zone.id());
    if (id.startsWith(QLatin1String("UTC")) && id.size() > 3)
        id.replace(0, 3, QStringLiteral("GMT"));
    return icu::TimeZone::createTimeZone(toIcu(id));
}

} // namespace

DateFormatter DateFormatter::mediumDate(const QTimeZone &zone)
{
    return {std::unique_ptr<icu::DateFormat>(
                icu::DateFormat::createDateInstance(icu::DateFormat::kMedium, userLocale())),
            zone};
}

DateFormatter DateFormatter::withPattern(const QString &pattern, const QTimeZone &zone)
{
    return withPattern(pattern, zone, userLocale());
}

DateFormatter DateFormatter::ofMachines(const QString &pattern, const QTimeZone &zone)
{
    return withPattern(pattern, zone, icu::Locale::getRoot());
}

DateFormatter DateFormatter::withPattern(const QString &pattern, const QTimeZone &zone,
                                         const icu::Locale &locale)
{
    UErrorCode status = U_ZERO_ERROR;
    auto format = std::make_unique<icu::SimpleDateFormat>(toIcu(pattern), locale, status);
    if (U_FAILURE(status))
        format.reset();
    return {std::move(format), zone};
}

DateFormatter::DateFormatter(std::unique_ptr<icu::DateFormat> format, const QTimeZone &zone)
    : m_format(std::move(format)), m_zone(zone)
{
    if (!m_format)
        return;
    m_format->adoptTimeZone(toIcu(zone));
    m_format->setLenient(false);
}

DateFormatter::DateFormatter(DateFormatter &&) noexcept = default;
DateFormatter &DateFormatter::operator=(DateFormatter &&) noexcept = default;
DateFormatter::~DateFormatter() = default;

QString DateFormatter::string(const QDateTime &date) const
{
    if (!m_format || !date.isValid())
        return {};
    icu::UnicodeString text;
    m_format->format(UDate(date.toMSecsSinceEpoch()), text);
    return QString(reinterpret_cast<const QChar *>(text.getBuffer()), text.length());
}

std::optional<QDateTime> DateFormatter::date(QStringView text) const
{
    if (!m_format || text.isEmpty())
        return std::nullopt;
    icu::ParsePosition position;
    const UDate date = m_format->parse(toIcu(text), position);
    if (position.getErrorIndex() >= 0 || position.getIndex() != text.size())
        return std::nullopt;
    return QDateTime::fromMSecsSinceEpoch(qint64(date), m_zone);
}

} // namespace platform
