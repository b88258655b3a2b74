#include "controls/TSImageBrowserView.h"
#include "controls/TSStyle.h"

#include <benchmark/benchmark.h>
#include <QApplication>
#include <QScrollBar>

namespace {

/// Every photo with a picture of its own, as large as a thumbnail is kept.
class Photos : public TSImageBrowserDataSource {
public:
    explicit Photos(int count) : m_count(count) {}

    int numberOfItemsInImageBrowser() const override { return m_count; }
    QString imageTitle(int index) const override { return QStringLiteral("IMG_%1.jpg").arg(index); }
    QString imageDescription(int index) const override { return imageTitle(index); }
    QString resourcePath(int) const override { return {}; }
    QImage thumbnail(int index, const QSize &) override
    {
        QImage &image = m_images[index];
        if (image.isNull()) {
            image = QImage(300, 200, QImage::Format_RGB32);
            image.fill(QColor::fromHsv(index % 360, 90, 200));
        }
        return image;
    }

private:
    int m_count;
    std::map<int, QImage> m_images;
};

/// One step of scrolling, from the bar to painted pixels, over fresh photos or over ones seen before.
void scrollStep(benchmark::State &state, int step)
{
    Photos photos(int(state.range(0)));
    TSImageBrowserView view(TSImageBrowserView::Arrangement::Strip);
    view.setDataSource(&photos);
    view.resize(1440, view.minimumSizeHint().height());
    QImage screen(view.size() * 2, QImage::Format_ARGB32_Premultiplied);
    screen.setDevicePixelRatio(2);
    QScrollBar *bar = view.horizontalScrollBar();
    view.render(&screen);
    for (auto _ : state) {
        bar->setValue(bar->value() >= bar->maximum() ? 0 : bar->value() + step);
        view.render(&screen);
    }
}

void reload(benchmark::State &state)
{
    Photos photos(int(state.range(0)));
    TSImageBrowserView view(TSImageBrowserView::Arrangement::Strip);
    view.setDataSource(&photos);
    view.resize(1440, view.minimumSizeHint().height());
    for (auto _ : state)
        view.reloadData();
}

BENCHMARK_CAPTURE(scrollStep, few_pixels, 12)->Arg(50)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(scrollStep, whole_page, 1400)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(reload)->Arg(5000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    TSStyle::apply(TSTheme::Scheme::Dark);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
