#include "session/TSPhotoManager.h"

#include <algorithm>

namespace {

using Lock = std::lock_guard<std::recursive_mutex>;

} // namespace

TSPhotoManager::TSPhotoManager(const TSPhotoManager &other)
{
    const Lock lock(other.m_lock);
    m_photos.reserve(other.m_photos.size());
    for (const auto &photo : other.m_photos)
        m_photos.push_back(std::make_shared<TSPhoto>(*photo));
    m_selectedPhoto = other.selectedPhoto();
}

TSPhotoManager *TSPhotoManager::photoManager()
{
    return TSCurrentInstance<TSPhotoManager>::get();
}

qint64 TSPhotoManager::photoCount() const
{
    const Lock lock(m_lock);
    return qint64(m_photos.size());
}

std::shared_ptr<TSPhoto> TSPhotoManager::photoAtIndex(qint64 index) const
{
    if (index < 0)
        return nullptr;
    const Lock lock(m_lock);
    if (index >= qint64(m_photos.size()))
        return nullptr;
    // The position is right nearly always; the search is for the moments when it is not.
    if (m_photos[size_t(index)]->index == index)
        return m_photos[size_t(index)];
    const auto found = std::find_if(m_photos.begin(), m_photos.end(),
                                    [index](const auto &photo) { return photo->index == index; });
    return found == m_photos.end() ? nullptr : *found;
}

std::vector<std::shared_ptr<TSPhoto>> TSPhotoManager::photos() const
{
    const Lock lock(m_lock);
    return m_photos;
}

void TSPhotoManager::addPhoto(std::shared_ptr<TSPhoto> photo)
{
    const Lock lock(m_lock);
    m_photos.push_back(std::move(photo));
}

void TSPhotoManager::removePhoto(const std::shared_ptr<TSPhoto> &photo)
{
    const Lock lock(m_lock);
    std::erase(m_photos, photo);
}

void TSPhotoManager::insertPhoto(std::shared_ptr<TSPhoto> photo, qint64 index)
{
    const Lock lock(m_lock);
    const qint64 position = std::clamp<qint64>(index, 0, qint64(m_photos.size()));
    m_photos.insert(m_photos.begin() + position, std::move(photo));
    renumber();
}

void TSPhotoManager::insertDraggingPhoto(std::shared_ptr<TSPhoto> photo, qint64 index)
{
    const Lock lock(m_lock);
    const std::shared_ptr<TSPhoto> selected = photoAtIndex(m_selectedPhoto);
    insertPhoto(std::move(photo), index);
    if (selected)
        m_selectedPhoto = selected->index;
}

void TSPhotoManager::renumber()
{
    const Lock lock(m_lock);
    qint64 index = 0;
    for (const auto &photo : m_photos)
        photo->index = index++;
}
