#pragma once

#include <memory>
#include <optional>
#include <QDateTime>
#include <QString>
#include <QTimeZone>
#include <unicode/uversion.h>

U_NAMESPACE_BEGIN
class DateFormat;
class Locale;
U_NAMESPACE_END

namespace platform {

/// Dates as text and back, in the language of the user's environment and in one time zone. An object serves
/// one thread at a time.
class DateFormatter {
public:
    /// The medium date style of the user's locale, without a time.
    static DateFormatter mediumDate(const QTimeZone &zone = QTimeZone::systemTimeZone());
    /// A Unicode date pattern, such as "MM-dd-yyyy".
    static DateFormatter withPattern(const QString &pattern,
                                     const QTimeZone &zone = QTimeZone::systemTimeZone());

    /// The same for dates that machines write: in the Gregorian calendar and its digits, whatever the user's
    /// are.
    static DateFormatter ofMachines(const QString &pattern,
                                    const QTimeZone &zone = QTimeZone::systemTimeZone());

    DateFormatter(DateFormatter &&) noexcept;
    DateFormatter &operator=(DateFormatter &&) noexcept;
    ~DateFormatter();

    /// The empty string for an invalid date.
    QString string(const QDateTime &date) const;
    /// Nothing unless the whole text fits and every field is in its range.
    std::optional<QDateTime> date(QStringView text) const;

private:
    static DateFormatter withPattern(const QString &pattern, const QTimeZone &zone,
                                     const icu::Locale &locale);
    DateFormatter(std::unique_ptr<icu::DateFormat> format, const QTimeZone &zone);

    std::unique_ptr<icu::DateFormat> m_format;
    QTimeZone m_zone;
};

} // namespace platform
