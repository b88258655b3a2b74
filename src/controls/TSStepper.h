#pragma once

#include <QAbstractSlider>

/// Two small arrows that move a value by single steps, and go on while they are held.
class TSStepper : public QAbstractSlider {
    Q_OBJECT

public:
    explicit TSStepper(QWidget *parent = nullptr);

    /// Steps beyond one end go on at the other.
    void setWrapping(bool isWrapping) { m_isWrapping = isWrapping; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    void step(int direction);
    bool canStep(int direction) const;
    void paintHalf(QPainter &painter, int direction) const;

    bool m_isWrapping = false;
    int m_held = 0;
    int m_timer = 0;
};
