#pragma once

#include "controls/TSFieldPart.h"

#include <QAbstractButton>

/// One token of a palette, to be dragged into a token field. A click, Return or Space puts it there as well.
class TSTokenPill : public QAbstractButton {
    Q_OBJECT

public:
    explicit TSTokenPill(const TSFieldToken &token, QWidget *parent = nullptr);

    const TSFieldToken &token() const { return m_token; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// Insert the token where the field's cursor stands.
    void activated(const TSFieldToken &token);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void drag();

    TSFieldToken m_token;
    QPoint m_pressedAt;
};
