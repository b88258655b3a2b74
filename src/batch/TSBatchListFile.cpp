#include "batch/TSBatchListFile.h"

#include <QFile>
#include <QFileInfo>

std::optional<QStringList> TSBatchListFile::read(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return paths(file.readAll());
}

QStringList TSBatchListFile::paths(QByteArray bytes)
{
    constexpr const char *byteOrderMark = "\xEF\xBB\xBF";
    QStringList list;
    if (bytes.startsWith(byteOrderMark))
        bytes.remove(0, 3);
    for (QByteArray line : bytes.split('\n')) {
        if (line.endsWith('\r'))
            line.chop(1);
        const QString path = QFile::decodeName(line);
        if (!path.trimmed().isEmpty())
            list.append(path);
    }
    return list;
}
