#include "support/Pictures.h"

#include <gtest/gtest.h>

namespace {

const QSize kCanvas(60, 40);

} // namespace

TEST(PaintLayerTest, KeepsWhatTouchesTheCanvas)
{
    const std::pair<QRectF, bool> cases[] = {{{10, 10, 5, 5}, true},      {{-5, -5, 5, 5}, false},
                                             {{-4.5, -4.5, 5, 5}, true},  {{60, 0, 5, 5}, false},
                                             {{59.5, 39.5, 5, 5}, true},  {{10, 10, 0, 5}, false},
                                             {{qInf(), 10, 5, 5}, false}, {{qQNaN(), 10, 5, 5}, false}};
    for (const auto &[rect, kept] : cases) {
        platform::PaintLayer layer(kCanvas);
        layer.drawImage(rect, plainImage({5, 5}, Qt::red));
        EXPECT_EQ(!layer.isEmpty(), kept) << rect.x() << ',' << rect.y();
    }
    platform::PaintLayer layer(kCanvas);
    layer.drawImage({0, 0, 5, 5}, {});
    EXPECT_TRUE(layer.isEmpty());
    layer.drawImage({10.5, 10, 5, 5}, plainImage({5, 5}, Qt::red));
    EXPECT_TRUE(layer.meets({15, 14, 1, 1}));
    EXPECT_FALSE(layer.meets({16, 14, 5, 5}));
    EXPECT_FALSE(layer.meets({0, 0, 60, 10}));
}

TEST(PaintLayerTest, ShadowFadesWithItsCasterAndSpreadsByItsBlur)
{
    platform::PaintLayer layer({100, 100});
    layer.setShadow({0, 50}, 8, {0, 0, 1, 0.5});
    layer.setAlpha(0.5);
    layer.drawImage({30, 10, 40, 30}, plainImage({8, 8}, Qt::red));
    const QImage image = painted(layer);
    EXPECT_NEAR(image.pixelColor(50, 75).alpha(), 64, 2);
    EXPECT_NEAR(image.pixelColor(30, 75).alpha(), 32, 6) << "half at the edge";
    EXPECT_EQ(image.pixelColor(10, 75).alpha(), 0);
    for (const auto &[alpha, red] : {std::pair(5.0, 255), {-1.0, 0}}) {
        platform::PaintLayer beyond(kCanvas);
        beyond.setAlpha(alpha);
        beyond.drawImage({0, 0, 8, 8}, plainImage({8, 8}, Qt::red));
        QImage photo(kCanvas, QImage::Format_RGB888);
        photo.fill(Qt::black);
        beyond.paintOnto(photo, {0, 0});
        EXPECT_EQ(photo.pixelColor(4, 4), QColor(red, 0, 0)) << alpha;
    }

    platform::PaintLayer outside(kCanvas);
    outside.setShadow({100, 0}, 0, {0, 0, 1, 1});
    outside.drawImage({-90, 10, 10, 10}, plainImage({10, 10}, Qt::red));
    EXPECT_EQ(extentOf(painted(outside), Qt::blue), QRect(10, 10, 10, 10))
        << "a caster out of sight still casts";
}

/// Corner and step are no whole numbers, and their fractions do not add up: each tile is rounded by itself.
TEST(PaintLayerTest, EveryTileStandsOnThePixelNearestToItsPlace)
{
    for (const double corner : {0.0, 0.4, 0.45, 7.6}) {
        platform::PaintLayer layer({200, 10});
        layer.drawTiledImage({corner, 0, 10.42, 10}, {2, 10}, plainImage({2, 10}, Qt::red));
        const QImage image = painted(layer);
        for (int tile = 0; tile < 18; ++tile) {
            const int x = qRound(corner + tile * 10.42);
            EXPECT_EQ(qAlpha(image.pixel(x, 5)), 255) << corner << ", tile " << tile;
            EXPECT_EQ(qAlpha(image.pixel(x + 2, 5)), 0) << corner << ", tile " << tile;
        }
    }
}
