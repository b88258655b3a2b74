#include "session/TSLastFolder.h"

#include "platform/system/UserDefaults.h"

#include <QDir>
#include <QStandardPaths>

namespace {

QString keyOf(TSFolderUse use)
{
    static constexpr const char *keys[] = {"FolderOfPhotos", "FolderOfPictures", "FolderOfLayouts",
                                           "FolderOfOutput"};
    return QLatin1String(keys[size_t(use)]);
}

} // namespace

QString TSLastFolder(TSFolderUse use, const QString &otherwise)
{
    const QString remembered = platform::UserDefaults::standard().stringForKey(keyOf(use));
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    // Not every desktop makes the folder that it names for pictures.
    for (const QString &folder : {remembered, otherwise, pictures})
        if (!folder.isEmpty() && QDir(folder).exists())
            return folder;
    return QDir::homePath();
}

void TSRememberFolder(TSFolderUse use, const QString &folder)
{
    platform::UserDefaults::standard().setString(keyOf(use), folder);
}
