#pragma once

#include "vector/TSStyledBezierPath.h"

#include <QByteArray>
#include <QImage>
#include <QRectF>
#include <QSizeF>

class QPainter;
class TSSVGParser;

/// A drawing: its shapes and the size of its view box, in the units of the document. The view box's origin
/// plays no part; a drawing without one has no size. Drawing changes nothing; one thread at a time.
class TSSVGImage {
public:
    /// Nothing when the file cannot be read. A damaged document gives the shapes ahead of the damage.
    static std::unique_ptr<TSSVGImage> imageWithContentsOfFile(const QString &path);
    static std::unique_ptr<TSSVGImage> imageWithSVGData(const QByteArray &data);
    /// A drawing among the program's resources, by its name without extension.
    static std::unique_ptr<TSSVGImage> imageNamed(const QString &name);

    double scale = 1;
    const QSizeF &size() const { return m_size; }

    /// `size` times `scale`, premultiplied; null for a drawing without size.
    QImage image() const;
    /// The same, made on an unflipped surface: upside down.
    QImage CGImage() const;
    void drawInContext(QPainter &context) const;
    void drawAtPoint(QPainter &context, const QPointF &point) const;
    /// Stretched into the rectangle, whatever its shape.
    void drawInRect(QPainter &context, const QRectF &rect) const;

private:
    static std::unique_ptr<TSSVGImage> imageFromParser(TSSVGParser &parser);

    std::vector<std::shared_ptr<TSStyledBezierPath>> m_styledPaths;
    QSizeF m_size{0, 0};
};
