#include "vector/TSSVGImage.h"

#include "platform/system/Folders.h"
#include "vector/TSSVGParser.h"

#include <cmath>
#include <cstdio>
#include <QPainter>

std::unique_ptr<TSSVGImage> TSSVGImage::imageWithContentsOfFile(const QString &path)
{
    const auto parser = TSSVGParser::parserWithSVGDocument(path);
    return parser ? imageFromParser(*parser) : nullptr;
}

std::unique_ptr<TSSVGImage> TSSVGImage::imageWithSVGData(const QByteArray &data)
{
    TSSVGParser parser(data);
    return imageFromParser(parser);
}

std::unique_ptr<TSSVGImage> TSSVGImage::imageNamed(const QString &name)
{
    return imageWithContentsOfFile(QStringLiteral("%1/%2.svg").arg(platform::resourceFolder(), name));
}

std::unique_ptr<TSSVGImage> TSSVGImage::imageFromParser(TSSVGParser &parser)
{
    parser.parseSVGDocument();
    auto image = std::make_unique<TSSVGImage>();
    image->m_styledPaths = parser.paths();
    image->m_size = parser.viewBox().size();
    return image;
}

QImage TSSVGImage::image() const
{
    const QSizeF pixels = m_size * scale;
    if (!(pixels.width() > 0 && pixels.height() > 0))
        return {};
    QImage surface(int(std::ceil(pixels.width())), int(std::ceil(pixels.height())),
                   QImage::Format_ARGB32_Premultiplied);
    if (surface.isNull()) {
        std::fputs("Memory not allocated!\n", stderr);
        return {};
    }
    surface.fill(Qt::transparent);
    QPainter painter(&surface);
    drawInContext(painter);
    return surface;
}

QImage TSSVGImage::CGImage() const
{
    return image().mirrored(false, true);
}

void TSSVGImage::drawInContext(QPainter &context) const
{
    context.save();
    context.setRenderHint(QPainter::Antialiasing);
    context.scale(scale, scale);
    for (const auto &path : m_styledPaths)
        path->drawStyledPath(context);
    context.restore();
}

void TSSVGImage::drawAtPoint(QPainter &context, const QPointF &point) const
{
    drawInRect(context, QRectF(point, m_size));
}

void TSSVGImage::drawInRect(QPainter &context, const QRectF &rect) const
{
    context.save();
    context.translate(rect.topLeft());
    context.scale(rect.width() / m_size.width(), rect.height() / m_size.height());
    drawInContext(context);
    context.restore();
}
