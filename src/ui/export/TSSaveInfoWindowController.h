#pragma once

#include <QDialog>

class QCheckBox;

/// The sheet after a run: that it is done, and a way to the first file.
class TSSaveInfoWindowController : public QDialog {
    Q_OBJECT

public:
    TSSaveInfoWindowController(const QString &path, QWidget *parent);

    /// The default that tells whether the sheet is wanted at all.
    static QString showKey() { return QStringLiteral("kShowSaveInfo"); }

private:
    void OKClick();
    void dontShowClick(bool isOn);

    QString m_path;
    QCheckBox *m_cbShow;
};
