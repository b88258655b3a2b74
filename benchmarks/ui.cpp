#include "controls/TSStyle.h"
#include "overlays/TSOverlayManager.h"
#include "platform/system/UserDefaults.h"
#include "session/TSDataManager.h"
#include "session/TSDefaults.h"
#include "session/TSPhotoManager.h"
#include "shell/TSAppDelegate.h"
#include "ui/photos/TSPhotoStripView.h"
#include "ui/preview/TSPreviewScrollView.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <sys/resource.h>
#include <unistd.h>

namespace {

/// Milliseconds since the process was started, from the kernel's clock.
double sinceStart()
{
    QFile stat(QStringLiteral("/proc/self/stat"));
    if (!stat.open(QIODevice::ReadOnly))
        return 0;
    constexpr qsizetype startTime = 19;
    const QByteArray afterName = stat.readAll().split(')').last().trimmed();
    const double started = afterName.split(' ').value(startTime).toDouble() / double(sysconf(_SC_CLK_TCK));
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return (double(now.tv_sec) + double(now.tv_nsec) / 1e9 - started) * 1000;
}

double milliseconds(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

double percentile(std::vector<double> times, double share)
{
    std::sort(times.begin(), times.end());
    return times[std::min(times.size() - 1, size_t(double(times.size()) * share))];
}

void report(const char *what, double value, const char *unit, double goal)
{
    std::printf("%-52s %9.1f %-3s <= %-6g %s\n", what, value, unit, goal, value <= goal ? "" : "missed");
    std::fflush(stdout);
}

/// How long the event loop was away at most.
class Pulse : public QObject {
public:
    Pulse()
    {
        m_beat.start();
        startTimer(0);
    }
    double longest = 0;

private:
    void timerEvent(QTimerEvent *) override
    {
        longest = std::max(longest, milliseconds(m_beat));
        m_beat.restart();
    }
    QElapsedTimer m_beat;
};

/// Lets events come as they do in the program; the wait of the test library sleeps between them.
bool waitFor(const std::function<bool()> &isDone)
{
    constexpr int patience = 120000;
    QElapsedTimer timer;
    timer.start();
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (isDone() || timer.elapsed() > patience)
            loop.quit();
    });
    look.start(5);
    loop.exec();
    return isDone();
}

class Bench {
public:
    explicit Bench(TSMainWindowController &controller)
        : m_controller(controller), m_window(controller.window())
    {
    }

    bool take(const QString &folder)
    {
        QList<QUrl> urls;
        for (const QString &name : QDir(folder).entryList(QDir::Files, QDir::Name))
            urls.append(QUrl::fromLocalFile(folder + u'/' + name));
        const Pulse pulse;
        QElapsedTimer timer;
        timer.start();
        m_controller.addPhotos(urls);
        const bool isIn = waitFor([&] {
            const auto &photo = preview().layout().photo();
            return photo && photo->index == urls.size() - 1 && !QApplication::activeModalWidget();
        });
        report("intake of the photos, by 1,000", milliseconds(timer) / double(urls.size()) * 1000, "ms",
               3000);
        report("longest wait of the window meanwhile", pulse.longest, "ms", 50);
        return isIn;
    }

    bool chooseNeighbours()
    {
        select(50);
        const bool isFilled = waitFor([] { return TSDataManager::dataManager()->isCachedPhoto(photo(70)); });
        std::vector<double> times;
        for (qint64 index = 51; index < 70; ++index) {
            QElapsedTimer timer;
            timer.start();
            select(index);
            m_window.preview->viewport()->repaint();
            times.push_back(milliseconds(timer));
        }
        report("choosing a photo whose preview is cached, worst", percentile(times, 1), "ms", 50);
        return isFilled;
    }

    /// Texts, and pictures of one file in sizes of their own.
    void addMarks()
    {
        constexpr int pairs = 5;
        const QString logo = m_folder.filePath(QStringLiteral("logo.png"));
        QImage picture(1500, 600, QImage::Format_ARGB32);
        picture.fill(QColor(255, 255, 255, 128));
        picture.save(logo);
        for (int i = 0; i < pairs; ++i) {
            preview().creation().addStickerWithPath(logo, true);
            const auto mark = TSOverlayManager::overlayManager()->overlayAtIndex(0);
            mark->setFrame({mark->frame().topLeft(), mark->frame().size() * (1 - 0.1 * i)});
            preview().creation().createNewText();
        }
    }

    void dragMarks()
    {
        addMarks();
        QWidget *surface = m_window.preview->viewport();
        const auto mark = TSOverlayManager::overlayManager()->overlayAtIndex(0);
        const QRectF before = mark->frame();
        QPointF point = before.center();
        QTest::mouseMove(surface, point.toPoint());
        QTest::mousePress(surface, Qt::LeftButton, {}, point.toPoint());
        std::vector<double> times;
        for (int step = 0; step < 300; ++step) {
            point += QPointF(step % 100 < 50 ? 3 : -3, step % 60 < 30 ? 2 : -2);
            QMouseEvent move(QEvent::MouseMove, point, surface->mapToGlobal(point), Qt::NoButton,
                             Qt::LeftButton, {});
            QElapsedTimer timer;
            timer.start();
            QApplication::sendEvent(surface, &move);
            surface->repaint();
            times.push_back(milliseconds(timer));
        }
        QTest::mouseRelease(surface, Qt::LeftButton, {}, point.toPoint());
        if (mark->frame() == before)
            std::puts("the mark was not dragged: the times below tell nothing");
        report("a step of a drag among ten marks, 99th percentile", percentile(times, 0.99), "ms", 8);
        report("the same, median", percentile(times, 0.5), "ms", 8);
    }

    /// Up and down the list, twice; the second time must cost no more memory.
    void browse()
    {
        const double first = browseOnce();
        const double second = browseOnce();
        report("memory after browsing the photos", second, "MB", 4096);
        report("of the second time over the first", second / first * 100, "%", 103);
    }

private:
    TSPreview &preview() { return m_window.preview->preview(); }
    static std::shared_ptr<TSPhoto> photo(qint64 index)
    {
        return TSPhotoManager::photoManager()->photoAtIndex(index);
    }
    void select(qint64 index) { m_window.photoStrip->setSelectionIndex(index); }

    double browseOnce()
    {
        for (qint64 index = 0; index < 300; ++index) {
            select(index);
            QTest::qWait(1);
        }
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return double(usage.ru_maxrss) / 1024;
    }

    TSMainWindowController &m_controller;
    TSMainWindow &m_window;
    QTemporaryDir m_folder;
};

} // namespace

/// Measures the window on the photos of a folder: bench-ui FOLDER.
int main(int count, char **arguments)
{
    QApplication application(count, arguments);
    if (count != 2)
        return 2;
    const auto defaults = platform::UserDefaults::inMemory();
    TSStyle::apply();
    TSAppDelegate::installTranslations();
    TSWriteLaunchDefaults();
    TSMainWindowController controller;
    controller.window().show();
    if (!QTest::qWaitForWindowExposed(&controller.window()))
        return 1;
    report("the start view on screen after the start", sinceStart(), "ms", 400);
    const bool isReady = waitFor([&] { return controller.window().pubZooming->count() > 0; });
    Bench bench(controller);
    if (!isReady || !bench.take(QString::fromLocal8Bit(arguments[1])) || !bench.chooseNeighbours())
        return 1;
    bench.dragMarks();
    bench.browse();
    return 0;
}
