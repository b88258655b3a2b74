#include "preview/TSPhotoDrop.h"

#include "session/TSFileUtility.h"
#include "session/TSNotificationCenter.h"

unsigned TSPhotoDrop::draggingUpdated(const QStringList &paths)
{
    return TSAnyImagePath(paths) ? Copy : None;
}

bool TSPhotoDrop::prepareForDragOperation(const QStringList &paths)
{
    return draggingUpdated(paths) != None;
}

bool TSPhotoDrop::performDragOperation(const QStringList &paths, const QString &sourceClassName)
{
    if (sourceClassName == QStringLiteral("TSImageBrowserView") || !TSAnyImagePath(paths))
        return false;
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    Q_EMIT TSNotificationCenter::defaultCenter()->TSDraggingPhotosEnd(urls);
    return true;
}
