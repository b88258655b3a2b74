#include "shell/TSLayoutController.h"

#include "preview/TSPreview.h"
#include "profiles/TSProfileLibrary.h"
#include "profiles/TSProfileSaver.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

void TSLayoutController::openProfileAction()
{
    const QString package =
        QFileDialog::getExistingDirectory(&m_window, qtTrId("ChooseLayout"), TSProfileLibrary::builtInRoot());
    if (package.isEmpty())
        return;
    if (TSProfileLibrary::find(package).isEmpty() || !TSProfileApplier(this).applyProfile(package))
        QMessageBox::warning(&m_window, {}, qtTrId("NoLayout"));
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
        QMessageBox::warning(&m_window, {}, failure);
}

TSProfileApplierDelegate::Answer TSLayoutController::askToCoverWatermarks()
{
    QMessageBox box(QMessageBox::Question, {}, qtTrId("Do you want to cover watermarks title"),
                    QMessageBox::Ok | QMessageBox::Cancel, &m_window);
    box.setInformativeText(qtTrId("Do you want to cover watermarks"));
    auto *again = new QCheckBox(qtTrId("DonotShowApplyProfileTipAgain"));
    box.setCheckBox(again);
    const bool isToCover = box.exec() == QMessageBox::Ok;
    return {isToCover, again->isChecked()};
}

void TSLayoutController::clearSelection()
{
    m_preview.selection().setEditingOverlaysArray({});
    m_preview.selection().setEditingOverlay(nullptr);
    m_preview.selection().setEditingText(nullptr);
    m_preview.selection().setGuideOverlay(nullptr);
}

void TSLayoutController::profileWasApplied()
{
    m_preview.presenter().updateInterface();
    Q_EMIT profileDidApply();
}
