#pragma once

#include "controls/TSFieldPart.h"

#include <QTextEdit>

class QMenu;

/// An editable line of text and tokens. A token is one piece: it is selected, moved and deleted as a whole.
/// A click on a token, or Space, Return or Down while it is selected, opens its menu. Typed text never turns
/// into a token by itself.
class TSTokenField : public QTextEdit {
    Q_OBJECT

public:
    explicit TSTokenField(QWidget *parent = nullptr);

    /// Neighbouring texts come back as one part, and no part is empty.
    TSFieldParts parts() const;
    /// Forgets what could be undone, and reports no change.
    void setParts(const TSFieldParts &parts);
    /// At the cursor, in place of what is selected.
    void insertParts(const TSFieldParts &parts);
    /// Several lines, which break at the field's width; otherwise one line that scrolls.
    void setWraps(bool wraps);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user changed the content, once for each change.
    void partsChanged();
    void tokenMenuChosen(const QVariant &object, int itemIndex);
    void returnPressed();
    void editingFinished();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;
    QMimeData *createMimeDataFromSelection() const override;

private:
    TSFieldParts partsBetween(int from, int to) const;
    int tokenAt(const QPoint &point) const;
    std::vector<int> tokens() const;
    QTextCharFormat formatAt(int position) const;
    bool isTokenAt(int position) const;
    int selectedToken() const;
    QRect tokenRect(int position) const;
    void paintToken(QPainter &painter, int position);
    void selectToken(int position);
    bool stepOverToken(QKeyEvent *event);
    bool openMenuByKey(QKeyEvent *event);
    void openMenu(int position);
    void reportChange();
    void describe();

    QMenu *m_menu = nullptr;
    int m_pressedToken = -1;
    bool m_isSettingParts = false;
    TSFieldParts m_lastParts;
};
