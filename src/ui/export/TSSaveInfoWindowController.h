#pragma once

#include "controls/TSSheet.h"

class QCheckBox;
class QLabel;
class QPushButton;
class TSExportReport;

/// The sheet after a run: how it went, and a way to the first file. One instance serves all runs.
class TSSaveInfoWindowController : public TSSheet {
    Q_OBJECT

public:
    explicit TSSaveInfoWindowController(QWidget *parent);

    /// The file that is to be shown.
    void setPath(const QString &path);
    void setReport(const TSExportReport &report);
    /// Takes up whether the sheet is wanted, which the preferences may have changed.
    void updateCbShow();

    /// The default that tells whether the sheet is wanted at all.
    static QString showKey() { return QStringLiteral("kShowSaveInfo"); }
    /// Escape closes like the button.
    void reject() override { cancelClick(); }

Q_SIGNALS:
    /// The user changed whether the sheet is wanted.
    void showChanged();
    void didClose();

private:
    void OKClick();
    void cancelClick();
    void dontShowClick(bool isOn);
    void stopModal();
    void fileWasShown(bool wasShown);

    QString m_path;
    QLabel *m_tfTitle;
    QLabel *m_tfPath;
    QLabel *m_tfCounts;
    QLabel *m_tfReport;
    QCheckBox *m_cbShow;
    QPushButton *m_btOK;
};
