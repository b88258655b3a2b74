#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;
class TSExportRun;

/// The sheet during a run: a line that counts, a bar that does not, and a way out that asks first. While it
/// asks the run waits.
class TSProgressBarWindowController : public QDialog {
    Q_OBJECT

public:
    TSProgressBarWindowController(TSExportRun &run, QWidget *parent);

    void setTip(const QString &tip);
    void cancelClick();
    /// Escape asks like the button.
    void reject() override { cancelClick(); }

private:
    TSExportRun &m_run;
    QLabel *m_tfTip;
    QProgressBar *m_pb;
    QPushButton *m_btCancel;
};
