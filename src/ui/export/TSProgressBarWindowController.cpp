#include "ui/export/TSProgressBarWindowController.h"

#include "controls/TSTheme.h"
#include "export/TSExportRun.h"
#include "session/TSDataManager.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>

TSProgressBarWindowController::TSProgressBarWindowController(TSExportRun &run, QWidget *parent)
    : QDialog(parent)
    , m_run(run)
    , m_tfTip(new QLabel(this))
    , m_pb(new QProgressBar(this))
    , m_btCancel(new QPushButton(qtTrId("Cancel"), this))
{
    setObjectName(QStringLiteral("ProgressBarWindow"));
    setWindowModality(Qt::WindowModal);
    m_tfTip->setObjectName(QStringLiteral("tfTip"));
    m_pb->setObjectName(QStringLiteral("pb"));
    m_pb->setAccessibleName(qtTrId("Converting..."));
    m_pb->setRange(0, 0);
    m_btCancel->setObjectName(QStringLiteral("btCancel"));
    m_btCancel->setAccessibleName(qtTrId("Cancel"));
    auto *row = new QHBoxLayout;
    row->addWidget(m_pb, 1);
    row->addWidget(m_btCancel);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(TSTheme::margin, TSTheme::margin, TSTheme::margin, TSTheme::margin);
    column->addWidget(m_tfTip);
    column->addLayout(row);
    setMinimumWidth(440);
    connect(m_btCancel, &QPushButton::clicked, this, &TSProgressBarWindowController::cancelClick);
}

void TSProgressBarWindowController::setTip(const QString &tip)
{
    if (!tip.isEmpty())
        m_tfTip->setText(tip);
}

void TSProgressBarWindowController::cancelClick()
{
    if (m_run.isPausing)
        return;
    m_run.isPausing = true;
    QMessageBox box(QMessageBox::Warning, {}, qtTrId("ConfirmCancel"), QMessageBox::Ok | QMessageBox::Cancel,
                    this);
    box.setInformativeText(qtTrId("WarningCancel"));
    if (box.exec() == QMessageBox::Ok) {
        m_run.isCancelled = true;
        done(QDialog::Rejected);
        TSDataManager::dataManager()->isExitExport = true;
    }
    m_run.isPausing = false;
}
