#include "platform/AtomicFile.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>

namespace platform {

namespace {

QString reasonForFailure(const QString &path, qsizetype length, const QString &fallback)
{
    const QFileInfo folder(QFileInfo(path).path());
    if (!folder.exists())
        return qtTrId("The folder %1 does not exist.").arg(folder.filePath());
    if (!folder.isDir())
        return qtTrId("%1 is not a folder.").arg(folder.filePath());
    if (QFileInfo(path).isDir())
        return qtTrId("A folder stands under the name %1.").arg(path);
    if (!folder.isWritable())
        return qtTrId("The folder %1 may not be written to.").arg(folder.filePath());
    if (const QStorageInfo disk(folder.filePath()); disk.isValid() && disk.bytesAvailable() < length)
        return qtTrId("The disk is full.");
    return qtTrId("The file could not be written: %1.").arg(fallback);
}

} // namespace

QString writeFileAtomically(const QString &path, const QByteArray &bytes)
{
    return writeFileAtomically(path, bytes.size(),
                               [&](QIODevice &file) { return file.write(bytes) == bytes.size(); });
}

QString writeFileAtomically(const QString &path, qsizetype length,
                            const std::function<bool(QIODevice &)> &write)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && write(file) && file.commit())
        return {};
    return reasonForFailure(path, length, file.errorString());
}

} // namespace platform
