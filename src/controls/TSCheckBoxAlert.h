#pragma once

#include "controls/TSSheet.h"

#include <QString>

class QCheckBox;
class QLabel;
class QPushButton;
class QVBoxLayout;

/// A question with up to three buttons and, where wanted, a box for not asking it again.
class TSCheckBoxAlert : public TSSheet {
    Q_OBJECT

public:
    /// What `exec` and the signal `finished` answer.
    enum Answer { DefaultReturn = 1, AlternateReturn = 0, OtherReturn = -1 };

    /// Empty button titles give no button. The caller deletes the alert, or its parent does.
    static TSCheckBoxAlert *alertWithMessageText(const QString &message, const QString &defaultButton,
                                                 const QString &alternateButton, const QString &otherButton,
                                                 const QString &informativeText, QWidget *parent);

    bool showsCheckbox() const { return m_checkbox; }
    void setShowsCheckbox(bool shows);
    /// Null without a box; its setter does nothing then.
    QString checkboxText() const;
    void setCheckboxText(const QString &text);
    /// 0 off, 1 on, -1 without a box; its setter does nothing then.
    int checkboxState() const;
    void setCheckboxState(int state);

    /// What Escape answers: the only button, or the second of two. With three buttons it answers nothing
    /// unless told here.
    void setEscapeAnswer(Answer answer);

    void reject() override;

private:
    explicit TSCheckBoxAlert(QWidget *parent);
    void setTexts(const QString &message, const QString &informativeText);
    void addButton(const QString &title, Answer answer);
    void showEvent(QShowEvent *event) override;

    QVBoxLayout *m_column;
    QVBoxLayout *m_boxPlace;
    QLabel *m_informative = nullptr;
    QCheckBox *m_checkbox = nullptr;
    QPushButton *m_first = nullptr;
    int m_buttons = 0;
    int m_escape = DefaultReturn;
    bool m_hasEscape = true;
};
