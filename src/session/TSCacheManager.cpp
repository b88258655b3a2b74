#include "session/TSCacheManager.h"

TSCacheManager *TSCacheManager::cacheManager()
{
    return TSCurrentInstance<TSCacheManager>::get();
}

std::shared_ptr<platform::Picture> TSCacheManager::imageWithPath(const QString &path)
{
    const std::lock_guard lock(m_lock);
    const auto hit = m_imageCache.constFind(path);
    if (hit != m_imageCache.constEnd())
        return *hit;
    std::shared_ptr<platform::Picture> picture = platform::Picture::load(path);
    if (picture)
        m_imageCache.insert(path, picture);
    return picture;
}

void TSCacheManager::removeCacheWithPath(const QString &path)
{
    const std::lock_guard lock(m_lock);
    m_imageCache.remove(path);
}

void TSCacheManager::clearCache()
{
    const std::lock_guard lock(m_lock);
    m_imageCache.clear();
}
