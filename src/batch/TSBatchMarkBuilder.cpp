#include "batch/TSBatchMarkBuilder.h"

#include "overlays/TSAnchor.h"
#include "overlays/TSGroup.h"
#include "overlays/TSImage.h"
#include "overlays/TSOverlayManager.h"
#include "overlays/TSText.h"
#include "platform/system/Folders.h"
#include "profiles/TSProfileApplier.h"
#include "session/TSCacheManager.h"
#include "session/TSDataManager.h"
#include "session/TSPhotoManager.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <QFileInfo>

namespace {

double radians(double degrees)
{
    const double turned = std::fmod(degrees, 360);
    return (turned < 0 ? turned + 360 : turned) / 180 * std::numbers::pi;
}

void setLook(TSText &text, const TSBatchMark &mark)
{
    platform::TextAttributes look = text.fontDic();
    look.font = mark.font;
    look.foregroundColor = mark.color;
    look.strokeColor = mark.color;
    text.setFontDic(look);
    if (mark.stroke) {
        text.setIsStrokeEnable(true);
        text.setStrokeWidth(mark.stroke->width);
        text.setStrokeColor(mark.stroke->color);
    }
    if (mark.glow) {
        text.setIsGlowEnable(true);
        text.setGlowWidth(mark.glow->width);
        text.setGlowBlur(mark.glow->blur);
        text.setGlowColor(mark.glow->color);
    }
    if (mark.shadow) {
        text.setIsShadowEnable(true);
        text.setShadow(std::make_shared<TSShadow>(mark.shadow->color, float(mark.shadow->blur),
                                                  float(mark.shadow->angle), float(mark.shadow->offset)));
    }
}

std::shared_ptr<TSText> newText(const TSBatchMark &mark, const TSPhoto &shown)
{
    // The first words only lend the text its look; those of the mark follow.
    auto text = std::make_shared<TSText>(QStringLiteral("Text"));
    setLook(*text, mark);
    text->updateTextString(shown, mark.words, false);
    text->updateTextFrame();
    return text;
}

QSizeF naturalSize(const TSOverlay &overlay)
{
    if (const auto *text = dynamic_cast<const TSText *>(&overlay))
        return text->naturalSize();
    const auto *image = dynamic_cast<const TSImage *>(&overlay);
    const auto picture = TSCacheManager::cacheManager()->imageWithPath(image->imagePath());
    return picture ? picture->size() : QSizeF(1, 1);
}

} // namespace

QString TSBatchMarkBuilder::build(const std::vector<TSBatchMark> &marks, QStringList &missing)
{
    TSDataManager *data = TSDataManager::dataManager();
    TSPhotoManager *photos = TSPhotoManager::photoManager();
    const auto shown = photos->photoAtIndex(photos->selectedPhoto());
    if (!shown)
        return {};
    const bool onlyPixels =
        !marks.empty() && std::all_of(marks.begin(), marks.end(), [](const TSBatchMark &mark) {
            return mark.unit == TSOffsetUnit::Pixel;
        });
    data->pUnit = onlyPixels ? TSOffsetUnit::Pixel : TSOffsetUnit::Percentage;
    for (auto mark = marks.rbegin(); mark != marks.rend(); ++mark) {
        if (mark->kind != TSBatchMark::Kind::Profile) {
            add(*mark, *shown);
            continue;
        }
        TSProfileApplier applier;
        if (!applier.performProfile(mark->profilePath))
            return mark->profilePath;
        missing += applier.missingPictures();
    }
    return {};
}

void TSBatchMarkBuilder::add(const TSBatchMark &mark, const TSPhoto &shown)
{
    TSOverlayManager *manager = TSOverlayManager::overlayManager();
    const auto overlay = placedOverlay(mark, shown);
    // Tiles lie below all else.
    manager->insertOverlay(overlay, overlay->isScript() ? manager->notScriptsCount() : 0);
    writeRows(*overlay, mark);
}

std::shared_ptr<TSOverlay> TSBatchMarkBuilder::placedOverlay(const TSBatchMark &mark, const TSPhoto &shown)
{
    if (mark.kind == TSBatchMark::Kind::Group)
        return newGroup(mark, shown);
    const auto overlay = newOverlay(mark, shown);
    place(*overlay, mark);
    if (mark.kind == TSBatchMark::Kind::Script)
        becomeScript(static_cast<TSText &>(*overlay), mark);
    return overlay;
}

std::shared_ptr<TSOverlay> TSBatchMarkBuilder::newGroup(const TSBatchMark &mark, const TSPhoto &shown)
{
    TSGroup::Members members;
    // The first of a group lies at the bottom.
    for (auto member = mark.members.rbegin(); member != mark.members.rend(); ++member)
        members.push_back(placedOverlay(*member, shown));
    const auto group = TSGroup::groupOverlayWithOverlays(members);
    group->setOpacity(1);
    return group;
}

std::shared_ptr<TSOverlay> TSBatchMarkBuilder::newOverlay(const TSBatchMark &mark, const TSPhoto &shown)
{
    std::shared_ptr<TSOverlay> overlay;
    if (mark.kind != TSBatchMark::Kind::Image) {
        overlay = newText(mark, shown);
    } else {
        auto image = std::make_shared<TSImage>(mark.imagePath);
        // A sticker of the program's own is found by its name wherever the program lies.
        const bool isSticker =
            QFileInfo(mark.imagePath).path() == platform::resourceFolder() + QStringLiteral("/Stickers");
        image->setIsFromFinder(!isSticker);
        if (!isSticker)
            image->setOldPath(mark.imagePath);
        overlay = image;
    }
    overlay->setAngle(radians(mark.angle));
    overlay->setOpacity(mark.opacity / 100);
    return overlay;
}

void TSBatchMarkBuilder::place(TSOverlay &overlay, const TSBatchMark &mark)
{
    const TSDataManager *data = TSDataManager::dataManager();
    const QRectF &canvas = data->canvasFrame;
    const QSizeF natural = naturalSize(overlay);
    const double height = mark.height / 100 * canvas.height();
    const QSizeF size(natural.width() * height / natural.height(), height);
    const QPointF offset =
        mark.unit == TSOffsetUnit::Pixel
            ? mark.offset * data->photoRatioOfSize
            : QPointF(mark.offset.x() / 100 * canvas.width(), mark.offset.y() / 100 * canvas.height());
    overlay.setFrame(
        QRectF(TSOriginForAnchor(mark.anchor, TSAnchorOfRect(mark.anchor, canvas) + offset, size), size));
    // The anchor was asked for, whichever would be nearest.
    overlay.setWmAlignment(mark.anchor);
    overlay.setOffsetAlignment(mark.anchor);
    overlay.updateAlignmentAndRatio();
    overlay.updateOffsetPixel();
}

/// As in the window: the size of the text becomes that of the tiles, and the frame the canvas.
void TSBatchMarkBuilder::becomeScript(TSText &text, const TSBatchMark &mark)
{
    constexpr double tileUnits = 300;
    text.setTextType(TSTextType::Script);
    text.setOldRatioOfFrameByAlignment(text.ratioOfFrameByAlignment());
    text.setOldFrame(text.frame());
    text.setRatioOfFrameByAlignment(QRectF(0, 0, 1, 1));
    text.setXPixel(0);
    text.setYPixel(0);
    text.setTileHeight(std::min(100.0, mark.height / 100 * tileUnits));
    text.updateFrameByAlignmentRatio(false);
}

/// The session counts in one unit at a time. Beside marks in percent, a mark in pixels is given for each
/// photo the fraction that its pixels make there, which comes to the same place.
void TSBatchMarkBuilder::writeRows(TSOverlay &overlay, const TSBatchMark &mark)
{
    const bool asFractions = mark.kind != TSBatchMark::Kind::Script && mark.unit == TSOffsetUnit::Pixel &&
                             TSDataManager::dataManager()->pUnit == TSOffsetUnit::Percentage;
    for (const auto &photo : TSPhotoManager::photoManager()->photos()) {
        overlay.appendRow();
        if (!asFractions || photo->photoSize.isEmpty())
            continue;
        const QPointF share(mark.offset.x() / photo->photoSize.width(),
                            mark.offset.y() / photo->photoSize.height());
        overlay.rows().change(overlay.rows().count() - 1,
                              [&share](TSRow &row) { row.ratioOfFrameByAlignment.moveTopLeft(share); });
    }
}
