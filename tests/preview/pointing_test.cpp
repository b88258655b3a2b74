#include "support/PreviewSession.h"

#include <cmath>
#include <functional>
#include <numbers>

using enum TSCursor;

namespace {

constexpr double kPi = std::numbers::pi;

class PointingTest : public PreviewTest {};

} // namespace

TEST_F(PointingTest, TheFreeMouseSettlesNodeAndPointer)
{
    const std::tuple<double, QPointF, int, bool, TSCursor> cases[] = {
        {0, {300, 300}, 0, true, tl2brCursor},
        {0, {400, 325}, 3, true, resizeLeftRightCursor},
        {0, {300, 325}, 7, true, resizeLeftRightCursor},
        {0, {350, 284}, 8, true, rotateCursor},
        {0, {350, 325}, 9, true, openHandCursor},
        {0, {296.9, 297}, 9, false, arrowCursor},
        {0, {303, 303}, 9, true, openHandCursor},
        // A quarter turn to the right about (350, 325).
        {kPi / 2, {375, 275}, 0, true, tl2blCursor},
        {kPi / 2, {375, 325}, 1, true, resizeLeftRightCursor},
        {kPi / 2, {350, 290}, 9, true, openHandCursor},
        {kPi / 2, {390, 340}, 9, false, arrowCursor},
    };
    const auto overlay = put('A', {300, 300, 100, 50});
    select("A");
    for (const auto &[angle, point, node, isInOverlay, cursor] : cases) {
        SCOPED_TRACE(testing::Message() << angle << ' ' << point.x() << ',' << point.y());
        overlay->setAngle(angle);
        preview.selection().setGuideOverlay(nullptr);
        hover(point);
        EXPECT_EQ(preview.gesture().draggingNode, node);
        EXPECT_EQ(preview.gesture().isInOverlay, isInOverlay);
        EXPECT_EQ(view.cursor, cursor);
        EXPECT_EQ(preview.selection().guideOverlay() == overlay, isInOverlay);
    }
    hover({300, 300});
    preview.mouseMoved({{350, 325}, TSModifier::Command});
    EXPECT_EQ(view.cursor, arrowCursor);
}

TEST_F(PointingTest, TheTopmostOfTheSelectedLeads)
{
    put('A', {300, 300, 100, 50});
    put('B', {320, 310, 100, 50});
    put('C', {320, 310, 100, 50});
    select("BC");
    hover({370, 330});
    EXPECT_EQ(preview.selection().guideOverlay(), named['C']) << "the last, A on top being not selected";
    select("ACB");
    hover({370, 330});
    EXPECT_EQ(preview.selection().guideOverlay(), named['A']);
    // The walk ends at a node, and what it saw before does not count.
    hover({320, 310});
    EXPECT_EQ(preview.selection().guideOverlay(), named['C']);
    EXPECT_EQ(preview.gesture().draggingNode, 0);
}

TEST_F(PointingTest, ThePointerFollowsTheDirectionOfTheNode)
{
    const std::tuple<double, std::optional<TSCursor>> cases[] = {
        {0, resizeUpDownCursor},
        {0.99, resizeUpDownCursor},
        {1, tl2blCursor},
        {3, tl2blCursor},
        {3.01, resizeLeftRightCursor},
        {5, tl2brCursor},
        {7, tl2brCursor},
        {7.01, resizeUpDownCursor},
        {9, tl2blCursor},
        {11, tl2blCursor},
        {11.01, resizeLeftRightCursor},
        {13, tl2brCursor},
        {15, tl2brCursor},
        {15.01, resizeUpDownCursor},
        {16, resizeUpDownCursor},
        {16.5, resizeUpDownCursor},
        {17, tl2blCursor},
        {-0.5, std::nullopt},
    };
    TSOverlay overlay;
    for (const auto &[eighths, cursor] : cases) {
        overlay.setAngle(eighths * kPi / 8);
        EXPECT_EQ(TSPointing::getCursorByTrackerNode(1, overlay), cursor) << eighths;
    }
    EXPECT_NEAR(TSTracker().angleOfNode(0, kPi / 2), kPi / 4, 1e-12);
    EXPECT_EQ(TSTracker().angleOfNode(9, 7), 7 - 2 * kPi);
}

TEST_F(PointingTest, PressesSelect)
{
    put('A', {300, 300, 100, 50});
    put('B', {350, 320, 100, 50});
    putScript('S');
    putScript('Z');
    put('C', {500, 500, 50, 50});
    const QPointF onA(310, 310);
    const QPointF onBoth(360, 330);
    const QPointF onB(430, 360);
    const QPointF onC(510, 510);
    const QPointF outside(50, 50);
    const std::tuple<const char *, QPointF, unsigned, int, const char *, bool> cases[] = {
        {"", onBoth, 0, 1, "A", true},
        {"A", onB, 0, 1, "B", true},
        {"S", outside, 0, 1, "", false},
        // The Script text hides what is below it; only a double click takes it.
        {"", onC, 0, 1, "", false},
        {"A", onC, 0, 2, "S", false},
        {"", onC, 0, 3, "S", true},
        {"Z", onC, 0, 1, "Z", true},
        {"S", onA, 0, 1, "A", true},
        {"A", onB, TSModifier::Shift, 1, "AB", false},
        {"B", onBoth, TSModifier::Command, 1, "BA", false},
        {"A", onA, TSModifier::Shift, 1, "A", false},
        {"A", onC, TSModifier::Shift, 1, "A", false},
        {"AB", onA, 0, 1, "AB", true},
        {"AB", onC, 0, 1, "", false},
        {"AC", onC, 0, 1, "AC", true},
    };
    for (const auto &[before, point, flags, clicks, after, isInOverlay] : cases) {
        SCOPED_TRACE(testing::Message() << before << ' ' << point.x() << ' ' << flags << ' ' << clicks);
        preview.gesture() = TSGesture();
        select(before);
        press(point, flags, clicks);
        EXPECT_EQ(selected(), after);
        EXPECT_EQ(preview.gesture().isInOverlay, isInOverlay);
    }
    select("S");
    preview.gesture().draggingNode = 4;
    hover(outside);
    EXPECT_EQ(preview.gesture().draggingNode, 9);
    EXPECT_FALSE(preview.gesture().isInOverlay);
}

/// What the mouse was on goes with the marks, whoever takes them away.
TEST_F(PointingTest, NoNodeIsLeftOfAMarkThatIsGone)
{
    const std::pair<const char *, std::function<void()>> ways[] = {
        {"deleted", [this] { preview.creation().deleteEditingOverlay(); }},
        {"let go", [this] { preview.selection().selectOverlay(nullptr); }},
        {"list emptied", [this] { preview.selection().clear(); }},
    };
    for (const auto &[way, empty] : ways) {
        SCOPED_TRACE(way);
        session.overlays.removeAllOverlay();
        put('A', {300, 300, 100, 50});
        put('B', {500, 500, 100, 50});
        select("A", 'A');
        hover({400, 350});
        press({400, 350});
        drag({420, 360});
        preview.mouseUp();
        empty();
        hover({550, 525});
        press({550, 525});
        EXPECT_EQ(selected(), "B");
        drag({560, 535});
        expectRect(named['B']->frame(), 510, 510, 100, 50);
    }
}

TEST_F(PointingTest, TheMarqueeTakesWhatItMeets)
{
    put('A', {300, 300, 100, 50});
    put('B', {350, 320, 100, 50});
    putScript('S');
    put('D', {600, 300, 100, 20}, kPi / 4);
    const std::tuple<QPointF, QPointF, const char *> cases[] = {
        {{50, 50}, {360, 330}, "AB"},
        {{50, 50}, {310, 310}, "A"},
        {{480, 380}, {440, 360}, "B"},
        {{380, 200}, {380, 500}, "AB"},
        // Two corners of the box around D: the one that D lies in, and one that it does not reach.
        {{690, 350}, {685, 345}, "D"},
        {{685, 270}, {690, 275}, ""},
    };
    for (const auto &[from, to, selection] : cases) {
        SCOPED_TRACE(selection);
        preview.gesture() = TSGesture();
        select("");
        press(from);
        preview.gesture().isInOverlay = false;
        drag(to);
        EXPECT_EQ(selected(), selection);
        EXPECT_EQ(preview.trackerState().boundsRect, QRectF(from, to).normalized());
        preview.mouseUp();
        EXPECT_EQ(preview.selection().editingOverlay() != nullptr, selected().size() == 1);
    }
}
