#pragma once

#include <QString>

/// Shows how an intake goes. Main thread only; the intake waits for each call to return.
class TSPhotoIntakeHost {
public:
    virtual ~TSPhotoIntakeHost() = default;
    /// The sheet that keeps the user away while photos come in. The title counts when it is shown.
    virtual void showProcessingView(bool isShown, const QString &title, bool canCancel) = 0;
    virtual void setProcessTitle(const QString &title) = 0;
    /// A message to be dismissed.
    virtual void showAlert(const QString &message, const QString &informative) = 0;
    /// A file that gave no photo, with a sentence that says why. The sheet passes over it in silence.
    virtual void fileWasRefused(const QString &path, const QString &reason) = 0;
};
