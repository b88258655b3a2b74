#include "platform/paint/BoxBlur.h"

#include "support/Pictures.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

int at(const QImage &mask, int x, int y)
{
    return mask.rect().contains(x, y) ? mask.constScanLine(y)[x] : 0;
}

} // namespace

TEST(BoxBlurTest, IsTheMeanOverASquare)
{
    QImage mask = noise({23, 17}).convertToFormat(QImage::Format_Grayscale8);
    mask.reinterpretAsFormat(QImage::Format_Alpha8);
    for (const int side : {0, 1, 2, 3, 6, 11, 40}) {
        const QImage blurred = platform::boxBlurred(mask, side);
        ASSERT_EQ(blurred.size(), mask.size());
        // Of an even side the odd pixel of the spread lies to the right and below.
        const int after = std::max(0, side - 1) / 2;
        const int before = std::max(1, side) - 1 - after;
        int worst = 0;
        for (int y = 0; y < mask.height(); ++y)
            for (int x = 0; x < mask.width(); ++x) {
                double sum = 0;
                for (int v = y - before; v <= y + after; ++v)
                    for (int u = x - before; u <= x + after; ++u)
                        sum += at(mask, u, v);
                const double mean = sum / std::pow(before + after + 1, 2);
                worst = std::max(worst, int(std::ceil(std::fabs(mean - at(blurred, x, y)) - 0.02)));
            }
        EXPECT_LE(worst, 1) << side;
    }
    EXPECT_TRUE(platform::boxBlurred({}, 5).isNull());
}
