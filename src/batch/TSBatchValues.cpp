#include "batch/TSBatchValues.h"

#include <array>
#include <cmath>
#include <QColor>
#include <QStringList>

namespace {

/// The largest side that a size can be given.
constexpr int largestSide = 100000;

/// A list of numbers, each within its range, with a colour behind them when one is given.
struct Numbers {
    std::vector<double> values;
    std::optional<platform::Color> color;
};

struct Range {
    double least;
    double most;
};

std::optional<Numbers> numbers(const QString &text, const std::vector<Range> &ranges)
{
    QStringList pieces = text.split(u',');
    Numbers result;
    if (pieces.size() == qsizetype(ranges.size()) + 1) {
        result.color = TSBatchValues::color(pieces.takeLast());
        if (!result.color)
            return std::nullopt;
    }
    if (pieces.size() != qsizetype(ranges.size()))
        return std::nullopt;
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        const auto value = TSBatchValues::number(pieces[i], ranges[size_t(i)].least, ranges[size_t(i)].most);
        if (!value)
            return std::nullopt;
        result.values.push_back(*value);
    }
    return result;
}

} // namespace

namespace TSBatchValues {

std::optional<double> number(const QString &text, double least, double most)
{
    bool isNumber = false;
    const double value = text.trimmed().toDouble(&isNumber);
    return isNumber && value >= least && value <= most ? std::optional(value) : std::nullopt;
}

std::optional<int> wholeNumber(const QString &text, int least, int most)
{
    bool isNumber = false;
    const int value = text.trimmed().toInt(&isNumber);
    return isNumber && value >= least && value <= most ? std::optional(value) : std::nullopt;
}

std::optional<QPointF> point(const QString &text)
{
    constexpr double farthest = 1e6;
    const auto pair = numbers(text, {{-farthest, farthest}, {-farthest, farthest}});
    return pair && !pair->color ? std::optional(QPointF(pair->values[0], pair->values[1])) : std::nullopt;
}

std::optional<unsigned> anchor(const QString &text)
{
    static const QStringList names = {
        QStringLiteral("top-left"),    QStringLiteral("top"),          QStringLiteral("top-right"),
        QStringLiteral("right"),       QStringLiteral("bottom-right"), QStringLiteral("bottom"),
        QStringLiteral("bottom-left"), QStringLiteral("left"),         QStringLiteral("center")};
    if (const auto code = wholeNumber(text, 0, 8))
        return unsigned(*code);
    const qsizetype code = names.indexOf(text);
    return code < 0 ? std::nullopt : std::optional(unsigned(code));
}

std::optional<unsigned> unit(const QString &text)
{
    if (text == u"percent")
        return TSOffsetUnit::Percentage;
    if (text == u"pixel")
        return TSOffsetUnit::Pixel;
    return std::nullopt;
}

std::optional<unsigned> fileType(const QString &text)
{
    if (text == u"jpg")
        return TSFileType::JPG;
    if (text == u"png")
        return TSFileType::PNG;
    if (text == u"bmp")
        return TSFileType::BMP;
    if (text == u"tiff")
        return TSFileType::TIFF;
    return std::nullopt;
}

std::optional<platform::Color> color(const QString &text)
{
    const QColor color(text.size() == 7 && text.startsWith(u'#') ? text : QString());
    if (!color.isValid())
        return std::nullopt;
    return platform::Color{color.red() / 255.0, color.green() / 255.0, color.blue() / 255.0, 1};
}

std::optional<platform::FontDescription> font(const QString &text)
{
    const QString family = text.section(u':', 0, 0).trimmed();
    if (family.isEmpty())
        return std::nullopt;
    return platform::FontDescription{family, text.section(u':', 1).trimmed(), 36};
}

std::optional<TSBatchStroke> stroke(const QString &text)
{
    const auto parts = numbers(text, {{1, 100}});
    if (!parts)
        return std::nullopt;
    return TSBatchStroke{parts->values[0], parts->color.value_or(platform::Color::black())};
}

std::optional<TSBatchGlow> glow(const QString &text)
{
    const auto parts = numbers(text, {{0, 100}, {0, 50}});
    if (!parts)
        return std::nullopt;
    return TSBatchGlow{parts->values[0], parts->values[1], parts->color.value_or(platform::Color::black())};
}

std::optional<TSBatchShadow> shadow(const QString &text)
{
    const auto parts = numbers(text, {{-360, 360}, {0, 100}, {0, 50}, {0, 100}});
    if (!parts)
        return std::nullopt;
    const platform::Color base = parts->color.value_or(platform::Color::black());
    return TSBatchShadow{parts->values[0], parts->values[1], parts->values[2],
                         base.withAlpha(parts->values[3] / 100)};
}

bool resize(const QString &text, TSBatchOptions &options)
{
    const QString way = text.section(u'=', 0, 0);
    const QString value = text.section(u'=', 1);
    const auto side = wholeNumber(value, 1, largestSide);
    if (text == u"keep") {
        options.resizeWay = TSResizeWay::KeepOriginalSize;
    } else if (way == u"width" && side) {
        options.resizeWay = TSResizeWay::ByWidth;
        options.outputWidth = *side;
    } else if (way == u"height" && side) {
        options.resizeWay = TSResizeWay::ByHeight;
        options.outputHeight = *side;
    } else if (const auto percent = number(value, 0.01, 1000); way == u"percent" && percent) {
        options.resizeWay = TSResizeWay::ByPercentage;
        options.percentage = *percent;
    } else {
        const auto width = wholeNumber(value.section(u'x', 0, 0), 1, largestSide);
        const auto height = wholeNumber(value.section(u'x', 1), 1, largestSide);
        if (way != u"fit" || !width || !height)
            return false;
        options.resizeWay = TSResizeWay::FitSize;
        options.outputWidth = *width;
        options.outputHeight = *height;
    }
    return true;
}

} // namespace TSBatchValues
