#include "overlays/TSOverlayClasses.h"

#include "naming/TSTokenClasses.h"
#include "overlays/TSGroup.h"
#include "overlays/TSImage.h"
#include "overlays/TSOverlayManager.h"
#include "overlays/TSText.h"

const platform::ArchiveClasses &TSOverlayClasses()
{
    static const platform::ArchiveClasses classes = [] {
        using platform::archiveFactory;
        platform::ArchiveClasses table = tokenClasses();
        table.insert(QStringLiteral("TSShadow"), archiveFactory<TSShadow>());
        table.insert(QStringLiteral("TSOverlay"), archiveFactory<TSOverlay>());
        table.insert(QStringLiteral("TSText"), archiveFactory<TSText>());
        table.insert(QStringLiteral("TSImage"), archiveFactory<TSImage>());
        table.insert(QStringLiteral("TSGroup"), archiveFactory<TSGroup>());
        table.insert(QStringLiteral("TSOverlayManager"), archiveFactory<TSOverlayManager>());
        return table;
    }();
    return classes;
}
