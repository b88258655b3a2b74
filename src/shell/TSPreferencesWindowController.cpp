#include "shell/TSPreferencesWindowController.h"

#include "controls/TSTheme.h"
#include "platform/system/UserDefaults.h"
#include "ui/export/TSSaveInfoWindowController.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const QString applyKey = QStringLiteral("ShowApplyProfileTip");
const QString removeKey = QStringLiteral("ShowRemoveProfileTip");

void write(const QString &key, bool value)
{
    platform::UserDefaults &defaults = platform::UserDefaults::standard();
    defaults.setBool(key, value);
    defaults.synchronize();
}

} // namespace

TSPreferencesWindowController::TSPreferencesWindowController(QWidget *parent)
    : QDialog(parent)
    , m_cbShow(newBox("cbShow", qtTrId("PreferShowResult"), TSSaveInfoWindowController::showKey(), false))
    , m_cbShowApplyProfileTip(newBox("cbShowApplyProfileTip", qtTrId("PreferNoApplyTip"), applyKey, true))
    , m_cbShowRemoveProfileTip(newBox("cbShowRemoveProfileTip", qtTrId("PreferNoRemoveTip"), removeKey, true))
{
    setObjectName(QStringLiteral("PreferencesWindow"));
    connect(m_cbShow, &QCheckBox::clicked, this, &TSPreferencesWindowController::showSaveInfoDidChange);
    setWindowTitle(qtTrId("Preferences"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setText(qtTrId("Close"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::hide);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(TSTheme::margin, TSTheme::margin, TSTheme::margin, TSTheme::margin);
    column->setSpacing(TSTheme::spacing);
    for (QCheckBox *box : {m_cbShow, m_cbShowApplyProfileTip, m_cbShowRemoveProfileTip})
        column->addWidget(box);
    column->addSpacing(TSTheme::spacing);
    column->addWidget(buttons);
}

QCheckBox *TSPreferencesWindowController::newBox(const char *name, const QString &title, const QString &key,
                                                 bool isOpposite)
{
    auto *box = new QCheckBox(title, this);
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(title);
    connect(box, &QCheckBox::clicked, this, [key, isOpposite](bool isOn) { write(key, isOn != isOpposite); });
    return box;
}

void TSPreferencesWindowController::updateCbShow()
{
    m_cbShow->setChecked(
        platform::UserDefaults::standard().boolForKey(TSSaveInfoWindowController::showKey()));
}

void TSPreferencesWindowController::showEvent(QShowEvent *event)
{
    const platform::UserDefaults &defaults = platform::UserDefaults::standard();
    updateCbShow();
    m_cbShowApplyProfileTip->setChecked(!defaults.boolForKey(applyKey));
    m_cbShowRemoveProfileTip->setChecked(!defaults.boolForKey(removeKey));
    QDialog::showEvent(event);
}
