#pragma once

#include <QMimeData>

/// A photo on its way out of a browser: its file for others, its position for the browser itself.
class TSImageBrowserMimeData : public QMimeData {
    Q_OBJECT

public:
    TSImageBrowserMimeData(const QObject *model, int index) : model(model), index(index) {}

    /// Which list the position counts in; only to be compared.
    const QObject *const model;
    const int index;
};
