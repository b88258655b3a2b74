#pragma once

#include "overlays/TSImage.h"
#include "overlays/TSText.h"
#include "preview/TSPreview.h"
#include "preview/TSPreviewView.h"
#include "support/Session.h"

#include <map>

/// A scroll area of a fixed size that remembers what it was asked.
class RecordingView : public TSPreviewView {
public:
    QRectF visible{0, 0, 1000, 800};
    TSCursor cursor = TSCursor::arrowCursor;
    TSResponder responder = TSResponder::Preview;
    QRectF previewFrame;
    QPointF scrolledTo;
    int trackerRedraws = 0;

    QRectF superviewFrame() const override { return visible; }
    QRectF superviewBounds() const override { return visible; }
    void previewFrameDidChange(const QRectF &frame) override { previewFrame = frame; }
    void scrollToPoint(const QPointF &point) override { scrolledTo = point; }
    void redrawCanvasView() override {}
    void redrawOverlaysView() override {}
    void redrawTrackerView() override { ++trackerRedraws; }
    TSCursor currentCursor() const override { return cursor; }
    void setCursor(TSCursor shape) override { cursor = shape; }
    void makeFirstResponder(TSResponder who) override { responder = who; }
    void zoomListDidChange() override {}
};

/// A preview of 1000 by 800 points with a photo of 800 by 600 pixels, which lies at (100, 100) unscaled.
/// Nothing snaps until a test asks for it.
class PreviewTest : public SessionTest {
protected:
    PreviewTest()
    {
        TSSetBatchControlOverlay(true);
        addPhoto({800, 600});
        preview.presenter().showFrameAtIndex(0);
    }

    std::shared_ptr<TSPhoto> addPhoto(const QSizeF &size)
    {
        session.addPhotos(1, size);
        const auto photo = session.photos.photos().back();
        photo->ratio = size.height() / size.width();
        return photo;
    }

    /// Below the others, under a letter.
    std::shared_ptr<TSOverlay> put(char name, const std::shared_ptr<TSOverlay> &overlay, const QRectF &frame,
                                   double angle = 0)
    {
        overlay->setFrame(frame);
        overlay->setAngle(angle);
        for (qint64 i = 0; i < session.photos.photoCount(); ++i)
            overlay->appendRow();
        overlay->updateAlignmentAndRatio();
        overlay->updateOffsetPixel();
        session.overlays.insertOverlay(overlay, session.overlays.overlayCount());
        return named[name] = overlay;
    }
    std::shared_ptr<TSOverlay> put(char name, const QRectF &frame, double angle = 0)
    {
        return put(name, std::make_shared<TSOverlay>(), frame, angle);
    }
    std::shared_ptr<TSText> putScript(char name)
    {
        const auto text = std::make_shared<TSText>(QStringLiteral("tile"));
        text->setTextType(TSTextType::Script);
        text->updateRenderTextImage();
        put(name, text, session.data.canvasFrame);
        return text;
    }
    void select(const char *names, char guide = 0)
    {
        TSSelection::Overlays list;
        for (const char *name = names; *name; ++name)
            list.push_back(named.at(*name));
        preview.selection().setEditingOverlaysArray(list);
        preview.selection().setGuideOverlay(guide ? named.at(guide) : nullptr);
    }
    std::string selected()
    {
        std::string names;
        for (const auto &overlay : preview.selection().editingOverlaysArray())
            for (const auto &[name, other] : named)
                if (other == overlay)
                    names += name;
        return names;
    }

    void hover(const QPointF &point) { preview.mouseMoved({point}); }
    void press(const QPointF &point, unsigned flags = 0, int clicks = 1)
    {
        preview.mouseDown({point, flags, clicks});
    }
    void drag(const QPointF &point, unsigned flags = 0) { preview.mouseDragged({point, flags}); }

    /// From here on the names of the notifications about the overlays, in their order.
    QStringList &listen()
    {
        using Center = TSNotificationCenter;
        const auto note = [this](const char *name) {
            return [this, name] { posted.append(QString::fromLatin1(name)); };
        };
        QObject::connect(&session.center, &Center::TSUpdateWaterAlignment, note("alignment"));
        QObject::connect(&session.center, &Center::TSUpdateOffset, note("offset"));
        QObject::connect(&session.center, &Center::TSUpdateRotateAngle, note("angle"));
        QObject::connect(&session.center, &Center::TSUpdateOverlayListViewUI, note("list"));
        QObject::connect(&session.center, &Center::TSOutputSizeOrNameChanged, note("output"));
        QObject::connect(&session.center, &Center::TSChangeWatermarkPostion, note("key"));
        QObject::connect(&session.center, &Center::overlaysChanged, [this](bool isDragging, QObject *) {
            posted.append(isDragging ? QStringLiteral("overlays(true)") : QStringLiteral("overlays"));
        });
        return posted;
    }

    RecordingView view;
    TSPreview preview{view};
    std::map<char, std::shared_ptr<TSOverlay>> named;
    QStringList posted;
};
