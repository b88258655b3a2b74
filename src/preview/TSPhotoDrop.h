#pragma once

#include <QString>
#include <QStringList>

/// Files that are dragged over the preview. What is dropped becomes photos, not overlays.
namespace TSPhotoDrop {

constexpr unsigned None = 0;
constexpr unsigned Copy = 1;

/// The drag operation: a copy when at least one of the files is a picture.
unsigned draggingUpdated(const QStringList &paths);
bool prepareForDragOperation(const QStringList &paths);
/// Hands all files to the intake. Refuses what comes from the program's own photo list, by the name of the
/// class that is dragged from: there a drag means another order.
bool performDragOperation(const QStringList &paths, const QString &sourceClassName);

} // namespace TSPhotoDrop
