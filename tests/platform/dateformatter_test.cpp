#include "platform/system/DateFormatter.h"

#include <gtest/gtest.h>
#include <QScopeGuard>

using platform::DateFormatter;

namespace {

const QDateTime kMoment(QDate(2024, 3, 31), QTime(1, 5, 9), QTimeZone::utc());

QString medium(const char *locale)
{
    const QByteArray before = qgetenv("LC_ALL");
    const auto restore = qScopeGuard([&] { qputenv("LC_ALL", before); });
    qputenv("LC_ALL", locale);
    return DateFormatter::mediumDate(QTimeZone::utc()).string(kMoment);
}

} // namespace

TEST(DateFormatter, WritesTheMediumStyleOfTheUsersLanguage)
{
    EXPECT_EQ(medium("en_US.UTF-8"), "Mar 31, 2024");
    EXPECT_EQ(medium("de_DE.UTF-8"), "31.03.2024");
    EXPECT_EQ(medium("fr_FR@euro"), "31 mars 2024");
    EXPECT_EQ(medium("C.UTF-8"), "Mar 31, 2024");
    EXPECT_EQ(medium("POSIX"), medium("C"));
    EXPECT_EQ(DateFormatter::mediumDate().string(QDateTime()), QString());
}

TEST(DateFormatter, WritesPatternsInItsZone)
{
    const std::tuple<const char *, QByteArray, const char *> cases[] = {
        {"MM dd", "UTC", "03 31"},
        {"MM-dd-yyyy HH:mm", "America/New_York", "03-30-2024 21:05"},
        {"HH mm ss", "Europe/Berlin", "03 05 09"},
        {"HH/mm/ss", "UTC+02:00", "03/05/09"}};
    for (const auto &[pattern, zone, text] : cases)
        EXPECT_EQ(DateFormatter::withPattern(pattern, QTimeZone(zone)).string(kMoment), text) << pattern;
}

TEST(DateFormatter, ReadsOnlyWhatFitsWhole)
{
    const auto format = DateFormatter::withPattern("yyyy:MM:dd HH:mm:ss", QTimeZone("Asia/Tokyo"));
    EXPECT_EQ(format.date(u"2024:03:31 10:05:09"), kMoment);
    for (const char16_t *const text :
         {u"", u"2024:03:31", u"2024:13:31 10:05:09", u"2024:02:30 10:05:09", u"0000:00:00 00:00:00",
          u"2024:03:31 25:05:09", u"2024:03:31 10:05:09 pm", u"    :  :     :  :  ", u"2024-03-31 10:05:09"})
        EXPECT_FALSE(format.date(text)) << QString::fromUtf16(text).toStdString();
}
