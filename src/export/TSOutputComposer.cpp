#include "export/TSOutputComposer.h"

#include "export/TSFailureText.h"
#include "overlays/TSImage.h"
#include "overlays/TSOverlayWalk.h"
#include "overlays/TSText.h"
#include "session/TSCacheManager.h"
#include "session/TSDataManager.h"
#include "session/TSPhotoManager.h"

#include <cmath>
#include <numbers>

using enum TSRepresentationType;

/// The session with the output for a canvas. The photo is selected for as long, since the counter among the
/// wildcards tells the number of the selected one.
class TSOutputComposer::BorrowedCanvas {
public:
    BorrowedCanvas(const QSizeF &size, const TSPhoto &photo)
        : m_canvasFrame(m_data->canvasFrame)
        , m_photoRatioOfSize(m_data->photoRatioOfSize)
        , m_selectedPhoto(m_photos->selectedPhoto())
    {
        m_data->canvasFrame = QRectF(QPointF(0, 0), size);
        m_data->photoRatioOfSize = size.width() / photo.photoSize.width();
        m_photos->setSelectedPhoto(photo.index);
    }
    ~BorrowedCanvas()
    {
        m_data->canvasFrame = m_canvasFrame;
        m_data->photoRatioOfSize = m_photoRatioOfSize;
        m_photos->setSelectedPhoto(m_selectedPhoto);
    }
    BorrowedCanvas(const BorrowedCanvas &) = delete;
    BorrowedCanvas &operator=(const BorrowedCanvas &) = delete;

private:
    TSDataManager *m_data = TSDataManager::dataManager();
    TSPhotoManager *m_photos = TSPhotoManager::photoManager();
    QRectF m_canvasFrame;
    double m_photoRatioOfSize;
    qint64 m_selectedPhoto;
};

namespace {

/// Rendered text is dropped and not made anew: the next draw does it, and there may be none.
void clearTextImages()
{
    TSForEachOverlay(TSOverlayManager::overlayManager()->overlays(), [](TSOverlay &overlay) {
        if (auto *text = dynamic_cast<TSText *>(&overlay))
            text->clearTextImageCache();
    });
}

TSMarkPlacement placementOf(const TSOverlay &overlay)
{
    TSMarkPlacement placement;
    placement.frame = overlay.frame();
    placement.anchor = overlay.wmAlignment();
    placement.angle = overlay.angle() * 180 / std::numbers::pi;
    if (const auto *text = dynamic_cast<const TSText *>(&overlay)) {
        placement.type = text->isScript() ? QStringLiteral("script") : QStringLiteral("text");
        placement.text = text->textStorage().string();
    } else {
        placement.type =
            dynamic_cast<const TSGroup *>(&overlay) ? QStringLiteral("group") : QStringLiteral("image");
    }
    return placement;
}

} // namespace

std::optional<TSOutputImage> TSOutputComposer::createOutputImage(const QString &path, const QRectF &frame,
                                                                 const TSPhoto &photo, qint64 index,
                                                                 double scale)
{
    const double width = std::round(frame.width());
    const double height = std::round(frame.height());
    constexpr double largestSide = 1e7;
    if (!(width >= 1 && height >= 1 && width <= largestSide && height <= largestSide)) {
        m_reason = qtTrId("The output would have no size.");
        return std::nullopt;
    }
    const QSize size{int(width), int(height)};
    const platform::LazyImage source = openSource(path, index, size);
    if (source.isEmpty())
        return std::nullopt;
    platform::PaintLayer layer(size);
    drawOverlay(layer, QSizeF(size), scale, photo, false);
    return TSOutputImage(source, std::move(layer));
}

platform::LazyImage TSOutputComposer::openSource(const QString &path, qint64 index, const QSize &size)
{
    const auto item = TSDataManager::dataManager()->itemAtIndex(index);
    platform::LazyImage source;
    if (item && item->repType == IKImageBrowserPathRepresentationType)
        source = platform::LazyImage::open(path, size);
    else if (item && item->repType == IKImageBrowserCGImageRepresentationType && !item->cgimage.isNull())
        source = platform::LazyImage::fromImage(item->cgimage);
    if (source.isEmpty())
        m_reason = TSDecodingFailureText(platform::takeVipsError());
    return source;
}

void TSOutputComposer::drawOverlay(platform::PaintLayer &target, const QSizeF &frameSize, double,
                                   const TSPhoto &photo, bool isTokenName)
{
    {
        const BorrowedCanvas borrowed(frameSize, photo);
        m_synchronisation.updateOverlaysForPhoto(photo, isTokenName);
        m_synchronisation.updateOverlaysRenderTextImage();
        for (auto overlay = overlayArrays.rbegin(); overlay != overlayArrays.rend(); ++overlay)
            (*overlay)->drawIncontext(target);
    }
    restoreCanvas();
    overlayArrays.clear();
}

std::vector<TSMarkPlacement> TSOutputComposer::placements(const QSizeF &frameSize, const TSPhoto &photo)
{
    std::vector<TSMarkPlacement> list;
    {
        const BorrowedCanvas borrowed(frameSize, photo);
        m_synchronisation.updateOverlaysForPhoto(photo, false);
        for (const auto &overlay : TSOverlayManager::overlayManager()->overlays())
            list.push_back(placementOf(*overlay));
    }
    restoreCanvas();
    return list;
}

QStringList TSOutputComposer::missingPictures() const
{
    QStringList paths;
    TSForEachOverlay(TSOverlayManager::overlayManager()->overlays(), [&paths](const TSOverlay &overlay) {
        const auto *image = dynamic_cast<const TSImage *>(&overlay);
        if (image && !paths.contains(image->imagePath()) &&
            !TSCacheManager::cacheManager()->imageWithPath(image->imagePath()))
            paths.append(image->imagePath());
    });
    return paths;
}

void TSOutputComposer::restoreCanvas()
{
    TSPhotoManager *photos = TSPhotoManager::photoManager();
    if (const auto shown = photos->photoAtIndex(photos->selectedPhoto()))
        m_synchronisation.updateOverlaysForPhoto(*shown, false);
    clearTextImages();
}
