#pragma once

#include <QDialog>

class QCheckBox;

/// The preferences: which questions and reports come. Two of the boxes stand for the opposite of what is
/// kept. One instance; it takes up the present values whenever it is shown.
class TSPreferencesWindowController : public QDialog {
    Q_OBJECT

public:
    explicit TSPreferencesWindowController(QWidget *parent);

    /// Takes up what the result sheet changed.
    void updateCbShow();

Q_SIGNALS:
    /// The user changed whether the result sheet is wanted.
    void showSaveInfoDidChange();

protected:
    void showEvent(QShowEvent *event) override;

private:
    QCheckBox *newBox(const char *name, const QString &title, const QString &key, bool isOpposite);

    QCheckBox *m_cbShow;
    QCheckBox *m_cbShowApplyProfileTip;
    QCheckBox *m_cbShowRemoveProfileTip;
};
