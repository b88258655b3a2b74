#include "support/PreviewSession.h"

#include <numbers>

namespace {

class SnappingTest : public PreviewTest {
protected:
    void snapTo(bool photo, bool objects)
    {
        session.defaults->setBool(QStringLiteral("WatermarkAutoSnapToPhoto"), photo);
        session.defaults->setBool(QStringLiteral("WatermarkAutoSnapToObjects"), objects);
    }
    std::vector<std::array<float, 4>> guides()
    {
        std::vector<std::array<float, 4>> list;
        for (const TSLine &line : preview.trackerState().alignmentLines)
            list.push_back({line.beginX, line.beginY, line.endX, line.endY});
        return list;
    }
};

} // namespace

TEST_F(SnappingTest, FindsTheOffsetsOfASnap)
{
    // The canvas has vertical lines at 100, 500 and 900, horizontal ones at 100, 400 and 700.
    const std::tuple<const char *, bool, bool, QRectF, QPointF> cases[] = {
        {"exactly at the reach", true, false, {108, 300, 50, 20}, {-8, 0}},
        {"beyond it", true, false, {108.1, 300, 50, 20}, {0, 0}},
        {"x is farther than y", true, false, {105, 103, 50, 20}, {0, -3}},
        {"x is as far as y", true, false, {105, 105, 50, 20}, {-5, -5}},
        {"middles on middles", true, false, {477, 393, 50, 20}, {-2, -3}},
        {"bottom over top", true, false, {300, 404, 50, 292}, {0, 4}},
        {"right over left", true, false, {504, 300, 392, 20}, {4, 0}},
        {"no switch", false, false, {103, 103, 50, 20}, {0, 0}},
        {"objects alone leave the canvas", false, true, {103, 203, 50, 20}, {0, 0}},
        {"right on left", false, true, {549, 200, 48, 20}, {3, 0}},
        {"never on an object's middle", false, true, {626, 200, 48, 20}, {0, 0}},
        {"nor by its own middles", false, true, {577, 291, 48, 20}, {0, 0}},
        {"of two as near the later", false, true, {603, 200, 48, 20}, {3, 0}},
        {"a turned target as if unturned", false, true, {740, 504, 40, 60}, {0, -4}},
        {"the nearer of canvas and object", true, true, {897, 200, 100, 20}, {2, 0}},
    };
    const TSSelection::Overlays objects = {put('T', {600, 300, 100, 50}), put('U', {606, 600, 300, 40}),
                                           put('V', {300, 450, 200, 50}, 1), put('W', {899, 130, 50, 20})};
    TSSnapping snapping(preview.trackerState());
    for (const auto &[why, photo, object, rect, offset] : cases) {
        SCOPED_TRACE(why);
        snapTo(photo, object);
        float x = 0;
        float y = 0;
        const auto line = snapping.alignLineOfRect(rect, x, y, objects, TSAlignmentLine::All);
        EXPECT_NEAR(double(x), offset.x(), 1e-4);
        EXPECT_NEAR(double(y), offset.y(), 1e-4);
        EXPECT_EQ(line.has_value(), offset != QPointF());
    }
}

TEST_F(SnappingTest, AMovedOverlayStaysOnTheLineWithinReach)
{
    snapTo(true, false);
    put('A', {300, 300, 100, 50});
    put('B', {600, 350, 100, 50});
    put('C', {700, 100, 20, 20});
    select("AB");
    hover({350, 325});
    press({350, 325});
    const std::tuple<QPointF, double, double, std::vector<std::array<float, 4>>> steps[] = {
        {{156, 325}, 100, 400, {{100, 100, 100, 700}}},
        {{157, 325}, 100, 400, {{100, 100, 100, 700}}},
        // Off the line it is under the mouse again as at the press.
        {{162, 325}, 112, 412, {}},
        {{350, 325}, 300, 600, {}},
        // Not pulled to C, but told that it lines up.
        {{647, 325}, 597, 897, {}},
        {{670, 325}, 620, 920, {{720, 100, 720, 350}}},
    };
    for (const auto &[mouse, x, follower, lines] : steps) {
        SCOPED_TRACE(mouse.x());
        drag(mouse);
        expectRect(named['A']->frame(), x, 300, 100, 50);
        expectRect(named['B']->frame(), follower, 350, 100, 50);
        EXPECT_EQ(guides(), lines);
    }
    preview.mouseUp();
    EXPECT_TRUE(guides().empty());
}

TEST_F(SnappingTest, ATurnedOverlaySnapsByTheBoxOnScreen)
{
    snapTo(true, false);
    // The box on screen is (325, 275, 50, 100).
    put('A', {300, 300, 100, 50}, std::numbers::pi / 2);
    select("A");
    hover({350, 330});
    press({350, 330});
    drag({130, 330});
    expectNear(named['A']->frame().topLeft(), {75, 300}, 1e-4);
    drag({126, 330});
    expectNear(named['A']->frame().topLeft(), {75, 300}, 1e-4);
}

TEST_F(SnappingTest, AResizeOnlyShowsLinesWithinHalfAPoint)
{
    snapTo(true, false);
    put('A', {300, 300, 200, 100});
    put('B', {600, 100, 50, 50});
    select("A");
    hover({500, 400});
    press({500, 400});
    drag({599.5, 400});
    expectRect(named['A']->frame(), 300, 300, 299.5, 149.75);
    EXPECT_EQ(guides(), (std::vector<std::array<float, 4>>{{600, 100, 600, 449.75f}}));
    drag({599, 400});
    expectRect(named['A']->frame(), 300, 300, 299, 149.5);
    EXPECT_TRUE(guides().empty());
}
