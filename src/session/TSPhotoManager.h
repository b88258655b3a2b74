#pragma once

#include "session/TSCurrentInstance.h"
#include "session/TSPhoto.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

/// The list of photo records. It runs in parallel with the items of `TSDataManager`, position equal to
/// `index`.
///
/// The operations may be called from any thread: a recursive lock guards the list. A caller that needs it
/// together with the items' lock takes the items' first.
class TSPhotoManager {
public:
    TSPhotoManager() : m_current(this) {}
    /// The list as it is now, with photos of its own, for one thread to work on.
    TSPhotoManager(const TSPhotoManager &other);
    TSPhotoManager &operator=(const TSPhotoManager &) = delete;

    /// The current instance: the calling thread's own, the one made last that still lives, or else one made
    /// at the first use.
    static TSPhotoManager *photoManager();

    qint64 photoCount() const;
    /// Searched by the `index` field and not by position, so that it stays right while a renumbering is under
    /// way.
    std::shared_ptr<TSPhoto> photoAtIndex(qint64 index) const;
    /// A copy of the list, in order.
    std::vector<std::shared_ptr<TSPhoto>> photos() const;

    /// Neither of these renumbers.
    void addPhoto(std::shared_ptr<TSPhoto> photo);
    void removePhoto(const std::shared_ptr<TSPhoto> &photo);
    /// Inserts and renumbers.
    void insertPhoto(std::shared_ptr<TSPhoto> photo, qint64 index);
    /// Inserts, renumbers, and keeps the selection on its picture.
    void insertDraggingPhoto(std::shared_ptr<TSPhoto> photo, qint64 index);
    void renumber();

    /// The index of the photo on the canvas, −1 for none.
    qint64 selectedPhoto() const { return m_selectedPhoto; }
    void setSelectedPhoto(qint64 index) { m_selectedPhoto = index; }

private:
    TSCurrentInstance<TSPhotoManager> m_current;
    mutable std::recursive_mutex m_lock;
    std::vector<std::shared_ptr<TSPhoto>> m_photos;
    std::atomic<qint64> m_selectedPhoto = -1;
};
