#include "platform/system/UserDefaults.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>

using platform::UserDefaults;

namespace {

const QString kWidth = "ByWidth";
const QString kVersion = "1.0, \"x\"_RateKey";

} // namespace

TEST(UserDefaults, KeepsValuesFromOneStartToTheNext)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("sub/Tessaro.ini");
    {
        UserDefaults defaults(path);
        EXPECT_EQ(defaults.integerForKey(kWidth), 0);
        defaults.setInteger(kWidth, 2400);
        defaults.setBool("snap", true);
        defaults.setFloat("TemplateZoom", 0.7F);
        defaults.setString(kVersion, "@a;b, ü");
        defaults.synchronize();
        EXPECT_TRUE(QFile::exists(path));
    }
    const UserDefaults defaults(path);
    EXPECT_EQ(defaults.integerForKey(kWidth), 2400);
    EXPECT_TRUE(defaults.boolForKey("snap"));
    EXPECT_EQ(defaults.floatForKey("TemplateZoom"), 0.7F);
    EXPECT_EQ(defaults.stringForKey(kVersion), "@a;b, ü");
}
