#include "platform/text/FontChoice.h"
#include "platform/text/TextLayout.h"
#include "support/Folder.h"
#include "support/Pictures.h"

#include <gtest/gtest.h>
#include <QFontMetricsF>
#include <thread>

namespace {

using platform::AttributedString;
using platform::TextAlignment;
using platform::TextAttributes;
using platform::TextLayout;

TextAttributes look(double size = 36)
{
    TextAttributes attributes;
    attributes.font = {"Helvetica", {}, size};
    attributes.foregroundColor = platform::Color::white();
    return attributes;
}

QSizeF sizeOf(const QString &text, double size = 36)
{
    return TextLayout(AttributedString(text, look(size))).size();
}

QImage drawn(const AttributedString &text, const TextAttributes &over = {})
{
    const TextLayout layout(text);
    QImage image(layout.size().toSize() + QSize(2, 2), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    layout.draw(painter, over);
    return image;
}

QRect inkIn(const QImage &image)
{
    return boxWhere(image, [](const QColor &color) { return color.alpha() > 64; });
}

/// The box around the ink that hangs together with that of a point.
QRect inkJoinedTo(QImage image, const QPoint &start)
{
    QRect box;
    std::vector<QPoint> open{start};
    while (!open.empty()) {
        const QPoint point = open.back();
        open.pop_back();
        if (!image.valid(point) || qAlpha(image.pixel(point)) == 0)
            continue;
        image.setPixel(point, 0);
        box |= QRect(point, QSize(1, 1));
        for (const QPoint &step : {QPoint(1, 0), {-1, 0}, {0, 1}, {0, -1}})
            open.push_back(point + step);
    }
    return box;
}

} // namespace

TEST(TextLayoutTest, Sizes)
{
    const double line = sizeOf("x").height();
    const double advance = QFontMetricsF(platform::fontFor(*look().font)).horizontalAdvance("wide");
    EXPECT_NEAR(sizeOf("wide").width(), advance + 10, 0.5);
    TextAttributes neue = look();
    neue.font->family = "HelveticaNeue";
    EXPECT_EQ(TextLayout(AttributedString("wide", neue)).size(), sizeOf("wide"));
    EXPECT_GT(line, 36);
    EXPECT_LT(line, 54);
    EXPECT_NEAR(sizeOf("x", 72).height(), 2 * line, 2);
    EXPECT_EQ(sizeOf(QString()), QSizeF(10, line));
    const std::pair<const char *, int> lines[] = {
        {"a\nb", 2}, {"a\n", 2}, {"\n\n", 3}, {"a very long line without any break", 1}};
    for (const auto &[text, count] : lines)
        EXPECT_NEAR(sizeOf(text).height(), count * line, 0.01) << text;
    for (const char16_t *text : {u"ab\r\ncd", u"ab\rcd", u"ab\u2028cd", u"ab\u2029cd"})
        EXPECT_EQ(sizeOf(QString::fromUtf16(text)), sizeOf("ab\ncd")) << int(text[2]);
    EXPECT_EQ(sizeOf("wide\nx").width(), sizeOf("wide").width());
    EXPECT_GT(sizeOf("a   ").width(), sizeOf("a").width() + 15);
}

TEST(TextLayoutTest, LinesStandAlignedInTheLongest)
{
    const QString text = "mmmmmmmm\ni";
    const int half = int(sizeOf(text).height() / 2);
    const int width = int(sizeOf(text).width());
    for (const auto &[alignment, share] :
         {std::pair{TextAlignment::Left, 0.0}, {TextAlignment::Center, 0.5}, {TextAlignment::Right, 1.0}}) {
        TextAttributes attributes = look();
        attributes.alignment = alignment;
        const QRect ink = inkIn(drawn(AttributedString(text, attributes)).copy(0, half, width, half));
        const double advance = QFontMetricsF(platform::fontFor(*look().font)).horizontalAdvance(u'i');
        EXPECT_NEAR(ink.center().x(), 5 + advance / 2 + share * (width - 10 - advance), 1.5);
    }
}

TEST(TextLayoutTest, RightToLeftLinesBeginInTheirBoxToo)
{
    for (const char16_t *text : {u"שלום עולם", u"abc שלום"}) {
        const QImage image = drawn(AttributedString(QString::fromUtf16(text), look()));
        const QRect ink = inkIn(image);
        EXPECT_NEAR(ink.left(), 5, 4);
        EXPECT_NEAR(ink.right(), image.width() - 7, 5);
    }
}

TEST(TextLayoutTest, LinesUnderAndThroughTakeTheirOwnColours)
{
    TextAttributes attributes = look();
    const auto redAt = [](const QImage &image) { return extentOf(image, Qt::red, 55); };
    const QString words = "line up";
    EXPECT_TRUE(redAt(drawn(AttributedString(words, attributes))).isEmpty());
    attributes.underlineStyle = 1;
    attributes.underlineColor = platform::Color{1, 0, 0, 1};
    const QRect under = redAt(drawn(AttributedString(words, attributes)));
    EXPECT_NEAR(under.width(), sizeOf(words).width() - 10, 2);
    EXPECT_LT(under.height(), 5);
    attributes.underlineStyle = 0;
    attributes.strikethroughStyle = 1;
    attributes.strikethroughColor = platform::Color{1, 0, 0, 1};
    const QRect through = redAt(drawn(AttributedString(words, attributes)));
    EXPECT_NEAR(through.width(), sizeOf(words).width() - 10, 2);
    EXPECT_LT(through.bottom(), under.top() - 5);
}

TEST(TextLayoutTest, OutlinesAreInPercentOfTheFont)
{
    const QString words = "I";
    TextAttributes over;
    over.strokeColor = platform::Color{1, 0, 0, 1};
    const QImage filled = drawn(AttributedString(words, look()), over);
    over.strokeWidth = 4;
    const QImage thin = drawn(AttributedString(words, look(72)), over);
    over.strokeWidth = -4;
    const QImage both = drawn(AttributedString(words, look(72)), over);
    const QRect ink = inkIn(thin);
    EXPECT_EQ(filled.pixelColor(inkIn(filled).center()), QColor(Qt::white));
    EXPECT_EQ(qAlpha(thin.pixel(ink.center())), 0) << "an outline without a filling";
    EXPECT_EQ(both.pixelColor(ink.center()), QColor(Qt::white));
    const QImage plain = drawn(AttributedString(words, look(72)));
    EXPECT_NEAR(ink.width() - inkIn(plain).width(), 72 * 0.04, 1.1);
}

/// The program starts anew for this one, where no font can be found from its first moment.
TEST(TextLayoutDeathTest, LettersThatNoFontHasAreBoxes)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const Folder folder;
    qputenv("FONTCONFIG_FILE", QFile::encodeName(folder.write("fonts.conf", "<fontconfig></fontconfig>")));
    EXPECT_EXIT(
        std::exit(inkIn(drawn(AttributedString(u"ab\u0787\u0915\U0001F600"_qs, look()))).width() > 100 &&
                          !platform::hasAnyFont()
                      ? 0
                      : 1),
        testing::ExitedWithCode(0), "");
    qunsetenv("FONTCONFIG_FILE");
    EXPECT_TRUE(platform::hasAnyFont());
    EXPECT_FALSE(inkIn(drawn(AttributedString(u"\u0787\u07A8"_qs, look()))).isEmpty());
}

TEST(TextLayoutTest, OutlivesTheThreadThatMadeIt)
{
    const AttributedString text(u"Words \U0001F600 \u05E9\u05DC"_qs, look());
    std::unique_ptr<TextLayout> made;
    std::thread([&] { made = std::make_unique<TextLayout>(text); }).join();
    const QImage expected = drawn(text);
    QImage image(expected.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    made->draw(painter);
    painter.end();
    EXPECT_EQ(image, expected);
}

TEST(TextLayoutTest, LettersOfAHangingScriptStayJoined)
{
    TextAttributes attributes = look(72);
    attributes.font->family = "Noto Nastaliq Urdu";
    // In one word, and behind another one on the line.
    for (const char16_t *text : {u"کستا", u"abc کستا"}) {
        const QImage image = drawn(AttributedString(QString::fromUtf16(text), attributes));
        const QRect line(*text == u'a' ? 150 : 0, 0, image.width(), image.height());
        const QRect ink = inkIn(image.copy(line)).translated(line.topLeft());
        int widest = 0;
        for (int y = ink.top(); y <= ink.bottom(); ++y)
            widest = std::max(widest, inkJoinedTo(image, {ink.center().x(), y}).width());
        EXPECT_GT(widest, 0.95 * ink.width()) << ink.width();
    }
}

TEST(TextLayoutTest, EmojiOfSeveralCharactersAreOnePicture)
{
    const double one = sizeOf(u"\U0001F600"_qs).width();
    QList<QImage> pictures;
    for (const char16_t *text : {u"1\uFE0F\u20E3", u"2\uFE0F\u20E3", u"#\u20E3", u"\u2764\uFE0F",
                                 u"\U0001F1E9\U0001F1EA", u"\U0001F468\u200D\U0001F469\u200D\U0001F467"}) {
        const QString words = QString::fromUtf16(text);
        EXPECT_DOUBLE_EQ(sizeOf(words).width(), one) << words.toStdString();
        const QImage picture = drawn(AttributedString(words, look()));
        EXPECT_FALSE(pictures.contains(picture)) << words.toStdString();
        EXPECT_GT(inkIn(picture).width(), 20) << words.toStdString();
        pictures.append(picture);
    }
    EXPECT_GT(sizeOf(u"1\uFE0F\u20E3 a"_qs).width(), sizeOf(u"1\uFE0F\u20E3"_qs).width() + 20);
}

TEST(TextLayoutTest, OutlinesOfEmojiLieAroundThemAtAnySize)
{
    for (const double size : {40.0, 400.0}) {
        const AttributedString text(u"\U0001F600"_qs, look(size));
        const QRect plain = inkIn(drawn(text));
        TextAttributes over;
        over.strokeWidth = 10;
        over.strokeColor = platform::Color{1, 0, 0, 1};
        const QRect red = extentOf(drawn(text, over), Qt::red);
        EXPECT_NEAR(red.width() - plain.width(), 0.1 * size, 0.02 * size + 1.5) << size;
        EXPECT_NEAR(red.top(), plain.top() - 0.05 * size, 0.01 * size + 1.5) << size;
    }
}
