#include "controls/TSTokenField.h"

#include "controls/TSTheme.h"
#include "controls/TSTokenMimeData.h"
#include "controls/TSTokenObject.h"
#include "controls/TSTokenPainter.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QMenu>
#include <QPainter>

namespace {

constexpr int sideMargin = 4;

/// A field is one paragraph: breaks within it are soft, so that a text with several lines comes back as it
/// was. The character that stands for tokens means nothing in text.
QString asContent(QString text)
{
    text.remove(QChar::ObjectReplacementCharacter);
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n').replace(QChar(QChar::ParagraphSeparator), u'\n');
    return text.replace(u'\n', QChar(QChar::LineSeparator));
}

void insertPart(QTextCursor &cursor, const TSFieldPart &part)
{
    if (const auto *token = std::get_if<TSFieldToken>(&part))
        cursor.insertText(QString(QChar::ObjectReplacementCharacter), TSTokenObject::format(*token));
    else
        cursor.insertText(asContent(std::get<QString>(part)), QTextCharFormat());
}

void appendText(TSFieldParts &parts, QString text)
{
    text.replace(QChar(QChar::LineSeparator), u'\n');
    if (!parts.empty() && std::holds_alternative<QString>(parts.back()))
        std::get<QString>(parts.back()) += text;
    else if (!text.isEmpty())
        parts.emplace_back(text);
}

bool isSame(const TSFieldPart &left, const TSFieldPart &right)
{
    if (left.index() != right.index())
        return false;
    if (const auto *text = std::get_if<QString>(&left))
        return *text == std::get<QString>(right);
    const auto &a = std::get<TSFieldToken>(left), &b = std::get<TSFieldToken>(right);
    return a.title == b.title && a.menu == b.menu && a.object == b.object;
}

} // namespace

TSTokenField::TSTokenField(QWidget *parent) : QTextEdit(parent)
{
    document()->documentLayout()->registerHandler(TSTokenObject::type, new TSTokenObject(this));
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setFrameShape(StyledPanel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    setWraps(false);
    // Selected tokens look different, and the text around them is not repainted for that by itself.
    connect(this, &QTextEdit::selectionChanged, this, [this] {
        // A selected token needs no caret beside it.
        setCursorWidth(selectedToken() < 0 ? 1 : 0);
        viewport()->update();
    });
    connect(this, &QTextEdit::textChanged, this, &TSTokenField::reportChange);
}

TSFieldParts TSTokenField::parts() const
{
    return partsBetween(0, document()->characterCount() - 1);
}

TSFieldParts TSTokenField::partsBetween(int from, int to) const
{
    TSFieldParts parts;
    for (int position = from; position < to; ++position) {
        const QTextCharFormat format = formatAt(position);
        if (TSTokenObject::isToken(format))
            parts.emplace_back(TSTokenObject::token(format));
        else
            appendText(parts, document()->characterAt(position));
    }
    return parts;
}

void TSTokenField::setParts(const TSFieldParts &parts)
{
    m_isSettingParts = true;
    document()->clear();
    QTextCursor cursor(document());
    for (const TSFieldPart &part : parts)
        insertPart(cursor, part);
    document()->clearUndoRedoStacks();
    setTextCursor(cursor);
    m_lastParts = this->parts();
    m_isSettingParts = false;
    describe();
}

void TSTokenField::insertParts(const TSFieldParts &parts)
{
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    for (const TSFieldPart &part : parts)
        insertPart(cursor, part);
    cursor.endEditBlock();
    setTextCursor(cursor);
    ensureCursorVisible();
}

void TSTokenField::setWraps(bool wraps)
{
    setLineWrapMode(wraps ? WidgetWidth : NoWrap);
    setWordWrapMode(wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    setVerticalScrollBarPolicy(wraps ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, wraps ? QSizePolicy::Expanding : QSizePolicy::Fixed);
    // Inside the text's own margin, where the shape of a token reaches above and below its line.
    const int room = TSTheme::controlHeight - 2 * frameWidth() - fontMetrics().height();
    document()->setDocumentMargin(qMax(3, room / 2));
    // An odd pixel goes above, as with the labels and fields beside it.
    setViewportMargins(sideMargin, room % 2, sideMargin, 0);
    updateGeometry();
}

QSize TSTokenField::sizeHint() const
{
    return {240, minimumSizeHint().height()};
}

QSize TSTokenField::minimumSizeHint() const
{
    return {120, qMax(TSTheme::controlHeight, fontMetrics().height() + 8)};
}

QTextCharFormat TSTokenField::formatAt(int position) const
{
    QTextCursor cursor(document());
    cursor.setPosition(qMin(position + 1, document()->characterCount() - 1));
    return cursor.charFormat();
}

bool TSTokenField::isTokenAt(int position) const
{
    return position >= 0 && position < document()->characterCount() - 1 &&
           TSTokenObject::isToken(formatAt(position));
}

std::vector<int> TSTokenField::tokens() const
{
    std::vector<int> positions;
    for (int position = 0; position < document()->characterCount() - 1; ++position) {
        if (isTokenAt(position))
            positions.push_back(position);
    }
    return positions;
}

QRect TSTokenField::tokenRect(int position) const
{
    QTextCursor cursor(document());
    cursor.setPosition(position);
    const QRect caret = cursorRect(cursor);
    const TSFieldToken token = TSTokenObject::token(formatAt(position));
    const TSTokenPainter::Look look{token.title, font(), palette(), !token.menu.isEmpty()};
    // Not as high as the line, which without letters lacks what these reach below the base line: the token
    // would jump with the first of them.
    return {caret.topLeft(), QSizeF(TSTokenPainter::size(look)).toSize()};
}

int TSTokenField::tokenAt(const QPoint &point) const
{
    const std::vector<int> all = tokens();
    const auto hit = std::find_if(all.begin(), all.end(),
                                  [&](int position) { return tokenRect(position).contains(point); });
    return hit != all.end() ? *hit : -1;
}

int TSTokenField::selectedToken() const
{
    const QTextCursor cursor = textCursor();
    const bool isOne = cursor.selectionEnd() - cursor.selectionStart() == 1;
    return isOne && isTokenAt(cursor.selectionStart()) ? cursor.selectionStart() : -1;
}

void TSTokenField::selectToken(int position)
{
    QTextCursor cursor = textCursor();
    cursor.setPosition(position);
    cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void TSTokenField::paintEvent(QPaintEvent *event)
{
    QTextEdit::paintEvent(event);
    QPainter painter(viewport());
    for (const int position : tokens())
        paintToken(painter, position);
}

void TSTokenField::paintToken(QPainter &painter, int position)
{
    const QTextCursor cursor = textCursor();
    const TSFieldToken token = TSTokenObject::token(formatAt(position));
    const bool isSelected = cursor.selectionStart() <= position && position < cursor.selectionEnd();
    const bool isAlone = selectedToken() == position;
    const QRect rect = tokenRect(position);
    // The layout's selection lies at fractions of pixels.
    if (isAlone)
        painter.fillRect(rect.adjusted(-1, -1, 1, 1), palette().color(QPalette::Base));
    TSTokenPainter::paint(
        painter, rect,
        {token.title, font(), palette(), !token.menu.isEmpty(), isSelected, isSelected && !isAlone});
}

void TSTokenField::openMenu(int position)
{
    const TSFieldToken token = TSTokenObject::token(formatAt(position));
    if (token.menu.isEmpty())
        return;
    delete m_menu;
    m_menu = new QMenu(this);
    m_menu->setObjectName(QStringLiteral("tokenMenu"));
    for (int i = 0; i < token.menu.size(); ++i) {
        connect(m_menu->addAction(token.menu[i]), &QAction::triggered, this,
                [this, object = token.object, i] { Q_EMIT tokenMenuChosen(object, i); });
    }
    m_menu->popup(viewport()->mapToGlobal(tokenRect(position).bottomLeft() + QPoint(0, 6)));
}

void TSTokenField::reportChange()
{
    if (m_isSettingParts)
        return;
    TSFieldParts now = parts();
    // The document also speaks when only formats change, as on a new font.
    const bool isChanged =
        !std::equal(now.begin(), now.end(), m_lastParts.begin(), m_lastParts.end(), isSame);
    m_lastParts = std::move(now);
    if (!isChanged)
        return;
    describe();
    Q_EMIT partsChanged();
}

void TSTokenField::describe()
{
    setAccessibleDescription(TSTokenMimeData::displayText(m_lastParts));
}

void TSTokenField::changeEvent(QEvent *event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        setWraps(lineWrapMode() != NoWrap);
}
