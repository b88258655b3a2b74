#pragma once

#include <QFont>
#include <QPixmap>
#include <QRectF>
#include <QString>

class QPainter;

/// One cell of a photo browser: where its parts lie, and how they are painted. Rectangles are in the
/// coordinates of the frame, y downward.
class TSImageBrowserCell {
public:
    struct Look {
        QString title;
        QFont titleFont;
        QColor titleColor;
        QColor selectionFill;
        QColor selectionStroke;
        bool isSelected = false;
        /// The keys would pick this cell, which is not selected.
        bool isCurrent = false;
    };

    explicit TSImageBrowserCell(const QRectF &frame) : m_frame(frame) {}

    QRectF imageContainerFrame() const;
    /// The container's inside, fitted to the picture's shape; the whole inside without a picture.
    QRectF imageFrame(const QSizeF &picture) const;
    QRectF titleFrame() const;
    /// Reaches beyond the frame.
    QRectF selectionFrame() const;

    /// A null picture paints the placeholder. The picture is expected in the size of its frame.
    void paint(QPainter &painter, const Look &look, const QPixmap &picture) const;

private:
    void paintSelection(QPainter &painter, const Look &look) const;
    void paintPlaceholder(QPainter &painter) const;
    void paintPicture(QPainter &painter, const QPixmap &picture) const;
    void paintTitle(QPainter &painter, const Look &look) const;

    QRectF m_frame;
};
