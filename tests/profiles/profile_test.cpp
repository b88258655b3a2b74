#include "naming/TSNameToken.h"
#include "overlays/TSGroup.h"
#include "overlays/TSImage.h"
#include "overlays/TSText.h"
#include "platform/archive/KeyedArchive.h"
#include "platform/system/Folders.h"
#include "profiles/TSProfileApplier.h"
#include "profiles/TSProfileLibrary.h"
#include "profiles/TSProfileSaver.h"
#include "profiles/TSProfileStickers.h"
#include "support/Session.h"

#include <QDir>
#include <QFile>

namespace {

class ProfileTest : public SessionTest {
protected:
    ProfileTest()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(session.path("home")));
        session.addPhotos(1, {800, 600});
        session.photos.setSelectedPhoto(0);
        session.setCanvas({0, 0, 800, 600});
    }

    /// A mark whose place has been measured, with its row; on top of the others.
    template <typename T>
    std::shared_ptr<T> add(std::shared_ptr<T> overlay, const QRectF &frame)
    {
        overlay->setFrame(frame);
        overlay->updateAlignmentAndRatio();
        overlay->updateOffsetPixel();
        overlay->appendRow();
        session.overlays.addOverlay(overlay);
        return overlay;
    }
    std::shared_ptr<TSImage> addPicture(const QString &path, const QRectF &frame = {10, 10, 100, 50})
    {
        auto image = add(std::make_shared<TSImage>(path), frame);
        image->setIsFromFinder(true);
        return image;
    }
    std::shared_ptr<TSText> addWildcard(const QString &name, const QRectF &frame = {10, 500, 100, 60})
    {
        auto token = std::make_shared<TSNameToken>();
        token->setName(name);
        auto text = std::make_shared<TSText>("x");
        text->setTextArray({TSTokenValue(token)});
        return add(text, frame);
    }
    QString package(const QString &name) const { return TSProfileLibrary::userPackage(name); }
    QColor pixelOf(const QString &path) const
    {
        const auto picture = platform::Picture::load(path);
        return picture ? picture->imageOfSize(picture->size().toSize()).pixelColor(1, 1) : QColor();
    }
};

struct Asked : TSProfileApplierDelegate {
    Answer answer;
    QStringList told;
    Answer askToCoverWatermarks() override
    {
        told.append("asked");
        return answer;
    }
    void clearSelection() override { told.append("cleared"); }
    void profileWasApplied() override { told.append("applied"); }
    void recordProfileData(const QString &group, const QString &name) override
    {
        told.append(group + u'/' + name);
    }
};

} // namespace

TEST_F(ProfileTest, APackageHoldsArchivePictureAndTheUsersPictures)
{
    const QString logo = session.writePng("logo.png", plainImage({40, 20}, {0, 200, 0, 128}));
    const auto first = addPicture(logo), second = addPicture(logo);
    const auto member = std::make_shared<TSImage>(logo);
    member->setIsFromFinder(true);
    member->setImageName("as it was");
    member->setFrame({0, 0, 10, 10});
    add(TSGroup::groupOverlayWithOverlays({member, std::make_shared<TSText>("in a group")}),
        {300, 300, 100, 50});
    EXPECT_EQ(TSProfileSaver::saveProfile("Two logos"), "");

    const QString saved = package("Two logos");
    EXPECT_EQ(filesIn(saved), (QStringList{"Stickers", "Two logos.jpg", "info.xml"}));
    EXPECT_EQ(filesIn(saved + "/Stickers"),
              (QStringList{"Stickers_0.png", "Stickers_1.png", "Stickers_2.png"}));
    EXPECT_EQ(QImage(saved + "/Two logos.jpg").size(), QSize(400, 300));
    EXPECT_TRUE(bytesOf(saved + "/Stickers/Stickers_0.png").startsWith(QByteArray("II*\0", 4)));
    EXPECT_EQ(pixelOf(saved + "/Stickers/Stickers_1.png"), pixelOf(logo));
    EXPECT_EQ(second->imageName(), saved + "/Stickers/Stickers_0.png");
    EXPECT_EQ(first->imageName(), saved + "/Stickers/Stickers_1.png");
    EXPECT_EQ(member->imageName(), saved + "/Stickers/Stickers_2.png");
    EXPECT_EQ(filesIn(TSProfileLibrary::userFolder()), QStringList{"Two logos.tspf"});
    const auto root = platform::unarchiveFile(saved + "/info.xml", {});
    ASSERT_TRUE(root);
}

/// A photo's own name is one letter here; the wildcard's is wide.
TEST_F(ProfileTest, ThePictureShowsTheNamesOfWildcards)
{
    const auto text = addWildcard("FILE_NAME", {10, 200, 100, 200});
    session.photos.photoAtIndex(0)->path = "/photos/i.jpg";
    text->updateTextString(*session.photos.photoAtIndex(0), text->textArray(), false);
    EXPECT_EQ(TSProfileSaver::saveProfile("Name"), "");
    text->updateText("i");
    text->setTextArray({TSTokenValue("i")});
    EXPECT_EQ(TSProfileSaver::saveProfile("Letter"), "");

    const QImage named = QImage(package("Name") + "/Name.jpg").convertToFormat(QImage::Format_RGB32);
    const QImage letter = QImage(package("Letter") + "/Letter.jpg").convertToFormat(QImage::Format_RGB32);
    int widest = 0;
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 400; ++x)
            if (std::abs(qGreen(named.pixel(x, y)) - qGreen(letter.pixel(x, y))) > 40)
                widest = std::max(widest, x);
    EXPECT_GT(widest, 200);
    EXPECT_EQ(session.data.canvasFrame, QRectF(0, 0, 800, 600));
}

TEST_F(ProfileTest, ALayoutKeepsItsPlaceOnAnotherCanvasAndInAnotherFolder)
{
    addPicture(session.writePng("logo.png", plainImage({40, 20}, Qt::red)), {700, 10, 80, 40});
    const auto tiles = std::make_shared<TSText>("PROOF");
    tiles->setTextType(TSTextType::Script);
    session.overlays.insertOverlay(tiles, 1);
    tiles->updateRenderTextImage();
    const QSizeF pitch = tiles->textSizeOfScript();
    ASSERT_EQ(TSProfileSaver::saveProfile("Corner"), "");
    EXPECT_EQ(tiles->textSizeOfScript(), pitch) << "of the canvas, not of the package's picture";
    // Renamed, and brought to where it was never written.
    const QString moved = session.path("Sent to a friend.tspf");
    ASSERT_TRUE(QDir().rename(package("Corner"), moved));

    session.overlays.removeAllOverlay();
    session.addPhotos(2, {1600, 1200});
    session.setCanvas({0, 0, 400, 300}, 0.5);
    TSSetBatchControlOverlay(false);
    ASSERT_TRUE(TSProfileApplier().applyProfile(moved));
    ASSERT_EQ(session.overlays.overlayCount(), 2);
    const auto image = std::dynamic_pointer_cast<TSImage>(session.overlays.overlayAtIndex(0));
    ASSERT_TRUE(image);
    expectRect(image->frame(), 350, 5, 40, 20);
    EXPECT_EQ(image->rows().count(), 3);
    EXPECT_EQ(image->imagePath(), moved + "/Stickers/Stickers_0.png");
    EXPECT_TRUE(session.overlays.overlayAtIndex(1)->isScript());
    EXPECT_TRUE(TSIsBatchControlOverlay());

    // Beside marks that are there already: the picture on top, the tiles below all others.
    const auto former = session.overlays.overlays();
    ASSERT_TRUE(TSProfileApplier().performProfile(moved));
    EXPECT_EQ(session.overlays.overlayCount(), 4);
    EXPECT_EQ(session.overlays.indexOfOverlay(former[0]), 1);
    EXPECT_TRUE(session.overlays.overlayAtIndex(2)->isScript());
}

/// Where neither the package nor the pictures it was made of are any more.
TEST_F(ProfileTest, APackageBringsAllItsPicturesAlong)
{
    const QString drawing =
        session.write("logo.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='4' height='4'>"
                                  "<rect width='4' height='4' fill='#00ff00'/></svg>");
    addPicture(drawing);
    const QString blue = session.writePng("blue.png", plainImage({8, 8}, Qt::blue));
    const QString red = session.writePng("red.png", plainImage({8, 8}, Qt::red));
    TSGroup::Members members;
    for (const QString &path : {red, blue}) {
        const auto member = std::make_shared<TSImage>(path);
        member->setIsFromFinder(true);
        member->setFrame({double(members.size()) * 20, 0, 10, 10});
        members.push_back(member);
    }
    const auto inner = TSGroup::groupOverlayWithOverlays({members.back()});
    add(TSGroup::groupOverlayWithOverlays({members.front(), inner}), {300, 300, 100, 50});
    QStringList missing;
    ASSERT_EQ(TSProfileSaver::saveProfile("All", &missing), "");
    EXPECT_TRUE(missing.isEmpty());
    const QString moved = session.path("Elsewhere.tspf");
    ASSERT_TRUE(QDir().rename(package("All"), moved));
    for (const QString &path : {drawing, blue, red})
        QFile::remove(path);
    session.cache.clearCache();

    TSProfileApplier applier;
    ASSERT_TRUE(applier.applyProfile(moved));
    EXPECT_TRUE(applier.missingPictures().isEmpty());
    const auto pictures = TSProfileStickers::picturesAmong(session.overlays.overlays());
    ASSERT_EQ(pictures.size(), 3u);
    const std::tuple<const char *, const char *, QColor> expected[] = {
        {"svg", "png", Qt::green}, {"png", "png", Qt::red}, {"png", "png", Qt::blue}};
    for (size_t i = 0; i < 3; ++i) {
        const auto &[shown, told, color] = expected[i];
        const QString file = moved + QStringLiteral("/Stickers/Stickers_%1.").arg(i);
        EXPECT_EQ(pictures[i]->imagePath(), file + shown);
        EXPECT_EQ(pixelOf(file + told), color) << "who knows no drawings finds pixels";
    }
    // Saved again out of its own package, and without what it is made of.
    ASSERT_EQ(TSProfileSaver::saveProfile("Again"), "");
    EXPECT_EQ(filesIn(package("Again") + "/Stickers"), filesIn(moved + "/Stickers"));
    QDir(moved).removeRecursively();
    session.cache.clearCache();
    EXPECT_EQ(TSProfileSaver::saveProfile("Empty", &missing), "");
    EXPECT_EQ(missing, QStringList({"Stickers_0.svg", "Stickers_1.png", "Stickers_2.png"}));
}

/// As packages were once written: members of groups have no files, and names that may be another's.
TEST_F(ProfileTest, AMemberOfAGroupTakesNoOthersPicture)
{
    addPicture(session.writePng("red.png", plainImage({8, 8}, Qt::red)));
    const QString blue = session.writePng("blue.png", plainImage({8, 8}, Qt::blue));
    const auto member = std::make_shared<TSImage>(blue);
    member->setIsFromFinder(true);
    member->setOldPath(blue);
    member->setFrame({0, 0, 10, 10});
    add(TSGroup::groupOverlayWithOverlays({member}), {300, 300, 100, 50});
    ASSERT_EQ(TSProfileSaver::saveProfile("Old"), "");
    QFile::remove(package("Old") + "/Stickers/Stickers_1.png");
    member->setImageName(package("Old") + "/Stickers/Stickers_0.png");
    const std::shared_ptr<TSOverlayManager> marks(&session.overlays, [](TSOverlayManager *) {});
    const QByteArray archive = platform::archiveRootObject(
        platform::ArchiveValue::Dictionary{{QStringLiteral("overlayManager"), marks}});
    QFile file(package("Old") + "/info.xml");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(archive) == archive.size());
    file.close();
    for (const bool isThere : {true, false}) {
        if (!isThere)
            QFile::remove(blue);
        TSProfileApplier applier;
        ASSERT_TRUE(applier.applyProfile(package("Old")));
        const auto pictures = TSProfileStickers::picturesAmong(session.overlays.overlays());
        ASSERT_EQ(pictures.size(), 2u);
        EXPECT_EQ(pictures[1]->imagePath(), blue);
        EXPECT_EQ(applier.missingPictures(), isThere ? QStringList() : QStringList("blue.png"));
    }
}

/// The pictures of the marks lie in the very package that is replaced, under names that change hands.
TEST_F(ProfileTest, SavingOverAPackageKeepsItsPictures)
{
    addPicture(session.writePng("red.png", plainImage({8, 8}, Qt::red)));
    addPicture(session.writePng("blue.png", plainImage({8, 8}, Qt::blue)));
    ASSERT_EQ(TSProfileSaver::saveProfile("Pair"), "");
    ASSERT_TRUE(TSProfileApplier().applyProfile(package("Pair")));
    session.overlays.upOverlay({session.overlays.overlayAtIndex(1)});
    ASSERT_EQ(TSProfileSaver::saveProfile("Pair"), "");
    EXPECT_EQ(pixelOf(package("Pair") + "/Stickers/Stickers_0.png"), QColor(Qt::red));
    EXPECT_EQ(pixelOf(package("Pair") + "/Stickers/Stickers_1.png"), QColor(Qt::blue));
    EXPECT_EQ(pixelOf(session.overlays.images()[0]->imagePath()), QColor(Qt::red));
    EXPECT_EQ(filesIn(TSProfileLibrary::userFolder()), QStringList{"Pair.tspf"});
}

TEST_F(ProfileTest, WhatCannotBeSavedLeavesNothing)
{
    const auto text = addWildcard("EXIF_MODEL");
    for (const char *name : {"", "  ", "a/b", ".hidden", "../up"})
        EXPECT_NE(TSProfileSaver::saveProfile(name), "") << name;
    EXPECT_NE(TSProfileSaver::saveProfile(QString(300, u'n')), "");
    EXPECT_EQ(filesIn(TSProfileLibrary::userFolder()), QStringList());

    ASSERT_EQ(TSProfileSaver::saveProfile("Kept"), "");
    const QByteArray archive = bytesOf(package("Kept") + "/info.xml");
    session.photos.setSelectedPhoto(-1);
    EXPECT_NE(TSProfileSaver::saveProfile("Kept"), "");
    EXPECT_EQ(bytesOf(package("Kept") + "/info.xml"), archive);
    EXPECT_EQ(filesIn(TSProfileLibrary::userFolder()), QStringList{"Kept.tspf"});

    session.photos.setSelectedPhoto(0);
    QDir(session.path("home")).removeRecursively();
    session.write("home", "a file stands where the folder would");
    EXPECT_NE(TSProfileSaver::saveProfile("Nowhere"), "");
}

TEST_F(ProfileTest, ApplyingAsksOnceUnlessToldNotTo)
{
    addWildcard("EXIF_MODEL");
    ASSERT_EQ(TSProfileSaver::saveProfile("Model"), "");
    const QString tip = "ShowApplyProfileTip";
    const QStringList applied = {"cleared", "applied"};
    const std::tuple<bool, bool, TSProfileApplierDelegate::Answer, QStringList, bool, qint64> cases[] = {
        {true, true, {true, false}, QStringList{"asked"} + applied, true, 1},
        {true, true, {true, true}, QStringList{"asked"} + applied, false, 1},
        {true, true, {false, false}, {"asked"}, true, 2},
        {true, true, {false, true}, {"asked"}, false, 2},
        {false, true, {false, false}, applied, false, 1},
        {true, false, {false, false}, applied, true, 1}};
    for (const auto &[isTipOn, hasMarks, answer, told, isTipLeft, marks] : cases) {
        session.defaults->setBool(tip, isTipOn);
        session.overlays.removeAllOverlay();
        for (int i = 0; hasMarks && i < 2; ++i)
            addWildcard("FILE_NAME");
        Asked asked;
        asked.answer = answer;
        TSProfileApplier(&asked).applyProfile(package("Model"));
        EXPECT_EQ(asked.told, told);
        EXPECT_EQ(session.defaults->boolForKey(tip), isTipLeft);
        EXPECT_EQ(session.overlays.overlayCount(), marks);
    }
}

TEST_F(ProfileTest, WhatIsNoArchiveAddsNothing)
{
    addWildcard("EXIF_MODEL");
    ASSERT_EQ(TSProfileSaver::saveProfile("Whole"), "");
    const QByteArray whole = bytesOf(package("Whole") + "/info.xml");
    const QString archive = package("Whole") + "/info.xml";
    for (const QByteArray &bytes : {QByteArray(), QByteArray("bplist00"), whole.first(whole.size() / 2),
                                    platform::archiveRootObject(QString("no dictionary"))}) {
        QFile file(archive);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        file.close();
        session.overlays.removeAllOverlay();
        EXPECT_FALSE(TSProfileApplier().applyProfile(package("Whole")));
        EXPECT_EQ(session.overlays.overlayCount(), 0);
    }
    EXPECT_FALSE(TSProfileApplier().applyProfile(session.path("nothing.tspf")));
}

TEST_F(ProfileTest, WhatComesWithTheProgramTellsNothingOfAMachine)
{
    const auto image = std::make_shared<TSImage>(platform::resourceFolder() + "/Stickers/sticker_05.svg");
    add(image, {10, 10, 50, 50});
    ASSERT_EQ(TSProfileSaver::saveProfile("Sticker"), "");
    QStringList archives = {package("Sticker") + "/info.xml"};
    for (const TSProfileEntry &entry : TSProfileLibrary::profiles())
        if (entry.group != "My Profiles")
            archives.append(TSProfileLibrary::archivePath(entry.path));
    EXPECT_GT(archives.size(), 20);
    for (const QString &archive : archives) {
        const QByteArray bytes = bytesOf(archive);
        EXPECT_FALSE(bytes.contains("/resources/") || bytes.contains("/home/") || bytes.contains("/tmp/"))
            << archive.toStdString();
    }
    ASSERT_TRUE(TSProfileApplier().applyProfile(package("Sticker")));
    EXPECT_EQ(TSProfileStickers::picturesAmong(session.overlays.overlays())[0]->imagePath(),
              image->imagePath());
}

TEST_F(ProfileTest, ProfilesAreFoundByPathTitleAndName)
{
    addWildcard("EXIF_MODEL");
    for (const char *name : {"Take 10", "Take 9", "a.b"})
        ASSERT_EQ(TSProfileSaver::saveProfile(name), "");
    const auto all = TSProfileLibrary::profiles();
    ASSERT_GE(all.size(), 3u);
    EXPECT_EQ(all[0].title(), "My Profiles/a.b");
    EXPECT_EQ(all[1].name, "Take 9");
    EXPECT_EQ(all[2].name, "Take 10");
    EXPECT_EQ(TSProfileLibrary::picturePath(package("a.b")), package("a.b") + "/a.b.jpg");
    for (const QString &text :
         {package("Take 9"), package("Take 9") + u'/', QString("My Profiles/Take 9"), QString("Take 9")})
        EXPECT_EQ(TSProfileLibrary::find(text), package("Take 9"));
    for (const char *text : {"", "Take", "Text/Take 9", "/", "My Profiles"})
        EXPECT_EQ(TSProfileLibrary::find(text), "") << text;
}
