#include "session/TSQuartzUtility.h"
#include "support/Session.h"

#include <limits>

TEST(QuartzUtilityTest, RectanglesFittedIntoOthers)
{
    const double third = double(1.0f / 3.0f);
    const struct {
        QRectF source, target, aspectFit, zoomed, resized;
    } cases[] = {
        {{0, 0, 200, 100}, {0, 0, 50, 50}, {0, 12.5, 50, 25}, {0, 12.5, 50, 25}, {0, 12.5, 50, 25}},
        // The centred coordinate of the first does not add the target's origin.
        {{0, 0, 200, 100},
         {10, 20, 400, 400},
         {10, 100, 400, 200},
         {10, 120, 400, 200},
         {110, 170, 200, 100}},
        {{7, 7, 100, 200},
         {10, 20, 400, 400},
         {100, 20, 200, 400},
         {110, 20, 200, 400},
         {160, 120, 100, 200}},
        {{0, 0, 1, 3},
         {0, 0, 300, 300},
         {(300 - third * 300) / 2, 0, third * 300, 300},
         {100, 0, 100, 300},
         {149.5, 148.5, 1, 3}},
        {{}, {0, 0, 10, 10}, {}, {}, {}},
        {{0, 0, 10, 10}, {}, {}, {}, {}},
    };
    for (const auto &[source, target, aspectFit, zoomed, resized] : cases) {
        SCOPED_TRACE(testing::Message() << source.width() << " in " << target.width());
        expectRect(TSAspectFitRect(source, target), aspectFit);
        double scale = -1;
        const QRectF zoom = TSZoomRect(source, target, &scale);
        EXPECT_NEAR(zoom.x(), zoomed.x(), 1e-5);
        EXPECT_NEAR(zoom.width(), zoomed.width(), 1e-5);
        EXPECT_NEAR(zoom.y(), zoomed.y(), 1e-5);
        EXPECT_NEAR(zoom.height(), zoomed.height(), 1e-5);
        EXPECT_DOUBLE_EQ(scale, zoomed.isNull() ? -1 : zoom.width() / source.width());
        float factor = -1;
        expectRect(TSResizeRect(source, target, &factor), resized);
        EXPECT_EQ(factor, resized.isNull() ? -1 : float(resized.width() / source.width()));
    }
}

TEST(QuartzUtilityTest, SizesInABox)
{
    const double shape = double(3.0f / 7.0f);
    const struct {
        QSizeF size, box, fitted, shrunk, covering;
    } cases[] = {
        {{100, 50}, {2000, 2000}, {2000, 1000}, {100, 50}, {4000, 2000}},
        {{100, 400}, {200, 100}, {25, 100}, {25, 100}, {200, 800}},
        {{400, 100}, {200, 100}, {200, 50}, {200, 50}, {400, 100}},
        {{400, 300}, {200, 100}, {400.0 / 3, 100}, {400.0 / 3, 100}, {200, 150}},
        {{3, 7}, {70, 70}, {shape * 70, 70}, {3, 7}, {70, 70 / shape}},
        {{0, 0}, {20, 20}, {0, 0}, {0, 0}, {0, 0}},
        {{10, 20}, {0, 0}, {10, 20}, {10, 20}, {0, 0}},
    };
    for (const auto &[size, box, fitted, shrunk, covering] : cases) {
        SCOPED_TRACE(testing::Message() << size.width() << 'x' << size.height());
        const auto expectSize = [](const QSizeF &got, const QSizeF &expected) {
            EXPECT_NEAR(got.width(), expected.width(), 1e-5);
            EXPECT_NEAR(got.height(), expected.height(), 1e-5);
        };
        expectSize(TSFitSizeInBox(size.width(), size.height(), box.width(), box.height()), fitted);
        if (!box.isNull())
            expectSize(TSShrinkSizeInBox(size.width(), size.height(), box.width(), box.height()), shrunk);
        expectSize(TSCoverSize(size.width(), size.height(), box.width(), box.height()), covering);
    }
    // The shape is told in 32 bits.
    EXPECT_EQ(TSFitSizeInBox(3, 7, 70, 70).width(), shape * 70);
    EXPECT_EQ(TSShrinkSizeInBox(30, 70, 7, 7).width(), shape * 7);
}

TEST(QuartzUtilityTest, SmallRectangleOperations)
{
    const QRectF rect(10.9, -3.5, 20.4, 30.6);
    expectRect(TSIntRect(rect), 10, -3, 21, 30);
    expectRect(TSRestrictRect({-5, 20, 50, 90}, {0, 0, 100, 100}), 0, 20, 50, 80);
    expectRect(TSRestrictRect({60, 70, 80, 20}, {10, 10, 100, 100}), 60, 70, 50, 20);
    expectRect(TSRectOffset({1, 2, 3, 4}, -1, 0.5f), 0, 2.5, 3, 4);
    expectRect(TSCenterAspectRect({10, 20, 400, 100}, {5, 5, 50, 50}), 160, 20, 100, 100);
    expectRect(TSCenterAspectRect({10, 20, 100, 400}, {5, 5, 50, 50}), 10, 170, 100, 100);
    EXPECT_EQ(TSCompareSize(5, 1, 4, 9), 1);
    EXPECT_EQ(TSCompareSize(4, 1, 5, 9), -1);
    EXPECT_EQ(TSCompareSize(8, 1, 9, 5), std::numeric_limits<int>::min())
        << "the width against the box's height";
}

TEST(QuartzUtilityDeathTest, BrokenPromisesEndTheProcess)
{
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    EXPECT_DEATH(TSRectOffset({1, 1, 3, 4}, -2, 0),
                 "rt.origin.x >= 0.*TSRectOffset.*Utility/TSQuartzUtility.*175");
    EXPECT_DEATH(TSRestrictRect({0, 0, 101, 5}, {0, 0, 100, 100}),
                 "iSrcWidth <= iCanvasWidth.*TSRestrictRect.*129");
    EXPECT_DEATH(TSZoomRect({0, 0, 1e9, 1}, {0, 0, 1e9 + 100, 1e-3}), "ratioNew - ratioOld.*TSZoomRect.*53");
}
