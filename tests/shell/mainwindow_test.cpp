#include "controls/TSCheckBoxAlert.h"
#include "overlays/TSOverlayManager.h"
#include "session/TSDataManager.h"
#include "session/TSPhotoManager.h"
#include "shell/TSMainWindowController.h"
#include "support/Session.h"
#include "ui/photos/TSPhotoStripView.h"
#include "ui/preview/TSPreviewScrollView.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

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
        EXPECT_TRUE(QTest::qWaitFor([this] { return window().pubZooming->count() > 0; }, 5000));
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
        EXPECT_TRUE(QTest::qWaitFor(isShown, 10000));
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
            QTest::qWaitFor([&] { return QDir(folder).entryList(QDir::Files).size() == count; }, 20000));
        EXPECT_TRUE(QTest::qWaitFor([] { return !QApplication::activeModalWidget(); }, 10000));
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
    }
    EXPECT_EQ(session.data.sizeMode, TSSizeMode::Fit);
    window().resize(1100, 700);
    QTest::qWait(50);
    expectRect(placeInOutput(*mark).toRect(), place.toRect());
    EXPECT_LT(session.data.canvasFrame.bottom(), window().preview->viewport()->height());
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
    EXPECT_EQ(mark->role(), QAccessible::Graphic);
    EXPECT_TRUE(mark->state().selected);
    EXPECT_EQ(canvas->child(1)->role(), QAccessible::StaticText);
    EXPECT_FALSE(canvas->child(1)->state().selected);
    const QPoint middle = mark->rect().center();
    EXPECT_EQ(canvas->childAt(middle.x(), middle.y()), mark);
    EXPECT_EQ(canvas->indexOfChild(canvas->child(1)), 1);
    // The marks one after the other by Tab, and then on to the next control.
    window().preview->setFocus();
    QTest::keyClick(window().preview, Qt::Key_Tab);
    EXPECT_TRUE(canvas->child(1)->state().selected);
    EXPECT_FALSE(mark->state().selected);
    QTest::keyClick(window().preview, Qt::Key_Delete);
    EXPECT_EQ(canvas->childCount(), 1);
}

/// What gives no photo is named once the others are in.
TEST_F(MainWindowTest, RefusedFilesAreNamed)
{
    QString told;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [&told] {
        if (auto *alert = qobject_cast<TSCheckBoxAlert *>(QApplication::activeModalWidget())) {
            told = alert->findChild<QLabel *>("informativeText")->text();
            alert->done(TSCheckBoxAlert::DefaultReturn);
        }
    });
    answer.start(20);
    const QString photo = session.writePng("a.png", plainImage({300, 200}));
    controller->addPhotos({QUrl::fromLocalFile(session.write("b.jpg", "no picture")),
                           QUrl::fromLocalFile(session.folder.path()), QUrl::fromLocalFile(photo)});
    EXPECT_TRUE(QTest::qWaitFor([&told] { return !told.isEmpty(); }, 10000));
    EXPECT_EQ(session.data.photoCount(), 1);
    EXPECT_TRUE(told.startsWith("b.jpg: The file is not a picture that can be read.\n"));
    EXPECT_TRUE(told.endsWith("This is a folder, not a photo."));
}

/// The window goes, the program and its photos stay.
TEST_F(MainWindowTest, ClosingHides)
{
    addPhotos({session.writePng("a.png", plainImage({300, 200}))});
    window().close();
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(session.data.photoCount(), 1);
}
