#pragma once

#include <QWidget>

class QSlider;
class TSNumberField;
class TSStepper;

/// A slider, a number field and a stepper that show one integer.
class TSValueTrio : public QWidget {
    Q_OBJECT

public:
    /// The parts are named "sl", "tf" and "st" followed by the name, and read out with the label. Without a
    /// slider it is a field with a stepper.
    enum class Parts { WithSlider, WithoutSlider };
    TSValueTrio(const QString &name, const QString &label, Parts parts, QWidget *parent = nullptr);
    ~TSValueTrio() override;

    void setRange(int minimum, int maximum);
    /// The values lie on a circle: steps go round, and what is typed out of range becomes the minimum.
    void setCircular(bool isCircular);
    int value() const;
    /// Held within the range. Reports nothing.
    void setValue(int value);

    /// Null without one.
    QSlider *slider() const { return m_slider; }
    TSNumberField *field() const { return m_field; }
    TSStepper *stepper() const { return m_stepper; }

Q_SIGNALS:
    /// The user set another value, by whichever part.
    void valueChanged(int value);
    /// The field lost the focus, or Return was pressed in it.
    void editingFinished();

private:
    void take(int value);

    QSlider *m_slider = nullptr;
    TSNumberField *m_field;
    TSStepper *m_stepper;
};
