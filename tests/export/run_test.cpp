#include "export/TSExportRun.h"
#include "export/TSExportTargets.h"
#include "naming/TSPatternParser.h"
#include "overlays/TSText.h"
#include "support/ExportSession.h"

#include <csignal>
#include <future>
#include <map>
#include <QDir>
#include <QThread>
#include <sys/resource.h>
#include <thread>

using Status = TSExportOutcome::Status;

namespace {

/// Answers as it is told to, and writes down what it is asked and told.
class ScriptedHost : public TSExportHost {
public:
    bool continueWithBiggerPhoto() override
    {
        heard.append("bigger");
        return goesOn;
    }
    void sourceIsMissing(const QString &path) override
    {
        heard.append(QStringLiteral("missing:") + QFileInfo(path).fileName());
    }
    int nameIsTaken(const QString &path) override
    {
        heard.append(QStringLiteral("taken:") + QFileInfo(path).fileName());
        if (whenTaken)
            whenTaken();
        return answer;
    }
    void photoIsDone(qint64, const TSExportOutcome &outcome) override
    {
        outcomes.push_back(outcome);
        if (whenDone)
            whenDone(outcomes.size());
    }
    void setProgressTip(qint64 index) override
    {
        tips.append(index);
        if (whenTipped)
            whenTipped();
    }
    void closeProgressSheet() override { heard.append("close"); }
    void successfulSaveToPath(const QString &path) override
    {
        heard.append(QStringLiteral("saved:") + QFileInfo(path).fileName());
    }

    bool goesOn = true;
    int answer = TSConflictChoice::Rename;
    QStringList heard;
    QList<qint64> tips;
    std::vector<TSExportOutcome> outcomes;
    std::function<void()> whenTaken;
    std::function<void(size_t)> whenDone;
    std::function<void()> whenTipped;
};

/// Runs something while it is being drawn.
class Trap : public TSOverlay {
public:
    std::shared_ptr<TSOverlay> copy() const override { return std::shared_ptr<Trap>(new Trap(*this)); }
    void drawIncontext(platform::PaintLayer &) override { whenDrawn(); }
    Trap() = default;
    std::function<void()> whenDrawn;

protected:
    Trap(const Trap &) = default;
};

class RunTest : public ExportTest {
protected:
    RunTest() { QDir().mkpath(out); }

    void addPhotos(std::initializer_list<const char *> names, const QSize &size = {40, 30})
    {
        for (const char *name : names)
            addPhoto(QString::fromLatin1(name) + QStringLiteral(".png"), size);
    }
    void startAnew(const QString &subfolder = {})
    {
        QDir(out).removeRecursively();
        QDir().mkpath(out + u'/' + subfolder);
    }
    QStringList files() const { return filesIn(out); }
    QStringList savedNames(const TSExportRun &of) const
    {
        return of.savedPaths().join(u',').remove(out + u'/').split(u',', Qt::SkipEmptyParts);
    }

    const QString out = session.path("out");
    ScriptedHost host;
    TSExportRun run{host};
};

/// The process may not write files larger than this while it lives: writes fail as on a full disk.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before{};
};

} // namespace

TEST_F(RunTest, ATakenNameIsAskedAboutOnce)
{
    const std::tuple<const char *, int, const char *, const char *, const char *> cases[] = {
        {"", TSConflictChoice::Rename, "x.jpg x_001.jpg x_002.jpg", "x.jpg x_001.jpg x_002.jpg",
         "taken:x.jpg close saved:x.jpg"},
        {"", TSConflictChoice::Replace, "x.jpg", "x.jpg x.jpg x.jpg", "taken:x.jpg close saved:x.jpg"},
        {"", TSConflictChoice::Stop, "x.jpg", "x.jpg", "taken:x.jpg close"},
        {"x.jpg", TSConflictChoice::Rename, "x.jpg x_001.jpg x_002.jpg x_003.jpg",
         "x_001.jpg x_002.jpg x_003.jpg", "taken:x.jpg close saved:x_001.jpg"},
        {"x.jpg x_002.jpg", TSConflictChoice::Rename, "x.jpg x_001.jpg x_002.jpg x_003.jpg x_004.jpg",
         "x_001.jpg x_003.jpg x_004.jpg", "taken:x.jpg close saved:x_001.jpg"},
        {"x.jpg", TSConflictChoice::Stop, "x.jpg", "", "taken:x.jpg close"}};
    addPhotos({"a", "b", "c"});
    session.data.exportNames = words("x x x");
    for (const auto &[there, answer, left, saved, heard] : cases) {
        startAnew();
        for (const QString &name : words(there))
            session.write(QStringLiteral("out/") + name, "there");
        ScriptedHost asked;
        asked.answer = answer;
        TSExportRun each(asked);
        each.savePhotos(out);
        EXPECT_EQ(files(), words(left));
        EXPECT_EQ(asked.heard, words(heard)) << asked.heard.join(u',').toStdString();
        EXPECT_EQ(savedNames(each), words(saved));
        EXPECT_EQ(each.savedCount(), words(saved).size());
        EXPECT_EQ(asked.outcomes.back().status == Status::Skipped, answer == TSConflictChoice::Stop);
        EXPECT_EQ(bytesOf(out + QStringLiteral("/x.jpg")) == "there", *there != 0);
    }
}

TEST_F(RunTest, ALinkUnderANameIsANameInUse)
{
    const QString outside = session.write("outside", "outside");
    addPhotos({"a"});
    session.data.exportNames = words("x");
    const std::tuple<QString, int, const char *> cases[] = {
        {session.path("nowhere"), TSConflictChoice::Rename, "x_001.jpg"},
        {session.path("nowhere"), TSConflictChoice::Replace, "x.jpg"},
        {outside, TSConflictChoice::Replace, "x.jpg"},
        {session.path("a.png"), TSConflictChoice::Replace, nullptr}};
    const QByteArray original = bytesOf(session.path("a.png"));
    for (const auto &[target, answer, written] : cases) {
        startAnew();
        ASSERT_TRUE(QFile::link(target, out + "/x.jpg"));
        ScriptedHost asked;
        asked.answer = answer;
        TSExportRun(asked).savePhotos(out);
        EXPECT_EQ(asked.heard.value(0), QStringLiteral("taken:x.jpg"));
        EXPECT_EQ(asked.outcomes[0].status, written ? Status::Written : Status::Failed);
        if (written) {
            EXPECT_FALSE(QFileInfo(out + u'/' + QLatin1String(written)).isSymLink());
            EXPECT_EQ(QImage(out + u'/' + QLatin1String(written)).size(), QSize(40, 30));
        }
    }
    EXPECT_FALSE(QFile::exists(session.path("nowhere")));
    EXPECT_EQ(bytesOf(outside), "outside");
    EXPECT_EQ(bytesOf(session.path("a.png")), original);
}

/// As two programs would: neither knows of the other's files until they are there.
TEST_F(RunTest, TwoRunsIntoOneFolderLoseNothing)
{
    addPhotos({"a"});
    const int photos = 60;
    for (int i = 1; i < photos; ++i)
        takeIn(session.writePng(QStringLiteral("%1.png").arg(i), plainImage({40, 30})));
    for (const int answer : {TSConflictChoice::Rename, TSConflictChoice::Stop}) {
        startAnew();
        ScriptedHost hosts[2];
        std::vector<std::thread> threads;
        for (ScriptedHost &each : hosts) {
            each.answer = answer;
            threads.emplace_back([&each, this, taken = TSRunSession::snapshot()]() mutable {
                TSExportRun(each).savePhotos(out, std::move(taken));
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QStringList told;
        for (const ScriptedHost &each : hosts) {
            EXPECT_LE(each.heard.filter("taken:").size(), 1);
            for (const TSExportOutcome &outcome : each.outcomes)
                if (outcome.status == Status::Written)
                    told.append(QFileInfo(outcome.targetPath).fileName());
        }
        told.sort();
        EXPECT_EQ(told, files());
        EXPECT_EQ(told.size(), answer == TSConflictChoice::Rename ? 2 * photos : files().size());
    }
}

TEST_F(RunTest, PhotosAreToldOfInOrderOnceTheirFilesAreThere)
{
    addPhotos({"a", "b", "c", "d"});
    session.write("c.png", "no picture any more");
    session.write("out/A.jpg", "there");
    session.data.exportNames = words("c A c a");
    host.answer = TSConflictChoice::Replace;
    const std::thread::id caller = std::this_thread::get_id();
    QStringList told;
    host.whenTaken = [&told] { EXPECT_EQ(told, words("c.jpg")); };
    host.whenDone = [&](size_t) {
        const TSExportOutcome &outcome = host.outcomes.back();
        const bool isWritten = outcome.status == Status::Written;
        told.append(isWritten ? QFileInfo(outcome.targetPath).fileName() : QString("damaged"));
        EXPECT_EQ(QFileInfo::exists(outcome.targetPath), isWritten);
        EXPECT_EQ(host.tips.size(), told.size() - told.count("damaged"));
        EXPECT_EQ(std::this_thread::get_id(), caller);
    };
    run.savePhotos(out);
    EXPECT_EQ(told, words("c.jpg A.jpg damaged a.jpg"));

    const std::tuple<const char *, const char *, bool> names[] = {{"a", "a.jpg", true},
                                                                  {"a", "a_001.jpg", true},
                                                                  {"IMG", "img.jpg", true},
                                                                  {"\u00E4", "a\u0308.jpg", true},
                                                                  {"b", "a.jpg", false}};
    TSExportTargets targets;
    targets.begin(out, {});
    for (const auto &[name, written, meets] : names)
        EXPECT_EQ(targets.mayMeet(QString::fromUtf8(name), out + u'/' + QString::fromUtf8(written)), meets)
            << name;
}

TEST_F(RunTest, ADryRunGivesOutTheNamesOfARealOne)
{
    addPhotos({"a", "b", "c"});
    session.data.exportNames = words("x%2 x%2 x%2");
    session.write("out/x%2_001.jpg", "there");
    TSExportRun planned(host);
    planned.isDryRun = true;
    planned.savePhotos(out);
    EXPECT_EQ(files(), words("x%2_001.jpg"));
    EXPECT_EQ(host.outcomes[0].reason.toStdString(), "dry run");
    run.savePhotos(out);
    EXPECT_EQ(savedNames(run), words("x%2.jpg x%2_002.jpg x%2_003.jpg"));
    EXPECT_EQ(planned.savedPaths(), run.savedPaths());
}

TEST_F(RunTest, MissingSourcesAreToldOfOnce)
{
    addPhotos({"a", "b", "c"});
    QFile::remove(session.path("a.png"));
    QFile::remove(session.path("c.png"));
    run.savePhotos(out);
    EXPECT_EQ(host.heard, words("missing:a.png close saved:b.jpg"));
    EXPECT_EQ(files(), words("b.jpg"));
    EXPECT_EQ(host.tips, QList<qint64>{1});
    ASSERT_EQ(host.outcomes.size(), 3U);
    EXPECT_EQ(host.outcomes[2].status, Status::Skipped);
    QFile::remove(session.path("b.png"));
    host.heard.clear();
    run.savePhotos(out);
    EXPECT_EQ(host.heard, words("missing:a.png close")) << "nothing was saved, and each run asks anew";
}

TEST_F(RunTest, EndsBeforeItBegins)
{
    run.savePhotos(session.path("nowhere"));
    EXPECT_TRUE(host.heard.isEmpty());
    run.savePhotos(out);
    EXPECT_EQ(host.heard, words("close")) << "there are no names";
    host.heard.clear();
    session.addPhotos(1, {20000, 20001});
    session.data.exportNames = words("a");
    host.goesOn = false;
    run.savePhotos(out);
    EXPECT_EQ(host.heard, words("bigger close"));
    EXPECT_TRUE(host.outcomes.empty());
    host.goesOn = true;
    host.heard.clear();
    run.savePhotos(out);
    EXPECT_EQ(host.heard, words("bigger missing:0.jpg close"));
}

/// The second of three photos cannot be written; the others can.
TEST_F(RunTest, AFailedWriteIsLeftBehind)
{
    const QString longName(300, u'b');
    const std::tuple<QString, const char *, const char *, bool> cases[] = {
        {"2024/b", "out/2024 does not exist.", "", false},
        {longName, "name is too long", "", false},
        {"b", "A folder stands under the name", "b.jpg", false},
        {"b", "could not be written", "", true}};
    addPhotos({"a"});
    takeIn(session.writePng("b.png", noise({200, 150})));
    addPhotos({"c"});
    const QByteArray originals = bytesOf(session.path("b.png"));
    for (const auto &[name, reason, there, isFull] : cases) {
        startAnew(there);
        session.data.exportNames = {"a", name, "c"};
        ScriptedHost told;
        told.answer = TSConflictChoice::Replace;
        // Noise alone takes more than this.
        std::optional<FullDisk> disk;
        if (isFull)
            disk.emplace(5000);
        TSExportRun each(told);
        each.savePhotos(out);
        ASSERT_EQ(told.outcomes.size(), 3U);
        EXPECT_EQ(told.outcomes[0].status, Status::Written);
        EXPECT_EQ(told.outcomes[1].status, Status::Failed);
        EXPECT_TRUE(told.outcomes[1].reason.contains(reason)) << told.outcomes[1].reason.toStdString();
        EXPECT_EQ(told.outcomes[2].status, Status::Written);
        EXPECT_EQ(each.savedCount(), 2);
        EXPECT_EQ(each.savedPaths().value(1), QStringLiteral("%1/%2.jpg").arg(out, name));
        EXPECT_EQ(told.tips, (QList<qint64>{0, 1, 2}));
        QStringList left = words("a.jpg c.jpg");
        if (*there)
            left.insert(1, there);
        EXPECT_EQ(files(), left);
        EXPECT_EQ(bytesOf(session.path("b.png")), originals);
    }
}

TEST_F(RunTest, ACancelTakesEffectAtTheNextGate)
{
    addPhotos({"a", "b", "c"});
    session.data.exportNames = words("x x x");
    const auto trap = std::make_shared<Trap>();
    addOverlay(trap);
    const std::tuple<const char *, const char *, const char *> cases[] = {
        {"composing", "", "close"},
        {"asking", "x.jpg", "taken:x.jpg close"},
        {"between", "x.jpg", "missing:b.png close"},
        {"leaving", "", ""}};
    for (const auto &[where, left, heard] : cases) {
        startAnew();
        ScriptedHost asked;
        TSExportRun each(asked);
        const std::function<void()> cancel = [&each] { each.isCancelled = true; };
        const auto in = [where = QByteArray(where)](const char *name) { return where == name; };
        trap->whenDrawn = [&] {
            in("composing") ? cancel() : void(session.data.isExitExport = in("leaving"));
        };
        asked.whenTaken = in("asking") ? cancel : std::function<void()>();
        asked.whenTipped = in("between") ? cancel : std::function<void()>();
        // Of photos that are gone nothing is drawn and no name is asked about.
        for (const char *name : {"b.png", "c.png"})
            if (in("between"))
                QFile::remove(session.path(QLatin1String(name)));
        each.savePhotos(out);
        EXPECT_EQ(files(), words(left)) << where;
        EXPECT_EQ(asked.heard, words(heard)) << where;
    }
}

TEST_F(RunTest, APausedRunWaits)
{
    addPhotos({"a", "b", "c"});
    const auto trap = std::make_shared<Trap>();
    addOverlay(trap);
    std::promise<void> paused;
    int drawn = 0;
    trap->whenDrawn = [&] {
        if (++drawn != 2)
            return;
        run.isPausing = true;
        paused.set_value();
    };
    std::thread exporting([this] { run.savePhotos(out); });
    paused.get_future().wait();
    QThread::msleep(60);
    EXPECT_FALSE(files().contains("b.jpg"));
    run.isPausing = false;
    exporting.join();
    EXPECT_EQ(files(), words("a.jpg b.jpg c.jpg"));
    EXPECT_EQ(host.heard, words("close saved:a.jpg"));
}

/// Of twelve photos two are damaged and two share a name with others, and each has its number on it.
TEST_F(RunTest, PhotosSideBySideGiveTheFilesOfOneAfterAnother)
{
    for (int i = 0; i < 12; ++i)
        takeIn(session.writePng(QStringLiteral("%1.png").arg(i), noise({300 - 17 * i, 120 + 13 * i})));
    session.write("3.png", "no picture any more");
    session.write("7.png", bytesOf(session.path("7.png")).chopped(3000));
    session.data.exportNames = words("0 1 1 3 4 3 6 7 8 9 10 11");
    const auto text = std::make_shared<TSText>(QStringLiteral("n"));
    text->setTextArray(TSPatternParser::words(u"no. {COUNTER}").values);
    text->setFrame(QRectF(10, 10, 120, 30));
    addOverlay(text);
    addMark(QRectF(150, 60, 40, 20));
    std::map<QString, QByteArray> expected;
    QString told;
    for (const int jobs : {1, 2, 5}) {
        startAnew();
        ScriptedHost heard;
        TSExportRun each(heard);
        each.jobs = jobs;
        each.savePhotos(out);
        QString now;
        for (const TSExportOutcome &outcome : heard.outcomes)
            now += QStringLiteral("%1 %2\n").arg(outcome.targetPath, outcome.reason);
        std::map<QString, QByteArray> written;
        for (const QString &name : files())
            written[name] = bytesOf(out + u'/' + name);
        if (jobs == 1) {
            told = now;
            expected = written;
        }
        EXPECT_TRUE(written == expected) << jobs;
        EXPECT_EQ(now.toStdString(), told.toStdString());
    }
    EXPECT_EQ(expected.size(), 10U);
    EXPECT_NE(expected["8.jpg"], expected["9.jpg"]);
}

/// The run has marks and a canvas of its own; what the window paints does not move while it goes on.
TEST_F(RunTest, TheMarksOnTheScreenStayWhereTheyAre)
{
    addPhotos({"a", "b"}, {400, 300});
    const auto mark = addMark(QRectF(20, 10, 40, 20));
    const auto trap = std::make_shared<Trap>();
    addOverlay(trap);
    int drawn = 0;
    trap->whenDrawn = [&] {
        ++drawn;
        expectRect(mark->frame(), 20, 10, 40, 20);
        expectRect(session.data.canvasFrame, 0, 0, 400, 300);
        EXPECT_EQ(session.photos.selectedPhoto(), 0);
        EXPECT_NE(TSOverlayManager::overlayManager(), &session.overlays);
        // On the window's thread, as on any other, the session is the one it was.
        std::async(std::launch::async, [this] {
            EXPECT_EQ(TSDataManager::dataManager(), &session.data);
            EXPECT_EQ(TSPhotoManager::photoManager(), &session.photos);
            EXPECT_EQ(TSOverlayManager::overlayManager(), &session.overlays);
        }).wait();
        EXPECT_EQ(TSDataManager::dataManager()->canvasFrame.width(), 200);
    };
    session.data.resizeWay = TSResizeWay::ByPercentage;
    session.data.percentage = 50;
    run.savePhotos(out);
    EXPECT_EQ(drawn, 2);
    EXPECT_EQ(TSOverlayManager::overlayManager(), &session.overlays);
}

TEST_F(RunTest, PhotosOnWhichNoMarkShowsAreNamed)
{
    addPhotos({"a", "b"}, {100, 100});
    const QString gone = addMark(QRectF(20, 10, 40, 20), Qt::green)->imagePath();
    const auto isWarned = [this](const char *text) {
        return std::any_of(host.outcomes[0].warnings.begin(), host.outcomes[0].warnings.end(),
                           [text](const QString &warning) { return warning.contains(QLatin1String(text)); });
    };
    run.savePhotos(out);
    EXPECT_TRUE(host.outcomes[0].warnings.isEmpty());
    QFile::remove(gone);
    session.cache.clearCache();
    for (const bool isStrict : {false, true}) {
        startAnew();
        host.outcomes.clear();
        run.isStrict = isStrict;
        run.savePhotos(out);
        EXPECT_EQ(host.outcomes[0].status, isStrict ? Status::Failed : Status::Written);
        EXPECT_TRUE(host.outcomes[0].isUnmarked);
        EXPECT_TRUE(isWarned("No mark shows"));
        EXPECT_TRUE(isWarned("green.png") || isWarned("00ff00.png"));
        EXPECT_EQ(files().isEmpty(), isStrict);
    }
    addMark(QRectF(20, 10, 40, 20), Qt::red);
    addMark(QRectF(20, 10, 40, 20), Qt::blue, 0);
    host.outcomes.clear();
    run.savePhotos(out);
    EXPECT_FALSE(host.outcomes[0].isUnmarked);
    EXPECT_TRUE(isWarned("00ff00.png"));
}
