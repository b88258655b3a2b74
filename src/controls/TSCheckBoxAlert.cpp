#include "controls/TSCheckBoxAlert.h"

#include "controls/TSIcon.h"
#include "controls/TSTheme.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int iconSide = 40, textWidth = 340, checkboxDistance = 14;

QLabel *textLabel(const QString &text, const QFont &font, const char *name, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(QLatin1String(name));
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFixedWidth(textWidth);
    return label;
}

QLabel *pictureLabel(QWidget *parent)
{
    auto *label = new QLabel(parent);
    QPalette tint = parent->palette();
    tint.setColor(QPalette::ButtonText, TSTheme::focusRing(tint));
    label->setPixmap(TSIcon::icon(TSIcon::Name::Warning, tint)
                         .pixmap(QSize(iconSide, iconSide), parent->devicePixelRatioF()));
    return label;
}

} // namespace

TSCheckBoxAlert::TSCheckBoxAlert(QWidget *parent) : TSSheet(parent)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(20, 20, 20, TSTheme::margin);
    grid->setHorizontalSpacing(TSTheme::margin);
    grid->setVerticalSpacing(20);
    grid->addWidget(pictureLabel(this), 0, 0, Qt::AlignTop);
    m_column = new QVBoxLayout;
    m_column->setSpacing(6);
    grid->addLayout(m_column, 0, 1);
    auto *buttons = new QHBoxLayout;
    buttons->setObjectName(QStringLiteral("buttons"));
    buttons->setDirection(QBoxLayout::RightToLeft);
    buttons->setSpacing(TSTheme::spacing);
    grid->addLayout(buttons, 1, 0, 1, 2);
    grid->setSizeConstraint(QLayout::SetFixedSize);
}

TSCheckBoxAlert *TSCheckBoxAlert::alertWithMessageText(const QString &message, const QString &defaultButton,
                                                       const QString &alternateButton,
                                                       const QString &otherButton,
                                                       const QString &informativeText, QWidget *parent)
{
    auto *alert = new TSCheckBoxAlert(parent);
    alert->setTexts(message, informativeText);
    alert->addButton(defaultButton, DefaultReturn);
    alert->addButton(alternateButton, AlternateReturn);
    alert->addButton(otherButton, OtherReturn);
    alert->findChild<QHBoxLayout *>(QStringLiteral("buttons"))->addStretch();
    return alert;
}

void TSCheckBoxAlert::setTexts(const QString &message, const QString &informativeText)
{
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    m_column->addWidget(textLabel(message, bold, "messageText", this));
    m_informative = textLabel(informativeText, font(), "informativeText", this);
    m_informative->setVisible(!informativeText.isEmpty());
    m_column->addWidget(m_informative);
    m_boxPlace = new QVBoxLayout;
    m_column->addLayout(m_boxPlace);
    m_column->addStretch();
    setAccessibleName(message);
    setAccessibleDescription(informativeText);
}

void TSCheckBoxAlert::addButton(const QString &title, Answer answer)
{
    if (title.isEmpty())
        return;
    static constexpr const char *names[] = {"otherButton", "alternateButton", "defaultButton"};
    auto *button = new QPushButton(title, this);
    button->setObjectName(QLatin1String(names[answer + 1]));
    button->setAccessibleName(title);
    button->setAutoDefault(false);
    button->setDefault(m_buttons == 0);
    connect(button, &QPushButton::clicked, this, [this, answer] { done(answer); });
    findChild<QHBoxLayout *>(QStringLiteral("buttons"))->addWidget(button);
    m_first = m_first ? m_first : button;
    ++m_buttons;
    m_escape = answer;
    m_hasEscape = m_buttons < 3;
}

void TSCheckBoxAlert::setShowsCheckbox(bool shows)
{
    if (shows == showsCheckbox())
        return;
    delete m_checkbox;
    m_checkbox = nullptr;
    m_boxPlace->setContentsMargins(0, shows ? checkboxDistance - m_column->spacing() : 0, 0, 0);
    // A widget that goes tells the innermost layout alone.
    m_column->invalidate();
    if (!shows)
        return;
    m_checkbox = new QCheckBox(this);
    m_checkbox->setObjectName(QStringLiteral("checkbox"));
    m_checkbox->setFont(m_informative->font());
    m_boxPlace->addWidget(m_checkbox);
}

QString TSCheckBoxAlert::checkboxText() const
{
    return m_checkbox ? m_checkbox->text() : QString();
}

void TSCheckBoxAlert::setCheckboxText(const QString &text)
{
    if (!m_checkbox)
        return;
    m_checkbox->setText(text);
    m_checkbox->setAccessibleName(text);
}

int TSCheckBoxAlert::checkboxState() const
{
    return m_checkbox ? int(m_checkbox->isChecked()) : -1;
}

void TSCheckBoxAlert::setCheckboxState(int state)
{
    if (m_checkbox)
        m_checkbox->setChecked(state != 0);
}

void TSCheckBoxAlert::setEscapeAnswer(Answer answer)
{
    m_escape = answer;
    m_hasEscape = true;
}

void TSCheckBoxAlert::reject()
{
    if (m_hasEscape)
        done(m_escape);
}

void TSCheckBoxAlert::showEvent(QShowEvent *event)
{
    TSSheet::showEvent(event);
    if (m_first)
        m_first->setFocus();
}
