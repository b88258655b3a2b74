#include "platform/AtomicFile.h"

#include <cstdio>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>
#include <QUuid>

namespace platform {

namespace {

/// In bytes, for the file systems that photos lie on.
constexpr qsizetype longestName = 255;

qsizetype nameLength(const QString &path)
{
    return QFile::encodeName(QFileInfo(path).fileName()).size();
}

QString reasonForFailure(const QString &path, qsizetype length, const QString &fallback)
{
    const QFileInfo folder(QFileInfo(path).path());
    if (!folder.exists())
        return qtTrId("The folder %1 does not exist.").arg(folder.filePath());
    if (!folder.isDir())
        return qtTrId("%1 is not a folder.").arg(folder.filePath());
    if (nameLength(path) > longestName)
        return qtTrId("The name is too long.");
    if (QFileInfo(path).isDir())
        return qtTrId("A folder stands under the name %1.").arg(path);
    if (!folder.isWritable())
        return qtTrId("The folder %1 may not be written to.").arg(folder.filePath());
    if (const QStorageInfo disk(folder.filePath()); disk.isValid() && disk.bytesAvailable() < length)
        return qtTrId("The disk is full.");
    return qtTrId("The file could not be written: %1.").arg(fallback);
}

/// The toolkit's temporary file is named after the target and has a longer name. Where that would be too
/// long, the bytes go to another beside it first.
QString firstPath(const QString &path)
{
    constexpr qsizetype addition = 8;
    const qsizetype length = nameLength(path);
    if (length + addition <= longestName || length > longestName)
        return path;
    return QStringLiteral("%1/.%2").arg(QFileInfo(path).path(), QUuid::createUuid().toString(QUuid::Id128));
}

bool takeName(const QString &from, const QString &path)
{
    if (from == path ||
        std::rename(QFile::encodeName(from).constData(), QFile::encodeName(path).constData()) == 0)
        return true;
    QFile::remove(from);
    return false;
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
    QSaveFile file(firstPath(path));
    if (file.open(QIODevice::WriteOnly) && write(file) && file.commit() && takeName(file.fileName(), path))
        return {};
    return reasonForFailure(path, length, file.errorString());
}

} // namespace platform
