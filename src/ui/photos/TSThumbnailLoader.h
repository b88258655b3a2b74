#pragma once

#include "session/TSImageBrowserItem.h"

#include <deque>
#include <memory>
#include <mutex>
#include <QCache>
#include <QObject>
#include <QSet>
#include <QThreadPool>

/// Makes the small pictures of photos in the background, the last asked for first, since that is what is
/// being looked at. Keeps what fits into 64 MB. Main thread, but for its own worker.
class TSThumbnailLoader : public QObject {
    Q_OBJECT

public:
    explicit TSThumbnailLoader(QObject *parent = nullptr);
    /// Waits for the picture at hand.
    ~TSThumbnailLoader() override;

    /// The picture, no longer than about the side in pixels, or a null image while it is on its way.
    QImage thumbnail(const std::shared_ptr<TSImageBrowserItem> &item, int side);
    void forget();

Q_SIGNALS:
    void thumbnailDidLoad(const QString &imageKey);

private:
    struct Request {
        std::shared_ptr<TSImageBrowserItem> item;
        int side = 0;
    };

    void serve();
    void store(const QString &imageKey, const QImage &image);

    QCache<QString, QImage> m_images;
    QSet<QString> m_asked;
    std::mutex m_lock;
    std::deque<Request> m_requests;
    bool m_isServing = false;
    QThreadPool m_pool;
};
