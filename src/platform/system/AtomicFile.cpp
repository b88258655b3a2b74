#include "platform/system/AtomicFile.h"

#include <cerrno>
#include <cstdio>
#include <QFile>
#include <QFileInfo>
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

qint64 AtomicFile::File::writeData(const char *bytes, qint64 length)
{
    const qint64 count = QSaveFile::writeData(bytes, length);
    if (count != length && error.isEmpty())
        error = qt_error_string(errno);
    return count;
}

AtomicFile::AtomicFile(const QString &path) : m_path(path), m_file(firstPath(path)) {}

bool AtomicFile::open()
{
    return m_file.open(QIODevice::WriteOnly);
}

/// The temporary file may have no name, and is open for writing alone.
std::unique_ptr<QIODevice> AtomicFile::reader()
{
    m_file.flush();
    auto file = std::make_unique<QFile>(QStringLiteral("/proc/self/fd/%1").arg(m_file.handle()));
    file->open(QIODevice::ReadOnly);
    return file;
}

QString AtomicFile::commit()
{
    const qsizetype length = m_file.size();
    return m_file.commit() && takeName(m_file.fileName(), m_path) ? QString() : failure(length);
}

QString AtomicFile::failure(qsizetype length) const
{
    return reasonForFailure(m_path, length, m_file.error.isEmpty() ? m_file.errorString() : m_file.error);
}

QString writeFileAtomically(const QString &path, const QByteArray &bytes)
{
    AtomicFile file(path);
    if (file.open() && file.device().write(bytes) == bytes.size())
        return file.commit();
    return file.failure(bytes.size());
}

} // namespace platform
