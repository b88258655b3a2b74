#include "platform/Folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace platform {

QString applicationSupportFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

QString resourceFolder()
{
    const QString installed =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/tessaro"));
    return QDir(installed).exists() ? installed : QStringLiteral(TESSARO_SOURCE_RESOURCES);
}

} // namespace platform
