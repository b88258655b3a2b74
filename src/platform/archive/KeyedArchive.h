#pragma once

#include "platform/archive/KeyedUnarchiver.h"

namespace platform {

/// Keyed archives as the program writes and reads them: the objects of `classes`, and the platform's own.
QByteArray archiveRootObject(const ArchiveValue &root);
/// Nothing if the bytes are no keyed archive or its root is nothing.
std::optional<ArchiveValue> unarchive(const QByteArray &archive, const ArchiveClasses &classes);
/// A file that is too large for an archive is not read at all.
std::optional<ArchiveValue> unarchiveFile(const QString &path, const ArchiveClasses &classes);

} // namespace platform
