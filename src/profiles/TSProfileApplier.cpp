#include "profiles/TSProfileApplier.h"

#include "overlays/TSGroup.h"
#include "overlays/TSOverlayClasses.h"
#include "overlays/TSText.h"
#include "platform/archive/KeyedArchive.h"
#include "platform/system/UserDefaults.h"
#include "profiles/TSProfileLibrary.h"
#include "profiles/TSProfileStickers.h"
#include "profiles/TSVersionInfo.h"
#include "session/TSDataManager.h"
#include "session/TSDefaults.h"
#include "session/TSNotificationCenter.h"
#include "session/TSPhotoManager.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QString tipKey = QStringLiteral("ShowApplyProfileTip");

using Overlays = TSOverlayManager::Overlays;

platform::ArchiveClasses profileClasses()
{
    platform::ArchiveClasses classes = TSOverlayClasses();
    classes.insert(QStringLiteral("TSVersionInfo"), platform::archiveFactory<TSVersionInfo>());
    return classes;
}

Overlays readOverlays(const QString &package)
{
    const auto root = platform::unarchiveFile(TSProfileLibrary::archivePath(package), profileClasses());
    if (!root)
        return {};
    const auto manager =
        root->toDictionary().value(QStringLiteral("overlayManager")).toObject<TSOverlayManager>();
    return manager ? manager->overlays() : Overlays();
}

void place(TSOverlay &overlay)
{
    if (TSDataManager::dataManager()->pUnit == TSOffsetUnit::Percentage)
        overlay.updateFrameByAlignmentRatio(false);
    else
        overlay.updateFrameByOffsetPixel(false);
}

void fillIn(TSOverlay &overlay, const TSPhoto &photo)
{
    if (auto *text = dynamic_cast<TSText *>(&overlay)) {
        text->updateTextString(photo, text->textArray(), false);
        text->updateTextFrame();
    } else if (auto *group = dynamic_cast<TSGroup *>(&overlay)) {
        group->updateOverlayFrameOfGroup();
        group->updateTextContentsAndImageFrameOfGroup(photo, false);
    }
}

/// `hadOverlays` is of the list before the profile: only then do Script texts have to be kept below the rest.
void join(TSOverlayManager &manager, const std::shared_ptr<TSOverlay> &overlay, bool hadOverlays)
{
    if (!hadOverlays)
        manager.addOverlay(overlay);
    else
        manager.insertOverlay(overlay, overlay->isScript() ? manager.notScriptsCount() : 0);
}

} // namespace

bool TSProfileApplier::applyProfile(const QString &package)
{
    platform::UserDefaults &defaults = platform::UserDefaults::standard();
    TSOverlayManager *manager = TSOverlayManager::overlayManager();
    if (m_delegate && manager->overlayCount() > 0 && defaults.boolForKey(tipKey)) {
        const TSProfileApplierDelegate::Answer answer = m_delegate->askToCoverWatermarks();
        // The choice not to be asked counts with either button.
        defaults.setBool(tipKey, !answer.isNotToAskAgain);
        if (!answer.isToCover)
            return true;
    }
    manager->removeAllOverlay();
    return performProfile(package);
}

bool TSProfileApplier::performProfile(const QString &package)
{
    TSOverlayManager *manager = TSOverlayManager::overlayManager();
    const TSPhotoManager *photos = TSPhotoManager::photoManager();
    const auto shown = photos->photoAtIndex(photos->selectedPhoto());
    if (!shown)
        return false;
    if (m_delegate)
        m_delegate->clearSelection();
    const Overlays loaded = readOverlays(package);
    m_missing = TSProfileStickers::find(loaded, package);
    const bool hadOverlays = manager->overlayCount() > 0;
    for (auto overlay = loaded.rbegin(); overlay != loaded.rend(); ++overlay) {
        place(**overlay);
        fillIn(**overlay, *shown);
        // The words may have changed the frame.
        place(**overlay);
        join(*manager, *overlay, hadOverlays);
    }
    TSSetBatchControlOverlay(true);
    Q_EMIT TSNotificationCenter::defaultCenter()->overlaysChanged();
    if (m_delegate)
        m_delegate->profileWasApplied();
    tellUse(package);
    return !loaded.empty();
}

void TSProfileApplier::tellUse(const QString &package)
{
    if (!m_delegate || !package.startsWith(TSProfileLibrary::builtInRoot() + u'/'))
        return;
    const QFileInfo info(package);
    QString group = info.dir().dirName();
    if (group == u"Text & Image")
        group = QStringLiteral("Text And Image");
    m_delegate->recordProfileData(group, info.completeBaseName());
}
