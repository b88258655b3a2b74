#include "controls/TSHUDButton.h"

#include "controls/TSTheme.h"

#include <QEvent>
#include <QStyleOptionToolButton>
#include <QStylePainter>

TSHUDButton::TSHUDButton(TSIcon::Name picture, const QString &title, Qt::ToolButtonStyle style,
                         QWidget *parent)
    : QToolButton(parent), m_picture(picture)
{
    setText(title);
    setAccessibleName(title);
    setToolButtonStyle(style);
    setAutoRaise(true);
    setPopupMode(InstantPopup);
    setIconSize({TSTheme::iconSize, TSTheme::iconSize});
    // A click leaves the focus where the work is; Tab finds the button.
    setFocusPolicy(Qt::TabFocus);
    if (style == Qt::ToolButtonTextUnderIcon)
        setFont(TSTheme::smallFont());
    tint();
}

void TSHUDButton::setPicture(TSIcon::Name picture)
{
    m_picture = picture;
    tint();
}

QSize TSHUDButton::sizeHint() const
{
    const QSize icon = iconSize();
    const QSize text = fontMetrics().size(Qt::TextShowMnemonic, this->text());
    const int arrow = menu() ? 12 : 0;
    switch (toolButtonStyle()) {
    case Qt::ToolButtonTextUnderIcon:
        return {qMax(icon.width(), text.width()) + arrow + 20, icon.height() + text.height() + 14};
    case Qt::ToolButtonTextBesideIcon:
        return {icon.width() + text.width() + arrow + 20, qMax(icon.height() + 10, TSTheme::controlHeight)};
    default:
        return icon + QSize(arrow + 12, 12);
    }
}

void TSHUDButton::changeEvent(QEvent *event)
{
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        tint();
}

void TSHUDButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    painter.drawPrimitive(QStyle::PE_PanelButtonTool, option);
    const int arrow = menu() ? 12 : 0;
    option.rect.adjust(0, toolButtonStyle() == Qt::ToolButtonTextUnderIcon ? 4 : 0, -arrow, 0);
    option.features &= ~QStyleOptionToolButton::HasMenu;
    painter.drawControl(QStyle::CE_ToolButtonLabel, option);
    if (menu()) {
        const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
        const QRectF place(width() - arrow - 4, height() / 2.0 - 5, 10, 10);
        TSIcon::paint(painter, place, TSIcon::Name::ChevronDown,
                      palette().color(group, QPalette::ButtonText));
    }
}

void TSHUDButton::tint()
{
    setIcon(TSIcon::icon(m_picture, palette()));
}
