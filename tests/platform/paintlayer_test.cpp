#include "platform/PaintLayer.h"

#include <gtest/gtest.h>
#include <numbers>

namespace {

const QSize kCanvas(60, 40);

QImage square(int side, const QColor &color)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

QImage painted(const platform::PaintLayer &layer)
{
    QImage image(layer.canvas(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    layer.paint(painter, image.rect());
    return image;
}

/// The box around what is at least half covered, in the colour asked for.
QRect boxOf(const QImage &image, bool isRed)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.alpha() >= 128 && (color.red() > 128) == isRed)
                box |= QRect(x, y, 1, 1);
        }
    return box;
}

} // namespace

TEST(PaintLayerTest, KeepsWhatTouchesTheCanvas)
{
    const std::pair<QRectF, bool> cases[] = {{{10, 10, 5, 5}, true},      {{-5, -5, 5, 5}, false},
                                             {{-4.5, -4.5, 5, 5}, true},  {{60, 0, 5, 5}, false},
                                             {{59.5, 39.5, 5, 5}, true},  {{10, 10, 0, 5}, false},
                                             {{qInf(), 10, 5, 5}, false}, {{qQNaN(), 10, 5, 5}, false}};
    for (const auto &[rect, kept] : cases) {
        platform::PaintLayer layer(kCanvas);
        layer.drawImage(rect, square(5, Qt::red));
        EXPECT_EQ(!layer.isEmpty(), kept) << rect.x() << ',' << rect.y();
    }
    platform::PaintLayer layer(kCanvas);
    layer.drawImage({0, 0, 5, 5}, {});
    EXPECT_TRUE(layer.isEmpty());
    layer.drawImage({10.5, 10, 5, 5}, square(5, Qt::red));
    EXPECT_TRUE(layer.meets({15, 14, 1, 1}));
    EXPECT_FALSE(layer.meets({16, 14, 5, 5}));
    EXPECT_FALSE(layer.meets({0, 0, 60, 10}));
}

TEST(PaintLayerTest, ShadowFallsByItsOffsetWhateverTheTransform)
{
    for (const double angle : {0.0, std::numbers::pi / 2, std::numbers::pi}) {
        platform::PaintLayer layer(kCanvas);
        layer.setShadow({20, 10}, 0, {0, 0, 1, 1});
        layer.translate(15, 15);
        layer.rotate(angle);
        layer.drawImage({-5, -5, 10, 10}, square(10, Qt::red));
        const QImage image = painted(layer);
        EXPECT_EQ(boxOf(image, true), QRect(10, 10, 10, 10)) << angle;
        EXPECT_EQ(boxOf(image, false), QRect(30, 20, 10, 10)) << angle;
    }
}

TEST(PaintLayerTest, ShadowFadesWithItsCasterAndSpreadsByItsBlur)
{
    platform::PaintLayer layer({100, 100});
    layer.setShadow({0, 50}, 8, {0, 0, 1, 0.5});
    layer.setAlpha(0.5);
    layer.drawImage({30, 10, 40, 30}, square(8, Qt::red));
    const QImage image = painted(layer);
    EXPECT_NEAR(image.pixelColor(50, 75).alpha(), 64, 2);
    EXPECT_NEAR(image.pixelColor(30, 75).alpha(), 32, 6) << "half at the edge";
    EXPECT_EQ(image.pixelColor(10, 75).alpha(), 0);
    for (const auto &[alpha, red] : {std::pair(5.0, 255), {-1.0, 0}}) {
        platform::PaintLayer beyond(kCanvas);
        beyond.setAlpha(alpha);
        beyond.drawImage({0, 0, 8, 8}, square(8, Qt::red));
        QImage photo(kCanvas, QImage::Format_RGB888);
        photo.fill(Qt::black);
        beyond.paintOnto(photo, {0, 0});
        EXPECT_EQ(photo.pixelColor(4, 4), QColor(red, 0, 0)) << alpha;
    }

    platform::PaintLayer outside(kCanvas);
    outside.setShadow({100, 0}, 0, {0, 0, 1, 1});
    outside.drawImage({-90, 10, 10, 10}, square(10, Qt::red));
    EXPECT_EQ(boxOf(painted(outside), false), QRect(10, 10, 10, 10)) << "a caster out of sight still casts";
}
