#pragma once

#include <QObject>
#include <QThreadPool>
#include <QTimer>

/// Decodes the neighbours of the selected photo in the background, a second after the selection has settled,
/// so that the next one is there at once; and lets go of what lies far away. Lives on the main thread.
class TSCacheFiller : public QObject {
    Q_OBJECT

public:
    explicit TSCacheFiller(QObject *parent = nullptr);
    /// Stops the worker and waits for the photo at hand.
    ~TSCacheFiller() override;

    /// The selection has changed: whatever is under way ends, and the filling begins anew in a second.
    void scheduleCacheImages();
    /// Calls off what was scheduled and has not begun.
    void cancelCacheImages() { m_delay.stop(); }
    void cacheImages();

private:
    struct Range {
        qint64 count = 0;
        qint64 selected = 0;
        qint64 low = 0;
        qint64 high = 0;
    };

    static bool evict(const Range &range);
    static bool evictPhoto(qint64 index);
    static void fill(const Range &range);
    static bool takePosition(qint64 index);

    QTimer m_delay;
    QThreadPool m_queue;
};
