#pragma once

#include <QFont>
#include <QPalette>
#include <QRectF>
#include <QString>

class QPainter;

/// The rounded shape of a token, the same in a line of text and in a palette.
class TSTokenPainter {
public:
    struct Look {
        QString title;
        QFont font;
        QPalette palette;
        bool hasMenu = false;
        bool isSelected = false;
        /// Text is selected around it, so its edge must show against the selection.
        bool isWithinSelection = false;
    };

    /// The room that the shape takes in a line: its height is that of the font.
    static QSizeF size(const Look &look);
    /// Fills the rectangle from side to side and reaches a little above and below it.
    static void paint(QPainter &painter, const QRectF &rect, const Look &look);
};
