#pragma once

#include "session/TSPhotoIntake.h"
#include "session/TSPhotoIntakeHost.h"
#include "session/TSPhotoStrip.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <QList>
#include <QObject>
#include <QRunnable>
#include <QThreadPool>
#include <QUrl>

/// The frame around each intake: the sheet, the strip afterwards, the message about repeated files. Lives on
/// the main thread; the intakes run on one of their own, one after the other, and meet the main thread for
/// what concerns its views. Whoever makes the controller keeps strip and host alive longer.
class TSPhotoIntakeController : public QObject, private QRunnable, private TSPhotoIntakeDelegate {
    Q_OBJECT

public:
    TSPhotoIntakeController(TSPhotoListObserver *rows, TSPhotoStrip &strip, TSPhotoIntakeHost &host);
    /// Cancels, and waits for the file at hand; strip and host hear no more.
    ~TSPhotoIntakeController() override;

    // The ways in. They start an intake and return at once; URLs that name no file of this machine are no
    // pictures.
    /// What the file panel answers.
    void loadPhotos(const QList<QUrl> &urls) { start(urls, false, 0); }
    /// A drop on the preview.
    void addPhotosFromDragging(const QList<QUrl> &urls) { start(urls, false, 0); }
    /// A drop on the strip, before the photo at a position.
    void addPhotosFromBrowserViewDragging(const QList<QUrl> &urls, qint64 insertAtIndex);

    void cancelProcessAction();

    /// A whole intake with its frame on the calling thread: the main thread, or one that the main thread is
    /// not waiting for.
    void addItemsFromURLs(const QStringList &paths, bool isInsert, qint64 insertAtIndex);

private:
    struct Drop {
        QStringList paths;
        bool isInsert = false;
        qint64 insertAtIndex = 0;
    };

    void start(const QList<QUrl> &urls, bool isInsert, qint64 insertAtIndex);
    void syncOnMainThread(const std::function<void()> &operation);
    void performOperation();
    void customEvent(QEvent *) override;
    void run() override;
    bool isRunning();
    void showNewPhotos(bool isInsert);
    void showAlert();

    void photoIsReady(const QString &path, const std::function<void()> &join) override;
    void photoWasAdded(const QString &path, qint64 index) override;
    void fileWasGivenUp(const QString &path) override;
    void fileWasRefused(const QString &path, const QString &reason) override;

    TSPhotoStrip &m_strip;
    TSPhotoIntakeHost &m_host;
    TSPhotoIntake m_intake;
    QThreadPool m_queue;
    // What the threads hand to each other, under one lock.
    std::mutex m_meeting;
    std::deque<Drop> m_drops;
    bool m_isRunning = false;
    std::condition_variable m_isPerformed;
    /// What the intake waits for the main thread to do.
    const std::function<void()> *m_operation = nullptr;
    bool m_isEnding = false;
};
