#include "batch/TSBatchCommand.h"
#include "platform/system/Folders.h"
#include "support/Session.h"

#include <fcntl.h>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <unistd.h>

namespace {

class CommandTest : public SessionTest {
protected:
    CommandTest()
    {
        QDir(session.folder.path()).mkdir("out");
        mark = session.writePng("mark.png", plainImage({40, 20}, Qt::red));
    }

    /// Runs in a session of its own; the paths of photos are taken below the test's folder.
    int run(const QStringList &options, const QStringList &photos = {})
    {
        TSDataManager data;
        TSPhotoManager list;
        TSOverlayManager overlays;
        TSCacheManager cache;
        QStringList all = options;
        for (const QString &name : photos)
            all.append(session.path(name));
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const int status = TSBatchCommand::run(all);
        output = QByteArray::fromStdString(testing::internal::GetCapturedStdout());
        errors = QByteArray::fromStdString(testing::internal::GetCapturedStderr());
        return status;
    }
    /// The lines of JSON, the last of which sums up.
    std::vector<QJsonObject> lines() const
    {
        std::vector<QJsonObject> result;
        for (const QByteArray &line : output.trimmed().split('\n')) {
            const QJsonDocument document = QJsonDocument::fromJson(line);
            EXPECT_TRUE(document.isObject()) << line.constData();
            result.push_back(document.object());
        }
        return result;
    }
    QString outFolder() const { return session.path("out"); }
    QStringList files() const { return filesIn(outFolder()); }

    QString mark;
    QByteArray output;
    QByteArray errors;
};

std::string text(const QJsonObject &line, const char *key)
{
    return line.value(QLatin1String(key)).toString().toStdString();
}

QRectF frameOf(const QJsonValue &mark)
{
    const QJsonObject frame = mark.toObject().value("frame").toObject();
    const auto number = [&frame](const char *key) { return frame.value(QLatin1String(key)).toDouble(-1); };
    return {number("x"), number("y"), number("w"), number("h")};
}

} // namespace

/// The photo is written; that nobody could be told of it counts all the same.
TEST_F(CommandTest, AReportThatIsLostIsAFailure)
{
    TSDataManager data;
    TSPhotoManager list;
    TSOverlayManager overlays;
    session.writePng("a.png", plainImage({60, 40}));
    for (const auto &[device, status] :
         {std::pair("/dev/full", TSBatchStatus::SomeNotWritten), {"/dev/null", TSBatchStatus::AllWritten}}) {
        std::fflush(stdout);
        const int before = dup(STDOUT_FILENO);
        const int taken = open(device, O_WRONLY);
        dup2(taken, STDOUT_FILENO);
        testing::internal::CaptureStderr();
        const int ended = TSBatchCommand::run({"--text", "A", "--json", "--output", outFolder(), "--conflict",
                                               "replace", session.path("a.png")});
        const std::string told = testing::internal::GetCapturedStderr();
        std::fflush(stdout);
        dup2(before, STDOUT_FILENO);
        close(before);
        close(taken);
        EXPECT_EQ(ended, status) << device;
        EXPECT_EQ(told.empty(), status == TSBatchStatus::AllWritten) << told;
        data.removeAllPhotos();
        overlays.removeAllOverlay();
    }
    EXPECT_EQ(files(), words("a.jpg"));
}

/// Before anything is promised or begun, whether it was typed or comes out of a date.
TEST_F(CommandTest, ANameThatNoFileCanHaveIsRefused)
{
    session.writeJpeg("a.jpg", plainImage({60, 40}));
    for (const char *name : {"x/{Name}", "{Name}_{Modified:MM/dd/yyyy}"})
        for (const char *way : {"--dry-run", "--json"}) {
            EXPECT_EQ(
                run({"--name", QLatin1String(name), "--output", outFolder(), QLatin1String(way)}, {"a.jpg"}),
                TSBatchStatus::WrongUsage);
            EXPECT_EQ(output.toStdString(), "");
            EXPECT_TRUE(errors.contains("has a slash in it")) << errors.toStdString();
            EXPECT_EQ(files(), QStringList());
        }
    EXPECT_EQ(run({"--name", "x-{Name}", "--output", outFolder()}, {"a.jpg"}), TSBatchStatus::AllWritten);
}

TEST_F(CommandTest, NamesEveryPhotoInTheOrderOfTheList)
{
    const QByteArray whole = platform::LazyImage::fromImage(noise({600, 400})).encodeJpeg({90, {1, 1}});
    session.writeJpeg("good.jpg", plainImage({60, 40}));
    session.writePng("a%1\"b.png", plainImage({30, 20}));
    QDir(session.folder.path()).mkdir("folder.jpg");
    session.write("empty.jpg", {});
    session.write("text.jpg", "Dear diary");
    session.write("cut.jpg", whole.first(whole.size() / 2));
    const QString tiff = session.writeTiff("cut.tiff", plainImage({60, 40}));
    QFile(tiff).resize(60);
    const QStringList photos = words("text.jpg good.jpg missing.jpg folder.jpg cut.jpg a%1\"b.png empty.jpg "
                                     "good.jpg cut.tiff");
    EXPECT_EQ(run({"--output", outFolder(), "--json"}, photos), TSBatchStatus::SomeNotWritten);
    const std::tuple<const char *, const char *, const char *, int> expected[] = {
        {"failed", "", "not a picture", 0},
        {"written", "good.jpg", "", 60},
        {"failed", "", "There is no such file.", 0},
        {"failed", "", "This is a folder", 0},
        {"failed", "cut.jpg", "breaks off", 600},
        {"written", "a%1\"b.jpg", "", 30},
        {"failed", "", "The file is empty.", 0},
        {"skipped", "", "in the list already", 0},
        {"failed", "", "", 0}};
    const auto all = lines();
    ASSERT_EQ(all.size(), std::size(expected) + 1);
    for (size_t i = 0; i < std::size(expected); ++i) {
        const auto &[status, target, reason, width] = expected[i];
        EXPECT_EQ(all[i].value("index").toInt(), int(i));
        EXPECT_EQ(text(all[i], "source"), session.path(photos[qsizetype(i)]).toStdString());
        EXPECT_EQ(text(all[i], "status"), status) << i;
        EXPECT_EQ(text(all[i], "target"), *target ? outFolder().toStdString() + '/' + target : "");
        EXPECT_NE(text(all[i], "reason").find(reason), std::string::npos) << text(all[i], "reason");
        EXPECT_EQ(text(all[i], "reason").empty(), text(all[i], "status") == "written");
        EXPECT_EQ(all[i].value("width").toInt(), width);
        EXPECT_EQ(errors.contains(session.path(photos[qsizetype(i)]).toUtf8() + ": "), i != 5) << i;
    }
    EXPECT_EQ(all.back().value("written").toInt(), 2);
    EXPECT_EQ(all.back().value("skipped").toInt(), 1);
    EXPECT_EQ(all.back().value("failed").toInt(), 6);
    EXPECT_EQ(files(), words("a%1\"b.jpg good.jpg"));
}

TEST_F(CommandTest, ExitStatuses)
{
    session.writePng("a%1b.png", plainImage({30, 20}));
    session.writePng("c.png", plainImage({30, 20}));
    const QStringList both = words("a%1b.png c.png");
    const QStringList toOut = {"--output", outFolder()};
    EXPECT_EQ(run(toOut, both), TSBatchStatus::AllWritten);
    EXPECT_EQ(errors.toStdString(), "");
    EXPECT_TRUE(output.contains("a%1b.png -> " + outFolder().toUtf8() + "/a%1b.jpg (30 x 20)\n"))
        << output.constData();
    EXPECT_EQ(run({}, both), TSBatchStatus::WrongUsage);
    EXPECT_TRUE(errors.startsWith("tessaro-batch: there is no folder to write to\nusage: tessaro-batch"));
    EXPECT_EQ(output.toStdString(), "");
    EXPECT_EQ(run(words("--help")), TSBatchStatus::AllWritten);
    EXPECT_TRUE(output.contains("--conflict rename|replace|stop"));

    EXPECT_EQ(run(toOut + words("--conflict stop --json"), both), TSBatchStatus::SomeNotWritten);
    auto all = lines();
    ASSERT_EQ(all.size(), 3U);
    EXPECT_NE(text(all[0], "reason").find("is there already"), std::string::npos);
    EXPECT_EQ(text(all[1], "reason"), "The run was stopped before this photo.");
    EXPECT_EQ(run(toOut + words("--conflict replace"), both), TSBatchStatus::AllWritten);
    EXPECT_EQ(files(), words("a%1b.jpg c.jpg"));
    EXPECT_EQ(run(toOut, both), TSBatchStatus::AllWritten);
    EXPECT_EQ(files(), words("a%1b.jpg a%1b_001.jpg c.jpg c_001.jpg"));

    EXPECT_EQ(run(toOut + words("--json --resize percent=1000 --resize width=24495"), both),
              TSBatchStatus::SomeNotWritten);
    EXPECT_NE(text(lines()[0], "reason").find("24495 × 16330 pixels"), std::string::npos);
}

TEST_F(CommandTest, NothingOfTheUsersIsReplaced)
{
    session.writePng("c.png", plainImage({30, 20}));
    QDir(session.folder.path()).mkdir("d");
    session.writePng("d/mark.png", plainImage({30, 20}));
    session.write("d/c.png", "a kind that cannot be read");
    QFile::link(session.folder.path(), session.path("way-round"));
    session.writePng("out/d.png", plainImage({30, 20}));
    const QStringList options = {"--image", mark, "--format=png", "--conflict=replace", "--json", "--output"};
    const std::tuple<QString, const char *, const char *> cases[] = {
        {session.folder.path(), "c.png", "c.png"},
        {session.path("way-round"), "c.png", "c.png"},
        {session.folder.path(), "d/mark.png", "mark.png"},
        {session.path("d"), "c.png d/c.png", "d/c.png"}};
    for (const auto &[folder, photos, kept] : cases) {
        const QByteArray before = bytesOf(session.path(kept));
        EXPECT_EQ(run(options + QStringList{folder}, words(photos)), TSBatchStatus::SomeNotWritten);
        EXPECT_NE(text(lines()[0], "reason").find("is not written to"), std::string::npos) << kept;
        EXPECT_EQ(bytesOf(session.path(kept)), before);
    }
}

TEST_F(CommandTest, ADryRunTellsWhereEveryMarkWouldStand)
{
    session.writePng("a.png", plainImage({400, 300}));
    session.writePng("b.png", plainImage({300, 600}));
    const std::tuple<const char *, QPointF, QPointF> places[] = {{"top-left", {0, 0}, {0, 0}},
                                                                 {"top", {170, 0}, {90, 0}},
                                                                 {"top-right", {340, 0}, {180, 0}},
                                                                 {"right", {340, 135}, {180, 270}},
                                                                 {"bottom-right", {340, 270}, {180, 540}},
                                                                 {"bottom", {170, 270}, {90, 540}},
                                                                 {"bottom-left", {0, 270}, {0, 540}},
                                                                 {"left", {0, 135}, {0, 270}},
                                                                 {"center", {170, 135}, {90, 270}}};
    const std::tuple<const char *, const char *, double> runs[] = {
        {"percent", "keep", 1},        {"pixel", "keep", 1},        {"percent pixel", "keep", 1},
        {"percent", "percent=50", .5}, {"pixel", "percent=50", .5}, {"pixel percent", "percent=50", .5}};
    for (const auto &[units, resize, scale] : runs) {
        QStringList options = words("--dry-run --json --resize");
        options.append(resize);
        const QStringList alternating = words(units);
        for (size_t i = 0; i < std::size(places); ++i)
            options += QStringList{"--image", mark} + words("--height 10 --offset 2,-4") +
                       QStringList{"--anchor", QString::fromLatin1(std::get<0>(places[i])), "--unit",
                                   alternating[qsizetype(i) % alternating.size()]};
        EXPECT_EQ(run(options, words("a.png b.png")), TSBatchStatus::AllWritten);
        const auto all = lines();
        ASSERT_EQ(all.size(), 3U);
        for (const size_t photo : {0, 1}) {
            SCOPED_TRACE(units);
            EXPECT_EQ(text(all[photo], "reason"), "dry run");
            const QJsonArray marks = all[photo].value("marks").toArray();
            ASSERT_EQ(size_t(marks.size()), std::size(places));
            for (size_t i = 0; i < std::size(places); ++i) {
                const auto &[anchor, onA, onB] = places[i];
                const bool isPixel = alternating[qsizetype(i) % alternating.size()] == u"pixel";
                const QPointF offset = isPixel      ? QPointF(2, -4)
                                       : photo == 0 ? QPointF(8, -12)
                                                    : QPointF(6, -24);
                const QPointF origin = (photo == 0 ? onA : onB) + offset;
                const QSizeF size = photo == 0 ? QSizeF(60, 30) : QSizeF(120, 60);
                const QRectF frame = frameOf(marks[qsizetype(i)]);
                expectNear(frame.topLeft(), origin * scale, 1e-4);
                expectNear(frame.bottomRight(), (origin + QPointF(size.width(), size.height())) * scale,
                           1e-4);
                EXPECT_EQ(marks[qsizetype(i)].toObject().value("anchor").toInt(), int(i));
            }
        }
    }
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(CommandTest, MarksStackInTheOrderGivenWithTilesBelow)
{
    session.writePng("a.png", plainImage({400, 300}));
    session.writePng("b.png", plainImage({300, 600}));
    run(QStringList{"--script", "tiles", "--text", "{NAME} {COUNTER}", "--angle=-30", "--image", mark} +
            words("--dry-run --json"),
        words("a.png b.png"));
    const auto all = lines();
    ASSERT_EQ(all.size(), 3U);
    const char *named[] = {"a 1", "b 2"};
    for (const size_t photo : {0, 1}) {
        const QJsonArray marks = all[photo].value("marks").toArray();
        ASSERT_EQ(marks.size(), 3);
        EXPECT_EQ(text(marks[0].toObject(), "type"), "text");
        EXPECT_EQ(text(marks[0].toObject(), "text"), named[photo]);
        EXPECT_EQ(marks[0].toObject().value("angle").toDouble(), 330);
        EXPECT_EQ(text(marks[1].toObject(), "type"), "image");
        EXPECT_EQ(text(marks[2].toObject(), "type"), "script");
        expectRect(frameOf(marks[2]), photo == 0 ? QRectF(0, 0, 400, 300) : QRectF(0, 0, 300, 600));
    }
}

/// Side by side on the canvas, 10 pixels apart; as wide apart on a photo of half the height.
TEST_F(CommandTest, AGroupKeepsItsMarksTogether)
{
    session.writePng("a.png", plainImage({400, 200}));
    session.writePng("b.png", plainImage({400, 100}));
    const QStringList at = words("--opacity 100 --unit pixel --height 10 --anchor bottom-left --offset");
    const QStringList group = QStringList{"--image", mark} + at + QStringList{"10,-10", "--image", mark} +
                              at + words("60,-10 --group 2");
    EXPECT_EQ(run(group + QStringList{"--format", "png", "--output", outFolder()}, words("a.png b.png")), 0);
    const std::pair<const char *, QRect> cases[] = {{"/a.png", {10, 170, 90, 20}},
                                                    {"/b.png", {10, 85, 45, 10}}};
    for (const auto &[file, place] : cases)
        EXPECT_EQ(extentOf(QImage(outFolder() + QLatin1String(file)), Qt::red), place) << file;
}

/// The layout is taken over from one command to another, on photos of another shape.
TEST_F(CommandTest, AProfileStandsForTheMarksItWasSavedFrom)
{
    session.writePng("a.png", plainImage({400, 300}));
    session.writePng("b.png", plainImage({300, 600}));
    const QStringList marks = QStringList{"--text", "{NAME}", "--anchor=top", "--offset=1,2", "--angle=20"} +
                              QStringList{"--image", mark, "--script", "tiles", "--opacity=30"};
    const QStringList told = words("--dry-run --json");
    EXPECT_EQ(run(marks + words("--save-profile Mine"), {"a.png"}), TSBatchStatus::AllWritten);
    EXPECT_EQ(output, "");
    EXPECT_EQ(run(words("--list-profiles")), TSBatchStatus::AllWritten);
    EXPECT_TRUE(output.startsWith("My Profiles/Mine\n"));

    run(marks + told, words("a.png b.png"));
    const auto expected = lines();
    EXPECT_EQ(run(words("--profile Mine") + told, words("b.png a.png")), TSBatchStatus::AllWritten);
    const auto all = lines();
    for (const size_t photo : {0, 1}) {
        const QJsonArray here = all[photo].value("marks").toArray();
        const QJsonArray there = expected[1 - photo].value("marks").toArray();
        ASSERT_EQ(here.size(), 3);
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(text(here[i].toObject(), "text"), text(there[i].toObject(), "text"));
            EXPECT_NEAR(frameOf(here[i]).x(), frameOf(there[i]).x(), 0.01);
            EXPECT_NEAR(frameOf(here[i]).bottom(), frameOf(there[i]).bottom(), 0.01);
        }
    }
    // With a mark of the line's own on top, and one below that is not among the tiles.
    run(QStringList{"--text", "over", "--profile", "Mine", "--text", "under"} + told, {"a.png"});
    QStringList stack;
    for (const QJsonValue &each : lines().front().value("marks").toArray())
        stack.append(each.toObject().value("text").toString());
    EXPECT_EQ(stack, (QStringList{"over", "a", "", "under", "tiles"}));

    QFile archive(platform::applicationSupportFolder() + "/Tessaro/My Profiles/Mine.tspf/info.xml");
    ASSERT_TRUE(archive.open(QIODevice::WriteOnly));
    archive.close();
    EXPECT_EQ(run(words("--profile Mine --output ") + QStringList{outFolder()}, {"a.png"}),
              TSBatchStatus::WrongUsage);
    EXPECT_TRUE(errors.contains("holds no marks that can be read"));
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(CommandTest, NamesMayBeAsLongAsTheyCanBeAndHoldAnything)
{
    const QString longest = QString(251, u'n') + ".png";
    session.writePng(longest, plainImage({40, 30}));
    session.writePng("line\nfeed\x1B.png", plainImage({40, 30}));
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(run({"--conflict", "replace", "--output", outFolder()}, {longest, "line\nfeed\x1B.png"}),
                  0);
        EXPECT_EQ(files(), QStringList({"line\nfeed\x1B.jpg", QString(251, u'n') + ".jpg"}));
        EXPECT_TRUE(output.contains("line\\nfeed\\x1b.png -> ")) << output.constData();
    }
    EXPECT_EQ(run({"--name", QString(252, u'n'), "--output", outFolder()}, {longest}), 1);
    EXPECT_TRUE(errors.contains("The name is too long.")) << errors.constData();
}

TEST_F(CommandTest, APhotoThatAProfileCannotBeLaidOutOnIsNamed)
{
    EXPECT_EQ(run({"--text", "a", "--save-profile", "Mine"}, {"gone.jpg"}), TSBatchStatus::SomeNotWritten);
    EXPECT_TRUE(errors.contains("gone.jpg: There is no such file.")) << errors.constData();
}

/// The program starts anew for this one, where no font can be found from its first moment.
TEST(CommandDeathTest, TextsWithoutAnyFontAreRefused)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const Session session;
    const QString photo = session.writePng("photo.png", plainImage({60, 40}));
    qputenv("FONTCONFIG_FILE", QFile::encodeName(session.write("fonts.conf", "<fontconfig></fontconfig>")));
    EXPECT_EXIT(std::exit(TSBatchCommand::run({"--text", "abc", "--output", session.folder.path(), photo})),
                testing::ExitedWithCode(TSBatchStatus::WrongUsage), "no font is installed");
    qunsetenv("FONTCONFIG_FILE");
}
