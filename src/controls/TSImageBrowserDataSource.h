#pragma once

#include <QImage>
#include <QString>

/// What a photo browser shows. All of it is asked for on the main thread, and pictures only for the cells
/// that are to be painted.
class TSImageBrowserDataSource {
public:
    virtual ~TSImageBrowserDataSource() = default;
    virtual int numberOfItemsInImageBrowser() const = 0;
    virtual QString imageTitle(int index) const = 0;
    /// The tooltip.
    virtual QString imageDescription(int index) const = 0;
    /// The file that a drag out of the view hands over; empty for none.
    virtual QString resourcePath(int index) const = 0;
    /// The picture, about as large as asked for in device pixels, or a null image while there is none: the
    /// cell then shows a placeholder until the view is told that the picture has come. Must not block.
    virtual QImage thumbnail(int index, const QSize &pixels) = 0;
};
