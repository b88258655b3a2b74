#include "preview/TSOverlayCreation.h"

#include "overlays/TSImage.h"
#include "overlays/TSText.h"
#include "preview/TSCanvasLayout.h"
#include "preview/TSPreviewView.h"
#include "preview/TSSelection.h"
#include "preview/TSTrackerState.h"
#include "session/TSCacheManager.h"
#include "session/TSDataManager.h"
#include "session/TSNotificationCenter.h"
#include "session/TSPhotoManager.h"
#include "session/TSQuartzUtility.h"

#include <QCoreApplication>

namespace {

constexpr double staggerStep = 2;
constexpr double stickerShare = 0.3;

} // namespace

void TSOverlayCreation::clearSelection()
{
    m_selection.clear();
    m_trackerState.alignmentLines.clear();
}

void TSOverlayCreation::createNewText()
{
    if (!m_layout.photo())
        return;
    clearSelection();
    const auto text = std::make_shared<TSText>(qtTrId("SampleText"));
    TSOverlayManager::overlayManager()->addOverlay(text);
    m_selection.editingOverlaysArrayAddobject(text);
    stagger(*text);
    announce(*text);
}

void TSOverlayCreation::addStickerWithPath(const QString &path, bool isFromFinder)
{
    clearSelection();
    const auto sticker = std::make_shared<TSImage>(path);
    sticker->setIsFromFinder(isFromFinder);
    if (isFromFinder)
        sticker->setOldPath(path);
    TSOverlayManager::overlayManager()->addOverlay(sticker);
    m_selection.editingOverlaysArrayAddobject(sticker);
    fitStickerInto(*sticker, path);
    announce(*sticker);
}

void TSOverlayCreation::fitStickerInto(TSOverlay &sticker, const QString &path)
{
    const auto picture = TSCacheManager::cacheManager()->imageWithPath(path);
    if (!picture)
        return;
    const TSDataManager *data = TSDataManager::dataManager();
    const QRectF box(QPointF(0, 0), data->canvasFrame.size() * stickerShare);
    QRectF frame = TSAspectFitRect(QRectF(QPointF(0, 0), picture->size()), box);
    frame.moveTopLeft({(data->previewFrame.width() - frame.width()) * 0.5,
                       (data->previewFrame.height() - frame.height()) * 0.5});
    sticker.setFrame(frame);
    stagger(sticker);
}

void TSOverlayCreation::stagger(TSOverlay &overlay)
{
    const QRectF canvas = TSDataManager::dataManager()->canvasFrame;
    const QRectF shifted = overlay.frame().translated(m_xOffset, m_yOffset);
    if (shifted.right() > canvas.right() || shifted.bottom() > canvas.bottom())
        m_xOffset = m_yOffset = 0;
    else
        overlay.setFrame(shifted);
    m_xOffset += staggerStep;
    m_yOffset += staggerStep;
}

void TSOverlayCreation::announce(TSOverlay &overlay)
{
    m_selection.setEditingOverlays(true);
    for (qint64 i = 0; i < TSPhotoManager::photoManager()->photoCount(); ++i)
        overlay.appendRow();
    m_view.redrawOverlaysView();
    m_view.redrawTrackerView();
}

void TSOverlayCreation::deleteEditingOverlay()
{
    if (m_selection.editingOverlaysArray().empty())
        return;
    TSOverlayManager *manager = TSOverlayManager::overlayManager();
    for (const auto &overlay : m_selection.editingOverlaysArray())
        manager->removeOverlay(overlay);
    clearSelection();
    if (manager->overlayCount() == 0)
        m_xOffset = m_yOffset = 0;
    m_view.redrawTrackerView();
    m_view.redrawOverlaysView();
    m_view.changeCursor(TSCursor::arrowCursor);
    TSNotificationCenter *center = TSNotificationCenter::defaultCenter();
    Q_EMIT center->TSUpdateOverlayListViewUI();
    Q_EMIT center->overlaysChanged();
}
