#include "batch/TSBatchOptionParser.h"

#include "batch/TSBatchListFile.h"
#include "batch/TSBatchValues.h"
#include "naming/TSPatternParser.h"
#include "platform/image/ImageFile.h"
#include "platform/paint/Picture.h"
#include "platform/text/FontChoice.h"
#include "profiles/TSProfileLibrary.h"

#include <algorithm>
#include <array>
#include <functional>
#include <QDir>
#include <QFileInfo>

namespace {

/// What reading an option can end with: nothing wrong, or a sentence about it.
using Problem = std::optional<QString>;

struct Parse {
    TSBatchOptions options;
    bool optionsHaveEnded = false;

    TSBatchMark &addMark(TSBatchMark::Kind kind)
    {
        options.marks.emplace_back().kind = kind;
        return options.marks.back();
    }
    TSBatchMark *lastMark() { return options.marks.empty() ? nullptr : &options.marks.back(); }
    bool lastIs(TSBatchMark::Kind kind) { return lastMark() && lastMark()->kind == kind; }
    bool lastIsBlock() { return lastIs(TSBatchMark::Kind::Profile) || lastIs(TSBatchMark::Kind::Group); }
    TSBatchMark *lastText()
    {
        const bool isText = lastIs(TSBatchMark::Kind::Text) || lastIs(TSBatchMark::Kind::Script);
        return isText ? lastMark() : nullptr;
    }
};

struct Option {
    const char *name;
    /// What the value looks like in the usage line; empty for an option without one.
    const char *value;
    const char *meaning;
    Problem (*apply)(Parse &parse, const QString &value);
};

Problem notOne(const QString &value, const char *of)
{
    return QStringLiteral("\"%1\" is not %2").arg(value, QString::fromUtf8(of));
}

template <TSBatchMark::Kind kind>
Problem addWords(Parse &parse, const QString &value)
{
    TSPatternParser::Result words = TSPatternParser::words(value);
    if (!words.error.isEmpty())
        return words.error;
    if (value.isEmpty())
        return QStringLiteral("the text is empty");
    parse.addMark(kind).words = std::move(words.values);
    return std::nullopt;
}

Problem addImage(Parse &parse, const QString &value)
{
    if (!platform::isDecodableImage(value) && !platform::Picture::load(value))
        return QStringLiteral("\"%1\" is not a picture that can be read").arg(value);
    parse.addMark(TSBatchMark::Kind::Image).imagePath = QFileInfo(value).absoluteFilePath();
    return std::nullopt;
}

Problem addProfile(Parse &parse, const QString &value)
{
    const QString path = TSProfileLibrary::find(value);
    if (path.isEmpty())
        return QStringLiteral("there is no profile \"%1\"; --list-profiles shows which there are").arg(value);
    parse.addMark(TSBatchMark::Kind::Profile).profilePath = path;
    return std::nullopt;
}

/// Tiles and profiles stand for a whole photo, and are no part of another mark.
bool canJoinGroup(const TSBatchMark &mark)
{
    return mark.kind != TSBatchMark::Kind::Script && mark.kind != TSBatchMark::Kind::Profile;
}

Problem addGroup(Parse &parse, const QString &value)
{
    std::vector<TSBatchMark> &marks = parse.options.marks;
    const auto count = TSBatchValues::wholeNumber(value, 2, 1000);
    if (!count)
        return notOne(value, "a number of marks from 2 up");
    if (marks.size() < size_t(*count))
        return QStringLiteral("there are not so many marks before it");
    TSBatchMark group;
    group.kind = TSBatchMark::Kind::Group;
    group.members.assign(marks.end() - *count, marks.end());
    if (!std::all_of(group.members.begin(), group.members.end(), canJoinGroup))
        return QStringLiteral("tiles and profiles cannot be put into a group");
    marks.resize(marks.size() - size_t(*count));
    marks.push_back(std::move(group));
    return std::nullopt;
}

/// Reads a value into a field of the mark given last.
template <typename T, typename Field>
Problem setOnMark(Parse &parse, const std::optional<T> &value, const QString &text, const char *wanted,
                  Field TSBatchMark::*field)
{
    if (!parse.lastMark())
        return QStringLiteral("there is no mark before it that it could belong to");
    if (parse.lastIsBlock())
        return QStringLiteral("the marks of a profile or a group have their places and looks already");
    if (!value)
        return notOne(text, wanted);
    parse.lastMark()->*field = *value;
    return std::nullopt;
}

Problem setAnchor(Parse &parse, const QString &value)
{
    return setOnMark(parse, TSBatchValues::anchor(value), value, "an anchor", &TSBatchMark::anchor);
}

Problem setOffset(Parse &parse, const QString &value)
{
    return setOnMark(parse, TSBatchValues::point(value), value, "two numbers", &TSBatchMark::offset);
}

Problem setUnit(Parse &parse, const QString &value)
{
    return setOnMark(parse, TSBatchValues::unit(value), value, "a unit", &TSBatchMark::unit);
}

Problem setHeight(Parse &parse, const QString &value)
{
    return setOnMark(parse, TSBatchValues::number(value, 0.01, 1000), value, "a height from 0.01 to 1000",
                     &TSBatchMark::height);
}

Problem setAngle(Parse &parse, const QString &value)
{
    return setOnMark(parse, TSBatchValues::number(value, -36000, 36000), value, "an angle in degrees",
                     &TSBatchMark::angle);
}

Problem setOpacity(Parse &parse, const QString &value)
{
    return setOnMark(parse, TSBatchValues::number(value, 0, 100), value, "an opacity from 0 to 100",
                     &TSBatchMark::opacity);
}

Problem needsText(Parse &parse)
{
    if (parse.lastText() || parse.lastIsBlock())
        return std::nullopt;
    return parse.lastMark() ? QStringLiteral("the mark before it is a picture, which has no such look")
                            : QStringLiteral("there is no text before it that it could belong to");
}

template <typename T, typename Field>
Problem setOnText(Parse &parse, const std::optional<T> &value, const QString &text, const char *wanted,
                  Field TSBatchMark::*field)
{
    const Problem problem = needsText(parse);
    return problem ? problem : setOnMark(parse, value, text, wanted, field);
}

Problem setFont(Parse &parse, const QString &value)
{
    return setOnText(parse, TSBatchValues::font(value), value, "a font family", &TSBatchMark::font);
}

Problem setColor(Parse &parse, const QString &value)
{
    return setOnText(parse, TSBatchValues::color(value), value, "a colour", &TSBatchMark::color);
}

Problem setStroke(Parse &parse, const QString &value)
{
    return setOnText(parse, TSBatchValues::stroke(value), value, "a stroke", &TSBatchMark::stroke);
}

Problem setGlow(Parse &parse, const QString &value)
{
    return setOnText(parse, TSBatchValues::glow(value), value, "a glow", &TSBatchMark::glow);
}

Problem setShadow(Parse &parse, const QString &value)
{
    return setOnText(parse, TSBatchValues::shadow(value), value, "a shadow", &TSBatchMark::shadow);
}

Problem setOutput(Parse &parse, const QString &value)
{
    if (value.isEmpty())
        return QStringLiteral("the folder's name is empty");
    parse.options.output = QDir::cleanPath(QFileInfo(value).absoluteFilePath());
    return std::nullopt;
}

Problem setFormat(Parse &parse, const QString &value)
{
    const auto type = TSBatchValues::fileType(value);
    if (!type)
        return notOne(value, "a format");
    parse.options.type = *type;
    parse.options.exportFormat = value;
    return std::nullopt;
}

template <int TSBatchOptions::*field, int most>
Problem setCount(Parse &parse, const QString &value)
{
    const auto count = TSBatchValues::wholeNumber(value, 1, most);
    if (!count)
        return QStringLiteral("\"%1\" is not a whole number from 1 to %2").arg(value).arg(most);
    parse.options.*field = *count;
    return std::nullopt;
}

Problem setResize(Parse &parse, const QString &value)
{
    return TSBatchValues::resize(value, parse.options) ? std::nullopt : notOne(value, "a way to resize");
}

Problem setName(Parse &parse, const QString &value)
{
    TSPatternParser::Result pattern = TSPatternParser::namePattern(value);
    if (!pattern.error.isEmpty())
        return pattern.error;
    if (pattern.values.empty())
        return QStringLiteral("the pattern is empty");
    parse.options.name = std::move(pattern.values);
    return std::nullopt;
}

Problem setSavedProfile(Parse &parse, const QString &value)
{
    const QString problem = TSProfileLibrary::problemWithName(value);
    if (!problem.isEmpty())
        return problem;
    parse.options.savedProfile = value;
    return std::nullopt;
}

Problem setConflict(Parse &parse, const QString &value)
{
    static const QHash<QString, int> choices{{"rename", TSConflictChoice::Rename},
                                             {"replace", TSConflictChoice::Replace},
                                             {"stop", TSConflictChoice::Stop}};
    if (!choices.contains(value))
        return notOne(value, "a way to deal with taken names");
    parse.options.conflict = choices.value(value);
    return std::nullopt;
}

template <bool TSBatchOptions::*flag>
Problem setFlag(Parse &parse, const QString &)
{
    parse.options.*flag = true;
    return std::nullopt;
}

constexpr std::array<Option, 30> table = {
    {{"text", "STRING",
      "a text; {NAME} {COUNTER} {MODEL} {EXPOSURE} {FNUMBER} {ISO} {FOCAL} {C_DATE} {M_DATE} {DATE} {TIME} "
      "are wildcards, {{ and }} are braces",
      addWords<TSBatchMark::Kind::Text>},
     {"image", "FILE", "a picture", addImage},
     {"script", "STRING", "a text tiled over the whole photo, --height high",
      addWords<TSBatchMark::Kind::Script>},
     {"profile", "DIR.tspf|GROUP/NAME", "the marks of a profile, in their places", addProfile},
     {"group", "N", "makes one mark of the N given last, which keep together on photos of any shape",
      addGroup},
     {"anchor", "0..8|top-left|top|top-right|right|bottom-right|bottom|bottom-left|left|center",
      "where the mark is held (bottom-right)", setAnchor},
     {"offset", "X,Y", "how far it lies from there, to the right and down (-2,-2)", setOffset},
     {"unit", "percent|pixel", "what offsets are counted in: the photo's size or its pixels (percent)",
      setUnit},
     {"height", "PERCENT", "how high it is, of the photo's height (5)", setHeight},
     {"angle", "DEG", "how far it is turned, clockwise (0)", setAngle},
     {"opacity", "0..100", "how opaque it is (80)", setOpacity},
     {"font", "FAMILY[:STYLE]", "the text's font (Helvetica)", setFont},
     {"color", "#RRGGBB", "its colour (#FFFFFF)", setColor},
     {"stroke", "W[,#RRGGBB]", "an outline, its width 1 to 100 (black)", setStroke},
     {"glow", "W,BLUR[,#RRGGBB]", "a glow, its width 0 to 100 and blur 0 to 50 (black)", setGlow},
     {"shadow", "ANGLE,OFFSET,BLUR,OPACITY[,#RRGGBB]",
      "a shadow: degrees (45 throws it to the lower right), percent of the font size, pixels 0 to 50, "
      "percent (black)",
      setShadow},
     {"output", "DIR", "the folder to write to", setOutput},
     {"format", "jpg|png|bmp|tiff", "what to write (jpg); bmp files hold TIFF data", setFormat},
     {"quality", "1..100", "the quality of a JPEG made from a photo (85)",
      setCount<&TSBatchOptions::quality, 100>},
     {"resize", "keep|width=N|height=N|percent=N|fit=WxH", "the size of the output (keep)", setResize},
     {"name", "PATTERN",
      "its name ({Name}); also {Name:lower} {Name:UPPER} {Number:001} {Created:MM-dd-yyyy} {Modified}",
      setName},
     {"conflict", "rename|replace|stop", "what to do when a name is taken (rename)", setConflict},
     {"jobs", "N", "how many photos to work on at once (as many as there are processors)",
      setCount<&TSBatchOptions::jobs, 64>},
     {"strict", "", "do not write a photo on which no mark shows, and count it as failed",
      setFlag<&TSBatchOptions::isStrict>},
     {"save-profile", "NAME", "save the marks as a profile; without --output that is all that is done",
      setSavedProfile},
     {"list-profiles", "", "show the profiles there are", setFlag<&TSBatchOptions::wantsProfiles>},
     {"json", "", "tell of each photo in a line of JSON", setFlag<&TSBatchOptions::isJson>},
     {"dry-run", "", "write nothing, tell what would be", setFlag<&TSBatchOptions::isDryRun>},
     {"help", "", "show this", setFlag<&TSBatchOptions::wantsHelp>},
     {"version", "", "show the version", setFlag<&TSBatchOptions::wantsVersion>}}};

const char *const generalUsage = "tessaro-batch [options] --output DIR PHOTO... | @LIST";

QString usageOf(const Option &option)
{
    const QString name = QStringLiteral("--") + QLatin1String(option.name);
    return *option.value ? name + u' ' + QLatin1String(option.value) : name;
}

const Option *findOption(const QString &name)
{
    const auto found = std::find_if(table.begin(), table.end(),
                                    [&](const Option &option) { return name == QLatin1String(option.name); });
    return found == table.end() ? nullptr : &*found;
}

Problem addPhoto(Parse &parse, const QString &argument)
{
    if (!argument.startsWith(u'@') || QFileInfo::exists(argument)) {
        parse.options.photos.append(argument);
        return std::nullopt;
    }
    const auto list = TSBatchListFile::read(argument.mid(1));
    if (!list)
        return QStringLiteral("the list %1 cannot be read").arg(argument.mid(1));
    parse.options.photos.append(*list);
    return std::nullopt;
}

/// What is wrong with a command, and the usage line that tells how it is right.
struct Mistake {
    QString error;
    QString usage;
};

/// Reads the option at a position, its value joined to it by "=" or in the next argument, and passes over
/// both.
std::optional<Mistake> readOption(Parse &parse, const QStringList &arguments, qsizetype &at)
{
    const QString &argument = arguments[at++];
    const QString name = argument.section(u'=', 0, 0);
    const Option *option = name.startsWith(u"--") ? findOption(name.mid(2)) : nullptr;
    if (!option)
        return Mistake{QStringLiteral("there is no option %1").arg(name), QLatin1String(generalUsage)};
    const bool wantsValue = *option->value;
    const bool isJoined = argument.contains(u'=');
    if (isJoined && !wantsValue)
        return Mistake{QStringLiteral("%1 takes no value").arg(name), usageOf(*option)};
    const bool takesNext = wantsValue && !isJoined;
    if (takesNext && at == arguments.size())
        return Mistake{QStringLiteral("%1 needs a value").arg(name), usageOf(*option)};
    const Problem problem = option->apply(parse, takesNext ? arguments[at++] : argument.section(u'=', 1));
    if (problem)
        return Mistake{QStringLiteral("%1: %2").arg(name, *problem), usageOf(*option)};
    return std::nullopt;
}

/// The same for any argument; behind "--" there are photos alone.
std::optional<Mistake> readArgument(Parse &parse, const QStringList &arguments, qsizetype &at)
{
    const QString &argument = arguments[at];
    const bool isOption = !parse.optionsHaveEnded && argument.startsWith(u'-') && argument.size() > 1;
    if (isOption && argument != u"--")
        return readOption(parse, arguments, at);
    ++at;
    parse.optionsHaveEnded = parse.optionsHaveEnded || isOption;
    const Problem problem = isOption ? std::nullopt : addPhoto(parse, argument);
    return problem ? std::optional(Mistake{*problem, QLatin1String(generalUsage)}) : std::nullopt;
}

Problem checkWhole(const TSBatchOptions &options)
{
    if (options.photos.isEmpty())
        return QStringLiteral("there are no photos");
    if (!options.savedProfile.isEmpty() && options.marks.empty())
        return QStringLiteral("there are no marks to save");
    if (options.output.isEmpty() && !options.isDryRun && options.savedProfile.isEmpty())
        return QStringLiteral("there is no folder to write to");
    return std::nullopt;
}

} // namespace

TSBatchOptionParser::Result TSBatchOptionParser::parse(const QStringList &arguments)
{
    Parse parse;
    parse.options.name = TSPatternParser::namePattern(u"{Name}").values;
    for (qsizetype at = 0; at < arguments.size();)
        if (const std::optional<Mistake> mistake = readArgument(parse, arguments, at))
            return {{}, mistake->error, mistake->usage};
    if (parse.options.wantsHelp || parse.options.wantsVersion || parse.options.wantsProfiles)
        return {parse.options, {}, {}};
    if (const Problem problem = checkWhole(parse.options))
        return {{}, *problem, QLatin1String(generalUsage)};
    return {parse.options, {}, {}};
}

QString TSBatchOptionParser::help()
{
    QString text =
        QStringLiteral("usage: %1\n\nMarks stack in the order given, the first on top. Placement and look "
                       "belong to the mark given last.\nA list file holds one path a line.\n\n")
            .arg(QLatin1String(generalUsage));
    for (const Option &option : table)
        text += QStringLiteral("  %1\n      %2\n").arg(usageOf(option), QString::fromUtf8(option.meaning));
    return text;
}
