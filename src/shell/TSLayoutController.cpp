#include "shell/TSLayoutController.h"

#include "controls/TSCheckBoxAlert.h"
#include "preview/TSPreview.h"
#include "profiles/TSProfileLibrary.h"
#include "profiles/TSProfileSaver.h"
#include "session/TSLastFolder.h"
#include "shell/TSSaveProfileWindowController.h"

#include <memory>
#include <QFileDialog>
#include <QFileInfo>

void TSLayoutController::openProfileAction()
{
    const QString package = QFileDialog::getExistingDirectory(
        &m_window, qtTrId("ChooseLayout"),
        TSLastFolder(TSFolderUse::Layouts, TSProfileLibrary::builtInRoot()));
    if (package.isEmpty())
        return;
    // Beside the one that was taken are the others.
    TSRememberFolder(TSFolderUse::Layouts, QFileInfo(package).absolutePath());
    TSProfileApplier applier(this);
    if (TSProfileLibrary::find(package).isEmpty() || !applier.applyProfile(package))
        tell(qtTrId("NoLayout"));
    else
        tellMissing(applier.missingPictures());
}

void TSLayoutController::openSaveProfile()
{
    TSSaveProfileWindowController sheet(&m_window);
    if (sheet.exec() != QDialog::Accepted)
        return;
    QStringList missing;
    const QString failure = TSProfileSaver::saveProfile(sheet.name(), &missing);
    if (!failure.isEmpty())
        tell(failure);
    else
        tellMissing(missing);
}

void TSLayoutController::tellMissing(const QStringList &pictures)
{
    if (!pictures.isEmpty())
        tell(qtTrId("LayoutLacksPictures").arg(pictures.join(QStringLiteral(", "))));
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
