#include "overlays/TSGroup.h"
#include "preview/TSAngle.h"
#include "preview/TSProportionalResize.h"
#include "support/PreviewSession.h"

#include <cmath>
#include <numbers>

namespace {

constexpr double kPi = std::numbers::pi;

class DraggingTest : public PreviewTest {
protected:
    /// A point of the rotate handle's circle about (350, 325), so far clockwise from upward.
    static QPointF handleAt(double angle) { return {350 + 41 * std::sin(angle), 325 - 41 * std::cos(angle)}; }
};

} // namespace

TEST_F(DraggingTest, AMoveTakesAllAlongAndMeasuresThemAgain)
{
    const auto lead = put('A', {300, 300, 100, 50});
    const auto member = std::make_shared<TSOverlay>();
    member->setFrame({600, 500, 50, 50});
    put('G', TSGroup::groupOverlayWithOverlays({member}), {600, 500, 50, 50});
    select("AG");
    session.data.oldAlignment = session.data.offsetAlignment = session.data.watermarkAlignmenWay = 3;
    lead->setOffsetAlignment(4);
    hover({350, 325});
    press({350, 325});
    const QStringList &log = listen();
    drag({50.25, 225});
    EXPECT_EQ(log, (QStringList{"alignment", "offset", "overlays(true)"}));
    expectRect(lead->frame(), 0.25, 200, 100, 50);
    expectRect(named['G']->frame(), 300.25, 400, 50, 50);
    expectRect(member->frame(), 300.25, 400, 50, 50);
    // The union (0.25, 200, 350, 250) is nearest to the canvas's left middle, and pins both.
    EXPECT_EQ(session.data.unionFrameAlignment, 7u);
    EXPECT_EQ(named['G']->rows().at(0)->wmAlignment, 7u);
    EXPECT_EQ(lead->rows().at(0)->xPixel, -99.75f);
    EXPECT_EQ(named['G']->rows().at(0)->yPixel, 25.0f);
    EXPECT_EQ(session.data.oldAlignment, TSPositionCode::None);
    EXPECT_TRUE(session.data.isDragging);

    preview.trackerState().alignmentLines.emplace_back();
    const int redraws = view.trackerRedraws;
    drag({80, 225}, TSModifier::Shift);
    expectRect(lead->frame(), 0.25, 200, 100, 50);
    EXPECT_TRUE(preview.trackerState().alignmentLines.empty());
    EXPECT_GT(view.trackerRedraws, redraws) << "the lines are to go from the screen too";
    drag({51.25, 225});
    expectRect(lead->frame(), 1.25, 200, 100, 50);
    preview.mouseUp();
    EXPECT_FALSE(session.data.isDragging);
}

TEST(ProportionalResizeTest, EveryNodeKeepsTheShape)
{
    const QRectF wide(300, 300, 200, 100);
    const QRectF tall(300, 300, 100, 200);
    const std::tuple<QRectF, int, double, double, QRectF> cases[] = {
        {wide, 0, 10, 4, {310, 305, 190, 95}},
        {wide, 1, 10, 4, {300, 304, 192, 96}},
        {wide, 2, 10, 4, {300, 295, 210, 105}},
        {wide, 3, 10, 4, {300, 300, 210, 105}},
        {wide, 3, 0, 4, {300, 300, 208, 104}},
        {wide, 4, 10, 4, {300, 300, 210, 105}},
        {wide, 5, 10, 4, {300, 300, 208, 104}},
        {wide, 6, 10, 4, {310, 300, 190, 95}},
        {wide, 6, 0, 4, {292, 300, 208, 104}},
        {wide, 7, 10, 4, {310, 305, 190, 95}},
        {wide, 7, 0, 4, wide},
        // The longer side ends at 6, on the side of the node.
        {wide, 4, -300, 0, {300, 300, 6, 3}},
        {wide, 0, 300, 0, {494, 397, 6, 3}},
        {wide, 2, -300, 0, {300, 397, 6, 3}},
        {wide, 6, 300, 0, {494, 300, 6, 3}},
        {tall, 4, -300, 0, {300, 300, 3, 6}},
        {tall, 4, -96, 0, {300, 300, 4, 8}},
    };
    for (const auto &[frame, node, dx, dy, result] : cases) {
        SCOPED_TRACE(testing::Message() << frame.width() << ' ' << node << ' ' << dx << ',' << dy);
        expectRect(TSProportionallyResizedFrame(frame, node, dx, dy), result);
    }
}

TEST_F(DraggingTest, ATurnedOverlayGrowsFromTheCornerOpposite)
{
    const auto overlay = put('A', {300, 300, 200, 100}, kPi / 2);
    const auto follower = put('B', {600, 300, 100, 100});
    select("AB");
    hover({350, 450});
    ASSERT_EQ(preview.gesture().draggingNode, 4);
    press({350, 450});
    drag({345, 460});
    expectNear(overlay->frame().topLeft(), {292.5, 302.5}, 1e-6);
    EXPECT_NEAR(overlay->frame().width(), 210, 1e-6);
    expectNear(overlay->convertPointToPreview(TSDragging::pointOfOverlay(*overlay, 0)), {450, 250}, 1e-6);
    // (10, 5) as the leading one sees it, not turned for the follower.
    EXPECT_NEAR(follower->frame().width(), 110, 1e-6);
    expectNear(follower->frame().topLeft(), {600, 300}, 1e-6);
}

TEST(AngleTest, CountsFromStraightDownByWayOfTheRight)
{
    for (int eighth = 0; eighth < 8; ++eighth) {
        const double angle = eighth * kPi / 4;
        const auto angleOf = [](double to, double tolerance) {
            return TSAngleOfPoint(7 + 10 * std::sin(to), 3 + 10 * std::cos(to), 7, 3, tolerance);
        };
        EXPECT_NEAR(angleOf(angle, 0), angle, 1e-6);
        EXPECT_EQ(angleOf(angle - 0.01, 0.02) == angle, eighth % 2 == 0) << "quarters draw to themselves";
    }
}

TEST_F(DraggingTest, ATurnSticksAtEighths)
{
    const auto overlay = put('A', {300, 300, 100, 50});
    const auto follower = put('B', {600, 300, 100, 100}, 6.2);
    select("AB");
    hover(handleAt(0));
    ASSERT_EQ(preview.gesture().draggingNode, 8);
    press(handleAt(0));
    const QStringList &log = listen();
    const std::tuple<double, double, double> steps[] = {
        {0.05, 0, 6.2},
        {0.5, 0.5, 6.7},
        {0.7, kPi / 4, 6.2 + kPi / 4},
        // Counted from where it began to stick, which was at 0.5.
        {0.61, kPi / 4 + 0.11, 6.31 + kPi / 4},
        {0.39, kPi / 4 - 0.11, 6.09 + kPi / 4},
        // Below 0 the leading one goes on from a whole turn, and only it.
        {-0.9, 2 * kPi + kPi / 4 - 1.4, 4.8 + 2 * kPi + kPi / 4},
    };
    size_t count = 0;
    for (const auto &[mouse, angle, followerAngle] : steps) {
        SCOPED_TRACE(mouse);
        drag(handleAt(mouse));
        EXPECT_NEAR(overlay->angle(), angle, 1e-5);
        EXPECT_NEAR(follower->angle(), followerAngle, 1e-5);
        EXPECT_EQ(log.count(QStringLiteral("angle")), qsizetype(++count));
        EXPECT_TRUE(preview.trackerState().isRotate);
    }
    expectRect(overlay->frame(), 300, 300, 100, 50);
}

TEST_F(DraggingTest, AScriptTextShiftsItsPattern)
{
    const auto text = putScript('S');
    select("S");
    const QSizeF pitch = text->textSizeOfScript();
    const std::tuple<double, QPointF, QPointF> cases[] = {
        {0, {10, -5}, {10 / pitch.width(), -5 / pitch.height()}},
        {kPi / 2, {10, -5}, {-5 / pitch.width(), -10 / pitch.height()}},
        {0, {5000, -5000}, {1, -1}},
    };
    for (const auto &[angle, delta, origin] : cases) {
        text->setScriptOrigin({});
        text->setAngle(angle);
        text->setFrame(session.data.canvasFrame);
        hover({500, 400});
        press({500, 400});
        drag(QPointF(500, 400) + delta);
        expectNear(text->scriptOrigin(), origin, 1e-6);
        EXPECT_EQ(text->rows().at(0)->scriptOrigin, text->scriptOrigin());
        EXPECT_FALSE(session.data.isDragging);
    }
}
