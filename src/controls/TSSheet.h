#pragma once

#include <QDialog>
#include <QPainterPath>
#include <QPointer>

class QPushButton;

/// A dialog that hangs from the top of its parent window, below menus and toolbar, and keeps the user from it
/// until it is answered. It goes with the window; Escape cancels.
class TSSheet : public QDialog {
    Q_OBJECT

public:
    explicit TSSheet(QWidget *parent);
    ~TSSheet() override;

    /// Shown anew, a sheet that is leaving stays.
    void setVisible(bool visible) override;

protected:
    /// A named button that Return presses only while it has the focus.
    QPushButton *newButton(const char *name, const QString &title);

    /// Ends a sheet that nobody has to answer and that may have come a moment ago: it goes once it has had
    /// the keys. A window that goes while it is being given them takes them along, and the window below gets
    /// none.
    void leave();
    bool isLeaving() const { return m_isLeaving; }

    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void takeKeys();
    void keepKeys();
    bool isOver(const QWidget *window) const;
    void giveKeysBack();
    static void leaveKeysTo(QWidget *window);
    void endLeaving();
    void place();
    int topInset() const;
    void dimParent();
    void cutCorners();
    QPainterPath shape() const;

    /// Lies over the parent window while the sheet is up.
    QPointer<QWidget> m_veil;
    bool m_hasHadKeys = false;
    bool m_isLeaving = false;
};
