#include "naming/TSDateCreatedToken.h"
#include "naming/TSDateModifiedToken.h"
#include "naming/TSDateShootingToken.h"
#include "naming/TSNameToken.h"
#include "naming/TSNumberToken.h"
#include "naming/TSTimeShootingToken.h"
#include "overlays/TSText.h"
#include "overlays/TSWildcards.h"
#include "support/Session.h"

#include <QScopeGuard>
#include <QTimeZone>

namespace {

TSTokenValue named(const QString &name)
{
    auto token = std::make_shared<TSNameToken>();
    token->setName(name);
    return token;
}

template <typename Token>
TSTokenValue dated(qint64 index)
{
    auto token = std::make_shared<Token>();
    token->setIndex(index);
    return token;
}

TSPhoto photoWith(const QVariantMap &exif)
{
    TSPhoto photo;
    photo.path = "/photos/holiday.tar.jpg";
    photo.propertiesDic = {{"{Exif}", exif}, {"{TIFF}", QVariantMap{{"Model", " X-1 "}}}};
    const QDateTime created(QDate(2024, 3, 31), QTime(1, 5, 9), QTimeZone::utc());
    photo.fileAttributesDic = {{TSFileAttribute::CreationDate.toString(), created},
                               {TSFileAttribute::ModificationDate.toString(), created.addDays(1)}};
    return photo;
}

std::string words(const TSPhoto &photo, const std::vector<TSTokenValue> &values, bool isTokenName = false)
{
    return TSTextForTokenValues(photo, values, isTokenName).toStdString();
}

using WildcardsTest = SessionTest;

} // namespace

TEST_F(WildcardsTest, EveryRowOfTheList)
{
    session.addPhotos(4);
    session.photos.setSelectedPhoto(2);
    const TSPhoto photo = photoWith({{"ExposureTime", 0.004},
                                     {"FNumber", 5.6},
                                     {"ISOSpeedRatings", QVariantList{400, 800}},
                                     {"FocalLength", 34.9},
                                     {"DateTimeOriginal", "2024:03:10 02:30:05"}});
    const std::tuple<TSTokenValue, const char *, const char *> rows[] = {
        {"©", "©", "©"},
        {named("NAME"), "holiday.tar", "{NAME}"},
        {dated<TSDateCreatedToken>(2), "03-30-2024", "{C_DATE}"},
        {dated<TSDateModifiedToken>(1), "03 31", "{M_DATE}"},
        {named("COUNTER"), "3", "{COUNTER}"},
        {named("MODEL"), " X-1 ", "{MODEL}"},
        {named("EXPOSURE"), "1 / 250", "{EXPOSURE}"},
        {named("FNUMBER"), "5", "{FNUMBER}"},
        {named("ISO"), "400", "{ISO}"},
        {dated<TSDateShootingToken>(3), "03/10/2024", "{DATE}"},
        {dated<TSTimeShootingToken>(3), "02/30/05", "{TIME}"},
        {named("FOCAL"), "34", "{FOCAL}"},
        {named("©"), "©", "{©}"},
    };
    for (const auto &[value, text, name] : rows) {
        EXPECT_EQ(words(photo, {value}), text);
        EXPECT_EQ(words(photo, {value}, true), name);
    }
    EXPECT_EQ(words(photo, {dated<TSDateCreatedToken>(0)}), "Mar 30, 2024");
    EXPECT_EQ(words(photo, {dated<TSTimeShootingToken>(0)}), "02:30:05")
        << "an hour that summer time leaves out";
}

TEST_F(WildcardsTest, ExposureTimes)
{
    const std::pair<double, const char *> cases[] = {
        {0.004, "1 / 250"}, {0.3, "1 / 3"}, {1.0, "1"},
        {0.0, ""},          {-1.0, "x"},    {1 / 93.0, "1 / 93"},
        {std::nan(""), ""}, {1 / 0.0, ""},  {1e300, "9000000000000000000"}};
    for (const auto &[time, text] : cases) {
        const TSPhoto photo = photoWith({{"ExposureTime", time}});
        const std::string expected = std::string("x") + text;
        EXPECT_EQ(words(photo, {"x", named("EXPOSURE")}), expected) << time;
    }
}

TEST_F(WildcardsTest, WhatAPhotoDoesNotTell)
{
    TSPhoto photo;
    for (const char16_t *name : {u"NAME", u"MODEL", u"EXPOSURE", u"ISO"})
        EXPECT_EQ(words(photo, {named(QString::fromUtf16(name))}), "")
            << QString::fromUtf16(name).toStdString();
    for (const char16_t *name : {u"FNUMBER", u"FOCAL"})
        EXPECT_EQ(words(photo, {named(QString::fromUtf16(name))}), "0");
    EXPECT_EQ(words(photo, {named("COUNTER")}), "0");
    for (const TSTokenValue &date : {dated<TSDateShootingToken>(1), dated<TSTimeShootingToken>(1),
                                     dated<TSDateCreatedToken>(1), dated<TSDateModifiedToken>(1)})
        EXPECT_EQ(words(photo, {date}), "");
    photo.path = "/photos/.jpg";
    EXPECT_EQ(words(photo, {named("NAME")}), ".jpg");
}

TEST_F(WildcardsTest, ValuesWithoutATextRepeatTheOneBefore)
{
    const TSPhoto photo = photoWith({});
    const QString a = "a";
    EXPECT_EQ(words(photo, {a, named("Name"), "b"}), "aab");
    EXPECT_EQ(words(photo, {named("Name"), a}), "a") << "nothing stands before the first";
    EXPECT_EQ(words(photo, {a, std::make_shared<TSNumberToken>()}), "aa");
    EXPECT_EQ(words(photo, {a, dated<TSDateCreatedToken>(4)}), "aa");
    EXPECT_EQ(words(photo, {a, named("ISO"), named("Name"), a}), "aa") << "an empty text is repeated too";
}

/// Cameras write in one calendar, people read in theirs.
TEST_F(WildcardsTest, CamerasAreReadInTheirCalendarWhateverTheUsersIs)
{
    const QByteArray before = qgetenv("LC_ALL");
    const auto restore = qScopeGuard([&] { qputenv("LC_ALL", before); });
    const TSPhoto photo = photoWith({{"DateTimeOriginal", "2024:03:10 02:30:05"}});
    for (const auto &[locale, expected] : {std::pair("de_DE.UTF-8", u8"03-10-2024"),
                                           {"th_TH.UTF-8", u8"03-10-2567"},
                                           {"fa_IR.UTF-8", u8"۱۲-۲۰-۱۴۰۲"}}) {
        qputenv("LC_ALL", locale);
        EXPECT_EQ(words(photo, {dated<TSDateShootingToken>(2)}), reinterpret_cast<const char *>(expected));
    }
}
