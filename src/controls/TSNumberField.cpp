#include "controls/TSNumberField.h"

#include "controls/TSTheme.h"

#include <algorithm>
#include <limits>
#include <QKeyEvent>
#include <QRegularExpression>

namespace {

bool endsWithDigit(const QString &text)
{
    return text.back() >= u'0' && text.back() <= u'9';
}

/// The number that a text begins with, 0 for none, held within 32 bits.
qint64 leadingInteger(const QString &text)
{
    static const QRegularExpression number(QStringLiteral("^\\s*([+-]?[0-9]{1,10})"));
    const qint64 value = number.match(text).captured(1).toLongLong();
    return std::clamp<qint64>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
}

} // namespace

TSNumberField::TSNumberField(QWidget *parent) : QLineEdit(parent)
{
    setAlignment(Qt::AlignRight);
    setInputMethodHints(Qt::ImhFormattedNumbersOnly);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QLineEdit::textEdited, this, &TSNumberField::correct);
    setValue(0);
}

void TSNumberField::setRange(int minimum, int maximum)
{
    m_minimum = minimum;
    m_maximum = maximum;
    setValue(m_value);
}

void TSNumberField::setValue(int value)
{
    m_value = qBound(m_minimum, value, m_maximum);
    if (text() != QString::number(m_value))
        setText(QString::number(m_value));
}

QSize TSNumberField::sizeHint() const
{
    const int digits = qMax(QString::number(m_minimum).size(), QString::number(m_maximum).size());
    const int width = fontMetrics().horizontalAdvance(QString(digits + 1, u'0')) + 18;
    return {qMax(48, width), qMax(TSTheme::controlHeight, QLineEdit::sizeHint().height())};
}

void TSNumberField::correct(const QString &typed)
{
    const bool isLoneMinus = m_minimum < 0 && typed == QLatin1String("-");
    if (typed.isEmpty() || isLoneMinus)
        return;
    // The number is read before a stray character at the end is dropped: a letter alone reads as 0.
    const int value = withinRange(leadingInteger(typed));
    const int cursor = cursorPosition();
    if (!endsWithDigit(typed) || typed != QString::number(value)) {
        setText(QString::number(value));
        setCursorPosition(cursor);
    }
    change(value);
}

int TSNumberField::withinRange(qint64 value) const
{
    if (m_isCircular && (value < m_minimum || value > m_maximum))
        return m_minimum;
    return int(std::clamp<qint64>(value, m_minimum, m_maximum));
}

void TSNumberField::change(int value)
{
    if (value == m_value)
        return;
    m_value = value;
    Q_EMIT valueEdited(value);
}

void TSNumberField::keyPressEvent(QKeyEvent *event)
{
    const int step = event->key() == Qt::Key_Up ? 1 : event->key() == Qt::Key_Down ? -1 : 0;
    if (step == 0 || isReadOnly())
        return QLineEdit::keyPressEvent(event);
    const int size = event->modifiers() & Qt::ShiftModifier ? 10 : 1;
    const int value = withinRange(qint64(m_value) + step * size);
    setText(QString::number(value));
    change(value);
}

void TSNumberField::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    setValue(m_value);
}
