#include "session/TSImageBrowserItem.h"

#include "session/TSFileUtility.h"

#include <QFileInfo>

using enum TSRepresentationType;

QString TSImageBrowserItem::imageUID() const
{
    if (repType == IKImageBrowserPathRepresentationType)
        return path;
    return QStringLiteral("%1_%2").arg(quintptr(this), 0, 16).arg(path);
}

QString TSImageBrowserItem::imageTitle() const
{
    return title.isEmpty() ? QFileInfo(path).completeBaseName() : title;
}

QString TSImageBrowserItem::sourcePath() const
{
    if (repType == IKImageBrowserCGImageRepresentationType && !TSIsVectorType(TSImageType(resourePath)))
        return QFileInfo(path).path();
    return path;
}
