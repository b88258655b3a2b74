#pragma once

#include "platform/image/LazyImage.h"
#include "platform/image/ThumbnailCollector.h"
#include "platform/paint/PaintLayer.h"

#include <memory>
#include <QSize>

/// One photo with its marks, not yet computed: encoding it runs the photo through, from the file to the
/// encoder, in strips. It holds the recorded marks and owes nothing to the session. To be encoded once, on
/// any thread.
class TSOutputImage {
public:
    /// `layer` has the size of the output; `source` is scaled to it.
    TSOutputImage(const platform::LazyImage &source, platform::PaintLayer layer);

    QSize size() const { return m_size; }
    /// Whether anything of the marks shows.
    bool isMarked() const { return m_layer->shows(); }
    /// About how many bytes encoding takes, so that not too many are encoded at once.
    double memory() const;
    /// The picture with the marks on it. A small copy of that size is collected while it is encoded.
    platform::LazyImage picture(const QSize &thumbnail = {});
    QImage thumbnail() const;

private:
    class Painter;

    platform::LazyImage m_source;
    QSize m_size;
    std::shared_ptr<platform::PaintLayer> m_layer;
    std::shared_ptr<Painter> m_painter;
};
