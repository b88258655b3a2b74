#pragma once

#include <QString>

/// What a file dialog is opened for. Each use remembers its own folder.
enum class TSFolderUse { Photos, Pictures, Layouts, Output };

/// The folder that was last chosen for a use, as long as it is there; or else another one, or without one
/// that of the user's pictures. Main thread.
QString TSLastFolder(TSFolderUse use, const QString &otherwise = {});
void TSRememberFolder(TSFolderUse use, const QString &folder);
