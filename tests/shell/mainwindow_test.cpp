#include "controls/TSCheckBoxAlert.h"
#include "overlays/TSOverlayManager.h"
#include "profiles/TSProfileLibrary.h"
#include "profiles/TSProfileSaver.h"
#include "session/TSDataManager.h"
#include "session/TSPhotoManager.h"
#include "shell/TSMainWindowController.h"
#include "shell/TSSaveProfileWindowController.h"
#include "support/Session.h"
#include "ui/photos/TSPhotoStripView.h"
#include "ui/photos/TSThumbnailLoader.h"
#include "ui/preview/TSPreviewScrollView.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDeadlineTimer>
#include <QDialog>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QTranslator>
#include <unistd.h>

namespace {

/// The real window over a session of the test's own, driven by mouse and keys.
class MainWindowTest : public SessionTest {
protected:
    MainWindowTest()
    {
        TSWriteLaunchDefaults();
        // Files whose edges are sharp.
        session.defaults->setInteger("ExportFormat", 1);
        controller = std::make_unique<TSMainWindowController>();
        window().resize(1280, 820);
        window().show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window()));
        // Half a second after the start everything is there.
        EXPECT_TRUE(QTest::qWaitFor([this] { return window().pubZooming->count() > 0; }, 120000));
    }

    TSMainWindow &window() { return controller->window(); }
    TSPreview &preview() { return window().preview->preview(); }

    void addPhotos(const QStringList &paths)
    {
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        const qint64 expected = session.data.photoCount() + paths.size();
        controller->addPhotos(urls);
        // The last of them is shown in the end.
        const auto isShown = [&] {
            const auto photo = preview().layout().photo();
            return photo && photo->index == expected - 1 && !QApplication::activeModalWidget();
        };
        EXPECT_TRUE(QTest::qWaitFor(isShown, 120000));
    }
    /// From one point of overlay space to another, in steps, as a hand does.
    void drag(const QPointF &from, const QPointF &to)
    {
        QWidget *surface = window().preview->viewport();
        QTest::mouseMove(surface, from.toPoint());
        QTest::mousePress(surface, Qt::LeftButton, {}, from.toPoint());
        for (const double part : {0.1, 0.4, 0.7, 1.0}) {
            const QPoint point = (from + (to - from) * part).toPoint();
            QMouseEvent move(QEvent::MouseMove, point, surface->mapToGlobal(point), Qt::NoButton,
                             Qt::LeftButton, {});
            QApplication::sendEvent(surface, &move);
        }
        QTest::mouseRelease(surface, Qt::LeftButton, {}, to.toPoint());
    }
    /// Says OK to the format sheet, names the folder, and closes the report.
    void exportTo(const QString &folder)
    {
        QTimer answer;
        QObject::connect(&answer, &QTimer::timeout, [&] {
            QWidget *modal = QApplication::activeModalWidget();
            if (auto *panel = qobject_cast<QFileDialog *>(modal)) {
                panel->findChild<QLineEdit *>()->setText(folder);
                static_cast<QDialog *>(panel)->accept();
            } else if (auto *dialog = qobject_cast<QDialog *>(modal)) {
                if (dialog->objectName() == u"FormatWindow")
                    dialog->accept();
                else if (dialog->objectName() == u"SaveInfoWindow")
                    dialog->close();
            }
        });
        answer.start(20);
        window().exportPhotos->trigger();
        const qint64 count = session.data.photoCount();
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return QDir(folder).entryList(QDir::Files).size() == count; }, 120000));
        EXPECT_TRUE(QTest::qWaitFor([] { return !QApplication::activeModalWidget(); }, 120000));
    }
    /// Where a mark that the preview shows must stand in a file.
    QRectF placeInOutput(const TSOverlay &overlay) const
    {
        const QPointF corner = (overlay.frame().topLeft() - session.data.canvasFrame.topLeft());
        return {corner / session.data.photoRatioOfSize,
                overlay.frame().size() / session.data.photoRatioOfSize};
    }

    std::unique_ptr<TSMainWindowController> controller;
};

/// The words of a language, while it lives.
class Language {
public:
    explicit Language(const char *code)
    {
        EXPECT_TRUE(m_table.load(QStringLiteral(":/translations/tessaro_%1.qm").arg(QLatin1String(code))));
        QApplication::installTranslator(&m_table);
    }

private:
    QTranslator m_table;
};

/// Says yes to every alert, and keeps what it told.
class AlertCloser {
public:
    AlertCloser()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            if (auto *alert = qobject_cast<TSCheckBoxAlert *>(QApplication::activeModalWidget())) {
                told.append(alert->findChild<QLabel *>("informativeText")->text());
                alert->done(TSCheckBoxAlert::DefaultReturn);
            }
        });
        m_timer.start(20);
    }
    QStringList told;

private:
    QTimer m_timer;
};

void drop(QWidget &target, const QList<QUrl> &urls, const QPoint &place)
{
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &enter);
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &event);
}

void expectWithinAPixel(const QRect &found, const QRectF &expected)
{
    EXPECT_NEAR(found.left(), expected.left(), 1);
    EXPECT_NEAR(found.top(), expected.top(), 1);
    EXPECT_NEAR(found.right() + 1, expected.right(), 1);
    EXPECT_NEAR(found.bottom() + 1, expected.bottom(), 1);
}

} // namespace

TEST_F(MainWindowTest, WhatIsExportedStandsWhereThePreviewShowsIt)
{
    QDir(session.folder.path()).mkdir("out");
    addPhotos({session.writePng("wide.png", plainImage({900, 500})),
               session.writePng("tall.png", plainImage({600, 800}))});
    EXPECT_FALSE(window().isStartViewShown());
    window().photoStrip->setSelectionIndex(0);
    preview().creation().addStickerWithPath(session.writePng("mark.png", plainImage({40, 20}, Qt::red)),
                                            true);
    const auto mark = session.overlays.overlayAtIndex(0);
    mark->setOpacity(1);
    const QPointF before = mark->frame().center();
    drag(before, before + QPointF(170, 120));
    expectNear(mark->frame().center(), before + QPointF(170, 120), 8);

    std::vector<QRectF> expected;
    for (const qint64 photo : {0, 1}) {
        window().photoStrip->setSelectionIndex(photo);
        expected.push_back(placeInOutput(*mark));
    }
    window().photoStrip->setSelectionIndex(0);
    exportTo(session.path("out"));
    EXPECT_NE(expected[0], expected[1]);
    const QString names[] = {"out/wide.png", "out/tall.png"};
    for (const size_t photo : {0, 1})
        expectWithinAPixel(extentOf(QImage(session.path(names[photo])), Qt::red), expected[photo]);
    // The session is as it was.
    EXPECT_EQ(placeInOutput(*mark), expected[0]);
}

TEST_F(MainWindowTest, ActionsFollowPhotosAndMarks)
{
    const auto states = [this] {
        return QList<bool>{window().exportPhotos->isEnabled(), window().openSaveProfile->isEnabled(),
                           window().selectAll->isEnabled(), window().deleteOverlay->isEnabled(),
                           window().photoStrip->isRemoveEnabled()};
    };
    EXPECT_TRUE(window().isStartViewShown());
    EXPECT_EQ(states(), QList<bool>({false, false, false, false, false}));
    addPhotos({session.writePng("a.png", plainImage({300, 200})),
               session.writePng("b.png", plainImage({200, 300}))});
    EXPECT_EQ(states(), QList<bool>({true, false, false, false, true}));
    EXPECT_EQ(window().outputTipSizeLabel->text(), "｜  Output Size : 200 x 300 pixel");
    EXPECT_EQ(window().OutputTipLabel->text(), "Output Name : b.png");
    window().addTextAction->trigger();
    EXPECT_EQ(states(), QList<bool>({true, true, true, true, true}));

    // A quarter of a percent of the canvas, by the keyboard alone.
    const auto text = session.overlays.overlayAtIndex(0);
    const double left = text->frame().left();
    QTest::keyClick(window().preview, Qt::Key_Right);
    EXPECT_NEAR(text->frame().left(), left + session.data.canvasFrame.width() / 400, 0.02);
    QTest::keyClick(window().preview, Qt::Key_Delete);
    EXPECT_EQ(states(), QList<bool>({true, false, false, false, true}));

    window().removePhotoAction->trigger();
    EXPECT_EQ(session.data.photoCount(), 1);
    // The last one goes with a question.
    QTimer::singleShot(100, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
    window().removePhotoAction->trigger();
    EXPECT_TRUE(window().isStartViewShown());
    EXPECT_EQ(states(), QList<bool>({false, false, false, false, false}));
}

/// Types one name after the other, and answers the questions that come in between.
TEST_F(MainWindowTest, ANameForALayoutIsAskedForUntilThereIsOne)
{
    const QString photo = session.writeJpeg("photo.jpg", plainImage({300, 200}));
    addPhotos({photo});
    window().addTextAction->trigger();
    ASSERT_EQ(TSProfileSaver::saveProfile("Taken"), "");
    const QString archive = TSProfileLibrary::archivePath(TSProfileLibrary::userPackage("Taken"));
    ASSERT_TRUE(QFile::remove(archive));
    // A name, and what the alert that may follow is answered with.
    std::vector<std::pair<const char *, int>> steps = {{"", 1}, {"a/b", 1}, {"Taken", 0}, {"Taken", 1}};
    QStringList asked;
    QTimer hand;
    QObject::connect(&hand, &QTimer::timeout, [&] {
        QWidget *modal = QApplication::activeModalWidget();
        if (auto *alert = qobject_cast<TSCheckBoxAlert *>(modal)) {
            asked.append(QFile::exists(archive) ? "replaced" : "kept");
            const int answer = steps[asked.size() - 1].second;
            alert->done(answer);
        } else if (auto *sheet = qobject_cast<TSSaveProfileWindowController *>(modal)) {
            if (asked.size() == qsizetype(steps.size()))
                return sheet->reject();
            sheet->setTextValue(QString::fromLatin1(steps[size_t(asked.size())].first));
            // Not from in here, where the timer stands still.
            QMetaObject::invokeMethod(sheet, &TSSaveProfileWindowController::accept, Qt::QueuedConnection);
        }
    });
    hand.start(20);
    window().openSaveProfile->trigger();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return asked.size() == qsizetype(steps.size()) && !QApplication::activeModalWidget(); },
        20000));
    hand.stop();
    EXPECT_EQ(asked, QStringList({"kept", "kept", "kept", "kept"}));
    EXPECT_TRUE(QFile::exists(archive)) << "the last answer was to replace it";
    EXPECT_EQ(TSProfileLibrary::profiles().front().name, "Taken");
}

TEST_F(MainWindowTest, ZoomAndWindowKeepTheMarkOnThePhoto)
{
    addPhotos({session.writePng("a.png", plainImage({900, 600}))});
    preview().creation().addStickerWithPath(session.writePng("mark.png", plainImage({40, 20}, Qt::red)),
                                            true);
    const auto mark = session.overlays.overlayAtIndex(0);
    const QRectF place = placeInOutput(*mark);
    for (const char *zoom : {"50%", "200%", "400%", "Fit"}) {
        window().pubZooming->setCurrentText(zoom);
        Q_EMIT window().pubZooming->activated(window().pubZooming->currentIndex());
        expectRect(placeInOutput(*mark).toRect(), place.toRect());
        for (const QAction *item : window().menuItems)
            EXPECT_EQ(item->isChecked(), item->text() == QLatin1String(zoom)) << zoom;
    }
    EXPECT_EQ(session.data.sizeMode, TSSizeMode::Fit);
    window().resize(1100, 700);
    QTest::qWait(50);
    expectRect(placeInOutput(*mark).toRect(), place.toRect());
    EXPECT_LT(session.data.canvasFrame.bottom(), window().preview->viewport()->height());
}

TEST_F(MainWindowTest, TheFirstWindowFitsTheScreen)
{
    const QRect room = window().screen()->availableGeometry();
    const TSMainWindow first;
    EXPECT_LT(first.width(), room.width());
    EXPECT_LT(first.height(), room.height());
    EXPECT_LE(first.minimumWidth(), first.width());
}

/// At every zoom, and whichever bars were there before.
TEST_F(MainWindowTest, TheCanvasIsInTheMiddleOfTheWindowAtOnce)
{
    addPhotos({session.writePng("a.png", plainImage({900, 600}))});
    const auto zoom = [this](const char *title) {
        preview().presenter().zoomingTheSize(QString::fromLatin1(title));
    };
    const auto expectCentred = [this] {
        const QScrollBar *x = window().preview->horizontalScrollBar();
        const QScrollBar *y = window().preview->verticalScrollBar();
        const QSize visible = window().preview->viewport()->size();
        const QPointF middle = session.data.canvasFrame.center() - QPointF(x->value(), y->value());
        expectNear(middle, QPointF(visible.width(), visible.height()) / 2, 1);
        const QSizeF &canvas = session.data.canvasFrame.size();
        EXPECT_EQ(x->isVisible(), canvas.width() > visible.width());
        EXPECT_EQ(y->isVisible(), canvas.height() > visible.height());
    };
    for (const char *title : {"400%", "50%", "100%", "400%", "Fit"}) {
        SCOPED_TRACE(title);
        zoom(title);
        expectCentred();
    }
    const QRectF fitted = session.data.canvasFrame;
    zoom("Fit");
    EXPECT_EQ(session.data.canvasFrame, fitted) << "the bars of 400% were still there at the first time";
    for (const char *title : {"50%", "100%", "200%"})
        for (const QSize size : {QSize(1300, 830), QSize(1040, 690), QSize(1280, 820)}) {
            SCOPED_TRACE(testing::Message() << title << ' ' << size.width());
            zoom(title);
            window().resize(size);
            QApplication::processEvents();
            expectCentred();
        }
}

/// An edge that is enlarged from fewer pixels rises over several.
TEST_F(MainWindowTest, MarksHaveThePixelsOfTheScreen)
{
    addPhotos({session.writePng("a.png", plainImage({900, 600}, Qt::black))});
    QImage stripes = plainImage({2000, 500}, Qt::black);
    QPainter painter(&stripes);
    // Some of their edges fall on pixels of the screen.
    for (int x = 62; x < stripes.width(); x += 124)
        painter.fillRect(x, 0, 62, stripes.height(), Qt::white);
    painter.end();
    preview().creation().createNewText();
    preview().creation().addStickerWithPath(session.writePng("stripes.png", stripes), true);
    const auto mark = session.overlays.overlayAtIndex(0), text = session.overlays.overlayAtIndex(1);
    mark->setFrame(QRectF(session.data.canvasFrame.topLeft() + QPointF(31.3, 20.2), QSizeF(333, 83.25)));
    for (const auto &overlay : {text, mark}) {
        overlay->setOpacity(1);
        preview().selection().selectOverlay(nullptr);
        const QImage shown = window().preview->viewport()->grab().toImage();
        const double scale = shown.devicePixelRatio();
        const QImage seen = shown.copy(
            QRectF(overlay->frame().topLeft() * scale, overlay->frame().size() * scale).toAlignedRect());
        int brightest = 0, steepest = 0;
        for (int y = 0; y < seen.height(); ++y)
            for (int x = 1; x < seen.width(); ++x) {
                const int here = qGray(seen.pixel(x, y)), before = qGray(seen.pixel(x - 1, y));
                brightest = std::max(brightest, here);
                steepest = std::max(steepest, std::abs(here - before));
            }
        EXPECT_GT(brightest, 200);
        EXPECT_GT(steepest, 0.8 * brightest);
    }
}

TEST_F(MainWindowTest, MarksAreToldToAssistiveTechnology)
{
    addPhotos({session.writePng("a.png", plainImage({900, 600}))});
    preview().creation().createNewText();
    preview().creation().addStickerWithPath(session.writePng("my mark.png", plainImage({40, 20}, Qt::red)),
                                            true);
    QAccessibleInterface *canvas = QAccessible::queryAccessibleInterface(window().preview);
    ASSERT_TRUE(canvas);
    EXPECT_EQ(canvas->role(), QAccessible::Canvas);
    ASSERT_EQ(canvas->childCount(), 2);
    QAccessibleInterface *mark = canvas->child(0);
    EXPECT_EQ(mark->text(QAccessible::Name), "my mark");
    const Language german("de");
    EXPECT_EQ(mark->text(QAccessible::Description),
              "Bild-Wasserzeichen, 50 Prozent von links, 50 Prozent von oben");
    EXPECT_EQ(mark->role(), QAccessible::Graphic);
    EXPECT_TRUE(mark->state().selected);
    EXPECT_EQ(canvas->child(1)->role(), QAccessible::StaticText);
    EXPECT_FALSE(canvas->child(1)->state().selected);
    const QPoint middle = mark->rect().center();
    EXPECT_EQ(canvas->childAt(middle.x(), middle.y()), mark);
    EXPECT_EQ(canvas->indexOfChild(canvas->child(1)), 1);
    // The marks one after the other by Tab, and then on to the next control.
    QApplication::setActiveWindow(&window());
    window().preview->setFocus();
    QTest::keyClick(window().preview, Qt::Key_Tab);
    EXPECT_TRUE(canvas->child(1)->state().selected);
    EXPECT_FALSE(mark->state().selected);
    EXPECT_EQ(canvas->focusChild(), canvas->child(1));
    QTest::keyClick(window().preview, Qt::Key_Delete);
    EXPECT_EQ(canvas->childCount(), 1);
}

/// Delete acts where the frame shows it: on the mark as long as it has its nodes, and else on the photo.
TEST_F(MainWindowTest, TheFrameTellsWhereTheKeysGo)
{
    addPhotos({session.writePng("a.png", plainImage({900, 600}, Qt::white)),
               session.writePng("b.png", plainImage({900, 600}, Qt::white))});
    preview().creation().addStickerWithPath(session.writePng("mark.png", plainImage({40, 20}, Qt::red)),
                                            true);
    const auto hasNodes = [this] {
        const QImage shown = window().preview->viewport()->grab().toImage();
        return !extentOf(shown, QColor::fromRgbF(0.3f, 0.8f, 0.3f)).isNull();
    };
    QWidget *strip = window().photoStrip->ibvList();
    QTest::mouseClick(window().preview->viewport(), Qt::LeftButton, {},
                      session.overlays.overlayAtIndex(0)->frame().center().toPoint());
    EXPECT_TRUE(hasNodes());
    strip->setFocus();
    EXPECT_FALSE(hasNodes());
    QTest::keyClick(strip, Qt::Key_Delete);
    EXPECT_EQ(session.data.photoCount(), 1);
    EXPECT_EQ(session.overlays.overlayCount(), 1);
    QTest::mouseClick(window().preview->viewport(), Qt::LeftButton, {},
                      session.overlays.overlayAtIndex(0)->frame().center().toPoint());
    EXPECT_TRUE(hasNodes());
    QTest::keyClick(window().focusWidget(), Qt::Key_Delete);
    EXPECT_EQ(session.data.photoCount(), 1);
    EXPECT_EQ(session.overlays.overlayCount(), 0);
}

/// Everything that the mouse does to marks.
TEST_F(MainWindowTest, MarksAreWorkedOnByKeysAlone)
{
    addPhotos({session.writePng("a.png", plainImage({900, 600}))});
    preview().creation().addStickerWithPath(session.writePng("mark.png", plainImage({40, 20}, Qt::red)),
                                            true);
    const auto mark = session.overlays.overlayAtIndex(0);
    const QRectF before = mark->frame();
    const auto key = [this](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QTest::keyClick(window().preview, key, modifiers);
    };
    constexpr double degree = 3.14159265358979 / 180;
    const double step = session.data.canvasFrame.width() / 200;
    key(Qt::Key_Right);
    key(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_NEAR(mark->angle(), 11 * degree, 1e-6);
    EXPECT_NEAR(mark->rows().at(0)->angle, 11 * degree, 1e-6);
    for (int turn = 0; turn < 12; ++turn)
        key(Qt::Key_Left);
    EXPECT_NEAR(mark->angle(), 359 * degree, 1e-6);
    mark->setAngle(0);
    key(Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
    key(Qt::Key_Down);
    expectRect(mark->frame(), {before.topLeft(), before.size() + QSizeF(9 * step, 4.5 * step)});
    EXPECT_NEAR(mark->rows().at(0)->ratioOfFrameByAlignment.height(),
                mark->frame().height() / session.data.canvasFrame.height(), 1e-6);

    window().addTextAction->trigger();
    EXPECT_FALSE(window().upOverlay->isEnabled());
    window().downOverlay->trigger();
    EXPECT_EQ(session.overlays.overlayAtIndex(0), mark);
    EXPECT_TRUE(window().upOverlay->isEnabled());
    EXPECT_FALSE(window().downOverlay->isEnabled());
    key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(preview().selection().editingOverlaysArray().size(), 2);

    // The pattern of a Script text, which has no place and no size.
    const auto script = std::dynamic_pointer_cast<TSText>(session.overlays.overlayAtIndex(1));
    script->setTextType(TSTextType::Script);
    script->updateRenderTextImage();
    preview().selection().selectOverlay(script);
    EXPECT_FALSE(window().makeLarger->isEnabled());
    key(Qt::Key_Left, {});
    key(Qt::Key_Down, {});
    expectNear(script->scriptOrigin(), {-0.05, 0.05}, 1e-6);
    EXPECT_EQ(script->rows().at(0)->scriptOrigin, script->scriptOrigin());

    int told = 0;
    QObject::connect(&session.center, &TSNotificationCenter::TSChangeWatermarkPostion, [&told] { ++told; });
    key(Qt::Key_X, {});
    key(Qt::Key_Delete, {});
    EXPECT_EQ(told, 2);
    EXPECT_EQ(session.overlays.overlayCount(), 1);
}

/// A drop is taken in once, at its place, and only with a picture in it.
TEST_F(MainWindowTest, DropsAreTakenInOnce)
{
    const AlertCloser closer;
    addPhotos({session.writePng("a.png", plainImage({300, 200})),
               session.writePng("b.png", plainImage({300, 200}))});
    const auto dropOne = [this](QWidget &target, const QString &path, qint64 expected) {
        drop(target, {QUrl::fromLocalFile(path)}, {200, 60});
        EXPECT_TRUE(QTest::qWaitFor([&] { return session.data.photoCount() == expected; }, 120000));
        QTest::qWait(200);
    };
    QWidget &strip = *window().photoStrip->ibvList()->viewport();
    dropOne(strip, session.folder.path(), 2);
    dropOne(strip, session.writePng("between.png", plainImage({200, 300})), 3);
    dropOne(*window().preview->viewport(), session.writePng("last.png", plainImage({200, 200})), 4);
    EXPECT_EQ(closer.told, QStringList());
    QStringList names;
    for (qint64 photo = 0; photo < 4; ++photo)
        names += QFileInfo(session.data.itemAtIndex(photo)->path).fileName();
    EXPECT_EQ(names, QStringList({"a.png", "between.png", "b.png", "last.png"}));

    // By the keys, one place back.
    QTest::keyClick(window().photoStrip->ibvList(), Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(QFileInfo(session.data.itemAtIndex(2)->path).fileName(), "last.png");
    EXPECT_EQ(window().photoStrip->selectionIndexes(), std::set<qint64>{2});
}

/// What gives no photo is named once the others are in.
TEST_F(MainWindowTest, RefusedFilesAreNamed)
{
    const AlertCloser closer;
    const Language german("de");
    const QString photo = session.writePng("a.png", plainImage({300, 200}));
    controller->addPhotos({QUrl::fromLocalFile(session.write("b.jpg", "no picture")),
                           QUrl::fromLocalFile(session.folder.path()), QUrl::fromLocalFile(photo)});
    EXPECT_TRUE(QTest::qWaitFor([&closer] { return !closer.told.isEmpty(); }, 120000));
    EXPECT_EQ(session.data.photoCount(), 1);
    EXPECT_TRUE(closer.told[0].startsWith("b.jpg: Die Datei ist kein lesbares Bild.\n"));
    EXPECT_TRUE(closer.told[0].endsWith("Das ist ein Ordner, kein Foto."));
}

/// Broken off behind its head, it is in the list and has no picture.
TEST_F(MainWindowTest, APhotoWithoutAPictureSaysSoInItsPlace)
{
    const AlertCloser closer;
    const QString broken = session.writeJpeg("broken.jpg", plainImage({900, 600}, Qt::green));
    QFile file(broken);
    file.resize(file.size() * 2 / 3);
    addPhotos({session.writePng("a.png", plainImage({900, 600}, Qt::green)), broken});
    const QImage shown = window().preview->viewport()->grab().toImage();
    const QRectF canvas = session.data.canvasFrame;
    const auto at = [&](const QPointF &point) {
        return qGray(shown.pixel((point * shown.devicePixelRatio()).toPoint()));
    };
    EXPECT_GT(at(canvas.topLeft() - QPointF(20, 0)) - at(canvas.topLeft() + QPointF(20, 20)), 60);
    int brightest = 0;
    for (double x = canvas.left(); x < canvas.right(); ++x)
        for (double y = canvas.center().y() - 6; y < canvas.center().y() + 6; ++y)
            brightest = std::max(brightest, at({x, y}));
    EXPECT_GT(brightest, 150) << "the words";
    TSThumbnailLoader loader;
    const auto item = session.data.itemAtIndex(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !loader.thumbnail(item, 64).isNull(); }, 5000));
}

TEST_F(MainWindowTest, EveryControlHasAName)
{
    const auto isControl = [](const QWidget *widget) {
        return widget->focusPolicy() != Qt::NoFocus || qobject_cast<const QAbstractButton *>(widget);
    };
    const auto isPartOfAnother = [](const QWidget *widget) {
        return widget->objectName().startsWith(u"qt_") ||
               qobject_cast<const QComboBox *>(widget->parentWidget()) ||
               qobject_cast<const QScrollBar *>(widget) ||
               widget->window()->inherits("QComboBoxPrivateContainer");
    };
    for (QWidget *widget : window().findChildren<QWidget *>()) {
        if (!isControl(widget) || isPartOfAnother(widget) || qobject_cast<QMenu *>(widget) ||
            qobject_cast<QLabel *>(widget))
            continue;
        const QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
        EXPECT_FALSE(name.isEmpty()) << widget->metaObject()->className() << " "
                                     << widget->objectName().toStdString();
        EXPECT_FALSE(widget->objectName().isEmpty())
            << widget->metaObject()->className() << " " << name.toStdString();
    }
}

/// Of every place that takes files, and the window answers meanwhile.
TEST_F(MainWindowTest, TenThousandPhotosAndAFolderAreDropped)
{
    constexpr int count = 10000;
    const QString picture = session.writePng("picture.png", plainImage({8, 6}));
    QList<QUrl> urls = {QUrl::fromLocalFile(session.folder.path())};
    for (int number = 0; number < count; ++number) {
        const QString path = session.path(QStringLiteral("%1.png").arg(number));
        ASSERT_EQ(::link(QFile::encodeName(picture).constData(), QFile::encodeName(path).constData()), 0);
        urls.append(QUrl::fromLocalFile(path));
    }
    const AlertCloser closer;
    int answers = 0;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [&answers] { ++answers; });
    answer.start(1);
    drop(window(), urls.first(2), {200, 200});
    EXPECT_TRUE(QTest::qWaitFor([&] { return closer.told.size() == 1; }, 120000));
    drop(*window().preview->viewport(), urls.mid(2, count / 2), {200, 200});
    drop(*window().photoStrip->ibvList()->viewport(), urls.mid(2 + count / 2), {200, 60});
    // Unlike the toolkit's own waiting, which sleeps while the intake asks for this thread.
    QDeadlineTimer deadline(120000);
    while (session.data.photoCount() < count && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    EXPECT_TRUE(QTest::qWaitFor([] { return !QApplication::activeModalWidget(); }, 120000));
    EXPECT_EQ(closer.told.size(), 1) << closer.told.join(u'|').toStdString();
    EXPECT_TRUE(closer.told[0].endsWith("This is a folder, not a photo."));
    // Each photo is one turn of the window's, and in between it has others.
    EXPECT_GT(answers, count / 100);
}

/// A file that is gone leaves its picture until another photo is chosen; then the strip closes up.
TEST_F(MainWindowTest, PhotosThatVanishLeaveTheStrip)
{
    QStringList paths;
    for (const char *name : {"a.png", "b.png", "c.png", "d.png"})
        paths.append(session.writePng(name, plainImage({300, 200})));
    addPhotos(paths);
    window().photoStrip->setSelectionIndex(1);
    const AlertCloser closer;
    QFile::remove(paths[1]);
    QFile::remove(paths[3]);
    window().resize(1100, 700);
    window().addTextAction->trigger();
    QTest::qWait(50);
    EXPECT_EQ(session.data.photoCount(), 4);
    window().photoStrip->setSelectionIndex(0);
    EXPECT_EQ(session.data.photoCount(), 2);
    EXPECT_EQ(closer.told, QStringList("delete no source file image"));
    EXPECT_EQ(preview().layout().photo()->path, paths[2]);
    QFile::remove(paths[0]);
    QFile::remove(paths[2]);
    window().photoStrip->setSelectionIndex(0);
    EXPECT_TRUE(window().isStartViewShown());
    EXPECT_EQ(session.overlays.overlayCount(), 0);
}
