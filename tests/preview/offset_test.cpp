#include "support/PreviewSession.h"

namespace {

class OffsetTest : public PreviewTest {
protected:
    void pressKey(int key) { preview.trackerLayer().keyDown(key); }
};

} // namespace

/// The canvas is 1000 by 800 points at (0, 0), half a point a pixel.
TEST_F(OffsetTest, ArrowsTakeAStepInTheUnitOfTheSession)
{
    const std::tuple<unsigned, QRectF, int, QPointF> cases[] = {
        // From the bottom right, a quarter of a percent of 1000 or 800 points.
        {TSOffsetUnit::Percentage, {880, 740, 100, 40}, Qt::Key_Left, {877.5, 740}},
        {TSOffsetUnit::Percentage, {880, 740, 100, 40}, Qt::Key_Right, {882.5, 740}},
        {TSOffsetUnit::Percentage, {880, 740, 100, 40}, Qt::Key_Up, {880, 738}},
        {TSOffsetUnit::Percentage, {880, 740, 100, 40}, Qt::Key_Down, {880, 742}},
        // What is shown has two decimals, and the step starts from it: 1.23 %.
        {TSOffsetUnit::Percentage, {12.34, 20, 100, 40}, Qt::Key_Right, {14.8, 20}},
        // In pixels only the way back to the anchor leads anywhere.
        {TSOffsetUnit::Pixel, {880, 740, 100, 40}, Qt::Key_Right, {880.5, 740}},
        {TSOffsetUnit::Pixel, {880, 740, 100, 40}, Qt::Key_Left, {880, 740}},
        {TSOffsetUnit::Pixel, {0, 20, 100, 40}, Qt::Key_Right, {0, 20}},
        {TSOffsetUnit::Pixel, {10, 20, 100, 40}, Qt::Key_Up, {10, 19.5}},
        {TSOffsetUnit::Percentage, {880, 740, 100, 40}, Qt::Key_A, {880, 740}},
    };
    for (const auto &[unit, frame, key, corner] : cases) {
        session.overlays.removeAllOverlay();
        session.setCanvas({0, 0, 1000, 800}, 0.5);
        session.data.pUnit = unit;
        const auto overlay = put('A', frame);
        overlay->updateAlignmentAndRatio();
        preview.selection().selectOverlay(overlay);
        pressKey(key);
        expectNear(overlay->frame().topLeft(), corner, 1e-4);
        EXPECT_EQ(overlay->frame().size(), frame.size());
    }
}

TEST_F(OffsetTest, SeveralMoveAsOneBlock)
{
    session.setCanvas({0, 0, 1000, 800}, 0.5);
    const auto a = put('A', {700, 600, 100, 40}), b = put('B', {880, 740, 100, 40});
    preview.selection().selectAllOverlays();
    expectNear(preview.offset().offsetByPercentage(), {-2, -2.5});
    EXPECT_EQ(preview.offset().offsetByPixel(), QPoint(-40, -40));
    preview.offset().changeXOffsetByPercentage(-10);
    expectNear(a->frame().topLeft(), {620, 600}, 1e-4);
    expectNear(b->frame().topLeft(), {800, 740}, 1e-4);
    preview.offset().changeYOffsetByPixel(0);
    expectNear(a->frame().topLeft(), {620, 620}, 1e-4);
    expectNear(b->frame().topLeft(), {800, 760}, 1e-4);
    EXPECT_EQ(a->wmAlignment(), TSPositionCode::RightBottom);
}

/// However far they go, and whichever anchor comes nearer on the way: each step is as long as the first.
TEST_F(OffsetTest, SeveralGoStepByStepAcrossTheCanvas)
{
    session.setCanvas({0, 0, 1000, 800}, 0.5);
    for (const unsigned unit : {TSOffsetUnit::Percentage, TSOffsetUnit::Pixel}) {
        session.data.pUnit = unit;
        session.overlays.removeAllOverlay();
        const auto a = put('A', {10, 20, 100, 40}), b = put('B', {60, 100, 100, 40});
        preview.selection().selectAllOverlays();
        const double step = unit == TSOffsetUnit::Percentage ? 2.5 : -0.5;
        const int key = unit == TSOffsetUnit::Percentage ? Qt::Key_Right : Qt::Key_Left;
        for (int count = 1; count <= 300; ++count) {
            pressKey(key);
            const double expected =
                unit == TSOffsetUnit::Percentage ? count * step : std::max(-10.0, count * step);
            ASSERT_NEAR(a->frame().x() - 10, expected, 0.03 * count) << count;
            expectNear(b->frame().topLeft() - a->frame().topLeft(), {50, 80}, 1e-3);
        }
        expectNear({a->frame().y(), b->frame().y()}, {20, 100}, 1e-3);
    }
}
