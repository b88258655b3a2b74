#include "ui/export/TSSaveInfoWindowController.h"

#include "controls/TSCheckBoxAlert.h"
#include "controls/TSTheme.h"
#include "platform/system/UserDefaults.h"
#include "ui/export/TSExportReport.h"
#include "ui/export/TSFileViewer.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int textWidth = 420;

QLabel *newText(const char *name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setFixedWidth(textWidth);
    label->setWordWrap(true);
    return label;
}

} // namespace

TSSaveInfoWindowController::TSSaveInfoWindowController(QWidget *parent)
    : TSSheet(parent)
    , m_tfTitle(newText("tfTitle", this))
    , m_tfPath(newText("tfPath", this))
    , m_tfCounts(newText("tfCounts", this))
    , m_tfReport(newText("tfReport", this))
    , m_cbShow(new QCheckBox(qtTrId("DontShowAgain"), this))
    , m_btOK(newButton("btOK", qtTrId("ShowFile")))
{
    setObjectName(QStringLiteral("SaveInfoWindow"));
    m_cbShow->setObjectName(QStringLiteral("cbShow"));
    m_cbShow->setAccessibleName(m_cbShow->text());
    m_tfTitle->setFont(TSTheme::titleFont());
    m_btOK->setDefault(true);
    auto *btCancel = newButton("btCancel", qtTrId("Close"));
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(TSTheme::spacing);
    buttons->addWidget(m_cbShow);
    buttons->addStretch();
    buttons->addWidget(btCancel);
    buttons->addWidget(m_btOK);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(20, 20, 20, TSTheme::margin);
    column->setSpacing(TSTheme::spacing);
    column->setSizeConstraint(QLayout::SetFixedSize);
    for (QLabel *label : {m_tfTitle, m_tfCounts, m_tfPath, m_tfReport})
        column->addWidget(label);
    column->addSpacing(TSTheme::margin);
    column->addLayout(buttons);
    connect(m_btOK, &QPushButton::clicked, this, &TSSaveInfoWindowController::OKClick);
    connect(btCancel, &QPushButton::clicked, this, &TSSaveInfoWindowController::cancelClick);
    connect(m_cbShow, &QCheckBox::clicked, this, &TSSaveInfoWindowController::dontShowClick);
}

void TSSaveInfoWindowController::setPath(const QString &path)
{
    m_path = path;
    const QString folder = QDir::toNativeSeparators(QFileInfo(path).absolutePath());
    m_tfPath->setText(m_tfPath->fontMetrics().elidedText(folder, Qt::ElideMiddle, textWidth));
    m_tfPath->setToolTip(folder);
    updateCbShow();
    m_btOK->setEnabled(true);
    m_btOK->setFocus();
}

void TSSaveInfoWindowController::setReport(const TSExportReport &report)
{
    const qint64 missed = report.missedCount();
    const QString count = QString::number(report.writtenCount());
    const QString all = QString::number(report.writtenCount() + missed);
    m_tfTitle->setText(missed > 0 ? qtTrId("ExportDonePartly").arg(count, all) : qtTrId("ExportDone"));
    m_tfCounts->setText(report.counts());
    m_tfReport->setText(report.sentences());
    m_tfReport->setVisible(!m_tfReport->text().isEmpty());
    setAccessibleName(m_tfTitle->text());
    setAccessibleDescription(QStringLiteral("%1\n%2").arg(m_tfCounts->text(), m_tfReport->text()).trimmed());
}

void TSSaveInfoWindowController::updateCbShow()
{
    m_cbShow->setChecked(!platform::UserDefaults::standard().boolForKey(showKey()));
}

void TSSaveInfoWindowController::OKClick()
{
    // A file manager may have to be started; a second click would show the file twice.
    m_btOK->setEnabled(false);
    TSFileViewer::selectFile(m_path, this, [this](bool wasShown) { fileWasShown(wasShown); });
}

void TSSaveInfoWindowController::fileWasShown(bool wasShown)
{
    if (wasShown)
        return stopModal();
    auto *alert = TSCheckBoxAlert::alertWithMessageText(qtTrId("FailedShowFile") + m_path, qtTrId("OK"), {},
                                                        {}, {}, this);
    alert->setAttribute(Qt::WA_DeleteOnClose);
    connect(alert, &QDialog::finished, this, &TSSaveInfoWindowController::stopModal);
    alert->open();
}

void TSSaveInfoWindowController::cancelClick()
{
    stopModal();
}

void TSSaveInfoWindowController::stopModal()
{
    if (!isVisible())
        return;
    done(Accepted);
    Q_EMIT didClose();
}

void TSSaveInfoWindowController::dontShowClick(bool isOn)
{
    platform::UserDefaults &defaults = platform::UserDefaults::standard();
    defaults.setBool(showKey(), !isOn);
    defaults.synchronize();
    Q_EMIT showChanged();
}
