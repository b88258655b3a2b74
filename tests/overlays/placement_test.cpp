#include "overlays/TSText.h"
#include "support/Session.h"

#include <cmath>
#include <numbers>

namespace {

const QRectF kCanvas(0, 0, 800, 600);

class PlacementTest : public SessionTest {
protected:
    PlacementTest() { session.setCanvas(kCanvas); }
};

void giveRows(TSOverlay &overlay, int count)
{
    while (count-- > 0)
        overlay.appendRow();
}

/// Both forms of the place, in the order that callers keep.
void measure(TSOverlay &overlay)
{
    overlay.updateAlignmentAndRatio();
    overlay.updateOffsetPixel();
}

} // namespace

TEST_F(PlacementTest, NearestAnchorAndItsOffset)
{
    const std::tuple<QRectF, QRectF, unsigned, QPointF> cases[] = {
        {{100, 50, 800, 600}, {150, 80, 200, 100}, 0, {50, 30}},
        {kCanvas, {500, 400, 200, 100}, 4, {-100, -100}},
        {kCanvas, {300, 10, 200, 100}, 1, {0, 10}},
        {kCanvas, {590, 10, 200, 100}, 2, {-10, 10}},
        {kCanvas, {590, 260, 200, 100}, 3, {-10, 10}},
        {kCanvas, {310, 480, 200, 100}, 5, {10, -20}},
        {kCanvas, {10, 480, 200, 100}, 6, {10, -20}},
        {kCanvas, {10, 240, 200, 100}, 7, {10, -10}},
        {kCanvas, {300, 250, 200, 100}, 8, {0, 0}},
        // Of anchors that tie, the higher code wins.
        {kCanvas, kCanvas, 8, {0, 0}},
        {kCanvas, {0, 0, 800, 100}, 2, {0, 0}},
        {kCanvas, {0, 0, 100, 600}, 7, {0, 0}},
        {kCanvas, {700, 0, 100, 600}, 4, {0, 0}},
        {kCanvas, {0, 500, 800, 100}, 6, {0, 0}},
        // A tie is all within a millionth, whichever is truly nearer.
        {kCanvas, {0, 0, 800 - 1.4e-6, 100}, 1, {-7e-7, 0}},
        {kCanvas, {0, 0, 800 - 3e-6, 100}, 0, {0, 0}},
        {kCanvas, {2000, -500, 10, 10}, 2, {1210, -500}},
    };
    session.data.photoRatioOfSize = 0.5;
    for (const auto &[canvas, frame, anchor, offset] : cases) {
        SCOPED_TRACE(testing::Message() << frame.x() << ',' << frame.y() << ' ' << frame.width());
        session.data.canvasFrame = canvas;
        TSOverlay overlay;
        overlay.setFrame(frame);
        measure(overlay);
        EXPECT_EQ(overlay.wmAlignment(), anchor);
        const QRectF &ratio = overlay.ratioOfFrameByAlignment();
        expectNear(ratio.topLeft(), {offset.x() / canvas.width(), offset.y() / canvas.height()});
        EXPECT_DOUBLE_EQ(ratio.width(), frame.width() / canvas.width());
        EXPECT_DOUBLE_EQ(ratio.height(), frame.height() / canvas.height());
        expectNear({overlay.xPixel(), overlay.yPixel()}, offset * 2);
    }
}

TEST_F(PlacementTest, PinsGoOverTheNearestAnchor)
{
    const std::array<unsigned, 4> cases[] = {{9, 9, 9, 0}, {3, 9, 9, 3}, {3, 5, 9, 5},
                                             {3, 5, 7, 7}, {9, 9, 7, 7}, {3, 9, 0, 0}};
    for (const auto &[unionPin, offsetPin, oldPin, result] : cases) {
        TSOverlay overlay;
        overlay.setFrame({10, 10, 200, 100});
        overlay.setWmUnionAlignment(unionPin);
        overlay.setOffsetAlignment(offsetPin);
        session.data.oldAlignment = oldPin;
        overlay.updateAlignmentAndRatio();
        EXPECT_EQ(overlay.wmAlignment(), result);
    }
}

TEST_F(PlacementTest, OffsetWithoutAnchorIsDividedAgain)
{
    TSOverlay overlay;
    overlay.setXPixel(8);
    overlay.setYPixel(-2);
    session.data.photoRatioOfSize = 0.5;
    overlay.updateOffsetPixel();
    EXPECT_EQ(QPointF(overlay.xPixel(), overlay.yPixel()), QPointF(16, -4));
}

TEST_F(PlacementTest, WhatARebuildHoldsOnTo)
{
    const std::tuple<unsigned, QRectF, double, bool, QRectF> cases[] = {
        {2, {100, 50, 400, 300}, 1, false, {395, 55, 100, 50}},
        // A wider canvas moves the anchor and keeps the size.
        {2, {0, 0, 1600, 600}, 1, false, {1380, 10, 200, 100}},
        {2, {0, 0, 1600, 600}, 1, true, {1390, 10, 200, 100}},
        // A doubled scale doubles the offset in pixels alone.
        {2, kCanvas, 2, true, {580, 20, 200, 100}},
        {2, kCanvas, 2, false, {590, 10, 200, 100}},
        // Without an anchor the origin stays.
        {9, {50, 60, 400, 300}, 1, false, {590, 10, 100, 50}},
        {9, {50, 60, 400, 300}, 1, true, {590, 10, 100, 50}},
    };
    for (const auto &[anchor, canvas, pointsPerPixel, byPixel, frame] : cases) {
        SCOPED_TRACE(testing::Message() << anchor << byPixel << canvas.width());
        session.setCanvas(kCanvas, 1);
        TSOverlay overlay;
        overlay.setFrame({590, 10, 200, 100});
        measure(overlay);
        overlay.setWmAlignment(anchor);
        session.setCanvas(canvas, pointsPerPixel);
        if (byPixel)
            overlay.updateFrameByOffsetPixel(false);
        else
            overlay.updateFrameByAlignmentRatio(false);
        expectRect(overlay.frame(), frame);
        expectRect(overlay.tracker()->frame(), frame);
    }
}

TEST_F(PlacementTest, OnlyTheHeightShareAndTheShapeMakeTheSize)
{
    TSOverlay overlay;
    overlay.setFrame({0, 0, 30, 10});
    overlay.setRatioOfFrameByAlignment({0, 0, 0.9, 0.1});
    overlay.setWmAlignment(0);
    overlay.updateFrameByAlignmentRatio(false);
    expectRect(overlay.frame(), 0, 0, 180, 60);
    overlay.setFrame({5, 6, 20, 10});
    overlay.updateOverlaySize();
    expectRect(overlay.frame(), 5, 6, 120, 60);
    overlay.updateSizeRatio();
    expectRect(overlay.ratioOfFrameByAlignment(), 0, 0, 0.1, 0.1);
}

TEST_F(PlacementTest, RowsFollowInBatchAndInAdjust)
{
    session.addPhotos(3);
    session.photos.setSelectedPhoto(1);
    session.data.photoRatioOfSize = 3;
    for (const bool isBatch : {true, false}) {
        TSSetBatchControlOverlay(isBatch);
        TSOverlay overlay;
        giveRows(overlay, 3);
        overlay.setFrame({590, 10, 200, 100});
        overlay.setAngle(0.1);
        measure(overlay);
        EXPECT_EQ(valuesOf(overlay, &TSRow::angle),
                  (std::vector<float>{isBatch ? 0.1f : 0, 0.1f, isBatch ? 0.1f : 0}));
        EXPECT_EQ(valuesOf(overlay, &TSRow::wmAlignment),
                  (std::vector<unsigned>{isBatch ? 2u : 9u, 2, isBatch ? 2u : 9u}));
        EXPECT_EQ(overlay.rows().at(0)->ratioOfFrameByAlignment.width(), isBatch ? 0.25 : 0);
        EXPECT_EQ(overlay.rows().at(2)->xPixel, isBatch ? float(-10.0 / 3) : 0);
        overlay.loadRow(1);
        EXPECT_EQ(overlay.angle(), double(0.1f)) << "rows are 32 bits wide";
        EXPECT_EQ(overlay.xPixel(), double(float(-10.0 / 3)));
        overlay.loadRow(7);
        EXPECT_EQ(overlay.wmAlignment(), 2u) << "a row that is missing changes nothing";
    }
}

TEST_F(PlacementTest, ScriptTextHasNoPlaceButItsOriginAndAngle)
{
    session.addPhotos(2);
    session.photos.setSelectedPhoto(0);
    TSText text("tile");
    text.setFrame({10, 20, 200, 100});
    text.updateAlignmentAndRatio();
    giveRows(text, 2);
    const QRectF ratio = text.rows().at(0)->ratioOfFrameByAlignment;
    text.setTextType(TSTextType::Script);
    text.setScriptOrigin({0.5, -0.25});
    text.setAngle(0.7);
    text.setFrame({500, 400, 20, 10});
    measure(text);
    expectRect(text.rows().at(0)->ratioOfFrameByAlignment, ratio);
    EXPECT_EQ(text.rows().at(0)->wmAlignment, 0u);
    EXPECT_EQ(text.rows().at(0)->xPixel, 0.0f);
    EXPECT_EQ(text.rows().at(0)->scriptOrigin, QPointF(0.5, -0.25));
    EXPECT_EQ(text.rows().at(1)->scriptOrigin, QPointF(0, 0)) << "the other photo's row in Adjust";
    EXPECT_EQ(text.rows().at(0)->angle, 0.7f);
    session.setCanvas({5, 6, 70, 80});
    text.updateFrameByAlignmentRatio(false);
    expectRect(text.frame(), 5, 6, 70, 80);
    session.setCanvas({1, 2, 30, 40});
    text.updateFrameByOffsetPixel(false);
    expectRect(text.frame(), 1, 2, 30, 40);
}

TEST_F(PlacementTest, PlaceInsideAUnion)
{
    TSOverlay overlay;
    overlay.setFrame({150, 80, 20, 10});
    overlay.updateOriginRatio({100, 50, 200, 120});
    EXPECT_EQ(overlay.originRatio(), QSizeF(0.25, 0.25));
    overlay.updateOriginByUnionFrame({0, 0, 400, 40});
    expectRect(overlay.frame(), 100, 10, 20, 10);
    EXPECT_EQ(overlay.wmAlignment(), 0u);
    EXPECT_EQ(overlay.xPixel(), 100);
    expectRect(overlay.tracker()->frame(), QRectF());
}

TEST_F(PlacementTest, TurnsAboutTheMiddle)
{
    TSOverlay overlay;
    overlay.setFrame({0, 0, 100, 40});
    overlay.setAngle(std::numbers::pi / 2);
    expectNear(overlay.convertPointToPreview({0, 0}), {70, -30});
    expectNear(overlay.convertRectToPreview(overlay.frame()).topLeft(), {30, -30});
    overlay.setAngle(0.3);
    expectNear(overlay.convertPointToPreview(overlay.convertPoint({12, 34})), {12, 34});
    const QRectF turned = overlay.convertRect(overlay.frame());
    EXPECT_NEAR(turned.width(), 100 * std::cos(0.3) + 40 * std::sin(0.3), 1e-9);

    overlay.setAngle(std::numbers::pi / 2);
    overlay.updateFrameByCenterPoint({30, 20});
    expectNear(overlay.frame().topLeft(), {-20, 20});
    EXPECT_EQ(overlay.frame().size(), QSizeF(100, 40));
    expectRect(overlay.tracker()->frame(), overlay.frame());
}
