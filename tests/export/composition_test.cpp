#include "export/TSExportRun.h"
#include "naming/TSPatternParser.h"
#include "overlays/TSText.h"
#include "support/ExportSession.h"

namespace {

/// Notes what session it is drawn in.
class Probe : public TSOverlay {
public:
    void drawIncontext(platform::PaintLayer &) override
    {
        canvas = TSDataManager::dataManager()->canvasFrame;
        ratio = TSDataManager::dataManager()->photoRatioOfSize;
        selected = TSPhotoManager::photoManager()->selectedPhoto();
    }

    QRectF canvas;
    double ratio = 0;
    qint64 selected = -1;
};

class CompositionTest : public ExportTest {
protected:
    std::optional<TSOutputImage> compose(qint64 index, const QSizeF &size)
    {
        const auto photo = session.photos.photoAtIndex(index);
        m_composer.overlayArrays = session.overlays.overlays();
        return m_composer.createOutputImage(photo->path, QRectF(QPointF(0, 0), size), *photo, index, 1);
    }
    QImage pixels(qint64 index, const QSizeF &size)
    {
        auto output = compose(index, size);
        return output ? output->picture().toImage() : QImage();
    }
    QRect markOn(qint64 index, const QSizeF &size, const QColor &color = Qt::red)
    {
        return extentOf(pixels(index, size), color);
    }

    std::shared_ptr<TSText> addText(const QString &words, const QColor &color, const QRectF &frame)
    {
        auto text = std::make_shared<TSText>("I");
        platform::TextAttributes look = text->fontDic();
        look.foregroundColor = platform::Color{color.redF(), color.greenF(), color.blueF(), 1};
        text->setFontDic(look);
        text->setOpacity(1);
        text->updateTextString(*session.photos.photoAtIndex(0), TSPatternParser::words(words).values, false);
        text->setFrame(frame);
        text->updateTextFrame();
        addOverlay(text);
        return text;
    }

    TSOutputComposer m_composer;
};

/// How many pixels of a row are neither black nor white.
int greyPixels(const QImage &image, int y)
{
    int count = 0;
    for (int x = 0; x < image.width(); ++x)
        count += qGray(image.pixel(x, y)) > 12 && qGray(image.pixel(x, y)) < 243;
    return count;
}

QPointF middleOf(const QImage &image, const QColor &color)
{
    return QRectF(extentOf(image, color, 60)).center();
}

} // namespace

TEST_F(CompositionTest, AMarkFillsItsFrameToThePixel)
{
    addPhoto("a.png", {400, 300});
    takeIn(session.writeTiff("frame.tif", plainImage({400, 300})));
    addMark({300, 240, 60, 30});
    EXPECT_EQ(markOn(0, {400, 300}), QRect(300, 240, 60, 30));
    EXPECT_EQ(markOn(1, {400, 300}), QRect(300, 240, 60, 30)) << "on pixels that are there already";
    EXPECT_EQ(markOn(0, {800, 600}), QRect(600, 480, 120, 60));
    EXPECT_EQ(markOn(0, {100, 75}), QRect(75, 60, 15, 8)) << "67.5 rounds down the page";
    EXPECT_EQ(markOn(0, {400, 150}), QRect(330, 120, 30, 15)) << "a stretched photo keeps the mark's shape";
}

TEST_F(CompositionTest, TheFirstMarkLiesOnTopAndOpacityBlends)
{
    addPhoto("a.png", {100, 100}, QColor(128, 128, 128));
    addMark({10, 10, 40, 20}, Qt::blue);
    addMark({30, 20, 40, 20}, Qt::red);
    addMark({60, 60, 40, 20}, Qt::green, 0.5);
    ASSERT_EQ(session.overlays.overlayAtIndex(2)->frame().x(), 10) << "blue lies lowest";
    const QImage image = pixels(0, {100, 100});
    EXPECT_EQ(extentOf(image, Qt::red), QRect(30, 20, 40, 20));
    EXPECT_EQ(image.pixelColor(29, 25), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(49, 29), QColor(Qt::red)) << "where both lie";
    const QColor blended = image.pixelColor(80, 70);
    EXPECT_NEAR(blended.red(), 64, 2);
    EXPECT_NEAR(blended.green(), 191, 2);
    EXPECT_NEAR(blended.blue(), 64, 2);
}

TEST_F(CompositionTest, BorrowsTheSessionForOnePhoto)
{
    addPhoto("a.png", {400, 300});
    addPhoto("b.png", {800, 200});
    session.setCanvas(QRectF(7, 9, 200, 150), 0.5);
    const auto probe = std::make_shared<Probe>();
    const auto mark = addMark({107, 84, 50, 25});
    addOverlay(probe);
    const QRectF before = mark->frame();
    const auto output = compose(1, {1000.4, 250.6});
    ASSERT_TRUE(output);
    EXPECT_EQ(output->size(), QSize(1000, 251));
    EXPECT_EQ(probe->canvas, QRectF(0, 0, 1000, 251));
    EXPECT_DOUBLE_EQ(probe->ratio, 1000.0 / 800);
    EXPECT_EQ(probe->selected, 1) << "the counter tells the number of the selected photo";
    EXPECT_EQ(session.data.canvasFrame, QRectF(7, 9, 200, 150));
    EXPECT_EQ(session.data.photoRatioOfSize, 0.5);
    EXPECT_EQ(session.photos.selectedPhoto(), 0);
    expectRect(mark->frame(), before);
    EXPECT_TRUE(m_composer.overlayArrays.empty());
}

TEST_F(CompositionTest, RefusesOutputsWithoutSizeAndDamagedPhotos)
{
    addPhoto("a.png", {40, 30});
    for (const QSizeF size : {QSizeF(0, 30), QSizeF(40, 0.4), QSizeF(-40, 30), QSizeF(qQNaN(), 30),
                              QSizeF(qInf(), 30), QSizeF(2e7, 30)})
        EXPECT_FALSE(compose(0, size)) << size.width() << " " << size.height();
    EXPECT_TRUE(compose(0, {0.5, 0.5})) << "half a pixel rounds up";
    session.write("a.png", "no picture any more");
    EXPECT_FALSE(compose(0, {40, 30}));
    EXPECT_TRUE(m_composer.reason().startsWith(u"The photo could not be decoded"));
}

TEST_F(CompositionTest, AMarkMovedOnOnePhotoStaysOnTheOthers)
{
    for (const char16_t *name : {u"a.png", u"b.png", u"c.png"})
        addPhoto(QString::fromUtf16(name), {200, 100});
    const auto mark = addMark({150, 80, 40, 10});
    TSSetBatchControlOverlay(false);
    session.photos.setSelectedPhoto(1);
    mark->setFrame({20, 10, 40, 10});
    mark->updateAlignmentAndRatio();
    mark->updateOffsetPixel();
    EXPECT_EQ(markOn(0, {200, 100}), QRect(150, 80, 40, 10));
    EXPECT_EQ(markOn(1, {400, 200}), QRect(40, 20, 80, 20));
    EXPECT_EQ(markOn(2, {200, 100}), QRect(150, 80, 40, 10));
    expectRect(mark->frame(), 20, 10, 40, 10);
}

TEST_F(CompositionTest, WordsFollowThePhoto)
{
    for (const char16_t *name : {u"a.png", u"b.png", u"c.png"})
        addPhoto(QString::fromUtf16(name), {200, 100});
    const auto text = addText("{NAME} {COUNTER}", Qt::white, {10, 10, 100, 20});
    const char *words[] = {"a 1", "b 2", "c 3"};
    for (qint64 index : {2, 0, 1}) {
        const auto marks = m_composer.placements({200, 100}, *session.photos.photoAtIndex(index));
        ASSERT_EQ(marks.size(), 1U);
        EXPECT_EQ(marks[0].text.toStdString(), words[index]);
        EXPECT_EQ(text->textStorage().string().toStdString(), words[0]) << "the canvas shows the first photo";
    }
}

TEST_F(CompositionTest, TextIsDrawnAtTheSizeOfTheOutput)
{
    addPhoto("a.png", {250, 500}, Qt::black);
    addText("I", Qt::white, {50, 100, 100, 300});
    EXPECT_LE(greyPixels(pixels(0, {250, 500}), 250), 4);
    EXPECT_LE(greyPixels(pixels(0, {2000, 4000}), 2000), 4)
        << "a stretched picture of the text has edges eight times as wide";
    EXPECT_GT(extentOf(pixels(0, {2000, 4000}), Qt::white).width(), 40);
}

TEST_F(CompositionTest, ShadowsFallOneWayHoweverTheMarkIsTurned)
{
    addPhoto("a.png", {400, 400}, Qt::white);
    const auto text = addText("I", Qt::red, {180, 180, 20, 40});
    text->setIsShadowEnable(true);
    text->setShadow(std::make_shared<TSShadow>(platform::Color{0, 0, 0, 1}, 0, 45, 100));
    const double em = text->frame().width() / text->naturalSize().width() * 36;
    for (const double angle : {0.0, 1.5707963, 3.1415927}) {
        text->setAngle(angle);
        text->updateAlignmentAndRatio();
        const QImage image = pixels(0, {800, 800});
        const QPointF shift = middleOf(image, Qt::black) - middleOf(image, Qt::red);
        EXPECT_NEAR(shift.x(), 2 * em * 0.7071, 1.5) << angle;
        EXPECT_NEAR(shift.y(), 2 * em * 0.7071, 1.5) << angle;
    }
}

TEST_F(CompositionTest, EveryWayToResize)
{
    session.addPhotos(1, {400, 300});
    session.addPhotos(1, {300, 900});
    session.data.outputWidth = 1000;
    session.data.outputHeight = 600;
    session.data.percentage = 12.5;
    const QSizeF sizes[][2] = {{{400, 300}, {300, 900}},
                               {{1000, 750}, {1000, 3000}},
                               {{800, 600}, {200, 600}},
                               {{50, 37.5}, {37.5, 112.5}},
                               {{800, 600}, {200, 600}}};
    for (unsigned way = 0; way < 5; ++way) {
        session.data.resizeWay = way;
        for (qint64 index : {0, 1}) {
            const QSizeF size = session.data.sizeFor(session.photos.photoAtIndex(index)->photoSize);
            // The last way counts in single precision.
            EXPECT_NEAR(size.width(), sizes[way][index].width(), way == 4 ? 1e-4 : 0) << way;
            EXPECT_NEAR(size.height(), sizes[way][index].height(), way == 4 ? 1e-4 : 0) << way;
        }
    }
}

TEST_F(CompositionTest, AsksAboveTwentyThousandSquared)
{
    const auto isBigger = [] {
        const auto run = TSRunSession::snapshot();
        run->computeOutputSizes();
        return run->isHasBiggerPhoto(TSExportRun::biggestWithoutAsking);
    };
    session.addPhotos(1, {20000, 20000});
    EXPECT_FALSE(isBigger());
    session.photos.photoAtIndex(0)->photoSize = {20000, 20001};
    session.addPhotos(1, {40, 30});
    EXPECT_TRUE(isBigger());
    session.data.resizeWay = TSResizeWay::ByPercentage;
    session.data.percentage = 99;
    EXPECT_FALSE(isBigger()) << "what counts is the output";
}
