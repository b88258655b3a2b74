#include "preview/TSControlPosition.h"
#include "preview/TSPhotoDrop.h"
#include "support/PreviewSession.h"

namespace {

class CreationTest : public PreviewTest {
protected:
    QString sticker() const { return session.writePng("sticker.png", plainImage({100, 100}, Qt::red)); }
    std::shared_ptr<TSOverlay> addSticker(const QString &path, bool isFromFinder = false)
    {
        preview.creation().addStickerWithPath(path, isFromFinder);
        return session.overlays.overlayAtIndex(0);
    }
};

} // namespace

TEST_F(CreationTest, NewOverlaysStepDownAndToTheRight)
{
    const QString path = sticker();
    expectRect(addSticker(path)->frame(), 410, 310, 180, 180);
    preview.selection().selectAllOverlays();
    preview.creation().deleteEditingOverlay();
    // A box of 90 by 240; the right edges run from 545 to the canvas's 555.
    session.setCanvas({255, 0, 300, 800});
    session.data.previewFrame = QRectF(0, 0, 1000, 800);
    for (const double step : {0, 2, 4, 6, 8, 10, 0, 2})
        expectRect(addSticker(path)->frame(), 455 + step, 355 + step, 90, 90);
    preview.creation().deleteEditingOverlay();
    expectRect(addSticker(path)->frame(), 459, 359, 90, 90);
    preview.selection().selectAllOverlays();
    preview.creation().deleteEditingOverlay();
    expectRect(addSticker(path)->frame(), 455, 355, 90, 90);
}

TEST_F(CreationTest, ANewOverlayIsSelectedAndHasARowForEveryPhoto)
{
    addPhoto({800, 600});
    addPhoto({400, 300});
    for (const bool isBatch : {true, false}) {
        TSSetBatchControlOverlay(isBatch);
        preview.creation().createNewText();
        const auto text = preview.selection().editingText();
        ASSERT_TRUE(text);
        EXPECT_EQ(session.overlays.overlayAtIndex(0), text);
        EXPECT_EQ(text->rows().count(), 3);
        EXPECT_EQ(valuesOf(*text, &TSRow::wmAlignment), std::vector<unsigned>(3, 8u));
        const QPointF expected((1000 - text->frame().width()) / 2, (800 - text->frame().height()) / 2);
        const double step = isBatch ? 0 : 2;
        expectNear(text->frame().topLeft(), expected + QPointF(step, step));
        EXPECT_EQ(valuesOf(*text, &TSRow::yPixel), std::vector<float>(3, float(text->yPixel())));
    }
    const auto unread = addSticker(QStringLiteral("/no/such.png"), true);
    EXPECT_EQ(unread->frame(), QRectF());
    EXPECT_EQ(unread->rows().count(), 3);
    EXPECT_EQ(dynamic_cast<TSImage &>(*unread).oldPath(), QStringLiteral("/no/such.png"));
    preview.presenter().showFrameAtIndex(-1);
    preview.creation().createNewText();
    EXPECT_EQ(session.overlays.overlayCount(), 3);
}

TEST_F(CreationTest, ChangesOfTheSelectionAreAnnouncedInOrder)
{
    put('A', {300, 300, 100, 50});
    put('B', {600, 300, 100, 50});
    putScript('S');
    session.data.watermarkAlignmenWay = session.data.oldAlignment = 3;
    QStringList &log = listen();
    preview.selection().selectOverlay(named['B']);
    EXPECT_EQ(log, (QStringList{"overlays", "angle", "alignment", "offset", "list"}));
    EXPECT_EQ(session.data.oldAlignment, TSPositionCode::None);
    EXPECT_EQ(view.responder, TSResponder::TrackerView);
    log.clear();
    preview.selection().selectOverlay(named['B']);
    EXPECT_EQ(log, QStringList());
    preview.selection().selectAllOverlays();
    EXPECT_EQ(selected(), "BAS");
    EXPECT_EQ(session.data.unionFrameAlignment, 8u);

    select("AB", 'A');
    log.clear();
    int key = 0;
    QObject::connect(&session.center, &TSNotificationCenter::TSChangeWatermarkPostion,
                     [&] { key = preview.trackerLayer().currentKey(); });
    preview.trackerLayer().keyDown(Qt::Key_Left);
    EXPECT_EQ(log, QStringList{"key"});
    EXPECT_EQ(key, Qt::Key_Left);
    preview.trackerLayer().keyDown(Qt::Key_Backspace);
    EXPECT_EQ(log, (QStringList{"key", "list", "overlays", "key"}));
    EXPECT_EQ(session.overlays.overlays(), TSSelection::Overlays{named['S']});
    EXPECT_EQ(preview.selection().guideOverlay(), nullptr);
    select("S");
    Q_EMIT session.center.TSHoverTableViewDeleteKeyDown(nullptr);
    EXPECT_EQ(session.overlays.overlayCount(), 0);
}

TEST_F(CreationTest, DroppedFilesBecomePhotos)
{
    const QString picture = sticker();
    const QString words = session.write("words.txt", "no picture");
    QList<QUrl> taken;
    QObject::connect(&session.center, &TSNotificationCenter::TSDraggingPhotosEnd,
                     [&](const QList<QUrl> &urls) { taken = urls; });
    EXPECT_FALSE(TSPhotoDrop::performDragOperation({words}, {}));
    EXPECT_FALSE(TSPhotoDrop::performDragOperation({picture}, QStringLiteral("TSImageBrowserView")));
    EXPECT_TRUE(taken.isEmpty());
    EXPECT_TRUE(TSPhotoDrop::prepareForDragOperation({words, picture}));
    EXPECT_TRUE(TSPhotoDrop::performDragOperation({words, picture}, {}));
    EXPECT_EQ(taken, (QList<QUrl>{QUrl::fromLocalFile(words), QUrl::fromLocalFile(picture)}));
}

TEST_F(CreationTest, ThePositionControlGivesFractions)
{
    int posts = 0;
    QSizeF ratio;
    QObject::connect(&session.center, &TSNotificationCenter::TSCirclePositionChanged,
                     [&](const QSizeF &size) { ++posts, ratio = size; });
    TSControlPosition control({116, 66}, [] {});
    put('A', {300, 300, 100, 50});
    select("A");
    control.mouseDown({60, 30});
    control.mouseUp();
    EXPECT_EQ(posts, 0) << "a press on the circle moves nothing";
    control.mouseDown({2, 33});
    EXPECT_EQ(ratio, QSizeF(-0.06, 0.5)) << "a press may bring it over the edge";
    control.mouseDragged({1, -5});
    EXPECT_EQ(ratio, QSizeF(0, 0));
    control.mouseDragged({500, 500});
    EXPECT_EQ(ratio, QSizeF(1, 1));
    EXPECT_EQ(preview.overlayRect(), QRectF(900, 700, 0, 0));
}

TEST_F(CreationTest, TheLayersShowWhatTheyAreToShow)
{
    const auto red = addSticker(sticker());
    red->setOpacity(1);
    red->setFrame({50, 300, 200, 50});
    const auto blue = addSticker(session.writePng("blue.png", plainImage({10, 10}, Qt::blue)));
    blue->setOpacity(1);
    blue->setFrame({150, 300, 30, 50});
    QImage image = plainImage({1000, 800}, Qt::white);
    QPainter painter(&image);
    preview.overlaysLayer().drawRect(painter, image.rect());
    painter.end();
    EXPECT_EQ(extentOf(image, Qt::red), QRect(100, 300, 150, 50)) << "within the canvas alone";
    EXPECT_EQ(extentOf(image, Qt::blue), QRect(150, 300, 30, 50)) << "index 0 on top";

    // A part of the canvas that the frame lies below, and the turned mark does not.
    blue->setFrame({400, 400, 300, 20});
    blue->setAngle(1.5707963267948966);
    QImage part = plainImage({1000, 800}, Qt::white);
    painter.begin(&part);
    preview.overlaysLayer().drawRect(painter, {0, 0, 1000, 350});
    painter.end();
    EXPECT_EQ(extentOf(part, Qt::blue).top(), 260);
    blue->setAngle(0);

    const QColor node = QColor::fromRgbF(0.3f, 0.8f, 0.3f);
    const QColor auxiliary = QColor::fromRgb(88, 194, 11);
    named['A'] = blue;
    putScript('S');
    preview.trackerState().alignmentLines = {{100.5f, 100.5f, 100.5f, 700.5f}};
    session.data.isDragging = true;
    session.defaults->setBool(QStringLiteral("WatermarkAuxiliaryLine"), true);
    blue->setWmAlignment(7);
    blue->setFrame({150, 375, 30, 51});
    // On the middles of pixels, where a line covers whole ones.
    session.data.canvasFrame.translate(0.5, 0.5);
    const std::tuple<const char *, bool, QRect, QRect, bool> cases[] = {
        {"A", false, {148, 357, 34, 71}, {100, 100, 1, 601}, true},
        {"A", true, {148, 357, 34, 71}, {}, false},
        {"S", true, {}, {100, 100, 801, 601}, false},
    };
    for (const auto &[selection, isRotate, nodes, lines, showsAuxiliary] : cases) {
        SCOPED_TRACE(testing::Message() << selection << isRotate);
        preview.trackerState().isRotate = isRotate;
        select(selection);
        QImage layer(1000, 800, QImage::Format_ARGB32_Premultiplied);
        layer.fill(Qt::black);
        painter.begin(&layer);
        preview.trackerLayer().drawRect(painter);
        painter.end();
        EXPECT_EQ(extentOf(layer, node), nodes);
        EXPECT_EQ(extentOf(layer, Qt::yellow), lines);
        EXPECT_EQ(extentOf(layer, auxiliary).isNull(), !showsAuxiliary);
        preview.trackerState().isInactive = true;
        layer.fill(Qt::black);
        painter.begin(&layer);
        preview.trackerLayer().drawTrackers(painter);
        painter.end();
        EXPECT_TRUE(extentOf(layer, node).isNull() && extentOf(layer, Qt::yellow).isNull());
        preview.trackerState().isInactive = false;
    }
}
