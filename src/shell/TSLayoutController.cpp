#include "shell/TSLayoutController.h"

#include "controls/TSCheckBoxAlert.h"
#include "preview/TSPreview.h"
#include "profiles/TSProfileLibrary.h"
#include "profiles/TSProfileSaver.h"
#include "session/TSLastFolder.h"

#include <memory>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>

void TSLayoutController::openProfileAction()
{
    const QString package = QFileDialog::getExistingDirectory(
        &m_window, qtTrId("ChooseLayout"),
        TSLastFolder(TSFolderUse::Layouts, TSProfileLibrary::builtInRoot()));
    if (package.isEmpty())
        return;
    // Beside the one that was taken are the others.
    TSRememberFolder(TSFolderUse::Layouts, QFileInfo(package).absolutePath());
    if (TSProfileLibrary::find(package).isEmpty() || !TSProfileApplier(this).applyProfile(package))
        tell(qtTrId("NoLayout"));
}

void TSLayoutController::openSaveProfile()
{
    bool isAccepted = false;
    const QString name = QInputDialog::getText(&m_window, qtTrId("SaveLayoutTitle"), qtTrId("SaveLayoutName"),
                                               QLineEdit::Normal, {}, &isAccepted);
    if (!isAccepted)
        return;
    const QString failure = TSProfileSaver::saveProfile(name.trimmed());
    if (!failure.isEmpty())
        tell(failure);
}

void TSLayoutController::tell(const QString &message)
{
    const std::unique_ptr<TSCheckBoxAlert> alert(
        TSCheckBoxAlert::alertWithMessageText(message, qtTrId("OK"), {}, {}, {}, &m_window));
    alert->exec();
}

TSProfileApplierDelegate::Answer TSLayoutController::askToCoverWatermarks()
{
    const std::unique_ptr<TSCheckBoxAlert> alert(TSCheckBoxAlert::alertWithMessageText(
        qtTrId("Do you want to cover watermarks title"), qtTrId("OK"), qtTrId("Cancel"), {},
        qtTrId("Do you want to cover watermarks"), &m_window));
    alert->setShowsCheckbox(true);
    alert->setCheckboxText(qtTrId("DonotShowApplyProfileTipAgain"));
    const bool isToCover = alert->exec() == TSCheckBoxAlert::DefaultReturn;
    return {isToCover, alert->checkboxState() == 1};
}

void TSLayoutController::clearSelection()
{
    m_preview.selection().clear();
}

void TSLayoutController::profileWasApplied()
{
    m_preview.presenter().updateInterface();
    Q_EMIT profileDidApply();
}
