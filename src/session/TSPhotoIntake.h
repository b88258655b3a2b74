#pragma once

#include "session/TSImageBrowserItem.h"
#include "session/TSPhotoListObserver.h"

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <QStringList>
#include <vector>

/// What an intake tells while it runs, on the thread it runs on but for what is told from within `join`.
class TSPhotoIntakeDelegate {
public:
    virtual ~TSPhotoIntakeDelegate() = default;
    /// A photo is read and waits for `join`, which changes the lists and the rows; whoever shows them may
    /// have another thread do it. The path is the item's, which for a frame is made up.
    virtual void photoIsReady(const QString &, const std::function<void()> &join) { join(); }
    virtual void photoWasAdded(const QString &path, qint64 index) = 0;
    /// A file that gave no photo, with a sentence that says why.
    virtual void fileWasRefused(const QString &path, const QString &reason) = 0;
    /// A file that a cancel met half way; those of its photos that had been added are out again.
    virtual void fileWasGivenUp(const QString &) {}
};

/// The way of files into the photo list. One intake at a time, on any one thread; the flag that cancels it
/// may be set from another.
class TSPhotoIntake {
public:
    explicit TSPhotoIntake(TSPhotoListObserver *rows = nullptr, TSPhotoIntakeDelegate *delegate = nullptr)
        : m_rows(rows), m_delegate(delegate)
    {
    }

    /// Where the next photos go when they are inserted and not appended; moves on behind each of them.
    qint64 insertAtIndex = 0;
    /// Looked at all along. A file that is met half way is given up whole, since the rest of its frames could
    /// not be added later.
    std::atomic<bool> processCanceled = false;
    /// Another's word for the same, asked on the thread of the intake.
    std::function<bool()> isCancelled;
    /// Whether a file was handled that is not a repeated one, be it that it was passed over as no picture.
    bool isHasAddItem = false;

    /// Takes the files in, in the given order. Folders are not entered. What is no picture, or is in the list
    /// already, is passed over and the delegate told.
    void addItemsWithURLs(const QStringList &paths, bool isInsert);
    /// The names of the files of this intake that were in the list already, joined by commas. Any thread.
    QString repeatedFileNames() const;
    void clearRepeatedFileNames();

private:
    using Item = std::shared_ptr<TSImageBrowserItem>;

    bool isGivenUp() const { return processCanceled || (isCancelled && isCancelled()); }
    void addFile(const QString &path, bool isInsert);
    bool isAddItem(const QString &path);
    void addFrames(const QString &path, bool isInsert);
    void addDrawing(const QString &path, unsigned type, bool isInsert);
    void addPlainFile(const QString &path, const QVariantMap &properties, bool isInsert);
    void performAddItem(const Item &item, bool isInsert);
    void addItem(const Item &item);
    void insertItem(const Item &item);
    void takeBack(const QString &path, const std::vector<Item> &items);
    void refuse(const QString &path, const QString &reason);

    TSPhotoListObserver *m_rows;
    TSPhotoIntakeDelegate *m_delegate;
    mutable std::mutex m_namesLock;
    QString m_repeatedFileNames;
};
