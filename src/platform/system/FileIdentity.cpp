#include "platform/system/FileIdentity.h"

#include <QFile>
#include <sys/stat.h>

namespace platform {

QString fileIdentity(const QString &path)
{
    struct stat status {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return QStringLiteral("%1:%2").arg(status.st_dev).arg(status.st_ino);
}

} // namespace platform
