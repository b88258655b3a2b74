#include "shell/TSSaveProfileWindowController.h"

#include "controls/TSCheckBoxAlert.h"
#include "profiles/TSProfileLibrary.h"

#include <memory>
#include <QFileInfo>

TSSaveProfileWindowController::TSSaveProfileWindowController(QWidget *parent) : QInputDialog(parent)
{
    setWindowTitle(qtTrId("SaveLayoutTitle"));
    setLabelText(qtTrId("SaveLayoutName"));
}

void TSSaveProfileWindowController::accept()
{
    const QString problem = TSProfileLibrary::problemWithName(name());
    if (!problem.isEmpty())
        tell(problem);
    else if (!QFileInfo::exists(TSProfileLibrary::userPackage(name())) || isToReplace())
        QInputDialog::accept();
}

bool TSSaveProfileWindowController::isToReplace()
{
    const std::unique_ptr<TSCheckBoxAlert> alert(
        TSCheckBoxAlert::alertWithMessageText(qtTrId("FileExisted").arg(name()), qtTrId("Replace"),
                                              qtTrId("Cancel"), {}, qtTrId("FileExistedTip"), this));
    return alert->exec() == TSCheckBoxAlert::DefaultReturn;
}

void TSSaveProfileWindowController::tell(const QString &message)
{
    const std::unique_ptr<TSCheckBoxAlert> alert(
        TSCheckBoxAlert::alertWithMessageText(message, qtTrId("OK"), {}, {}, {}, this));
    alert->exec();
}
