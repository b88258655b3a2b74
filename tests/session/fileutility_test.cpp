#include "session/TSFileUtility.h"
#include "session/TSLastFolder.h"
#include "support/Session.h"

#include <QDir>

namespace {

using FileUtilityTest = SessionTest;

} // namespace

TEST_F(FileUtilityTest, TypesFollowFromExtensions)
{
    const std::pair<const char *, unsigned> cases[] = {
        {"photo.JPEG", 3}, {"photo.TIF", 0}, {"a.tiff", 0}, {"a.bmp", 1},   {"a.GIF", 2},
        {"a.png", 4},      {"a.eps", 8},     {"a.Ai", 9},   {"a.svg", 10},  {"a.pdf", 11},
        {"a.pdf.jpg", 3},  {"a", 3},         {"", 3},       {"/x.png/y", 3}};
    for (const auto &[path, type] : cases)
        EXPECT_EQ(TSImageType(QString::fromUtf8(path)), type) << path;
    const std::pair<const char *, const char *> mimes[] = {{"GIF8", "image/gif"},
                                                           {"II*", "image/tiff"},
                                                           {"MM", "image/tiff"},
                                                           {"\x89PNG", "image/png"},
                                                           {"\xFF\xD8", "image/jpeg"},
                                                           {"BM", ""},
                                                           {"", ""}};
    for (const auto &[data, mime] : mimes)
        EXPECT_EQ(TSMimeTypeOfData(QByteArray(data)), QString::fromUtf8(mime));
}

TEST_F(FileUtilityTest, WhatIsAPicture)
{
    const QImage image = plainImage({8, 8});
    const QString folder = session.path(QStringLiteral("x.jpg"));
    QDir().mkdir(folder);
    EXPECT_TRUE(TSIsEmptyDirectory(folder));
    session.write(QStringLiteral("x.jpg/.hidden"), {});
    EXPECT_FALSE(TSIsEmptyDirectory(folder));
    const std::pair<QString, bool> cases[] = {
        {folder, false},
        {session.path(QStringLiteral("missing.jpg")), false},
        {QString(), false},
        {session.write(QStringLiteral("words.jpg"), "no picture at all"), false},
        {session.write(QStringLiteral("empty.png"), {}), false},
        {session.write(QStringLiteral("any.svg"), "not looked at"), true},
        {session.writeJpeg(QStringLiteral("photo"), image), true},
        {session.writePng(QStringLiteral("wrong.jpg"), image), true},
    };
    QStringList refused;
    for (const auto &[path, isImage] : cases) {
        EXPECT_EQ(TSIsImagePath(path), isImage) << path.toStdString();
        if (!isImage)
            refused.append(path);
    }
    EXPECT_FALSE(TSAnyImagePath(refused));
    EXPECT_FALSE(TSAnyImagePath({}));
    EXPECT_TRUE(TSAnyImagePath(refused + QStringList{session.path(QStringLiteral("photo"))}));
}

TEST_F(FileUtilityTest, FreeNames)
{
    for (const char16_t *name :
         {u"a.jpg", u"a_001.jpg", u"b07.jpg", u"b01.jpg", u"c.jpg", u"d12345.jpg", u"%1.jpg"})
        session.write(QString::fromUtf16(name), "x");
    const struct {
        const char16_t *name, *unique, *numbered;
    } cases[] = {{u"a", u"a_002", u"a1"},
                 {u"new", u"new", u"new"},
                 {u"b07", u"b07_001", u"b02"},
                 {u"c", u"c_001", u"c1"},
                 {u"d12345", u"d12345_001", u"d12001"},
                 {u"%1", u"%1_001", u"%2"}};
    const auto full = [&](const char16_t *name) {
        return session.path(QString::fromUtf16(name) + QStringLiteral(".jpg"));
    };
    for (const auto &[name, unique, numbered] : cases) {
        const QString base = QString::fromUtf16(name);
        EXPECT_EQ(TSUniquePath(session.folder.path(), base, QStringLiteral("jpg")), full(unique));
        EXPECT_EQ(TSNextNumberedPath(session.folder.path(), base, QStringLiteral("jpg")), full(numbered));
    }
    for (int number = 2; number < 1000; ++number)
        session.write(QStringLiteral("a_%1.jpg").arg(number, 3, 10, QLatin1Char('0')), {});
    EXPECT_EQ(TSUniquePath(session.folder.path(), QStringLiteral("a"), QStringLiteral("jpg")),
              full(u"a_1000"));
}

TEST_F(FileUtilityTest, NamesakesAreToldWithTheirFolders)
{
    const QStringList paths{"/p/README", "/p/q/README", "/r/q/README", "/a/b.jpg", "/a/b.jpg", "/c/b.jpg"};
    EXPECT_EQ(TSDistinctNames(paths, 5),
              (QStringList{"p/README", "p/q/README", "r/q/README", "a/b.jpg", "a/b.jpg"}));
    EXPECT_EQ(TSDistinctNames({"/a/b.jpg", "/a/b.jpg"}, 9), (QStringList{"b.jpg", "b.jpg"}));
}

/// Each use has its own, and one that has gone is no help to anybody.
TEST_F(FileUtilityTest, EveryUseRemembersItsFolder)
{
    const QString one = session.path("one"), two = session.path("two");
    QDir().mkpath(one);
    QDir().mkpath(two);
    EXPECT_EQ(TSLastFolder(TSFolderUse::Layouts, two), two);
    TSRememberFolder(TSFolderUse::Photos, one);
    TSRememberFolder(TSFolderUse::Output, two);
    EXPECT_EQ(TSLastFolder(TSFolderUse::Photos), one);
    EXPECT_EQ(TSLastFolder(TSFolderUse::Output), two);
    EXPECT_EQ(TSLastFolder(TSFolderUse::Pictures), TSLastFolder(TSFolderUse::Layouts));
    QDir().rmdir(one);
    EXPECT_EQ(TSLastFolder(TSFolderUse::Photos, two), two);
}

TEST_F(FileUtilityTest, LaunchDefaults)
{
    platform::UserDefaults &defaults = *session.defaults;
    TSWriteLaunchDefaults();
    defaults.setInteger(QStringLiteral("ByHeight"), 100);
    defaults.setFloat(QStringLiteral("TemplateZoom"), 0.1f);
    TSSetBatchControlOverlay(false);
    TSWriteLaunchDefaults();
    EXPECT_EQ(defaults.integerForKey(QStringLiteral("ByHeight")), 100);
    EXPECT_EQ(defaults.floatForKey(QStringLiteral("TemplateZoom")), 0.7f);
    EXPECT_TRUE(TSIsBatchControlOverlay());
    defaults.setInteger(QStringLiteral("ByWidth"), 0);
    TSWriteLaunchDefaults();
    EXPECT_EQ(defaults.integerForKey(QStringLiteral("ByHeight")), 2400);
}
