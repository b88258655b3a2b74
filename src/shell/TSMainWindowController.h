#pragma once

#include "session/TSCacheFiller.h"
#include "session/TSPhotoIntakeController.h"
#include "session/TSPhotoIntakeHost.h"
#include "session/TSPhotoListEditor.h"
#include "session/TSPhotoListEditorHost.h"
#include "shell/TSLayoutController.h"
#include "shell/TSMainWindow.h"
#include "shell/TSPreferencesWindowController.h"
#include "shell/TSWindowActions.h"
#include "ui/export/TSExportController.h"

#include <memory>
#include <QPointer>

class TSProcessingSheet;

/// The centre of the user's actions: ties the window to the intake, the photo list, the preview, the layouts
/// and the export. Main thread.
class TSMainWindowController : public QObject, private TSPhotoListEditorHost, private TSPhotoIntakeHost {
    Q_OBJECT

public:
    /// The window shows its start view at once; half a second later everything else is there.
    TSMainWindowController();
    ~TSMainWindowController() override;

    TSMainWindow &window() { return *m_window; }
    /// Takes photos in as the file panel does.
    void addPhotos(const QList<QUrl> &urls);
    /// Ends the program; during an export only when the user agrees, and once its run has stopped.
    void quit();
    /// For an end in which no window can be used any more: the photo under way is not written.
    void abandonExport();

private:
    void updateUIAndData();
    void initListView();
    void initPreview();
    void initActions();
    void initZoomList();
    void initObserver();

    void loadPhotoAction();
    void addStickerFromFinder();
    void removePhotosWithSelection(int index);
    void imageBrowserSelectionDidChange(int index);
    void outputSizeOrNameChanged();
    void showZoomList();
    void zoomingTheSize(int row);
    void updateStartView();
    void updateScBatchAdjust();
    void preferencesAction();

    bool confirm(const QString &message, const QString &informative) override;
    void showAlert(const QString &message, const QString &informative) override;
    void releaseShownPhoto() override;
    void emptyEditingOverlaysArray() override;
    void clearEditingOverlay() override;
    void hideOverlayList() override {}
    void updateOverlayListViewUI() override {}
    void selectOverlays() override {}

    void showProcessingView(bool isShown, const QString &title, bool canCancel) override;
    void setProcessTitle(const QString &title) override;
    void fileWasRefused(const QString &path, const QString &reason) override;
    void tellRefusals();

    TSPreview &preview();

    std::unique_ptr<TSMainWindow> m_window;
    TSWindowActions m_actions;
    std::unique_ptr<TSCacheFiller> m_cacheFiller;
    std::unique_ptr<TSPhotoListEditor> m_photoListEditor;
    std::unique_ptr<TSPhotoIntakeController> m_photoIntake;
    std::unique_ptr<TSLayoutController> m_layouts;
    std::unique_ptr<TSExportController> m_export;
    QPointer<TSPreferencesWindowController> m_preferences;
    QPointer<TSProcessingSheet> m_processingWindow;
    QList<QUrl> m_waitingPhotos;
};
