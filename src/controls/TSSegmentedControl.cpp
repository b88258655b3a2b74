#include "controls/TSSegmentedControl.h"

#include "controls/TSSegment.h"
#include "controls/TSTheme.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPainter>

TSSegmentedControl::TSSegmentedControl(Selection selection, QWidget *parent)
    : QWidget(parent), m_layout(new QHBoxLayout(this)), m_group(new QButtonGroup(this))
{
    m_layout->setContentsMargins(2, 2, 2, 2);
    m_layout->setSpacing(2);
    m_group->setExclusive(selection == Selection::One);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // Toggled and not clicked: the arrow keys turn segments on without a click.
    connect(m_group, &QButtonGroup::idToggled, this, &TSSegmentedControl::report);
}

int TSSegmentedControl::addSegment(const QString &title)
{
    return add(new TSSegment(std::nullopt, title, this), title);
}

int TSSegmentedControl::addSegment(TSIcon::Name picture, const QString &title)
{
    return add(new TSSegment(picture, title, this), title);
}

int TSSegmentedControl::add(QAbstractButton *button, const QString &title)
{
    const int index = segmentCount();
    button->setObjectName(QStringLiteral("segment%1").arg(index));
    m_group->addButton(button, index);
    m_layout->addWidget(button);
    setAccessibleDescription(accessibleDescription() + title + u' ');
    return index;
}

int TSSegmentedControl::segmentCount() const
{
    return int(m_group->buttons().size());
}

int TSSegmentedControl::selectedSegment() const
{
    return m_group->exclusive() ? m_group->checkedId() : -1;
}

bool TSSegmentedControl::isSelected(int segment) const
{
    const QAbstractButton *button = m_group->button(segment);
    return button && button->isChecked();
}

void TSSegmentedControl::setSelected(int segment, bool isSelected)
{
    const QSignalBlocker silence(m_group);
    if (QAbstractButton *button = m_group->button(segment))
        button->setChecked(isSelected);
}

void TSSegmentedControl::setSegmentEnabled(int segment, bool isEnabled)
{
    if (QAbstractButton *button = m_group->button(segment))
        button->setEnabled(isEnabled);
}

QAbstractButton *TSSegmentedControl::segment(int segment) const
{
    return m_group->button(segment);
}

void TSSegmentedControl::report(int segment)
{
    // Of two segments that change places only the new one is news.
    if (isSelected(segment) || !m_group->exclusive())
        Q_EMIT segmentChanged(segment, isSelected(segment));
}

void TSSegmentedControl::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(isEnabled() ? TSTheme::outline(palette()) : TSTheme::hairline(palette()), 1));
    painter.setBrush(palette().color(QPalette::Button));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), TSTheme::radius, TSTheme::radius);
}
