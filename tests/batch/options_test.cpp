#include "batch/TSBatchOptionParser.h"
#include "export/TSExportHost.h"
#include "support/Session.h"

#include <cstring>
#include <QDir>

namespace {

/// Splits at blanks; an underscore stands for one inside an argument.
QStringList arguments(const char *line)
{
    QStringList list = QString::fromUtf8(line).split(u' ', Qt::SkipEmptyParts);
    for (QString &argument : list)
        argument.replace(u'_', u' ');
    return list;
}

TSBatchOptions parsed(const char *line)
{
    const auto result = TSBatchOptionParser::parse(arguments(line));
    EXPECT_EQ(result.error.toStdString(), "") << line;
    return result.options;
}

TSBatchMark markOf(const char *line)
{
    const TSBatchOptions options = parsed((std::string("--output o p.jpg ") + line).c_str());
    EXPECT_EQ(options.marks.size(), 1U) << line;
    return options.marks.empty() ? TSBatchMark() : options.marks[0];
}

std::string hex(const platform::Color &color)
{
    return QColor::fromRgbF(float(color.red), float(color.green), float(color.blue), float(color.alpha))
        .name(QColor::HexArgb)
        .toStdString();
}

} // namespace

TEST(BatchOptions, WrongCommandsAreToldWithTheUsageThatApplies)
{
    const char *general = "tessaro-batch [options] --output DIR PHOTO... | @LIST";
    const std::tuple<const char *, const char *, const char *> cases[] = {
        {"", "there are no photos", general},
        {"p.jpg", "there is no folder to write to", general},
        {"--outpt o p.jpg", "there is no option --outpt", general},
        {"--=3 p.jpg", "there is no option --", general},
        {"p.jpg --output", "--output needs a value", "--output DIR"},
        {"p.jpg --output=", "--output: the folder's name is empty", "--output DIR"},
        {"--json=yes p.jpg", "--json takes no value", "--json"},
        {"@missing.txt", "the list missing.txt cannot be read", general},
        {"--text=", "--text: the text is empty", "--text STRING"},
        {"--image missing.png", "--image: \"missing.png\" is not a picture that can be read", "--image FILE"},
        {"--angle 3", "--angle: there is no mark before it that it could belong to", "--angle DEG"},
        {"--font Arial", "--font: there is no text before it that it could belong to",
         "--font FAMILY[:STYLE]"},
        {"--text a --angle x", "--angle: \"x\" is not an angle in degrees", "--angle DEG"},
        {"--text a --height 0", "--height: \"0\" is not a height from 0.01 to 1000", "--height PERCENT"},
        {"--text a --opacity 101", "--opacity: \"101\" is not an opacity from 0 to 100", "--opacity 0..100"},
        {"--text a --offset 1", "--offset: \"1\" is not two numbers", "--offset X,Y"},
        {"--text a --offset 1,2,#000000", "--offset: \"1,2,#000000\" is not two numbers", "--offset X,Y"},
        {"--text a --unit px", "--unit: \"px\" is not a unit", "--unit percent|pixel"},
        {"--text a --font :Bold", "--font: \":Bold\" is not a font family", "--font FAMILY[:STYLE]"},
        {"--text a --color #0xFF00", "--color: \"#0xFF00\" is not a colour", "--color #RRGGBB"},
        {"--text a --color #+FF001", "--color: \"#+FF001\" is not a colour", "--color #RRGGBB"},
        {"--text a --stroke 0", "--stroke: \"0\" is not a stroke", "--stroke W[,#RRGGBB]"},
        {"--text a --glow 3", "--glow: \"3\" is not a glow", "--glow W,BLUR[,#RRGGBB]"},
        {"--text a --shadow 45,10,5", "--shadow: \"45,10,5\" is not a shadow",
         "--shadow ANGLE,OFFSET,BLUR,OPACITY[,#RRGGBB]"},
        {"--profile none", "--profile: there is no profile \"none\"; --list-profiles shows which there are",
         "--profile DIR.tspf|GROUP/NAME"},
        {"--text a --text b --group 1", "--group: \"1\" is not a number of marks from 2 up", "--group N"},
        {"--text a --group 2", "--group: there are not so many marks before it", "--group N"},
        {"--text a --script b --group 2", "--group: tiles and profiles cannot be put into a group",
         "--group N"},
        {"--text a --text b --group 2 --angle 3",
         "--angle: the marks of a profile or a group have their places and looks already", "--angle DEG"},
        {"--save-profile a/b", "--save-profile: A name cannot hold the character \"/\".",
         "--save-profile NAME"},
        {"--save-profile a p.jpg", "there are no marks to save", general},
        {"--format jpeg", "--format: \"jpeg\" is not a format", "--format jpg|png|bmp|tiff"},
        {"--quality 85.5", "--quality: \"85.5\" is not a whole number from 1 to 100", "--quality 1..100"},
        {"--conflict ask", "--conflict: \"ask\" is not a way to deal with taken names",
         "--conflict rename|replace|stop"}};
    for (const auto &[line, error, usage] : cases) {
        const auto result = TSBatchOptionParser::parse(arguments(line));
        EXPECT_EQ(result.error.toStdString(), error) << line;
        EXPECT_EQ(result.usage.toStdString().substr(0, strlen(usage)), usage) << line;
    }
    for (const char *way : {"", "big", "width", "width=0", "width=1.5", "height=-3", "percent=0",
                            "percent=1001", "fit=3", "fit=3x", "fit=3x4x5", "keep=1", "width=100001"})
        EXPECT_FALSE(
            TSBatchOptionParser::parse({"--resize", QString::fromUtf8(way)}).error.startsWith(u"there"))
            << way;
}

TEST(BatchOptions, ReadsTheWholeRun)
{
    const TSBatchOptions options = parsed(
        "--output=o --format tiff --quality 7 --conflict stop --json --dry-run --name {Name}-{Number:001} "
        "--resize width=3 --resize fit=640x480 a.jpg - -- -b.jpg --json");
    EXPECT_EQ(options.photos, (QStringList{"a.jpg", "-", "-b.jpg", "--json"}));
    EXPECT_EQ(options.type, TSFileType::TIFF);
    EXPECT_EQ(options.exportFormat, "tiff");
    EXPECT_EQ(options.quality, 7);
    EXPECT_EQ(options.conflict, TSConflictChoice::Stop);
    EXPECT_EQ(options.resizeWay, TSResizeWay::FitSize);
    EXPECT_EQ(QSizeF(options.outputWidth, options.outputHeight), QSizeF(640, 480));
    EXPECT_EQ(options.name.size(), 3U);
    EXPECT_TRUE(options.isJson && options.isDryRun);
    EXPECT_EQ(parsed("--resize percent=12.5 --output o p").percentage, 12.5);
    EXPECT_EQ(parsed("--resize height=9 --output o p").outputHeight, 9);
    EXPECT_TRUE(parsed("--help").wantsHelp);
    EXPECT_TRUE(parsed("--version").wantsVersion);
}

TEST(BatchOptions, PlacementAndLookBelongToTheMarkBefore)
{
    const TSBatchOptions options =
        parsed("--output o p.jpg --text a --angle 30 --opacity 10 --script b=c --height 12.5 --angle=-45");
    ASSERT_EQ(options.marks.size(), 2U);
    EXPECT_EQ(options.marks[0].angle, 30);
    EXPECT_EQ(options.marks[0].height, 5);
    EXPECT_EQ(options.marks[1].kind, TSBatchMark::Kind::Script);
    EXPECT_EQ(std::get<QString>(options.marks[1].words.at(0)), "b=c");
    EXPECT_EQ(options.marks[1].angle, -45);
    EXPECT_EQ(options.marks[1].height, 12.5);

    const TSBatchMark mark =
        markOf("--text a --anchor top --offset -3,4.5 --unit pixel --font DejaVu_Sans:Bold_Oblique "
               "--color #0a141E --stroke 2,#FF0000 --glow 10,5 --shadow -90,10,3,25,#00FF00");
    EXPECT_EQ(mark.anchor, TSPositionCode::MiddleTop);
    EXPECT_EQ(mark.offset, QPointF(-3, 4.5));
    EXPECT_EQ(mark.unit, TSOffsetUnit::Pixel);
    EXPECT_EQ(mark.font.family, "DejaVu Sans");
    EXPECT_EQ(mark.font.style, "Bold Oblique");
    EXPECT_EQ(hex(mark.color), "#ff0a141e");
    ASSERT_TRUE(mark.stroke && mark.glow && mark.shadow);
    EXPECT_EQ(mark.stroke->width, 2);
    EXPECT_EQ(hex(mark.stroke->color), "#ffff0000");
    EXPECT_EQ(mark.glow->width, 10);
    EXPECT_EQ(mark.glow->blur, 5);
    EXPECT_EQ(hex(mark.glow->color), "#ff000000");
    EXPECT_EQ(mark.shadow->angle, -90);
    EXPECT_EQ(mark.shadow->offset, 10);
    EXPECT_EQ(mark.shadow->blur, 3);
    EXPECT_EQ(hex(mark.shadow->color), "#4000ff00");

    EXPECT_EQ(markOf("--text a --anchor 7").anchor, TSPositionCode::LeftMiddle);
}

TEST(BatchOptions, ListFilesHoldAPathALine)
{
    const Session session;
    const QString list =
        session.write("list.txt", "\xEF\xBB\xBF"
                                  "a b.jpg\r\n\r\n  \n\xC3\xA4/c.jpg\n--json\n@d.jpg\ne.jpg");
    session.writePng("@odd.png", plainImage({4, 4}));
    const auto result = TSBatchOptionParser::parse({"--output=o", "first.jpg", u'@' + list, "last.jpg"});
    EXPECT_EQ(result.error.toStdString(), "");
    EXPECT_EQ(result.options.photos.join(u'|').toStdString(),
              "first.jpg|a b.jpg|\xC3\xA4/c.jpg|--json|@d.jpg|e.jpg|last.jpg");
    EXPECT_FALSE(result.options.isJson);
    const QString before = QDir::currentPath();
    QDir::setCurrent(session.folder.path());
    EXPECT_EQ(parsed("--output o @odd.png").photos, QStringList("@odd.png")) << "a photo may be called so";
    QDir::setCurrent(before);
}
