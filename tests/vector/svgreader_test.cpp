#include "support/Pictures.h"
#include "vector/TSBezierPathBuilder.h"
#include "vector/TSSVGImage.h"
#include "vector/TSSVGLinearGradient.h"
#include "vector/TSSVGParser.h"

#include <gtest/gtest.h>
#include <QPainter>

namespace {

/// The elements of a path as text: "M" and "L" for points, "C" and its continuations for curves.
std::string told(const QPainterPath &path)
{
    QStringList pieces;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        const char letter = element.isMoveTo()    ? 'M'
                            : element.isLineTo()  ? 'L'
                            : element.isCurveTo() ? 'C'
                                                  : ',';
        pieces.append(QStringLiteral("%1%2 %3").arg(QLatin1Char(letter)).arg(element.x).arg(element.y));
    }
    return pieces.join(u' ').toStdString();
}

std::string toldData(const char *data)
{
    const QStringList commands = TSBezierPathBuilder::commandListForCommandString(data);
    return told(TSBezierPathBuilder().bezierPathFromCommandList(commands, false));
}

std::vector<std::shared_ptr<TSStyledBezierPath>> shapes(const QByteArray &elements, bool *isWhole = nullptr)
{
    TSSVGParser parser("<svg viewBox='0 0 100 50'>" + elements + "</svg>");
    const bool answer = parser.parseSVGDocument();
    if (isWhole)
        *isWhole = answer;
    return parser.paths();
}

QImage drawn(const QByteArray &document)
{
    return TSSVGImage::imageWithSVGData(document)->image();
}

} // namespace

TEST(PathData, ReadsOneSetOfArgumentsForEachCommand)
{
    const std::pair<const char *, const char *> table[] = {
        {"M10 20L30,40", "M10 20 L30 40"},
        {"M10-20", "M10 -20"},
        {"M0 0L1 2 3 4", "M0 0 L1 2"},
        {"M5 5h10v-3H1V4", "M5 5 L15 5 L15 2 L1 2 L1 4"},
        {"M1 1A5 5 0 0 1 9 9L2 2", "M1 1 L2 2"},
        {"M0 0C1 2 3 4 5 6", "M0 0 C1 2 ,3 4 ,5 6"},
        {"M0 0C1 2 3 4 5 6S7 8 9 10", "M0 0 C1 2 ,3 4 ,5 6 C7 8 ,7 8 ,9 10"},
        {"M4 4S7 8 9 10", "M4 4 C8 8 ,7 8 ,9 10"},
        {"M1 1c1 1 2 2 3 3", "M1 1 C2 2 ,3 3 ,4 4"},
        {"M0 0Q4 8 8 0", "M0 0 C4 8 ,4 8 ,8 0"},
        // A second point without a separator loses its first digit's dot; short pieces stop, and the rest
        // goes on.
        {"M10.5.5L1 1", "M10.5 5 L1 1"},
        {"M1 2L5L3 4", "M1 2 L3 4"},
        {"M1 2C1 1 2 2L3 4", "M1 2 L3 4"},
        {"M1 2Lx yL3 4", "M1 2 L0 0 L3 4"},
        {"L3 4M1 1L2 2", "M1 1 L2 2"},
        {"M1e1 2E-1", "M10 0.2"},
        {"", "M0 0"},
    };
    for (const auto &[data, expected] : table)
        EXPECT_EQ(toldData(data), expected) << data;
}

TEST(PathData, RemembersTheLastControlPointFromPathToPath)
{
    const auto paths = shapes("<path d='M0 0C0 0 10 10 20 20'/><path d='M30 30S1 1 2 2'/>");
    ASSERT_EQ(paths.size(), 2u);
    EXPECT_EQ(told(paths[1]->path), "M30 30 C50 50 ,1 1 ,2 2");
}

TEST(Shapes, TakeTheirOutlineFromTheirAttributes)
{
    const std::pair<const char *, const char *> table[] = {
        {"<rect x='1' y='2' width='3' height='4' rx='1'/>", "M1 2 L4 2 L4 6 L1 6 L1 2"},
        {"<line x1='1' y1='2' x2='3px' y2='4'/>", "M1 2 L3 4"},
        {"<polyline points='0,0 10,0  10,5'/>", "M0 0 L10 0 L10 5"},
        {"<polygon points='0,0 10,0 10,5'/>", "M0 0 L10 0 L10 5 L0 0"},
        // Pairs without commas are pieces of their own, and misread.
        {"<polyline points='3 4 5,6'/>", "M0 0 L5 6"},
    };
    for (const auto &[element, expected] : table) {
        const auto paths = shapes(element);
        ASSERT_EQ(paths.size(), 1u) << element;
        EXPECT_EQ(told(paths[0]->path), expected) << element;
    }
    EXPECT_EQ(shapes("<circle cx='10' cy='20' r='5'/>")[0]->path.boundingRect(), QRectF(5, 15, 10, 10));
    EXPECT_EQ(shapes("<ellipse cx='10' cy='20' rx='5' ry='2'/>")[0]->path.boundingRect(),
              QRectF(5, 18, 10, 4));
    EXPECT_TRUE(shapes("<text>no</text><image/><a x='1'/>").empty());
    EXPECT_EQ(shapes("<defs><rect width='1' height='1'/></defs>").size(), 1u);
}

TEST(Colors, AreSixHexadecimalDigitsBehindOneCharacter)
{
    const std::pair<const char *, std::array<int, 3>> table[] = {
        {"#ff8000", {255, 128, 0}}, {"#abc", {0, 0x0a, 0xbc}},         {"red", {0, 0, 0xed}},
        {"url(#x)", {0, 0, 0}},     {"#12345678", {0x34, 0x56, 0x78}}, {"", {0, 0, 0}},
    };
    for (const auto &[text, rgb] : table) {
        const auto color = TSSVGAttributes::colorFromHexString(text);
        ASSERT_TRUE(color) << text;
        EXPECT_EQ(color->toQColor(), QColor(rgb[0], rgb[1], rgb[2])) << text;
    }
    EXPECT_FALSE(TSSVGAttributes::colorFromHexString("none"));
    const auto bare = shapes("<rect width='1' height='1'/>")[0];
    EXPECT_EQ(bare->fillColor, platform::Color::black());
    EXPECT_FALSE(bare->strokeColor);
    EXPECT_FALSE(shapes("<rect width='1' height='1' fill='none'/>")[0]->fillColor);
}

TEST(Groups, DoNotNestTheirOpacity)
{
    const auto paths =
        shapes("<g opacity='0.5'><g opacity='0.5'><rect opacity='0.5' width='1' height='1'/></g>"
               "<rect opacity='0.25' width='1' height='1'/><rect width='1' height='1'/></g>"
               "<g opacity='0.5'><rect width='1' height='1'/></g>");
    ASSERT_EQ(paths.size(), 4u);
    EXPECT_EQ(paths[0]->opacity, 0.25);
    EXPECT_EQ(paths[1]->opacity, 0.25);
    EXPECT_FALSE(paths[2]->opacity);
    EXPECT_EQ(paths[3]->opacity, 0.5);
}

TEST(Gradients, BelongToWhatComesAfterThem)
{
    const auto paths =
        shapes("<rect width='1' height='1' fill='url(#a)'/>"
               "<linearGradient id='a' x1='0%' x2='100%' gradientTransform='matrix(1 0 0 1 5 6)'/>"
               "<radialGradient id='b'/><stop offset='0.5' style='stop-color:#00ff00;stop-opacity:0.5'/>"
               "<stop offset='1' stop-color='#ff0000'/>"
               "<rect width='1' height='1' fill='url(#a)' transform='matrix(1,0,0,1,2,3)'/><rect width='1' "
               "height='1' fill='url(#b)'/>");
    ASSERT_EQ(paths.size(), 3u);
    EXPECT_FALSE(paths[0]->gradient);
    const auto *line = dynamic_cast<const TSSVGLinearGradient *>(paths[1]->gradient.get());
    ASSERT_TRUE(line);
    EXPECT_EQ(line->endPosition, QPointF(100, 0));
    EXPECT_EQ(line->gradientTransform, QTransform::fromTranslate(5, 6));
    EXPECT_TRUE(line->colorStops.empty());
    EXPECT_FALSE(paths[1]->transform) << "commas stop the scan";
    const auto &stops = paths[2]->gradient->colorStops;
    ASSERT_EQ(stops.size(), 2u);
    EXPECT_EQ(stops[0].color, (platform::Color{0, 1, 0, 0.5}));
    EXPECT_FALSE(stops[1].color) << "only the style is read";
}

TEST(Drawing, PutsStrokeOverGradientOverFill)
{
    const QImage image =
        drawn("<svg viewBox='10 10 40 20'><linearGradient id='g' x1='0' x2='40'>"
              "<stop offset='0' style='stop-color:#ff0000'/><stop offset='1' style='stop-color:#ff0000'/>"
              "</linearGradient><rect width='40' height='20' fill='url(#g)'/>"
              "<rect x='10' width='10' height='20' fill='#00ff00' stroke='#0000ff' stroke-width='4'/>"
              "<rect x='30' width='10' height='20' fill='#000000' stroke='#ffffff' stroke-width='0'/></svg>");
    ASSERT_EQ(image.size(), QSize(40, 20)) << "the origin of the view box plays no part";
    EXPECT_EQ(image.pixelColor(4, 10), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(9, 10), QColor(0, 0, 255));
    EXPECT_EQ(image.pixelColor(15, 10), QColor(0, 255, 0));
    EXPECT_EQ(image.pixelColor(30, 10), QColor(0, 0, 0));
}

TEST(Drawing, StopsAtOnePositionAreAnEdge)
{
    const auto stop = [](const char *offset, const char *color) {
        return QByteArray("<stop offset='") + offset + "' style='stop-color:" + color + "'/>";
    };
    const QByteArray red = "#ff0000", blue = "#0000ff", green = "#00ff00";
    // Of three stops at one position, the one between is never seen; and what is beyond the last has its
    // colour.
    const std::tuple<QByteArray, QColor, QColor> table[] = {
        {stop("0", red) + stop("0.5", red) + stop("0.5", blue) + stop("1", blue), Qt::red, Qt::blue},
        {stop("0.5", red) + stop("0.5", green) + stop("0.5", blue), Qt::red, Qt::blue},
        {stop("0", red) + stop("0", blue), Qt::blue, Qt::blue},
        {stop("0", red) + stop("1", red) + stop("1", blue), Qt::red, Qt::red}};
    for (const auto &[stops, left, right] : table) {
        const QImage image =
            drawn("<svg viewBox='0 0 120 10'><linearGradient id='g' x1='10' x2='110'>" + stops +
                  "</linearGradient><rect width='120' height='10' fill='url(#g)'/></svg>");
        EXPECT_EQ(image.pixelColor(12, 5), left) << stops.constData();
        EXPECT_EQ(image.pixelColor(58, 5), left) << stops.constData();
        EXPECT_EQ(image.pixelColor(62, 5), right) << stops.constData();
        EXPECT_EQ(image.pixelColor(107, 5), right) << stops.constData();
    }
}

TEST(Drawing, WhatHasNoLengthIsItsCaps)
{
    const std::pair<const char *, int> caps[] = {{"round", 3}, {"square", 3}, {"butt", 0}};
    const char *const elements[] = {"<line x1='10' y1='10' x2='55' y2='10' stroke-dasharray='0,20' %1/>",
                                    "<path d='M10 10L10 10M30 10zM50 10l0 0' %1/>",
                                    "<path d='M10 10c0 0 0 0 0 0M30 10h0v0M50 10V10M70 10' %1/>"};
    for (const auto &[cap, count] : caps) {
        for (const char *element : elements) {
            const QString look =
                QStringLiteral("fill='none' stroke='#ff0000' stroke-width='8' stroke-linecap='%1'").arg(cap);
            const QImage image = drawn("<svg viewBox='0 0 80 20'>" +
                                       QString::fromLatin1(element).arg(look).toLatin1() + "</svg>");
            int seen = 0;
            for (const int x : {10, 30, 50, 70})
                seen += boxWhere(image.copy(x - 8, 0, 16, 20), [](const QColor &color) {
                            return color.alpha() > 128;
                        }).width() >= 6;
            EXPECT_EQ(seen, count) << element << cap;
        }
    }
    const QImage dot = drawn("<svg viewBox='0 0 20 20'><line x1='9' y1='9' x2='9' y2='9' stroke='#ff0000' "
                             "stroke-width='8' stroke-linecap='square'/></svg>");
    EXPECT_EQ(extentOf(dot, Qt::red), QRect(5, 5, 8, 8));
}

TEST(Drawing, StretchesIntoTheRectangle)
{
    const auto drawing = TSSVGImage::imageWithSVGData(
        "<svg viewBox='0 0 2 1'><rect width='1' height='1' fill='#ff0000' opacity='0.5'/></svg>");
    QImage surface = plainImage({40, 40}, Qt::white);
    QPainter painter(&surface);
    drawing->drawInRect(painter, QRectF(0, 0, 40, 40));
    painter.end();
    EXPECT_EQ(surface.pixelColor(10, 39), QColor(255, 128, 128));
    EXPECT_EQ(surface.pixelColor(30, 10), QColor(Qt::white));
}

TEST(BadDocuments, GiveWhatStandsAheadOfTheDamage)
{
    const std::tuple<QByteArray, size_t, bool> table[] = {
        {"<rect width='1' height='1'/><oops", 1, false},
        {"<rect width='1' height='1'/></g>", 1, false},
        {"<!-- -->", 0, true},
    };
    for (const auto &[elements, count, isExpectedWhole] : table) {
        bool isWhole = false;
        EXPECT_EQ(shapes(elements, &isWhole).size(), count) << elements.constData();
        EXPECT_EQ(isWhole, isExpectedWhole) << elements.constData();
    }
    EXPECT_TRUE(drawn("<svg width='10' height='10'><rect width='1' height='1'/></svg>").isNull());
}

TEST(BadDocuments, NestAsDeepAsTheyLike)
{
    constexpr int depth = 200000;
    const QByteArray document = "<svg viewBox='0 0 1 1'>" + QByteArray("<g>").repeated(depth) +
                                "<rect width='1' height='1'/>" + QByteArray("</g>").repeated(depth) +
                                "</svg>";
    TSSVGParser parser(document);
    EXPECT_TRUE(parser.parseSVGDocument());
    EXPECT_EQ(parser.paths().size(), 1u);
}
