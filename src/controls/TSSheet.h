#pragma once

#include <QDialog>
#include <QPointer>

/// A dialog that hangs from the top of its parent window and keeps the user from it until it is answered. It
/// goes with the window; Escape cancels.
class TSSheet : public QDialog {
    Q_OBJECT

public:
    explicit TSSheet(QWidget *parent);
    ~TSSheet() override;

    /// How far below the window's top it hangs, in device-independent pixels: the height of a toolbar.
    void setTopInset(int inset);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void place();
    void dimParent();

    /// Lies over the parent window while the sheet is up.
    QPointer<QWidget> m_veil;
    int m_topInset = 0;
};
