#pragma once

#include <QLineEdit>

/// A field that always shows an integer within its limits, after every keystroke. While it is empty, or holds
/// only the minus sign that a number is to follow, the last value stays in force.
class TSNumberField : public QLineEdit {
    Q_OBJECT

public:
    explicit TSNumberField(QWidget *parent = nullptr);

    void setRange(int minimum, int maximum);
    /// What is typed out of range becomes the minimum instead of the nearer limit, as angles need it.
    void setCircular(bool isCircular) { m_isCircular = isCircular; }
    int value() const { return m_value; }
    /// Reports nothing.
    void setValue(int value);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user typed another value.
    void valueEdited(int value);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void correct(const QString &typed);
    int withinRange(qint64 value) const;
    void change(int value);

    int m_minimum = 0;
    int m_maximum = 100;
    int m_value = 0;
    bool m_isCircular = false;
};
