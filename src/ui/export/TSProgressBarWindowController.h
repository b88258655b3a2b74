#pragma once

#include "controls/TSSheet.h"

#include <QPointer>

class QLabel;
class QPushButton;
class TSBusyBar;
class TSCheckBoxAlert;

/// The sheet during a run: a line that counts, a bar, and a way out that asks first. While it asks, the run
/// is to wait. One instance serves all runs.
class TSProgressBarWindowController : public TSSheet {
    Q_OBJECT

public:
    explicit TSProgressBarWindowController(QWidget *parent);

    /// Nothing for an empty text.
    void setTip(const QString &tip);
    void setIndeterminate(bool isIndeterminate);
    /// Without the button the bar takes its room.
    void setCanCancel(bool canCancel);
    /// From 0 to 100. The bar moves by whole steps only.
    void setProgressValue(double value);

    /// The question is up.
    bool isPausing() const { return m_isPausing; }
    void setIsPausing(bool isPausing);
    /// The question was answered with yes.
    bool isCancelled() const { return m_isCancelled; }
    void setIsCancelled(bool isCancelled);

    void cancelClick();
    /// The same for whoever wants to leave the program.
    void askToQuit();
    /// Closes the sheet, and the question when that is still up.
    void endSheet();
    /// Escape asks like the button.
    void reject() override { cancelClick(); }

Q_SIGNALS:
    void isPausingChanged(bool isPausing);
    void isCancelledChanged(bool isCancelled);

private:
    void ask(const QString &question);
    void confirmCancel(int answer);
    void setAnimated(bool isAnimated);

    QLabel *m_tfTip;
    TSBusyBar *m_pb;
    QPushButton *m_btCancel;
    QPointer<TSCheckBoxAlert> m_question;
    bool m_isIndeterminate = false;
    bool m_isPausing = false;
    bool m_isCancelled = false;
};
