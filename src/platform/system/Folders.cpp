#include "platform/system/Folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace platform {

namespace {

QString besideTheProgram(const QString &path)
{
    return QDir::cleanPath(QDir(QCoreApplication::applicationDirPath()).filePath(path));
}

} // namespace

QString applicationSupportFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

QString resourceFolder()
{
    const QString installed = besideTheProgram(QStringLiteral("../share/tessaro"));
    return QDir(installed).exists() ? installed : QStringLiteral(TESSARO_SOURCE_RESOURCES);
}

QString helperProgram(const QString &name)
{
    const QString installed = besideTheProgram(QStringLiteral("../libexec/tessaro/") + name);
    return QFileInfo::exists(installed) ? installed : besideTheProgram(name);
}

} // namespace platform
