#include "support/PreviewSession.h"

namespace {

class CanvasTest : public PreviewTest {
protected:
    void zoom(const char *title) { preview.presenter().zoomingTheSize(QString::fromLatin1(title)); }
    QString percentage() { return preview.zoomList().itemTitles().first(); }
};

} // namespace

TEST_F(CanvasTest, FitsAndNeverEnlarges)
{
    const std::tuple<QSizeF, QRectF, double> cases[] = {
        {{800, 600}, {100, 100, 800, 600}, 1},
        {{2000, 1000}, {0, 150, 1000, 500}, 0.5},
        // 40 points to spare, vertically alone.
        {{1600, 1600}, {120, 20, 760, 760}, 0.475},
        {{500, 760}, {250, 20, 500, 760}, 1},
        {{500, 790}, {500 - 190000.0 / 790, 20, 380000.0 / 790, 760}, 760.0 / 790},
    };
    for (const auto &[size, canvas, ratio] : cases) {
        SCOPED_TRACE(testing::Message() << size.width() << 'x' << size.height());
        const auto photo = addPhoto(size);
        preview.presenter().showFrameAtIndex(photo->index);
        expectNear(session.data.canvasFrame.topLeft(), canvas.topLeft());
        expectNear(session.data.canvasFrame.bottomRight(), canvas.bottomRight());
        expectRect(session.data.previewFrame, 0, 0, 1000, 800);
        EXPECT_DOUBLE_EQ(session.data.photoRatioOfSize, ratio);
    }
    expectNear(preview.layout().convertPointToOverlaysView({10, 30}), {10, 770});
    session.setCanvas({100, 50, 400, 300}, 0.5);
    expectNear(TSCanvasLayout::convertPointToPhoto({150, 80}), {100, 60});
}

TEST_F(CanvasTest, FixedZoomsGrowThePreviewAndLightTheirEntries)
{
    const std::tuple<const char *, QRectF, QSizeF, QPointF, double, const char *, size_t> cases[] = {
        {"400%", {0, 0, 3200, 2400}, {3200, 2400}, {1100, 800}, 4, "400%", 10},
        {"50%", {300, 250, 400, 300}, {1000, 800}, {0, 0}, 0.5, "50%", 3},
        {"Fit", {100, 100, 800, 600}, {1000, 800}, {0, 0}, 1, "100%", 0},
        // Item 0 has this title too now, and comes first.
        {"100%", {100, 100, 800, 600}, {1000, 800}, {0, 0}, 1, "100%", 10},
    };
    for (const auto &[title, canvas, previewSize, scroll, ratio, shown, menuItem] : cases) {
        SCOPED_TRACE(title);
        const bool isFit = QLatin1String(title) == QLatin1String("Fit");
        zoom(title);
        expectRect(session.data.canvasFrame, canvas);
        EXPECT_EQ(view.previewFrame.size(), previewSize);
        EXPECT_EQ(view.scrolledTo, scroll);
        EXPECT_EQ(session.data.photoRatioOfSize, ratio);
        EXPECT_EQ(session.data.sizeMode, isFit ? TSSizeMode::Fit : TSSizeMode::FixedZoom);
        EXPECT_EQ(preview.layout().photo()->sizeMode, session.data.sizeMode);
        EXPECT_EQ(preview.zoomList().title(), QLatin1String(shown));
        EXPECT_EQ(preview.zoomList().isFitMarked(), isFit);
        for (size_t i = 0; i < preview.zoomList().menuItems().size(); ++i)
            EXPECT_EQ(preview.zoomList().menuItems()[i], i == menuItem) << i;
    }
    preview.presenter().zoomingTheSize(QStringLiteral("75%"), 2);
    EXPECT_TRUE(preview.zoomList().menuItems()[2]);
    EXPECT_EQ(session.data.photoRatioOfSize, 0.75);
}

TEST_F(CanvasTest, AtAFixedZoomThePreviewFollowsTheWindowAtOnce)
{
    zoom("50%");
    for (const QSizeF size : {QSizeF(1200, 900), QSizeF(700, 500), QSizeF(1000, 800)}) {
        view.visible.setSize(size);
        Q_EMIT session.center.TSWindowWillResizeOrZooming();
        EXPECT_EQ(view.previewFrame.size(), size);
        expectNear(session.data.canvasFrame.center(), {size.width() / 2, size.height() / 2});
    }
}

TEST_F(CanvasTest, AFixedZoomGoesFromPhotoToPhotoAndFitDoesNot)
{
    addPhoto({2000, 1000});
    zoom("200%");
    QStringList &log = listen();
    preview.presenter().showFrameAtIndex(1);
    EXPECT_EQ(log, (QStringList{"output", "alignment", "offset"}));
    expectRect(session.data.canvasFrame, 0, 0, 4000, 2000);
    zoom("Fit");
    EXPECT_EQ(percentage(), QStringLiteral("50%"));
    preview.presenter().showFrameAtIndex(0);
    EXPECT_EQ(session.data.photoRatioOfSize, 1);
    preview.presenter().showFrameAtIndex(5);
    EXPECT_EQ(preview.layout().photo(), session.photos.photoAtIndex(0)) << "no photo there";
    preview.presenter().showFrameAtIndex(-1);
    EXPECT_EQ(preview.layout().photo(), nullptr);
}

TEST_F(CanvasTest, PinchesStopAtTheLimits)
{
    const std::tuple<double, QRectF, double, const char *> cases[] = {
        {0.5, {0, 0, 1200, 900}, 1.5, "150%"},
        {9, {0, 0, 3200, 2400}, 4, "400%"},
        {-0.99, {480, 385, 40, 30}, 0.05, "5%"},
        {0.375, {472.5, 379.375, 55, 41.25}, 0.06875, "6%"},
    };
    for (const auto &[magnification, canvas, ratio, shown] : cases) {
        SCOPED_TRACE(shown);
        preview.presenter().magnifyWithEvent(magnification);
        expectRect(session.data.canvasFrame, canvas);
        EXPECT_DOUBLE_EQ(session.data.photoRatioOfSize, ratio);
        EXPECT_EQ(percentage(), QLatin1String(shown));
    }
}

TEST_F(CanvasTest, ResizeWaysSetTheOutputSizeAndChangeNothingOnScreen)
{
    const std::tuple<unsigned, double, double, double, QSizeF> cases[] = {
        {0, 400, 150, 25, {800, 600}}, {1, 400, 150, 25, {400, 300}}, {2, 400, 150, 25, {200, 150}},
        {3, 400, 150, 25, {200, 150}}, {4, 400, 400, 25, {400, 300}}, {4, 1600, 900, 25, {1200, 900}},
        {4, 0, 400, 25, {77, 88}},     {5, 400, 150, 25, {77, 88}},
    };
    for (const auto &[way, width, height, percentage, size] : cases) {
        SCOPED_TRACE(testing::Message() << way << ' ' << width);
        session.data.resizeWay = way;
        session.data.outputWidth = width;
        session.data.outputHeight = height;
        session.data.percentage = percentage;
        preview.layout().photo()->photoOutputSize = QSizeF(77, 88);
        preview.layout().updateOutputSize();
        EXPECT_NEAR(preview.layout().photoOutputSize().width(), size.width(), 1e-4);
        EXPECT_NEAR(preview.layout().photoOutputSize().height(), size.height(), 1e-4);
        Q_EMIT session.center.TSResizingPhotoView();
        EXPECT_EQ(preview.layout().photoOutputSize(), QSizeF(800, 600));
        expectRect(session.data.canvasFrame, 100, 100, 800, 600);
    }
}

TEST_F(CanvasTest, OverlaysFollowTheCanvasByTheUnitLastWorkedIn)
{
    addPhoto({2000, 1000});
    for (const unsigned unit : {TSOffsetUnit::Percentage, TSOffsetUnit::Pixel}) {
        session.data.pUnit = unit;
        preview.presenter().showFrameAtIndex(0);
        session.overlays.removeAllOverlay();
        const auto overlay = put('A', {150, 130, 200, 100});
        zoom("50%");
        expectRect(overlay->frame(), 325, 265, 100, 50);
        zoom("Fit");
        preview.presenter().showFrameAtIndex(1);
        const bool isPixel = unit == TSOffsetUnit::Pixel;
        expectNear(overlay->frame().topLeft(), isPixel ? QPointF(25, 165) : QPointF(62.5, 175));
        EXPECT_NEAR(overlay->frame().width(), 500.0 / 3, 1e-9);
        view.visible = QRectF(0, 0, 500, 800);
        Q_EMIT session.center.TSWindowWillResizeOrZooming();
        expectRect(session.data.canvasFrame, 0, 275, 500, 250);
        expectNear(overlay->frame().topLeft(), isPixel ? QPointF(12.5, 282.5) : QPointF(31.25, 287.5));
        view.visible = QRectF(0, 0, 1000, 800);
    }
}
