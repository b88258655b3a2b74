// The steps that a mark costs in each photo, one by one, at the sizes that a photo of 24 megapixels brings.

#include "overlays/TSTextRenderer.h"
#include "platform/paint/BoxBlur.h"
#include "platform/paint/PaintLayer.h"
#include "platform/paint/StampBlend.h"

#include <benchmark/benchmark.h>
#include <QGuiApplication>

namespace {

constexpr QSize wideMark(5500, 400);

TSTextPicture wideText()
{
    platform::TextAttributes look;
    look.font = platform::FontDescription{QStringLiteral("Helvetica"), {}, 36};
    look.foregroundColor = platform::Color::white();
    TSTextPicture picture;
    picture.text =
        platform::AttributedString(QStringLiteral("© Tessaro Photographs, all of them marked"), look);
    picture.look.isGlowEnable = true;
    picture.frameSize = wideMark;
    picture.glyphHeight = wideMark.height();
    return picture;
}

void renderText(benchmark::State &state)
{
    const TSTextPicture picture = wideText();
    for (auto _ : state) {
        TSTextRenderer renderer;
        renderer.render(picture);
        benchmark::DoNotOptimize(renderer.image().constBits());
    }
}
BENCHMARK(renderText)->Unit(benchmark::kMillisecond);

void blurShadow(benchmark::State &state)
{
    QImage mask(wideMark, QImage::Format_Alpha8);
    mask.fill(100);
    for (auto _ : state)
        benchmark::DoNotOptimize(platform::gaussianBlurred(mask, double(state.range(0))).constBits());
}
BENCHMARK(blurShadow)->Arg(3)->Arg(25)->Unit(benchmark::kMillisecond);

void layOverPhoto(benchmark::State &state)
{
    TSTextRenderer renderer;
    renderer.render(wideText());
    QImage photo(wideMark, QImage::Format_RGB888);
    photo.fill(Qt::gray);
    for (auto _ : state) {
        platform::blendOntoRGB888(photo, QPoint(0, 0), renderer.image(), 0.8);
        benchmark::DoNotOptimize(photo.bits());
    }
}
BENCHMARK(layOverPhoto)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
