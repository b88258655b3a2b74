// Keys, pointer, pasteboard and drags of the token field.
#include "controls/TSTokenField.h"
#include "controls/TSTokenMimeData.h"
#include "controls/TSTokenObject.h"

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>

void TSTokenField::keyPressEvent(QKeyEvent *event)
{
    if (openMenuByKey(event) || stepOverToken(event))
        return event->accept();
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && !(event->modifiers() & Qt::ShiftModifier && lineWrapMode() != NoWrap)) {
        Q_EMIT returnPressed();
        Q_EMIT editingFinished();
        // The sheet around the field may have a default button.
        return event->ignore();
    }
    QTextEdit::keyPressEvent(event);
}

bool TSTokenField::openMenuByKey(QKeyEvent *event)
{
    const auto keys = {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down};
    const int token = selectedToken();
    if (token < 0 || event->modifiers() & ~Qt::KeypadModifier || isReadOnly() ||
        std::find(keys.begin(), keys.end(), event->key()) == keys.end() ||
        TSTokenObject::token(formatAt(token)).menu.isEmpty())
        return false;
    openMenu(token);
    return true;
}

bool TSTokenField::stepOverToken(QKeyEvent *event)
{
    const bool isLeft = event->key() == Qt::Key_Left, isRight = event->key() == Qt::Key_Right;
    if (!(isLeft || isRight) || event->modifiers() & ~Qt::KeypadModifier || textCursor().hasSelection())
        return false;
    const int next = isLeft ? textCursor().position() - 1 : textCursor().position();
    if (!isTokenAt(next))
        return false;
    selectToken(next);
    return true;
}

void TSTokenField::mousePressEvent(QMouseEvent *event)
{
    m_pressedToken = event->button() == Qt::LeftButton ? tokenAt(event->position().toPoint()) : -1;
    if (m_pressedToken >= 0 && !(event->modifiers() & Qt::ShiftModifier)) {
        const QTextCursor cursor = textCursor();
        const bool isSelected =
            cursor.selectionStart() <= m_pressedToken && m_pressedToken < cursor.selectionEnd();
        // Selected first, the base class takes the press for the begin of a drag.
        if (!isSelected)
            selectToken(m_pressedToken);
    }
    QTextEdit::mousePressEvent(event);
}

void TSTokenField::mouseReleaseEvent(QMouseEvent *event)
{
    const int released = tokenAt(event->position().toPoint());
    QTextEdit::mouseReleaseEvent(event);
    if (m_pressedToken >= 0 && released == m_pressedToken && event->button() == Qt::LeftButton) {
        selectToken(released);
        openMenu(released);
    }
    m_pressedToken = -1;
}

void TSTokenField::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (const int token = tokenAt(event->position().toPoint()); token >= 0)
        selectToken(token);
    else
        QTextEdit::mouseDoubleClickEvent(event);
}

void TSTokenField::focusInEvent(QFocusEvent *event)
{
    QTextEdit::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        selectAll();
    update();
}

void TSTokenField::focusOutEvent(QFocusEvent *event)
{
    QTextEdit::focusOutEvent(event);
    update();
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        Q_EMIT editingFinished();
}

void TSTokenField::contextMenuEvent(QContextMenuEvent *event)
{
    // Settled: the field has no context menu. The keys for copying and pasting work.
    event->accept();
}

bool TSTokenField::canInsertFromMimeData(const QMimeData *source) const
{
    return qobject_cast<const TSTokenMimeData *>(source) || source->hasText();
}

void TSTokenField::insertFromMimeData(const QMimeData *source)
{
    const auto *parts = qobject_cast<const TSTokenMimeData *>(source);
    insertParts(parts ? parts->parts() : TSFieldParts{source->text()});
}

QMimeData *TSTokenField::createMimeDataFromSelection() const
{
    const QTextCursor cursor = textCursor();
    TSFieldParts parts = partsBetween(cursor.selectionStart(), cursor.selectionEnd());
    // Settled: a drag carries the first of several pieces alone; the clipboard takes them all.
    const bool isDrag = QApplication::mouseButtons() & Qt::LeftButton;
    if (isDrag && parts.size() > 1)
        parts.erase(parts.begin() + 1, parts.end());
    return new TSTokenMimeData(std::move(parts));
}

void TSTokenField::dropEvent(QDropEvent *event)
{
    m_pressedToken = -1;
    QTextEdit::dropEvent(event);
}
