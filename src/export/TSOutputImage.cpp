#include "export/TSOutputImage.h"

#include <algorithm>

class TSOutputImage::Painter : public platform::StripPainter {
public:
    Painter(std::shared_ptr<platform::PaintLayer> layer, const QSize &thumbnail)
        : m_layer(std::move(layer)), m_collector(m_layer->canvas(), thumbnail)
    {
    }

    bool meets(const QRect &rect) const override { return m_layer->meets(rect); }
    void paint(QImage &strip, QPoint origin) const override { m_layer->paintOnto(strip, origin); }
    void finished(const QImage &strip, QPoint origin) override { m_collector.add(strip, origin); }
    QImage thumbnail() const { return m_collector.thumbnail(); }

private:
    std::shared_ptr<platform::PaintLayer> m_layer;
    platform::ThumbnailCollector m_collector;
};

TSOutputImage::TSOutputImage(const platform::LazyImage &source, platform::PaintLayer layer)
    : m_source(source)
    , m_size(layer.canvas())
    , m_layer(std::make_shared<platform::PaintLayer>(std::move(layer)))
{
}

platform::LazyImage TSOutputImage::picture(const QSize &thumbnail)
{
    m_painter = std::make_shared<Painter>(m_layer, thumbnail);
    return m_source.inSRGB().resized(m_size).painted(m_painter);
}

/// Most photos pass through in strips, but some formats are decoded whole.
double TSOutputImage::memory() const
{
    constexpr double always = 4e7;
    constexpr double bytesPerPixel = 4;
    const QSizeF source(m_source.size());
    const QSizeF output(m_size);
    return always +
           bytesPerPixel * std::max(source.width() * source.height(), output.width() * output.height());
}

QImage TSOutputImage::thumbnail() const
{
    return m_painter ? m_painter->thumbnail() : QImage();
}
