#pragma once

#include "platform/paint/Picture.h"
#include "session/TSCurrentInstance.h"

#include <memory>
#include <mutex>
#include <QHash>
#include <QString>

/// The pictures of image overlays by path, so that drawing does not read a file again. May be used from any
/// thread.
class TSCacheManager {
public:
    TSCacheManager() : m_current(this) {}
    TSCacheManager(const TSCacheManager &) = delete;
    TSCacheManager &operator=(const TSCacheManager &) = delete;

    /// The current instance: the one made last that still lives, or else one made at the first use.
    static TSCacheManager *cacheManager();

    /// The cached picture, or the file's; nothing, and no entry, for a file that cannot be read.
    std::shared_ptr<platform::Picture> imageWithPath(const QString &path);
    void removeCacheWithPath(const QString &path);
    void clearCache();

private:
    TSCurrentInstance<TSCacheManager> m_current;
    std::mutex m_lock;
    QHash<QString, std::shared_ptr<platform::Picture>> m_imageCache;
};
