#pragma once

#include "overlays/TSImage.h"
#include "session/TSPhotoIntake.h"
#include "support/Session.h"

/// A session with photos from files on the canvas and solid pictures for marks, as an export finds it.
class ExportTest : public SessionTest {
protected:
    ExportTest()
    {
        TSWriteLaunchDefaults();
        TSSetBatchControlOverlay(true);
        session.data.type = TSFileType::JPG;
        session.data.exportFormat = "jpg";
        session.data.quality = 0.85;
    }

    /// The first photo goes to the canvas, at one point a pixel.
    std::shared_ptr<TSPhoto> takeIn(const QString &path)
    {
        TSPhotoIntake(&session.overlays).addItemsWithURLs({path}, false);
        const qint64 index = session.data.photoCount() - 1;
        session.data.GetPhotoSize(index);
        const auto photo = session.photos.photoAtIndex(index);
        photo->photoOutputSize = photo->photoSize;
        session.data.exportNames.append(QFileInfo(path).completeBaseName());
        if (index == 0) {
            session.photos.setSelectedPhoto(0);
            session.setCanvas(QRectF(QPointF(0, 0), photo->photoSize));
        }
        return photo;
    }
    std::shared_ptr<TSPhoto> addPhoto(const QString &name, const QSize &size, const QColor &color = Qt::gray)
    {
        return takeIn(session.writePng(name, plainImage(size, color)));
    }

    /// On top of the others.
    void addOverlay(const std::shared_ptr<TSOverlay> &overlay)
    {
        overlay->updateAlignmentAndRatio();
        overlay->updateOffsetPixel();
        for (qint64 i = 0; i < session.photos.photoCount(); ++i)
            overlay->appendRow();
        session.overlays.addOverlay(overlay);
    }
    std::shared_ptr<TSImage> addMark(const QRectF &frame, const QColor &color = Qt::red, double opacity = 1)
    {
        const QString name = color.name().mid(1) + QStringLiteral(".png");
        auto mark = std::make_shared<TSImage>(session.writePng(name, plainImage({40, 20}, color)));
        mark->setOpacity(opacity);
        mark->setFrame(frame);
        addOverlay(mark);
        return mark;
    }
};
