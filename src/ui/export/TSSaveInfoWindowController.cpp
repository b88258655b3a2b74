#include "ui/export/TSSaveInfoWindowController.h"

#include "controls/TSTheme.h"
#include "platform/UserDefaults.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

TSSaveInfoWindowController::TSSaveInfoWindowController(const QString &path, QWidget *parent)
    : QDialog(parent), m_path(path), m_cbShow(new QCheckBox(qtTrId("DontShowAgain"), this))
{
    setObjectName(QStringLiteral("SaveInfoWindow"));
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_DeleteOnClose);
    m_cbShow->setObjectName(QStringLiteral("cbShow"));
    auto *title = new QLabel(qtTrId("ExportDone"), this);
    title->setFont(TSTheme::titleFont());
    auto *where = new QLabel(QFileInfo(path).absolutePath(), this);
    where->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *show = buttons->addButton(qtTrId("ShowFile"), QDialogButtonBox::ActionRole);
    show->setObjectName(QStringLiteral("btOK"));
    buttons->addButton(qtTrId("Close"), QDialogButtonBox::RejectRole)
        ->setObjectName(QStringLiteral("btCancel"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(TSTheme::margin, TSTheme::margin, TSTheme::margin, TSTheme::margin);
    column->addWidget(title);
    column->addWidget(where);
    column->addSpacing(TSTheme::spacing);
    column->addWidget(m_cbShow);
    column->addWidget(buttons);
    connect(show, &QPushButton::clicked, this, &TSSaveInfoWindowController::OKClick);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    connect(m_cbShow, &QCheckBox::toggled, this, &TSSaveInfoWindowController::dontShowClick);
}

void TSSaveInfoWindowController::OKClick()
{
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(m_path).absolutePath())))
        QMessageBox::warning(this, {}, qtTrId("FailedShowFile") + m_path);
    close();
}

void TSSaveInfoWindowController::dontShowClick(bool isOn)
{
    platform::UserDefaults::standard().setBool(showKey(), !isOn);
}
