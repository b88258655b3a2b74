#include "platform/archive/KeyedArchive.h"

#include "platform/archive/ArchiveLayouts.h"

#include <QFile>

namespace platform {

QByteArray archiveRootObject(const ArchiveValue &root)
{
    return KeyedArchiver::archiveRootObject(root, platformLayout);
}

std::optional<ArchiveValue> unarchive(const QByteArray &archive, const ArchiveClasses &classes)
{
    return KeyedUnarchiver::unarchive(archive, classes, platformClasses());
}

std::optional<ArchiveValue> unarchiveFile(const QString &path, const ArchiveClasses &classes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMaximumPlistSize)
        return std::nullopt;
    return unarchive(file.readAll(), classes);
}

} // namespace platform
