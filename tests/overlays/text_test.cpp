#include "overlays/TSImage.h"
#include "overlays/TSText.h"
#include "platform/paint/PaintLayer.h"
#include "platform/text/TextLayout.h"
#include "support/Session.h"

#include <numbers>

namespace {

const QSize kCanvas(400, 200);

class TextTest : public SessionTest {
protected:
    TextTest() { session.setCanvas(QRectF(QPointF(0, 0), kCanvas)); }
};

QImage seen(TSOverlay &overlay, const QSize &size = kCanvas)
{
    platform::PaintLayer layer(size);
    overlay.drawIncontext(layer);
    return painted(layer);
}

/// A text on a fresh rendering, opaque, of a height at a place.
std::unique_ptr<TSText> textAt(const QString &words, const QPointF &origin, double height)
{
    auto text = std::make_unique<TSText>(words);
    text->setOpacity(1);
    text->setFrame(QRectF(origin, QSizeF(1, height)));
    text->updateTextFrameOfGroup();
    return text;
}

bool isGreen(const QColor &color)
{
    return color.alpha() > 0 && color.green() > 0 && color.red() == 0;
}

auto isOver(int alpha)
{
    return [alpha](const QColor &color) { return color.alpha() > alpha; };
}

} // namespace

TEST_F(TextTest, NewTextTakesATwentiethOfTheCanvasInTheMiddle)
{
    session.data.previewFrame = QRectF(0, 0, 600, 300);
    const TSText text("Sample");
    const QSizeF natural = text.naturalSize();
    EXPECT_DOUBLE_EQ(text.frame().height(), 10);
    EXPECT_DOUBLE_EQ(text.frame().width(), natural.width() / natural.height() * 10);
    EXPECT_EQ(text.frame().center(), QPointF(300, 150));
    EXPECT_EQ(text.textArray(), std::vector<TSTokenValue>{"Sample"});
}

TEST_F(TextTest, LinesAreCountedByTheLowByte)
{
    TSText text("x");
    const std::pair<QString, int> cases[] = {
        {"a\nb\n", 3}, {QString(), 1}, {"one", 1}, {"上", 2}, {"a上\nĊ", 4}};
    for (const auto &[words, lines] : cases) {
        text.updateText(words);
        EXPECT_EQ(text.lineCounts(), lines) << words.toStdString();
    }
}

TEST_F(TextTest, FrameFollowsTheWords)
{
    const std::tuple<const char *, double, const char *, double> cases[] = {{"one", 30, "one\ntwo", 60},
                                                                            {"one\ntwo", 60, "one", 30},
                                                                            {"a\nb\nc", 60, "a\nb", 40},
                                                                            {"one", 30, "much longer", 30}};
    for (const auto &[before, height, after, newHeight] : cases) {
        TSText text("x");
        text.updateText(before);
        text.updateTextFrame();
        text.setFrame({50, 60, 10, height});
        text.updateText(after);
        text.updateTextFrame();
        const QSizeF natural = text.naturalSize();
        EXPECT_DOUBLE_EQ(text.frame().height(), newHeight) << after;
        EXPECT_NEAR(text.frame().width(), natural.width() * newHeight / natural.height(), 1e-9);
        const QRectF fitted = text.frame();
        text.setTextType(TSTextType::Script);
        text.updateText("other words");
        text.updateTextFrame();
        expectRect(text.frame(), fitted);
    }
}

TEST_F(TextTest, TurnedTextGrowsFromTheCornerItBeginsAt)
{
    for (const double degrees : {0.0, 30.0, 90.0, 200.0}) {
        TSText text("short");
        text.setFrame({100, 80, 60, 20});
        text.updateTextFrame();
        text.setAngle(degrees * std::numbers::pi / 180);
        const QPointF corner = text.convertPointToPreview(text.frame().topLeft());
        text.updateText("short no more\nand two lines");
        text.updateTextFrame();
        const QPointF moved = text.convertPointToPreview(text.frame().topLeft());
        EXPECT_NEAR(moved.x(), corner.x(), 1e-9) << degrees;
        EXPECT_NEAR(moved.y(), corner.y(), 1e-9) << degrees;
        EXPECT_DOUBLE_EQ(text.frame().height(), 40);
    }
}

/// A text of a hundred times the pixels that there is memory for shows its letters where a smaller one that
/// is enlarged to the same size would.
TEST_F(TextTest, TextsOfAnySizeAreDrawnAsFarAsTheyAreSeen)
{
    const auto small = textAt("II", {0, 0}, 100);
    const double left = boxWhere(seen(*small), isOver(128)).left() / 100.0;
    for (const double height : {12000.0, 200000.0}) {
        const auto text = textAt("II", {0, 0}, height);
        text->setIsGlowEnable(true);
        text->setGlowColor({0, 1, 0, 1});
        text->setFrame(text->frame().translated(100 - left * height, -0.5 * height));
        text->updateRenderTextImage();
        const QRect ink = boxWhere(seen(*text), [](const QColor &color) { return color == Qt::white; });
        EXPECT_NEAR(ink.left(), 100, 0.01 * height) << height;
        EXPECT_EQ(ink.height(), kCanvas.height()) << height;
    }
}

/// Millions of pixels wide, and of no number at all.
TEST_F(TextTest, PicturesOfAnySizeAreDrawnAsFarAsTheyAreSeen)
{
    TSImage image(session.writePng("red.png", plainImage({8, 8}, Qt::red)));
    image.setOpacity(1);
    image.setFrame({-1e6, -1e6, 2e6, 2e6});
    EXPECT_EQ(extentOf(seen(image), Qt::red), QRect({0, 0}, kCanvas));
    image.setFrame({10, 10, qQNaN(), 20});
    platform::PaintLayer layer(kCanvas);
    image.drawIncontext(layer);
    EXPECT_TRUE(layer.isEmpty());
}

TEST_F(TextTest, EmptyOrOfNoTypeDrawsNothing)
{
    for (const int type : {TSTextType::Plain, TSTextType::Script, 2}) {
        const auto text = textAt("x", {10, 10}, 50);
        text->setIsShadowEnable(true);
        text->setTextType(type);
        if (type != 2)
            text->updateText(QString());
        platform::PaintLayer layer(kCanvas);
        text->drawIncontext(layer);
        EXPECT_TRUE(layer.isEmpty()) << type;
    }
}

TEST_F(TextTest, FillLiesOverStrokeOverGlow)
{
    const auto text = textAt("I", {100, 20}, 150);
    text->setStrokeColor({1, 0, 0, 0.4});
    text->setStrokeWidth(20);
    text->setGlowColor({0, 0, 1, 0.4});
    text->setGlowWidth(250);
    text->setGlowBlur(5);
    text->setIsStrokeEnable(true);
    text->updateRenderTextImage();
    const auto isBlue = [](const QColor &color) { return color.blue() > 128 && color.red() < 60; };
    EXPECT_TRUE(boxWhere(seen(*text), isBlue).isEmpty());
    text->setIsGlowEnable(true);
    text->updateRenderTextImage();
    const QRect fill = extentOf(seen(*text), Qt::white);
    const QRect stroke = extentOf(seen(*text), Qt::red, 0);
    EXPECT_GT(stroke.height(), 60) << "the stroke is opaque, whatever its colour says";
    EXPECT_TRUE(stroke.adjusted(1, 0, -1, 0).contains(fill));
    EXPECT_TRUE(boxWhere(seen(*text), isBlue).adjusted(1, 0, -1, 0).contains(stroke));
}

TEST_F(TextTest, GlowEndsAtTheFrame)
{
    const auto text = textAt("glow", {40, 50}, 100);
    text->setIsGlowEnable(true);
    text->setGlowWidth(600);
    text->updateRenderTextImage();
    EXPECT_EQ(boxWhere(seen(*text), isOver(0)), text->frame().toAlignedRect());
    text->setGlowColor({0, 1, 0, 1});
    for (const auto &[width, isSeen] : {std::pair(30.0, true), {0.0, false}}) {
        text->setGlowWidth(width);
        text->updateRenderTextImage();
        EXPECT_EQ(!boxWhere(seen(*text), isGreen).isEmpty(), isSeen) << width;
    }
}

TEST_F(TextTest, BlurOfAShadowDoesNotGrowWithTheText)
{
    double growth[2] = {};
    for (const int i : {0, 1}) {
        const auto text = textAt("I", {50, 50}, i == 0 ? 40 : 80);
        text->updateRenderTextImage();
        text->setIsShadowEnable(true);
        const auto shadowWidth = [&text](float blur) {
            text->setShadow(std::make_shared<TSShadow>(platform::Color{0, 1, 0, 1}, blur, 45.0f, 100.0f));
            return boxWhere(seen(*text), isGreen).width();
        };
        growth[i] = shadowWidth(12) - shadowWidth(0);
    }
    EXPECT_GT(growth[0], 16);
    EXPECT_NEAR(growth[0], growth[1], 3);
}

TEST_F(TextTest, TilesFillTheCanvasFromItsCornerOn)
{
    session.setCanvas(QRectF(10, 20, 350, 150));
    const auto text = textAt("I", {0, 0}, 40);
    text->setTextType(TSTextType::Script);
    text->setTileHeight(60);
    text->updateRenderTextImage();
    const QSizeF pitch = text->textSizeOfScript();
    EXPECT_DOUBLE_EQ(pitch.height(), 30 + 15.625) << "with a gap of 50 on 800 by 800";
    const auto inkOfTile = [&](int column, int row, const QPointF &shift = {}) {
        text->setScriptOrigin(shift);
        const QPointF corner((column + shift.x()) * pitch.width(), (row + shift.y()) * pitch.height());
        const QRect tile((corner + QPointF(10, 20)).toPoint(), pitch.toSize());
        return boxWhere(seen(*text).copy(tile), isOver(128));
    };
    const QRect ink = inkOfTile(0, 0);
    const auto plain = textAt("I", {10, 20}, 60 * 150 / 300.0);
    plain->updateRenderTextImage();
    EXPECT_EQ(ink, boxWhere(seen(*plain), isOver(128)).translated(-10, -20));
    for (const QRect &other :
         {inkOfTile(1, 0), inkOfTile(0, 1), inkOfTile(5, 2), inkOfTile(1, 1, {0.5, 0.25})}) {
        EXPECT_LE((other.center() - ink.center()).manhattanLength(), 2);
        EXPECT_LE(std::abs(other.height() - ink.height()), 1);
    }
    text->setAngle(1);
    const QImage turned = seen(*text);
    const int reach = int(pitch.width() + pitch.height());
    for (const QPoint &corner :
         {QPoint(0, 0), QPoint(400 - reach, 0), QPoint(0, 200 - reach), QPoint(400 - reach, 200 - reach)})
        EXPECT_FALSE(boxWhere(turned.copy(QRect(corner, QSize(reach, reach))), isOver(128)).isEmpty());
}

TEST_F(TextTest, TilesWithAShadowThatReachesBeyondAllAreDrawnInTime)
{
    const auto text = textAt("I", {0, 0}, 40);
    text->setTextType(TSTextType::Script);
    text->setIsShadowEnable(true);
    text->setShadow(std::make_shared<TSShadow>(platform::Color::black(), 1e9f, 0.0f, 1e6f));
    EXPECT_FALSE(boxWhere(seen(*text), isOver(128)).isEmpty());
}

TEST_F(TextTest, UnturnedTextIsDrawnWhereItStandsWithoutResampling)
{
    const auto text = textAt("Sharp", {20.3, 30.7}, 61.5);
    text->updateRenderTextImage();
    QImage expected(kCanvas, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::transparent);
    QPainter painter(&expected);
    painter.translate(20.3, 30.7);
    const double scale = 61.5 / text->naturalSize().height();
    painter.scale(scale, scale);
    platform::TextLayout(text->textStorage()).draw(painter);
    painter.end();
    EXPECT_LE(greatestDifference(seen(*text), expected), 2);

    text->setOpacity(0.5);
    const QImage half = seen(*text);
    EXPECT_NEAR(boxWhere(half, isOver(126)).height(), boxWhere(expected, isOver(252)).height(), 1);
    EXPECT_TRUE(boxWhere(half, isOver(129)).isEmpty());
}
