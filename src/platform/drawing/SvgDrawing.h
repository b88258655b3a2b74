#pragma once

#include "platform/drawing/Drawing.h"

#include <librsvg/rsvg.h>
#include <memory>
#include <QByteArray>

namespace platform {

/// An SVG document. What it names outside of itself is not fetched.
class SvgDrawing : public Drawing {
public:
    /// Nothing for what is no such document, or one without a size that can be drawn.
    static std::unique_ptr<SvgDrawing> fromData(const QByteArray &document);

    QSizeF size() const override { return m_size; }
    QImage imageOfSize(const QSize &pixels) const override;

private:
    struct Unref {
        void operator()(RsvgHandle *handle) const { g_object_unref(handle); }
    };
    using HandlePtr = std::unique_ptr<RsvgHandle, Unref>;

    SvgDrawing(HandlePtr handle, const QSizeF &size) : m_handle(std::move(handle)), m_size(size) {}
    bool drawPart(QImage &image, const QRect &part) const;

    HandlePtr m_handle;
    QSizeF m_size;
};

} // namespace platform
