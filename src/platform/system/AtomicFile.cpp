#include "platform/system/AtomicFile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <QUuid>
#include <unistd.h>

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

/// The toolkit would follow a link under the file's own name, and knows no way to leave alone what stands
/// there.
QString nameOfNoMeaning(const QString &path)
{
    return QStringLiteral("%1/.%2").arg(QFileInfo(path).path(), QUuid::createUuid().toString(QUuid::Id128));
}

/// Not every file system can take a name without replacing, nor knows every one links: there the name is
/// taken first, by a file without contents.
bool moveToFreeName(const char *from, const char *path)
{
    if (renameat2(AT_FDCWD, from, AT_FDCWD, path, RENAME_NOREPLACE) == 0)
        return true;
    if (errno == EEXIST)
        return false;
    if (link(from, path) == 0)
        return unlink(from) == 0;
    if (errno == EEXIST)
        return false;
    constexpr mode_t everyone = 0666;
    const int placeholder = ::open(path, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, everyone);
    if (placeholder < 0)
        return false;
    close(placeholder);
    return std::rename(from, path) == 0;
}

/// Whoever keeps others from reading a file, or from changing it, means the next one of its name as well.
bool mayReplace(const QString &path)
{
    const QFileInfo info(path);
    return info.isSymLink() || !info.exists() || (!info.isDir() && info.isWritable());
}

void takePermissionsOver(const QString &from, const QString &path)
{
    const QFileInfo info(from);
    if (info.isFile() && !info.isSymLink())
        QFile::setPermissions(path, info.permissions());
}

} // namespace

qint64 AtomicFile::File::writeData(const char *bytes, qint64 length)
{
    const qint64 count = QSaveFile::writeData(bytes, length);
    if (count != length && error.isEmpty())
        error = qt_error_string(errno);
    return count;
}

AtomicFile::AtomicFile(const QString &path) : m_path(path), m_file(nameOfNoMeaning(path)) {}

AtomicFile::~AtomicFile()
{
    if (m_isFinished)
        QFile::remove(m_file.fileName());
}

bool AtomicFile::open()
{
    return nameLength(m_path) <= longestName && !QFileInfo(m_path).isDir() &&
           m_file.open(QIODevice::WriteOnly);
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
    return finish() && takeName() ? QString() : failure(length);
}

QString AtomicFile::commitNew(const std::function<QString()> &next)
{
    const qsizetype length = m_file.size();
    m_isNameTaken = false;
    if (!finish())
        return failure(length);
    while (!takeFreeName()) {
        m_isNameTaken = errno == EEXIST;
        const QString another = m_isNameTaken && next ? next() : QString();
        if (another.isEmpty())
            return m_isNameTaken ? qtTrId("A file of the name %1 has come to be there.").arg(m_path)
                                 : failure(length);
        m_path = another;
        m_isNameTaken = false;
    }
    return {};
}

bool AtomicFile::finish()
{
    m_isFinished = m_isFinished || m_file.commit();
    return m_isFinished;
}

bool AtomicFile::takeName()
{
    const QString from = m_file.fileName();
    if (!mayReplace(m_path)) {
        m_file.error = qt_error_string(EACCES);
        return false;
    }
    takePermissionsOver(m_path, from);
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(m_path).constData()) != 0) {
        m_file.error = qt_error_string(errno);
        return false;
    }
    m_isFinished = false;
    return true;
}

/// `errno` tells why it did not work.
bool AtomicFile::takeFreeName()
{
    if (!moveToFreeName(QFile::encodeName(m_file.fileName()).constData(),
                        QFile::encodeName(m_path).constData())) {
        const int reason = errno;
        m_file.error = qt_error_string(reason);
        errno = reason;
        return false;
    }
    m_isFinished = false;
    return true;
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
