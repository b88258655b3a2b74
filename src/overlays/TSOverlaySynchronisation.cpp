#include "overlays/TSOverlaySynchronisation.h"

#include "overlays/TSGroup.h"
#include "overlays/TSText.h"
#include "session/TSDataManager.h"
#include "session/TSPhotoManager.h"

#include <algorithm>

namespace {

TSOverlayManager::Overlays allOverlays()
{
    return TSOverlayManager::overlayManager()->overlays();
}

TSGroup *asGroup(const std::shared_ptr<TSOverlay> &overlay)
{
    return dynamic_cast<TSGroup *>(overlay.get());
}

TSText *asText(const std::shared_ptr<TSOverlay> &overlay)
{
    return dynamic_cast<TSText *>(overlay.get());
}

qint64 indexInList(const TSPhoto &photo)
{
    const auto photos = TSPhotoManager::photoManager()->photos();
    const auto found =
        std::find_if(photos.begin(), photos.end(), [&](const auto &entry) { return entry.get() == &photo; });
    return found == photos.end() ? -1 : found - photos.begin();
}

} // namespace

void TSOverlaySynchronisation::updateOverlaysRatioPixelAlignmentAfterPhotoChanged(const TSPhoto &photo)
{
    const qint64 index = indexInList(photo);
    if (index < 0)
        return;
    for (const auto &overlay : allOverlays())
        overlay->loadRow(index);
}

void TSOverlaySynchronisation::updateOverlaysFrameByAlignmentRatio(bool isTokenName)
{
    bool flag = isTokenName;
    for (const auto &overlay : allOverlays()) {
        // The first overlay that is no text turns the flag off for all behind it, texts too; it is carried
        // over so.
        flag = flag && asText(overlay);
        overlay->updateFrameByAlignmentRatio(flag);
    }
}

void TSOverlaySynchronisation::updateOverlaysFrameByOffsetPixel(bool isTokenName)
{
    for (const auto &overlay : allOverlays())
        overlay->updateFrameByOffsetPixel(isTokenName);
}

void TSOverlaySynchronisation::updateOverlaysFrame(bool isTokenName)
{
    const unsigned unit = TSDataManager::dataManager()->pUnit;
    if (unit == TSOffsetUnit::Percentage)
        updateOverlaysFrameByAlignmentRatio(isTokenName);
    else if (unit == TSOffsetUnit::Pixel)
        updateOverlaysFrameByOffsetPixel(isTokenName);
}

void TSOverlaySynchronisation::updateTextContentsAndImageFrameOfGroup(bool updateText, bool isTokenName,
                                                                      const TSPhoto &photo)
{
    for (const auto &overlay : allOverlays()) {
        if (TSText *text = asText(overlay); text && updateText) {
            text->updateTextString(photo, text->textArray(), isTokenName);
            text->updateTextFrame();
        } else if (TSGroup *group = asGroup(overlay)) {
            group->updateOverlayFrameOfGroup();
            group->updateTextContentsAndImageFrameOfGroup(photo, isTokenName);
        }
    }
}

void TSOverlaySynchronisation::updateOverlaysOfGroup()
{
    for (const auto &overlay : allOverlays())
        if (TSGroup *group = asGroup(overlay))
            group->updateOverlayFrameOfGroup();
}

void TSOverlaySynchronisation::updateOverlaysRenderTextImage()
{
    for (const auto &overlay : allOverlays()) {
        if (TSText *text = asText(overlay))
            text->updateRenderTextImage();
        else if (TSGroup *group = asGroup(overlay))
            group->updateTextImageOfGroup();
    }
}

void TSOverlaySynchronisation::updateOverlaysForPhoto(const TSPhoto &photo, bool isTokenName)
{
    updateOverlaysRatioPixelAlignmentAfterPhotoChanged(photo);
    updateOverlaysFrame(false);
    updateTextContentsAndImageFrameOfGroup(true, isTokenName, photo);
    // The new words have changed the frames.
    updateOverlaysFrame(isTokenName);
    if (isTokenName)
        updateOverlaysFrameByAlignmentRatio(true);
}

QRectF TSOverlaySynchronisation::unionFrame(const Overlays &overlays)
{
    QRectF united = overlays.empty() ? QRectF() : overlays.front()->frame();
    for (const auto &overlay : overlays)
        united = united.united(overlay->frame());
    return united;
}

void TSOverlaySynchronisation::updateOverlaysFrameByAlignment(const Overlays &selection)
{
    const unsigned way = TSDataManager::dataManager()->watermarkAlignmenWay;
    if (way == TSPositionCode::None || selection.empty())
        return;
    const QRectF united = unionFrame(selection);
    for (const auto &overlay : selection) {
        overlay->setWmAlignment(way);
        overlay->setOffsetAlignment(way);
    }
    if (selection.size() == 1) {
        selection.front()->updateFrameByAlignment();
    } else {
        for (const auto &overlay : selection)
            overlay->updateOriginRatio(united);
        TSOverlay block;
        block.setFrame(united);
        block.updateFrameByAlignment();
        for (const auto &overlay : selection)
            overlay->updateOriginByUnionFrame(block.frame());
    }
    for (const auto &overlay : selection)
        if (TSGroup *group = asGroup(overlay))
            group->updateOverlayFrameOfGroup();
}

void TSOverlaySynchronisation::updateSelectedOverlaysRatioOfFrame(const Overlays &selection)
{
    for (const auto &overlay : selection)
        overlay->updateAlignmentAndRatio();
}

void TSOverlaySynchronisation::updateSelectedOverlaysOffsetPixel(const Overlays &selection)
{
    for (const auto &overlay : selection)
        overlay->updateOffsetPixel();
}

void TSOverlaySynchronisation::updateUnionFrameAlignment(const Overlays &selection)
{
    TSDataManager *data = TSDataManager::dataManager();
    if (selection.size() < 2) {
        data->unionFrameAlignment = TSPositionCode::None;
        return;
    }
    TSOverlay block;
    block.setFrame(unionFrame(selection));
    block.updateAlignmentAndRatio();
    data->unionFrameAlignment = block.wmAlignment();
    for (const auto &overlay : selection) {
        overlay->setWmUnionAlignment(block.wmAlignment());
        overlay->setOffsetAlignment(block.wmAlignment());
    }
}
