#include "support/ExportSession.h"
#include "ui/export/TSExportController.h"

#include <optional>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QMainWindow>
#include <QSemaphore>
#include <QTest>
#include <QTranslator>
#include <unistd.h>

namespace {

/// Holds the run, which draws a copy of it on each photo, until it is let go.
class Trap : public TSOverlay {
public:
    Trap() = default;
    std::shared_ptr<TSOverlay> copy() const override { return std::shared_ptr<Trap>(new Trap(*this)); }
    void drawIncontext(platform::PaintLayer &context) override
    {
        context.drawImage(QRectF(0, 0, 4, 4), plainImage({4, 4}, Qt::red));
        m_held->reached.release();
        m_held->letGo.acquire();
    }

private:
    Trap(const Trap &) = default;

    struct Held {
        QSemaphore reached, letGo;
    };
    std::shared_ptr<Held> m_held = std::make_shared<Held>();

public:
    QSemaphore &reached = m_held->reached;
    QSemaphore &letGo = m_held->letGo;
};

/// The process may do no more than a stranger while it lives, as whom a test run by root can be refused.
class Stranger {
public:
    Stranger() { EXPECT_EQ(setresuid(nobody, nobody, getuid()), 0); }
    ~Stranger() { EXPECT_EQ(setresuid(0, 0, 0), 0); }

private:
    static constexpr uid_t nobody = 65534;
};

class ExportRoadTest : public ExportTest {
protected:
    ExportRoadTest()
    {
        EXPECT_TRUE(english.load(":/translations/tessaro_en.qm"));
        QApplication::installTranslator(&english);
        for (const char *name : {"a.png", "b.png", "c.png"})
            addPhoto(QLatin1String(name), {40, 30});
        QDir().mkpath(out);
        window.resize(900, 600);
        window.show();
        controller = std::make_unique<TSExportController>(window);
    }

    /// The alert that asks has no name, and its buttons have; the one on top counts.
    static QWidget *shown(const char *name)
    {
        for (QWidget *widget : QApplication::allWidgets())
            if (widget->isVisible() && widget->objectName() == QLatin1String(name))
                return widget;
        return nullptr;
    }
    static void click(const char *name)
    {
        ASSERT_TRUE(QTest::qWaitFor([name] { return shown(name) != nullptr; }, 120000)) << name;
        QTest::mouseClick(shown(name), Qt::LeftButton);
    }
    static std::string text(const char *name)
    {
        const auto *label = qobject_cast<QLabel *>(shown(name));
        return label ? label->text().toStdString() : "not shown";
    }
    /// Presses OK in the format sheet and takes the folder in the panel.
    void start()
    {
        controller->exportPhotos();
        click("btOK");
        auto *panel = window.findChild<QFileDialog *>();
        ASSERT_TRUE(panel);
        ASSERT_TRUE(panel->isVisible());
        panel->setDirectory(out);
        panel->selectFile(out);
        QMetaObject::invokeMethod(panel, "accept");
        ASSERT_TRUE(controller->isRunning());
    }
    bool waitForEnd()
    {
        return QTest::qWaitFor([this] { return !controller->isRunning(); }, 120000);
    }
    void closeResult()
    {
        if (shown("SaveInfoWindow"))
            click("btCancel");
    }
    std::string files() const { return filesIn(out).join(u' ').toStdString(); }
    std::shared_ptr<Trap> addTrap()
    {
        auto trap = std::make_shared<Trap>();
        trap->setFrame(QRectF(0, 0, 5, 5));
        addOverlay(trap);
        return trap;
    }

    const QString out = session.path("out");
    QTranslator english;
    QMainWindow window;
    std::unique_ptr<TSExportController> controller;
};

} // namespace

/// What became of the photos, by number; and of which names what is told.
TEST_F(ExportRoadTest, CountsAndNamesAreTold)
{
    using Status = TSExportOutcome::Status;
    TSExportReport report;
    const std::tuple<const char *, Status, const char *> photos[] = {
        {"/x/one/a.jpg", Status::Written, ""},       {"/x/one/b.jpg", Status::Failed, "bad"},
        {"/x/two/b.jpg", Status::Failed, "worse"},   {"/y/two/b.jpg", Status::Failed, "worst"},
        {"/x/one/c.jpg", Status::Failed, "unlucky"}, {"/x/one/d.jpg", Status::Skipped, "gone"},
    };
    for (const auto &[path, status, reason] : photos) {
        TSExportOutcome outcome;
        outcome.status = status;
        outcome.reason = QLatin1String(reason);
        report.add(QLatin1String(path), outcome);
    }
    TSExportReport unmarked;
    TSExportOutcome bare;
    bare.status = Status::Written;
    bare.isUnmarked = true;
    unmarked.add(QStringLiteral("/x/a.jpg"), bare);
    EXPECT_EQ(unmarked.missedCount(), 0);
    EXPECT_EQ(unmarked.sentences(), "a.jpg: No mark shows on the photo.");
    EXPECT_EQ(report.counts(), "1 written, 4 failed, 1 skipped");
    EXPECT_EQ(report.sentences(), "one/b.jpg: bad\nx/two/b.jpg: worse\ny/two/b.jpg: worst\nc.jpg: unlucky\n"
                                  "d.jpg: The file of the photo is no longer there.");
    session.write("out/b.jpg", "taken");
    start();
    ASSERT_TRUE(QTest::qWaitFor([] { return shown("otherButton") != nullptr; }, 120000));
    EXPECT_EQ(text("messageText"), "A file named b.jpg is there already");
    click("defaultButton");
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(text("tfCounts"), "3 written, 0 failed, 0 skipped");
    closeResult();
}

TEST_F(ExportRoadTest, ACancelTellsWhatHadFailedBefore)
{
    session.write("a.png", "no picture");
    const auto trap = addTrap();
    start();
    trap->letGo.release();
    trap->reached.acquire(2);
    QTest::keyClick(shown("ProgressBarWindow"), Qt::Key_Escape);
    click("defaultButton");
    trap->letGo.release(100);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(text("messageText"), "1 photo was not exported");
    EXPECT_EQ(text("informativeText").substr(0, 7), "a.png: ");
    click("defaultButton");
    session.overlays.removeOverlay(trap);
}

TEST_F(ExportRoadTest, TwoRunsInARowAskOnceAboutTakenNames)
{
    const std::tuple<const char *, const char *, const char *> rows[] = {
        {"defaultButton", "a.jpg a_001.jpg b.jpg b_001.jpg c.jpg c_001.jpg", "The photos are exported"},
        {"otherButton", "a.jpg b.jpg c.jpg", "The photos are exported"},
        {"alternateButton", "a.jpg b.jpg c.jpg", "not shown"},
    };
    for (const auto &[answer, expected, title] : rows) {
        QDir(out).removeRecursively();
        QDir().mkpath(out);
        start();
        ASSERT_TRUE(waitForEnd());
        EXPECT_EQ(text("tfTitle"), "The photos are exported");
        closeResult();
        start();
        click(answer);
        ASSERT_TRUE(waitForEnd());
        EXPECT_EQ(files(), expected) << answer;
        EXPECT_EQ(text("tfTitle"), title) << answer;
        EXPECT_FALSE(shown("ProgressBarWindow"));
        closeResult();
    }
}

TEST_F(ExportRoadTest, ACancelIsAskedAboutAndHoldsTheRun)
{
    for (const bool isConfirmed : {false, true}) {
        QDir(out).removeRecursively();
        QDir().mkpath(out);
        const auto trap = addTrap();
        start();
        trap->reached.acquire();
        QTest::keyClick(shown("ProgressBarWindow"), Qt::Key_Escape);
        trap->letGo.release(100);
        QTest::qWait(100);
        EXPECT_EQ(files(), "") << "the run waits for the answer";
        click(isConfirmed ? "defaultButton" : "alternateButton");
        ASSERT_TRUE(waitForEnd());
        EXPECT_EQ(files(), isConfirmed ? "" : "a.jpg b.jpg c.jpg");
        EXPECT_EQ(shown("SaveInfoWindow") == nullptr, isConfirmed);
        EXPECT_FALSE(shown("ProgressBarWindow"));
        closeResult();
        session.overlays.removeOverlay(trap);
    }
}

TEST_F(ExportRoadTest, AQuitIsAskedAboutAndToldWhenTheRunHasStopped)
{
    QAction quit;
    quit.setShortcut(Qt::CTRL | Qt::Key_Q);
    controller->addRunAction(&quit);
    QObject::connect(&quit, &QAction::triggered, controller.get(), &TSExportController::quitRun);
    bool isRunning = true;
    int quits = 0;
    QObject::connect(controller.get(), &TSExportController::runWasQuit, &window, [&] {
        isRunning = controller->isRunning();
        ++quits;
    });
    for (const auto &[answer, again] :
         std::vector<std::pair<const char *, const char *>>{{"alternateButton", nullptr},
                                                            {"alternateButton", "defaultButton"},
                                                            {"defaultButton", nullptr}}) {
        QDir(out).removeRecursively();
        QDir().mkpath(out);
        quits = 0;
        const auto trap = addTrap();
        start();
        trap->reached.acquire();
        ASSERT_TRUE(QTest::qWaitForWindowActive(shown("ProgressBarWindow")));
        QTest::keyClick(shown("ProgressBarWindow"), Qt::Key_Q, Qt::ControlModifier);
        EXPECT_EQ(text("messageText"), "Stop the export and quit?");
        click(answer);
        if (again) {
            // What was given up is no longer meant by a mere cancel.
            QTest::keyClick(shown("ProgressBarWindow"), Qt::Key_Escape);
            click(again);
        }
        trap->letGo.release(100);
        ASSERT_TRUE(waitForEnd());
        const bool isQuit = !again && answer == QLatin1String("defaultButton");
        EXPECT_EQ(quits, int(isQuit));
        EXPECT_EQ(files(), isQuit || again ? "" : "a.jpg b.jpg c.jpg");
        closeResult();
        session.overlays.removeOverlay(trap);
    }
    EXPECT_FALSE(isRunning);
}

TEST_F(ExportRoadTest, AQuitWaitsForNoAnswerAndLeavesNoHalves)
{
    session.write("out/b.jpg", "taken");
    start();
    ASSERT_TRUE(QTest::qWaitFor([] { return shown("otherButton") != nullptr; }, 120000));
    controller.reset();
    EXPECT_EQ(files(), "a.jpg b.jpg") << "in the middle of the question about b";
    controller = std::make_unique<TSExportController>(window);
    const auto trap = addTrap();
    start();
    trap->reached.acquire();
    QTest::keyClick(shown("ProgressBarWindow"), Qt::Key_Escape);
    trap->letGo.release(100);
    controller.reset();
    EXPECT_EQ(files(), "a.jpg b.jpg") << "while the cancel question holds the run";
}

TEST_F(ExportRoadTest, ALostFolderIsTold)
{
    const auto trap = addTrap();
    start();
    trap->letGo.release();
    trap->reached.acquire(2);
    // The first photo may be on its way to the disk while the second one is drawn.
    ASSERT_TRUE(QTest::qWaitFor([this] { return files() == "a.jpg"; }, 120000));
    QDir(out).removeRecursively();
    trap->letGo.release(100);
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(text("tfTitle"), "1 of 3 photos are exported");
    EXPECT_EQ(text("tfReport"), "2 photos: The folder " + out.toStdString() + " is no longer there.");
    closeResult();
    session.overlays.removeOverlay(trap);

    QDir().mkpath(out);
    QFile::remove(session.path("b.png"));
    session.defaults->setBool("kShowSaveInfo", false);
    const auto second = addTrap();
    start();
    second->reached.acquire();
    QDir(out).removeRecursively();
    second->letGo.release(100);
    click("defaultButton");
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(text("messageText"), "2 photos were not exported") << "b's file was told of before";
    EXPECT_EQ(text("informativeText"),
              "2 photos: The folder " + out.toStdString() +
                  " is no longer there.\nb.png: The file of the photo is no longer there.");
}

TEST_F(ExportRoadTest, AReadOnlyFolderIsTold)
{
    // Whatever mask they were made with.
    for (const char *name : {"a.png", "b.png", "c.png", "out", ""})
        QFile::setPermissions(session.path(QLatin1String(name)), QFile::Permissions(0x5555));
    {
        std::optional<Stranger> stranger;
        if (geteuid() == 0)
            stranger.emplace();
        if (!QFileInfo(out).isDir())
            GTEST_SKIP() << "a stranger does not get as far as the folder for temporary files";
        start();
        ASSERT_TRUE(waitForEnd());
        EXPECT_EQ(text("messageText"), "3 photos were not exported");
        EXPECT_EQ(text("informativeText"),
                  "3 photos: The folder " + out.toStdString() + " cannot be written to.");
    }
    EXPECT_EQ(files(), "");
    QFile::setPermissions(session.folder.path(), QFile::Permissions(0x7777));
}

TEST_F(ExportRoadTest, LargeOutputsAreAskedAboutAndCancelIsTheDefault)
{
    session.photos.photoAtIndex(1)->photoSize = QSizeF(20000, 20001);
    start();
    click("defaultButton");
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(files(), "");
    EXPECT_FALSE(shown("ProgressBarWindow") || shown("SaveInfoWindow"));
}

TEST_F(ExportRoadTest, TheResultSheetCanBeDoneWithout)
{
    start();
    ASSERT_TRUE(waitForEnd());
    click("cbShow");
    EXPECT_FALSE(session.defaults->boolForKey("kShowSaveInfo"));
    QFile::remove(out + "/a.jpg");
    click("btOK");
    EXPECT_EQ(text("messageText"), "This file could not be shown: " + out.toStdString() + "/a.jpg");
    click("defaultButton");
    EXPECT_FALSE(shown("SaveInfoWindow"));
    QFile::remove(out + "/b.jpg");
    QFile::remove(out + "/c.jpg");
    start();
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(files(), "a.jpg b.jpg c.jpg");
    EXPECT_FALSE(shown("SaveInfoWindow"));
}
