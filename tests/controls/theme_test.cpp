#include "controls/TSIcon.h"
#include "controls/TSStyle.h"

#include <cmath>
#include <gtest/gtest.h>
#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <set>

namespace {

double luminance(const QColor &color)
{
    const auto linear = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const auto [low, high] = std::minmax({luminance(a), luminance(b)});
    return (high + 0.05) / (low + 0.05);
}

QImage painted(TSIcon::Name name)
{
    QImage image(40, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    TSIcon::paint(painter, image.rect(), name, Qt::black);
    return image;
}

} // namespace

TEST(Theme, CanBeReadAndDoesNotTintPhotos)
{
    const std::tuple<QPalette::ColorRole, QPalette::ColorRole, double> pairs[] = {
        {QPalette::WindowText, QPalette::Window, 7},
        {QPalette::Text, QPalette::Base, 7},
        {QPalette::ButtonText, QPalette::Button, 7},
        {QPalette::ToolTipText, QPalette::ToolTipBase, 7},
        {QPalette::PlaceholderText, QPalette::Base, 4.5},
        {QPalette::HighlightedText, QPalette::Highlight, 4.5},
        {QPalette::Highlight, QPalette::Window, 3},
        {QPalette::Highlight, QPalette::Base, 3},
        {QPalette::Mid, QPalette::Window, 2.9},
    };
    for (const auto scheme : {TSTheme::Scheme::Light, TSTheme::Scheme::Dark}) {
        const QPalette palette = TSTheme::palette(scheme);
        EXPECT_EQ(TSTheme::isDark(palette), scheme == TSTheme::Scheme::Dark);
        for (const auto &[ink, surface, least] : pairs)
            EXPECT_GE(contrast(palette.color(ink), palette.color(surface)), least)
                << ink << " on " << surface;
        for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button, QPalette::Mid})
            EXPECT_EQ(palette.color(role).saturation(), 0) << role;
    }
}

TEST(Theme, ShowsTheFocusOnAnAccentedButton)
{
    TSStyle::apply(TSTheme::Scheme::Light);
    QPushButton button(QStringLiteral("OK"));
    button.setDefault(true);
    button.resize(button.sizeHint());
    const QImage without = button.grab().toImage();
    button.show();
    QApplication::setActiveWindow(&button);
    button.setFocus();
    const QImage with = button.grab().toImage();
    const int middle = button.height() / 2;
    int different = 0;
    for (int x = 0; x < 8; ++x)
        different += contrast(without.pixelColor(x, middle), with.pixelColor(x, middle)) > 2.5;
    EXPECT_GE(different, 1);
}

TEST(Icons, AreAllDrawnAllDifferentAndInsideTheirSquare)
{
    std::set<QByteArray> seen;
    for (int i = 0; i <= int(TSIcon::Name::Warning); ++i) {
        const QImage image = painted(TSIcon::Name(i));
        seen.insert(QByteArray(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes()));
        for (int at = 0; at < image.width(); ++at) {
            EXPECT_EQ(image.pixelColor(at, 0).alpha(), 0) << i;
            EXPECT_EQ(image.pixelColor(0, at).alpha(), 0) << i;
        }
    }
    const int sharedPictures = 1;
    EXPECT_EQ(int(seen.size()), int(TSIcon::Name::Warning) + 1 - sharedPictures);
    EXPECT_EQ(seen.count(QByteArray(40 * 40 * 4, '\0')), 0u);
}
