#pragma once

#include <QString>

/// Answers for what shows photos and marks while photos leave the list. Main thread only.
class TSPhotoListEditorHost {
public:
    virtual ~TSPhotoListEditorHost() = default;
    /// A question with "OK" and "Cancel"; true for the former.
    virtual bool confirm(const QString &message, const QString &informative) = 0;
    /// A message to be dismissed.
    virtual void showAlert(const QString &message, const QString &informative) = 0;
    /// The canvas and the marks on it let go of their photo, which is about to leave the list.
    virtual void releaseShownPhoto() = 0;
    virtual void emptyEditingOverlaysArray() = 0;
    /// No overlay and no text is being edited any more.
    virtual void clearEditingOverlay() = 0;
    virtual void hideOverlayList() = 0;
    virtual void updateOverlayListViewUI() = 0;
    /// The rows of the overlay list take over the selection.
    virtual void selectOverlays() = 0;
};
