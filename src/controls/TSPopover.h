#pragma once

#include <QPainterPath>
#include <QWidget>

class QVBoxLayout;

/// A bubble with an arrow to the widget it belongs to. A click elsewhere or Escape closes it.
class TSPopover : public QWidget {
    Q_OBJECT

public:
    explicit TSPopover(QWidget *parent = nullptr);

    /// Takes the widget over.
    void setContent(QWidget *content);
    /// Below the widget, or above it where there is more room.
    void showRelativeTo(const QWidget *anchor);

Q_SIGNALS:
    /// Once for each showing, however it ended.
    void popoverDidClose();

protected:
    void paintEvent(QPaintEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QPainterPath shape() const;

    QVBoxLayout *m_layout;
    /// The arrow's tip, in the popover's coordinates.
    int m_arrowX = 0;
    bool m_isBelow = true;
};
