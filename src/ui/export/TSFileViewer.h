#pragma once

#include <functional>
#include <QString>

class QObject;

/// The desktop's file manager. Main thread.
class TSFileViewer {
public:
    /// Shows the file selected in its folder, or else the folder; afterwards tells whether that worked, which
    /// it does not for a file that is not there. The telling may come at once.
    static void selectFile(const QString &path, QObject *context, const std::function<void(bool)> &told);
};
