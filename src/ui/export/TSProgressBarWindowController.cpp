#include "ui/export/TSProgressBarWindowController.h"

#include "controls/TSBusyBar.h"
#include "controls/TSCheckBoxAlert.h"
#include "controls/TSTheme.h"

#include <cmath>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/// No wider than the questions that come over it.
constexpr int sheetWidth = 420;

} // namespace

TSProgressBarWindowController::TSProgressBarWindowController(QWidget *parent)
    : TSSheet(parent)
    , m_tfTip(new QLabel(this))
    , m_pb(new TSBusyBar(this))
    , m_btCancel(newButton("btCancel", qtTrId("Cancel")))
{
    setObjectName(QStringLiteral("ProgressBarWindow"));
    setAccessibleName(qtTrId("Converting..."));
    m_tfTip->setObjectName(QStringLiteral("tfTip"));
    m_pb->setObjectName(QStringLiteral("pb"));
    m_pb->setAccessibleName(qtTrId("Converting..."));
    auto *row = new QHBoxLayout;
    row->setSpacing(TSTheme::margin);
    row->addWidget(m_pb, 1);
    row->addWidget(m_btCancel);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(20, 20, 20, TSTheme::margin);
    column->setSpacing(TSTheme::spacing);
    column->addWidget(m_tfTip);
    column->addLayout(row);
    setFixedWidth(sheetWidth);
    connect(m_btCancel, &QPushButton::clicked, this, &TSProgressBarWindowController::cancelClick);
}

void TSProgressBarWindowController::setTip(const QString &tip)
{
    if (!tip.isEmpty())
        m_tfTip->setText(tip);
}

void TSProgressBarWindowController::setIndeterminate(bool isIndeterminate)
{
    m_isIndeterminate = isIndeterminate;
    setAnimated(isIndeterminate);
}

/// A bar without a range moves by itself.
void TSProgressBarWindowController::setAnimated(bool isAnimated)
{
    m_pb->setRange(0, isAnimated ? 0 : 100);
    m_pb->setValue(0);
}

void TSProgressBarWindowController::setCanCancel(bool canCancel)
{
    m_btCancel->setVisible(canCancel);
}

void TSProgressBarWindowController::setProgressValue(double value)
{
    if (std::abs(value - m_pb->value()) < 1)
        return;
    m_pb->setValue(int(value));
    m_pb->repaint();
}

void TSProgressBarWindowController::setIsPausing(bool isPausing)
{
    m_isPausing = isPausing;
    Q_EMIT isPausingChanged(isPausing);
}

void TSProgressBarWindowController::setIsCancelled(bool isCancelled)
{
    m_isCancelled = isCancelled;
    m_btCancel->setEnabled(!isCancelled);
    Q_EMIT isCancelledChanged(isCancelled);
}

void TSProgressBarWindowController::cancelClick()
{
    ask(qtTrId("ConfirmCancel"));
}

void TSProgressBarWindowController::askToQuit()
{
    ask(qtTrId("ConfirmQuit"));
}

void TSProgressBarWindowController::ask(const QString &question)
{
    if (m_question || m_isCancelled || isLeaving() || !m_btCancel->isVisibleTo(this))
        return;
    setIsPausing(true);
    if (m_isIndeterminate)
        setAnimated(false);
    m_question = TSCheckBoxAlert::alertWithMessageText(question, qtTrId("OK"), qtTrId("Cancel"), {},
                                                       qtTrId("WarningCancel"), this);
    m_question->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_question, &QDialog::finished, this, &TSProgressBarWindowController::confirmCancel);
    m_question->open();
}

void TSProgressBarWindowController::confirmCancel(int answer)
{
    m_question.clear();
    // The sheet stays until the run has left its photo: it works on what the sheet keeps the user from.
    if (answer == TSCheckBoxAlert::DefaultReturn)
        setIsCancelled(true);
    if (m_isIndeterminate)
        setAnimated(true);
    setIsPausing(false);
}

void TSProgressBarWindowController::endSheet()
{
    delete m_question;
    if (m_isPausing)
        setIsPausing(false);
    leave();
}
